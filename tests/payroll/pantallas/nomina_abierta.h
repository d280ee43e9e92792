#pragma once

#include <gmock/gmock.h>

#include <string>
#include <vector>

#include "apoyo/entorno_falso.h"
#include "foundations/values/textos.h"
#include "payroll/pantallas/nomina_frm.h"

namespace orvemo::pruebas {

/// The payroll just opened, over a few contracts and epigraphs of its own.
class Nomina : public testing::Test {
  protected:
    Nomina() {
        mundo.almacen["CONTRATO.NOM"] =
            "*#100 Indefinido#0\n100#100 Indefinido#100###NNN\n*#300 Discontinuo#0\n300#300 Por d\xED"
            "as#300#D\n"
            "*#421 Formaci\xF3n#0\n421A#421A Aprendiz#421\n421B#421B Otro#421\n*#502 Eventual#2\n502#502 "
            "Eventual#502#H\n";
        mundo.almacen["EPIG.NOM"] = "102#1#1#Representantes\n113#0,45#0,54#Oficina\n";
        frm.Inicia();
    }

    void pon(const std::string& nombre, const std::string& texto, int indice = 0) {
        Campo& campo = frm.campo(nombre, indice);
        ASSERT_TRUE(frm.foco(campo)) << nombre;
        frm.escribe(campo, texto);
    }
    void elige(const char* campo, int entrada) { frm.elige(frm.campo(campo), entrada); }
    void pulsa(const char* boton) { frm.pulsa(frm.campo(boton)); }
    std::string texto(const char* campo, int indice = 0) { return frm.campo(campo, indice).texto(); }
    bool visible(const char* campo) { return frm.campo(campo).visible(); }

    /// The panels that the user sees from here to the receipt.
    std::vector<int> recorrido() {
        std::vector<int> paneles;
        const char* botones[] = {"NomiSig0", "NomiSig1", "NomiSig2"};
        while (frm.PantallaActual() < 3 && paneles.size() < 4) {
            pulsa(botones[frm.PantallaActual()]);
            paneles.push_back(frm.PantallaActual());
        }
        return paneles;
    }

    EntornoFalso mundo;
    NominaFrm frm{mundo.entorno};
};

}  // namespace orvemo::pruebas
