#include "toolkit/rotulo_campo.h"

#include <algorithm>

namespace orvemo {

RotuloCampo::RotuloCampo(int anchoMaximo, QWidget* padre) : QLabel{padre}, anchoMaximo_{anchoMaximo} {
    setTextFormat(Qt::PlainText);
    setWordWrap(true);
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Preferred);
}

QSize RotuloCampo::sizeHint() const {
    if (text().trimmed().isEmpty()) return {0, 0};
    const QRect hoja{0, 0, anchoMaximo_, QWIDGETSIZE_MAX};
    const QRect escrito = fontMetrics().boundingRect(hoja, Qt::TextWordWrap, text());
    // One pixel more: the measure of a whole line is rounded down.
    return {std::min(escrito.width() + 1, hoja.width()), escrito.height() + contentsMargins().top()};
}

}  // namespace orvemo
