#include <csignal>
#include <exception>
#include <filesystem>
#include <string>

#include "catalogue/catalogo.h"
#include "foundations/values/almacen.h"
#include "shell/pantallas.h"
#include "shell/programa.h"
#include "toolkit/aplicacion.h"
#include "toolkit/impresora_qt.h"
#include "toolkit/mensajes_qt.h"
#include "toolkit/tipos_letra.h"
#include "toolkit/vista_menu.h"

namespace {

constexpr int kNoPuedeEmpezar = 1;

/// The directory of the executable, whatever it was started as.
std::filesystem::path directorioDelPrograma() {
    return std::filesystem::canonical(std::filesystem::read_symlink("/proc/self/exe")).parent_path();
}

void avisaSiFaltanLetras(orvemo::Mensajes& mensajes) {
    if (orvemo::fuentesInstaladas()) return;
    mensajes.Informa(
        "No están instalados los tipos de letra Liberation. El programa funciona, pero los informes pueden "
        "no salir con sus medidas. En Debian los trae el paquete fonts-liberation.");
}

int ejecuta(orvemo::Aplicacion& aplicacion, orvemo::Mensajes& mensajes) {
    using namespace orvemo;
    const std::filesystem::path directorio = directorioDelPrograma();
    std::filesystem::current_path(directorio);
    DirectorioAplicacion almacen{directorio};
    avisaSiFaltanLetras(mensajes);

    const RelojDelSistema reloj;
    ImpresoraQt impresora{almacen};
    RutinasImpresion rutinas;
    ValoresPrograma valores;
    Entorno entorno{mensajes, reloj, almacen, impresora, rutinas, valores};
    VistaMenu vista{almacen};
    Programa programa{entorno, PantallasDelMenu(CalculadorasDelPrograma()), vista};
    programa.Inicia();
    vista.muestra(programa);
    return aplicacion.exec();
}

}  // namespace

int main(int argc, char** argv) {
    // A limit on the size of files fails the write and doesn't end the program in the middle of it.
    std::signal(SIGXFSZ, SIG_IGN);
    orvemo::MensajesQt mensajes;
    orvemo::Aplicacion aplicacion{argc, argv, mensajes};
    try {
        return ejecuta(aplicacion, mensajes);
    } catch (const std::exception& fallo) {
        mensajes.ComunicaError("El programa no puede empezar: " + std::string{fallo.what()} + ".");
        return kNoPuedeEmpezar;
    }
}
