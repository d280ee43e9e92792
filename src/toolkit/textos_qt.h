#pragma once

#include <QString>
#include <string>
#include <string_view>

namespace orvemo {

/// A text of the program as the toolkit takes it.
[[nodiscard]] inline QString aQt(std::string_view utf8) {
    return QString::fromUtf8(utf8.data(), static_cast<qsizetype>(utf8.size()));
}

/// A text of the toolkit as the program takes it.
[[nodiscard]] inline std::string deQt(const QString& texto) {
    return texto.toStdString();
}

/// A text in which "&" is a letter like any other, for widgets that would take it for a mnemonic.
[[nodiscard]] inline QString sinMnemonico(std::string_view utf8) {
    return aQt(utf8).replace(QLatin1Char('&'), QLatin1String("&&"));
}

}  // namespace orvemo
