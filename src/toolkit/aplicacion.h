#pragma once

#include <QApplication>
#include <QTranslator>

#include "foundations/values/mensajes.h"

namespace orvemo {

/// The toolkit's application in the program's style and in Spanish. What nobody caught is told in a box and
/// the program goes on.
class Aplicacion final : public QApplication {
  public:
    Aplicacion(int& argc, char** argv, Mensajes& mensajes);

    bool notify(QObject* objeto, QEvent* suceso) override;

  private:
    void hablaEspanol();

    Mensajes& mensajes_;
    QTranslator traductor_;
};

}  // namespace orvemo
