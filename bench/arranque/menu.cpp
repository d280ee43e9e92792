// The start of the program up to its menu, as its own main function does it, but for the cover: it is made,
// shown and taken away without its second.   menu APPLICATION_DIRECTORY

#include <filesystem>

#include "arranque/primer_dibujo.h"
#include "catalogue/catalogo.h"
#include "foundations/values/almacen.h"
#include "shell/pantallas.h"
#include "shell/programa.h"
#include "toolkit/aplicacion.h"
#include "toolkit/impresora_qt.h"
#include "toolkit/mensajes_qt.h"
#include "toolkit/tipos_letra.h"
#include "toolkit/vista_menu.h"

int main(int argc, char** argv) {
    using namespace orvemo;
    MensajesQt mensajes;
    Aplicacion aplicacion{argc, argv, mensajes};
    std::filesystem::current_path(argv[1]);
    DirectorioAplicacion almacen{argv[1]};
    if (!fuentesInstaladas()) return 1;

    const RelojDelSistema reloj;
    ImpresoraQt impresora{almacen};
    RutinasImpresion rutinas;
    ValoresPrograma valores;
    Entorno entorno{mensajes, reloj, almacen, impresora, rutinas, valores};
    VistaMenu vista{almacen};
    Programa programa{entorno, PantallasDelMenu(CalculadorasDelPrograma()), vista};
    programa.Inicia();
    const bench::PrimerDibujo dibujo{vista, bench::avisaYTermina};
    vista.muestra(programa);
    return QApplication::exec();
}
