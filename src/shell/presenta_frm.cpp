#include "shell/presenta_frm.h"

#include <array>
#include <string>

#include "shell/imagenes.h"

namespace orvemo {

namespace {

constexpr std::array kRotulos{"Programa", "Nota del autor", "Direcciones de interés"};

}  // namespace

PresentaFrm::PresentaFrm(Entorno& entorno)
    : Formulario{entorno},
      PresentaBotonExit{nuevo({.nombre = "PresentaBotonExit",
                               .clase = Clase::Boton,
                               .pantalla = kBarra,
                               .alPulsar = [this](Campo&) { oculta(); },
                               .ayuda = "Volver al menú principal"})},
      LogoOrvemo{nuevo({.nombre = "LogoOrvemo", .clase = Clase::Imagen, .pantalla = kBarra})},
      PresenOpciones{declaraOpciones()},
      PresenPan{nuevo({.nombre = "PresenPan", .clase = Clase::Imagen, .ayuda = "Página de información"})},
      EstudioLblTVX{nuevo({.nombre = "EstudioLblTVX",
                           .rotulo = "Programa:  Talvix, S.L.\r\nContacto: vea \"Direcciones de interés\"",
                           .clase = Clase::Etiqueta,
                           .pantalla = kPie})},
      Version{nuevo({.nombre = "Version",
                     .rotulo = "Versión " ORVEMO_VERSION,
                     .clase = Clase::Etiqueta,
                     .pantalla = kPie})} {
    ponTitulos("INFORMACIÓN DEL PROGRAMA", "Información del programa");
}

Grupo& PresentaFrm::declaraOpciones() {
    Grupo& grupo = nuevoGrupo({.nombre = "PresenOpciones",
                               .disposicion = Disposicion::Tabla,
                               .columnas = static_cast<int>(kRotulos.size())});
    int i = 0;
    for (const char* rotulo : kRotulos) {
        ++i;
        nuevo({.nombre = "PresenOpciones",
               .indice = i,
               .rotulo = rotulo,
               .clase = Clase::Boton,
               .grupo = &grupo,
               .alPulsar = [this](Campo& opcion) { pulsaOpcion(opcion.def().indice); }});
    }
    return grupo;
}

void PresentaFrm::Inicia() {
    LogoOrvemo.ponTexto(ImagenPresente(entorno().almacen, kFotoLogo));
    pulsaOpcion(1);
    muestra(0);
    enfocaPrimero();
}

void PresentaFrm::pulsaOpcion(int i) {
    for (int r = 1; r <= static_cast<int>(kRotulos.size()); ++r)
        campo("PresenOpciones", r).ponMarcado(r == i);
    PresenPan.ponTexto(ImagenPresente(entorno().almacen, "presen" + std::to_string(i) + ".bmp"));
}

}  // namespace orvemo
