#pragma once

#include <QLabel>

namespace orvemo {

/// The large mark of a result: a disc with a tick or a square with a cross, and a word beside it, so that
/// neither colour nor shape alone tells it.
class MarcaVeredicto : public QLabel {
  public:
    explicit MarcaVeredicto(bool favorable, QWidget* padre = nullptr);

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override { return sizeHint(); }

  protected:
    void paintEvent(QPaintEvent* suceso) override;

  private:
    [[nodiscard]] int lado() const;

    bool favorable_;
};

}  // namespace orvemo
