#pragma once

#include <QString>
#include <optional>

namespace orvemo {

/// A number copied from a web page, a sheet or a letter ("1.545,50 €", "1 545,50", "1,545.50") as a field
/// takes it ("1545,50"): without thousands marks, blanks or euro sign, the comma before the decimals. A
/// single point before three digits is a thousands mark. Nothing when the text is no number.
[[nodiscard]] std::optional<QString> importePegado(const QString& texto);

}  // namespace orvemo
