// Any bytes as a price index and any record as a case of retirement: the index is read or a line is blamed;
// the case is shown, concluded, printed and saved, and once it has been through the screen it comes back the
// same.

#include <cmath>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

#include "apoyo/destino_grabador.h"
#include "apoyo/entorno_falso.h"
#include "exige.h"
#include "foundations/values/fallos.h"
#include "pensions/jubilacion/pension_frm.h"

namespace {

using namespace orvemo;

std::string ipcPlano() {
    std::string texto;
    for (int anio = 1984; anio <= 2004; ++anio) {
        texto += "x\n";
        for (int mes = 1; mes <= 12; ++mes) texto += "x\tx\t100\n";
    }
    return texto;
}

void leeIndice(const std::string& bytes) {
    try {
        for (const auto& anio : pensiones::LeeIPC(bytes)) {
            for (const double mes : anio) exige(std::isfinite(mes), "an index is a number");
        }
    } catch (const FicheroMalFormado& fallo) {
        exige(fallo.linea > 0, "some line is to blame");
    }
}

std::string guardado(pruebas::EntornoFalso& mundo, PensionFrm& frm) {
    frm.DatosTomaPantalla();
    exige(frm.DatosGrabaRegistro(1), "a sound disk writes");
    return mundo.almacen["jubila.nom"];
}

void concluye(PensionFrm& frm) {
    try {
        frm.MuestraPantalla(frm.ultimaPantalla());
        exige(frm.textoConclusion().starts_with("El interesado desea jubilarse"),
              "every conclusion begins so");
    } catch (const Fallo&) {
        exige(!frm.ConDerecho(), "what could not be computed grants nothing");
    }
    exige(frm.Ok.visible() != frm.Mal.visible(), "one mark shows");
}

void recorreCaso(std::string bytes) {
    pruebas::EntornoFalso mundo;
    mundo.almacen["ipc.txt"] = ipcPlano();
    PensionFrm frm{mundo.entorno};
    frm.Inicia();
    bytes.resize(frm.longitudRegistro(), ' ');
    mundo.almacen["jubila.nom"] = std::move(bytes);
    frm.DatosCargaRegistro(1);
    concluye(frm);
    pruebas::DestinoGrabador papel;
    mundo.rutinas.empieza(papel);
    frm.ImprimeInforme(mundo.rutinas);
    const std::string primero = guardado(mundo, frm);
    frm.DatosCargaRegistro(1);
    exige(guardado(mundo, frm) == primero, "a case comes back as it was saved");
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* datos, std::size_t cuantos) {
    const std::string bytes(reinterpret_cast<const char*>(datos), cuantos);
    if (!bytes.empty() && bytes.front() == 'i') {
        leeIndice(bytes.substr(1));
    } else {
        recorreCaso(bytes);
    }
    return 0;
}
