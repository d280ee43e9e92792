#pragma once

#include "benefits/ilt_frm.h"
#include "pantalla_de_baja.h"

namespace orvemo {

enum : int { kOrdinario, kTiempoParcial, kAutonomos, kAgrario, kEmpleadosHogar, kFormacion };
enum : int { kEnfermedad, kAccidente, kAccidenteLaboral };

class ILTFrmTest : public pruebas::PantallaDeBaja<ILTFrm> {
  protected:
    std::vector<std::string> opcionales() const {
        return aLaVista({"Nombre", "Situacion", "fAlta", "TBaja", "f1", "f2"});
    }
    void elMesDeAltaQuedaAtras() { rellena(frm.fAlta, "01-02-2000"); }
};

}  // namespace orvemo
