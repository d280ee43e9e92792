#include "toolkit/aplicacion.h"

#include <QLibraryInfo>
#include <QLocale>
#include <exception>
#include <string>

#include "toolkit/instalacion.h"

namespace orvemo {

Aplicacion::Aplicacion(int& argc, char** argv, Mensajes& mensajes)
    : QApplication{argc, argv}, mensajes_{mensajes} {
    setApplicationName(QStringLiteral("PENSIONES_ORVEMO"));
    setDesktopFileName(QStringLiteral("pensiones-orvemo"));
    setQuitOnLastWindowClosed(false);  // the cover is a window too: only the menu's end is the program's
    hablaEspanol();
    instalaEstilo(*this);
}

/// The toolkit's own texts: menus of the text fields, print and file dialogs.
void Aplicacion::hablaEspanol() {
    QLocale::setDefault(QLocale{QLocale::Spanish, QLocale::Spain});
    if (traductor_.load(QStringLiteral("qtbase_es"), QLibraryInfo::path(QLibraryInfo::TranslationsPath))) {
        installTranslator(&traductor_);
    }
}

bool Aplicacion::notify(QObject* objeto, QEvent* suceso) {
    try {
        return QApplication::notify(objeto, suceso);
    } catch (const std::exception& fallo) {
        mensajes_.ComunicaError("No se ha podido completar la operación: " + std::string{fallo.what()} + ".");
        return false;
    }
}

}  // namespace orvemo
