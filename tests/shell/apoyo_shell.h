#pragma once

#include <chrono>
#include <cstdint>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "apoyo/entorno_falso.h"
#include "shell/programa.h"

namespace orvemo::pruebas {

/// A main window that only writes down what is asked of it.
class VistaProgramaFalsa final : public VistaPrograma {
  public:
    std::vector<std::string> pedidos;

    void muestraPortada(const std::string& foto, std::chrono::milliseconds duracion) override {
        pedidos.push_back("portada " + foto + ", " + std::to_string(duracion.count()) + " ms");
    }
    void cargaMenuFoto(const std::string& foto) override { pedidos.push_back("foto " + foto); }
    Imagen cargaLogoOrvemo(const std::string& foto) override {
        pedidos.push_back("logo " + foto);
        return {foto, 200, 100};
    }
    void centraMenu() override { pedidos.emplace_back("menú centrado"); }
    void ponCaption(const std::string& caption) override { pedidos.push_back("título \"" + caption + "\""); }
    void cursorEspera(bool espera) override { pedidos.emplace_back(espera ? "espera" : "fin de espera"); }
    void muestraModal(Formulario& pantalla, bool sobreElMenu) override {
        pedidos.push_back("muestra " + pantalla.Titulo() + (sobreElMenu ? " sobre el menú" : " en su sitio"));
    }
    void descarga() override { pedidos.emplace_back("descarga"); }
};

/// A file that ends where it should, with nothing in it that matters.
inline void ponFotos(AlmacenMemoria& almacen) {
    almacen["portada.bmp"] = almacen["logo.bmp"] = "BM";
}

/// A record of config.nom, byte by byte. The text is in Windows-1252.
inline std::string registroConfig(std::uint32_t numero, int activa, std::string texto = {},
                                  std::string orden = {}) {
    texto.resize(248, ' ');
    orden.resize(2, ' ');
    std::string bytes;
    for (const int i : {0, 8, 16, 24}) bytes += static_cast<char>(numero >> i & 0xFF);
    for (const int i : {0, 8}) bytes += static_cast<char>(static_cast<unsigned>(activa) >> i & 0xFF);
    return bytes + texto + orden;
}

/// What a record of an option says, for a whole file of them.
struct Opcion {
    int activa = 0;
    std::string texto{};
    std::string orden{};
};

/// A config.nom of 16 records: the options told by their index, the others absent.
inline std::string fichero(const std::string& titulo, const std::vector<std::pair<int, Opcion>>& opciones) {
    std::vector<Opcion> todas(15);
    for (const auto& [indice, opcion] : opciones) todas.at(static_cast<std::size_t>(indice)) = opcion;
    std::string bytes = registroConfig(999, 0, titulo);
    std::uint32_t numero = 0;
    for (const Opcion& opcion : todas) {
        bytes += registroConfig(numero++, opcion.activa, opcion.texto, opcion.orden);
    }
    return bytes;
}

/// The options on view with their places, in the order of their indices: "Desempleo (izquierda 6)".
inline std::vector<std::string> aLaVista(const Programa& programa) {
    std::vector<std::string> vistas;
    for (std::size_t i = 0; i < kOpciones.size(); ++i) {
        const OpcionMenu& opcion = programa.opciones()[i];
        if (!opcion.visible) continue;
        const char* columna = opcion.puesto.columna == Columna::Izquierda ? " (izquierda " : " (derecha ";
        vistas.push_back(std::string{kOpciones[i].rotulo} + columna + std::to_string(opcion.puesto.fila) +
                         ")");
    }
    return vistas;
}

}  // namespace orvemo::pruebas
