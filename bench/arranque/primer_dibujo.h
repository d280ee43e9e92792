#pragma once

#include <unistd.h>

#include <QApplication>
#include <QEvent>
#include <QTimer>
#include <QWidget>
#include <functional>
#include <utility>

namespace orvemo::bench {

/// Calls once when the window has been painted for the first time and its picture is on the way to the
/// screen.
class PrimerDibujo final : public QObject {
  public:
    PrimerDibujo(QWidget& ventana, std::function<void()> alPintar)
        : ventana_{ventana}, alPintar_{std::move(alPintar)} {
        qApp->installEventFilter(this);  // what the children cover of the window itself isn't painted
    }

    bool eventFilter(QObject* objeto, QEvent* suceso) override {
        if (suceso->type() != QEvent::Paint || !esSuya(objeto)) return false;
        qApp->removeEventFilter(this);
        // The whole window is painted and handed over before the next turn of the event loop.
        QTimer::singleShot(0, this, alPintar_);
        return false;
    }

  private:
    [[nodiscard]] bool esSuya(QObject* objeto) const {
        const auto* widget = qobject_cast<QWidget*>(objeto);
        return widget != nullptr && widget->window() == &ventana_;
    }

    QWidget& ventana_;
    std::function<void()> alPintar_;
};

/// Tells whoever started the program, by one byte on its standard output, and ends it.
inline void avisaYTermina() {
    constexpr char kPintado = '.';
    const bool avisado = write(STDOUT_FILENO, &kPintado, 1) == 1;
    QApplication::exit(avisado ? 0 : 1);
}

}  // namespace orvemo::bench
