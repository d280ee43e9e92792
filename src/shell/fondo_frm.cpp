#include "shell/fondo_frm.h"

#include <string>
#include <utility>

#include "foundations/values/fallos.h"
#include "shell/imagenes.h"

namespace orvemo {

FondoFrm::FondoFrm(Entorno& entorno)
    : Formulario{entorno},
      FondoBotonExit{nuevo({.nombre = "FondoBotonExit",
                            .clase = Clase::Boton,
                            .pantalla = kBarra,
                            .alPulsar = [this](Campo&) { oculta(); },
                            .ayuda = "Volver al menú principal"})},
      LogoOrvemo{nuevo({.nombre = "LogoOrvemo", .clase = Clase::Imagen, .pantalla = kBarra})},
      FondoCap{declaraCapitulos()},
      FondoImg{nuevo({.nombre = "FondoImg", .clase = Clase::Imagen, .ayuda = "Imagen del capítulo"})},
      FondoLista{nuevo({.nombre = "FondoLista",
                        .clase = Clase::ListaAbierta,
                        .alCambiar = [this](Campo&) { muestraResumen(); },
                        .ayuda = "Libros del capítulo",
                        .mismaLinea = true})},
      FondoTxt{nuevo({.nombre = "FondoTxt", .rotulo = "Resúmen del libro:", .clase = Clase::TextoLargo})} {
    ponTitulos("FONDO EDITORIAL ORVEMO", "Fondo Editorial Orvemo");
}

Grupo& FondoFrm::declaraCapitulos() {
    Grupo& grupo = nuevoGrupo({.nombre = "FondoCap", .disposicion = Disposicion::Tabla, .columnas = 4});
    for (int i = 1; i <= kNumCapitulos; ++i) {
        nuevo({.nombre = "FondoCap",
               .indice = i,
               .rotulo = "Capítulo",
               .clase = Clase::Boton,
               .grupo = &grupo,
               .alPulsar = [this](Campo& boton) { pulsaCapitulo(boton.def().indice); },
               .visible = false});
    }
    return grupo;
}

void FondoFrm::Inicia() {
    LogoOrvemo.ponTexto(ImagenPresente(entorno().almacen, kFotoLogo));
    catalogo_ = LeeBibl(entorno().almacen.leeTodo(kFicheroBibl));
    muestraCapitulos();
    pulsaCapitulo(1);
    muestra(0);
    enfocaPrimero();
}

void FondoFrm::muestraCapitulos() {
    for (int i = 1; i <= kNumCapitulos; ++i) {
        const Capitulo& capitulo = catalogo_.capitulo(i);
        if (capitulo.linea == 0) continue;
        campo("FondoCap", i).ponRotulo(capitulo.rotulo);
        campo("FondoCap", i).ponVisible(true);
    }
}

void FondoFrm::pulsaCapitulo(int i) {
    FondoImg.ponTexto(ImagenPresente(entorno().almacen, "fondo" + std::to_string(i) + ".bmp"));
    for (int c = 1; c <= kNumCapitulos; ++c) campo("FondoCap", c).ponMarcado(c == i);
    llenaLista(i);
    if (numeros_.empty()) {
        throw FicheroMalFormado{kFicheroBibl, catalogo_.capitulo(i).linea,
                                "el capítulo " + std::to_string(i) + " no tiene ningún libro"};
    }
    FondoLista.ponIndice(0);
}

void FondoFrm::llenaLista(int capitulo) {
    std::vector<std::string> titulos;
    numeros_.clear();
    FondoLista.ponOpciones({});
    for (std::size_t numero = 1; numero <= catalogo_.libros.size(); ++numero) {
        const Libro& libro = catalogo_.libros[numero - 1];
        if (libro.Capitulo != capitulo) continue;
        titulos.push_back(libro.Titulo);
        numeros_.push_back(numero);
    }
    FondoLista.ponOpciones(std::move(titulos));
}

void FondoFrm::muestraResumen() {
    const int entrada = FondoLista.indice();
    if (entrada < 0) {
        FondoTxt.ponTexto({});
        return;
    }
    const std::size_t numero = numeros_.at(static_cast<std::size_t>(entrada));
    FondoTxt.ponTexto(catalogo_.libros.at(numero - 1).Resumen);
}

}  // namespace orvemo
