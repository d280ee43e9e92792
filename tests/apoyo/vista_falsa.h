#pragma once

#include <functional>
#include <string>
#include <vector>

#include "foundations/frame/formulario.h"
#include "foundations/frame/vista.h"

namespace orvemo::pruebas {

/// A renderer that only remembers where the focus and the panels went, and plays the user in the dialogs.
class VistaFalsa final : public Vista {
  public:
    std::vector<std::string> enfocados;  ///< fields that were given the focus, in order
    std::vector<int> pantallas;          ///< panels shown, in order
    std::function<void(GrabaSupuesto&)> alGrabar;
    std::function<void(CargaSupuesto&)> alCargar;
    std::function<void(Formulario&)> alAbrir;

    void refresca(const Campo& /*campo*/) override {}
    void refresca(const Grupo& /*grupo*/) override {}
    void refrescaTitulos() override {}
    void reconstruye(int /*pantalla*/) override {}
    void muestraPantalla(int pantalla) override { pantallas.push_back(pantalla); }
    void enfoca(const Campo& campo) override { enfocados.push_back(campo.def().nombre); }
    void oculta() override {}
    void muestraModal(GrabaSupuesto& dialogo) override {
        if (alGrabar) alGrabar(dialogo);
    }
    void muestraModal(CargaSupuesto& dialogo) override {
        if (alCargar) alCargar(dialogo);
    }
    void muestraModal(Formulario& formulario) override {
        if (alAbrir) alAbrir(formulario);
    }
};

}  // namespace orvemo::pruebas
