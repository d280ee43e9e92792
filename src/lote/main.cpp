// orvemo-lote: the calculators without screens, for advisers with many cases, scripts and checks.

#include <unistd.h>

#include <QGuiApplication>
#include <QLibraryInfo>
#include <QTranslator>
#include <csignal>
#include <filesystem>
#include <iostream>
#include <string>
#include <vector>

#include "catalogue/catalogo.h"
#include "lote/lote.h"
#include "lote/opciones_lote.h"

namespace {

std::filesystem::path directorioDelEjecutable() {
    return std::filesystem::canonical("/proc/self/exe").parent_path();
}

/// Standard error is for what the user can mend: the library's remarks on the machine stay out of it.
void callaAvisos(QtMsgType tipo, const QMessageLogContext& /*lugar*/, const QString& texto) {
    if (tipo == QtCriticalMsg || tipo == QtFatalMsg) std::cerr << texto.toStdString() << '\n';
}

/// Where the progress is told: nowhere but on a terminal, nor there where the results go by.
std::ostream* terminalDelProgreso() {
    return ::isatty(STDERR_FILENO) == 1 && ::isatty(STDOUT_FILENO) == 0 ? &std::cerr : nullptr;
}

}  // namespace

int main(int argc, char** argv) {
    using namespace orvemo::lote;
    const std::vector<std::string> argumentos{argv, argv + argc};
    qInstallMessageHandler(callaAvisos);
    // Reports need fonts, never a display.
    qputenv("QT_QPA_PLATFORM", "offscreen");
    int soloElNombre = 1;
    QGuiApplication aplicacion{soloElNombre, argv};
    QTranslator castellano;
    if (castellano.load("qtbase_es", QLibraryInfo::path(QLibraryInfo::TranslationsPath))) {
        QCoreApplication::installTranslator(&castellano);
    }
    // A limit of size or a reader that went away fails the write and doesn't end the program in the middle.
    std::signal(SIGXFSZ, SIG_IGN);
    std::signal(SIGPIPE, SIG_IGN);
    const orvemo::Calculadoras catalogo = orvemo::CalculadorasDelPrograma();
    try {
        return ejecuta(leeOpciones(argumentos, catalogo), catalogo, directorioDelEjecutable(), std::cout,
                       std::cerr, std::cin, terminalDelProgreso());
    } catch (const PideAyuda& ayuda) {
        std::cout << ayuda.what();
        return kTodoCalculado;
    } catch (const ArgumentoInservible& error) {
        std::cerr << error.what() << '\n';
        return kInservible;
    } catch (const std::exception& error) {
        std::cerr << "No se ha podido completar la operación: " << error.what() << ".\n";
        return kInservible;
    }
}
