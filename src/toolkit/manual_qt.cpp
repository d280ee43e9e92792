#include "toolkit/manual_qt.h"

#include <QDesktopServices>
#include <QFile>
#include <QShortcut>
#include <QUrl>
#include <QWidget>
#include <string>

#include "toolkit/mensajes_qt.h"

namespace orvemo {

namespace {

void abreManual(const Almacen& almacen) {
    const QString ruta = QFile::decodeName(almacen.ruta(kFicheroManual).c_str());
    if (almacen.existe(kFicheroManual) && QDesktopServices::openUrl(QUrl::fromLocalFile(ruta))) return;
    MensajesQt{}.ComunicaError("No se ha podido abrir el manual. Está en el fichero «" +
                               std::string{kFicheroManual} + "» de la carpeta del programa.");
}

}  // namespace

void ponTeclaDelManual(QWidget& ventana, const Almacen& almacen) {
    auto* tecla = new QShortcut{QKeySequence{Qt::Key_F1}, &ventana};
    QObject::connect(tecla, &QShortcut::activated, &ventana, [&almacen] { abreManual(almacen); });
}

}  // namespace orvemo
