// Any bytes as "config.nom" and as "bibl.txt": the program starts, its menu answers every press, and what the
// configuration screen writes means what it read.
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>

#include "apoyo/entorno_falso.h"
#include "shell/apoyo_shell.h"
#include "shell/config_frm.h"
#include "shell/fondo_frm.h"

namespace {

using namespace orvemo;
using namespace orvemo::pruebas;

void exige(bool cierto) {
    if (!cierto) std::abort();
}

/// The menu that a directory gives, as the user sees it.
struct Menu {
    explicit Menu(EntornoFalso& mundo) {
        VistaProgramaFalsa vista;
        Programa programa{mundo.entorno, {}, vista};
        programa.Inicia();
        titulo = mundo.valores.TituloPrograma;
        verBaseActual = mundo.valores.VerBaseActual;
        aLaVista = pruebas::aLaVista(programa);
        for (int i = 0; i < kNumOpciones; ++i) programa.Opcion(i);
        programa.LogoOrvemo();
    }
    friend bool operator==(const Menu&, const Menu&) = default;

    std::string titulo;
    bool verBaseActual;
    std::vector<std::string> aLaVista;
};

void pruebaConfig(const std::string& bytes) {
    EntornoFalso mundo;
    ponFotos(mundo.almacen);
    mundo.almacen["nodo.cue"] = "";
    mundo.almacen["config.nom"] = bytes;
    const Menu antes{mundo};

    ConfigFrm frm{mundo.entorno};
    frm.Inicia();
    frm.pulsa(frm.BotonCDROM);
    exige(mundo.almacen["config.nom"].size() == 4096);
    exige(Menu{mundo} == antes);
}

void pruebaBibl(const std::string& bytes) {
    EntornoFalso mundo;
    ponFotos(mundo.almacen);
    for (int i = 1; i <= kNumCapitulos; ++i) mundo.almacen["fondo" + std::to_string(i) + ".bmp"] = "BM";
    mundo.almacen["bibl.txt"] = bytes;
    FondoFrm frm{mundo.entorno};
    try {
        frm.Inicia();
    } catch (const Fallo&) {
        return;  // told in a box, and the screen doesn't open
    }
    for (int capitulo = 1; capitulo <= kNumCapitulos; ++capitulo) {
        frm.pulsa(frm.campo("FondoCap", capitulo));
        const int entradas = static_cast<int>(frm.FondoLista.opciones().size());
        for (int i = 0; i < entradas; ++i) frm.elige(frm.FondoLista, i);
        exige(frm.FondoLista.indice() == entradas - 1);
    }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* datos, std::size_t tamano) {
    const std::string bytes{reinterpret_cast<const char*>(datos), tamano};
    pruebaConfig(bytes);
    pruebaBibl(bytes);
    return 0;
}
