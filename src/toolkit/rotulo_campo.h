#pragma once

#include <QLabel>

namespace orvemo {

/// The label of a field: one line, or as many as it needs once it is wider than a column of labels may be.
class RotuloCampo final : public QLabel {
  public:
    /// `anchoMaximo` in logical pixels.
    explicit RotuloCampo(int anchoMaximo, QWidget* padre = nullptr);

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override { return sizeHint(); }
    [[nodiscard]] bool hasHeightForWidth() const override { return false; }

  private:
    int anchoMaximo_;
};

}  // namespace orvemo
