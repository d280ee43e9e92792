#pragma once

#include <QListWidget>
#include <functional>
#include <string>
#include <vector>

namespace orvemo {

/// A list box of plain texts, one of them chosen or none: coming to it with the keyboard chooses nothing yet.
class ListaTextos : public QListWidget {
  public:
    explicit ListaTextos(QWidget* padre = nullptr);

    /// The user chose the entry of this index.
    std::function<void(int)> alElegir;
    /// A double click or Enter on the entry chosen.
    std::function<void()> alAceptar;
    /// The Delete key.
    std::function<void()> alBorrar;

    /// Shows these entries and this choice, -1 for none, without telling anybody.
    void muestra(const std::vector<std::string>& textos, int elegido);

  protected:
    void keyPressEvent(QKeyEvent* suceso) override;

  private:
    [[nodiscard]] int elegido() const;
    void acepta();

    std::vector<std::string> textos_;
    bool mostrando_ = false;
};

}  // namespace orvemo
