#include "shell/calculadoras.h"

#include <algorithm>
#include <memory>
#include <string_view>

#include "benefits/desempleo/desemp_frm.h"
#include "benefits/familiar/familiar_frm.h"
#include "benefits/it/ilt_frm.h"
#include "benefits/maternidad/mater_frm.h"
#include "benefits/nocontributiva/nocon_frm.h"
#include "benefits/riesgo/riesgo_embarazo_frm.h"
#include "pensions/jubilacion/pension_frm.h"
#include "shell/fondo_frm.h"
#include "shell/presenta_frm.h"

namespace orvemo {

namespace {

template <typename Pantalla>
std::unique_ptr<Formulario> crea(Entorno& entorno) {
    return std::make_unique<Pantalla>(entorno);
}

struct PantallaDisponible {
    std::string_view nombre;
    std::unique_ptr<Formulario> (*abre)(Entorno&);
};

constexpr std::array kDisponibles{
    PantallaDisponible{"PensionFrm", crea<PensionFrm>},
    PantallaDisponible{"NoConFrm", crea<NoConFrm>},
    PantallaDisponible{"FamiliarFrm", crea<FamiliarFrm>},
    PantallaDisponible{"DesempFrm", crea<DesempFrm>},
    PantallaDisponible{"MaterFrm", crea<MaterFrm>},
    PantallaDisponible{"ILTFrm", crea<ILTFrm>},
    PantallaDisponible{"FondoFrm", crea<FondoFrm>},
    PantallaDisponible{"PresentaFrm", crea<PresentaFrm>},
    PantallaDisponible{"RiesgoEmbarazo", crea<RiesgoEmbarazo>},
};

}  // namespace

Pantallas PantallasDisponibles() {
    Pantallas pantallas;
    for (const PantallaDisponible& disponible : kDisponibles) {
        const auto opcion = std::ranges::find(kOpciones, disponible.nombre, &DefOpcion::pantalla);
        pantallas.at(static_cast<std::size_t>(opcion - kOpciones.begin())) = disponible.abre;
    }
    return pantallas;
}

}  // namespace orvemo
