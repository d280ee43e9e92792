#include "toolkit/rotulo_campo.h"

#include <algorithm>

#include "toolkit/medidas.h"

namespace orvemo {

namespace {

constexpr int kAnchoMaximo = 4500;  // twips of a column of labels

}  // namespace

RotuloCampo::RotuloCampo(QWidget* padre) : QLabel{padre} {
    setTextFormat(Qt::PlainText);
    setWordWrap(true);
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Preferred);
}

QSize RotuloCampo::sizeHint() const {
    if (text().trimmed().isEmpty()) return {0, 0};
    const QRect hoja{0, 0, px(kAnchoMaximo), QWIDGETSIZE_MAX};
    const QRect escrito = fontMetrics().boundingRect(hoja, Qt::TextWordWrap, text());
    // One pixel more: the measure of a whole line is rounded down.
    return {std::min(escrito.width() + 1, hoja.width()), escrito.height()};
}

}  // namespace orvemo
