#pragma once

#include <algorithm>
#include <cctype>
#include <cstdint>
#include <limits>
#include <map>
#include <memory>
#include <string>
#include <string_view>

#include "foundations/values/almacen.h"
#include "foundations/values/fallos.h"

namespace orvemo::pruebas {

/// An application directory in memory that can be made to fail: read-only, or full after so many bytes.
class AlmacenMemoria final : public Almacen {
  public:
    std::map<std::string, std::string> ficheros;  ///< by name in lower case
    bool soloLectura = false;
    /// Bytes that may still be written before the disk is full.
    std::uint64_t sitio = std::numeric_limits<std::uint64_t>::max();

    [[nodiscard]] static std::string clave(std::string_view nombre) {
        std::string minusculas{nombre};
        std::transform(minusculas.begin(), minusculas.end(), minusculas.begin(),
                       [](unsigned char c) { return static_cast<char>(std::tolower(c)); });
        return minusculas;
    }
    std::string& operator[](std::string_view nombre) { return ficheros[clave(nombre)]; }

    [[nodiscard]] bool existe(std::string_view nombre) const override {
        return ficheros.contains(clave(nombre));
    }

    [[nodiscard]] std::unique_ptr<FicheroAleatorio> abre(std::string_view nombre, Acceso acceso) override {
        if (soloLectura && acceso == Acceso::Escritura) {
            throw FicheroInaccesible{std::string{nombre}, "no se puede escribir"};
        }
        if (soloLectura && !existe(nombre)) return std::make_unique<Abierto>(*this, vacio_);
        return std::make_unique<Abierto>(*this, ficheros[clave(nombre)]);
    }

    [[nodiscard]] std::string leeTodo(std::string_view nombre) const override {
        const auto encontrado = ficheros.find(clave(nombre));
        if (encontrado == ficheros.end()) throw FicheroInaccesible{std::string{nombre}, "no existe"};
        return encontrado->second;
    }

    void sustituye(std::string_view nombre, std::string_view contenido) override {
        if (soloLectura || contenido.size() > sitio) {
            throw FicheroInaccesible{std::string{nombre}, "no se puede escribir"};
        }
        ficheros[clave(nombre)] = contenido;
    }

    [[nodiscard]] std::filesystem::path ruta(std::string_view nombre) const override {
        return std::filesystem::path{nombre};
    }

  private:
    class Abierto final : public FicheroAleatorio {
      public:
        Abierto(AlmacenMemoria& almacen, std::string& bytes) : almacen_{almacen}, bytes_{bytes} {}
        [[nodiscard]] std::uint64_t longitud() override { return bytes_.size(); }
        std::size_t lee(std::uint64_t posicion, std::span<char> destino) override {
            if (posicion >= bytes_.size()) return 0;
            return bytes_.copy(destino.data(), destino.size(), posicion);
        }
        std::size_t escribe(std::uint64_t posicion, std::span<const char> origen) override {
            const auto cabe = std::min<std::uint64_t>(almacen_.sitio, origen.size());
            almacen_.sitio -= cabe;
            if (posicion + cabe > bytes_.size()) bytes_.resize(posicion + cabe, '\0');
            std::copy_n(origen.begin(), cabe, bytes_.begin() + static_cast<std::ptrdiff_t>(posicion));
            return cabe;
        }
        bool corta(std::uint64_t nueva) override {
            bytes_.resize(nueva);
            return true;
        }

      private:
        AlmacenMemoria& almacen_;
        std::string& bytes_;
    };

    std::string vacio_;
};

}  // namespace orvemo::pruebas
