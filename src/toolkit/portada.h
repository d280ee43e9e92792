#pragma once

#include <QDialog>
#include <chrono>

namespace orvemo {

/// The cover, `Survey`: a picture in the middle of the screen that goes by itself. Nothing else ends it.
class Portada final : public QDialog {
  public:
    explicit Portada(const QPixmap& foto);

    /// Shows it for that long.
    void muestra(std::chrono::milliseconds duracion);

    void reject() override {}

  protected:
    void closeEvent(QCloseEvent* suceso) override;
};

}  // namespace orvemo
