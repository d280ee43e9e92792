#pragma once

#include <algorithm>
#include <cctype>
#include <cstdint>
#include <limits>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <utility>

#include "foundations/values/almacen.h"
#include "foundations/values/fallos.h"

namespace orvemo::pruebas {

/// A disk that fails in the middle of a write.
struct Averia {
    std::uint64_t bytes;  ///< taken before the failure, in whatever files
    bool duradera =
        false;            ///< from then on nothing more can be written, cut or removed; otherwise all is well
    bool mortal = false;  ///< the program ends there: Muerte is thrown
};

/// The end of the program in mid operation; nobody catches it.
struct Muerte {};

/// An application directory in memory that can be made to fail: read-only, unreadable, full after so many
/// bytes, or broken in mid write.
class AlmacenMemoria final : public Almacen {
  public:
    std::map<std::string, std::string> ficheros;  ///< by name in lower case
    bool soloLectura = false;
    /// Reads that succeed before the disk fails; below 0 nothing even opens.
    int lecturas = std::numeric_limits<int>::max();
    /// Bytes by which the files may still grow before the disk is full; what is written over others needs
    /// none.
    std::uint64_t sitio = std::numeric_limits<std::uint32_t>::max();
    std::optional<Averia> averia;

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
        if (lecturas < 0 || (soloLectura && acceso == Acceso::Escritura)) {
            throw FicheroInaccesible{std::string{nombre}, "no se puede escribir"};
        }
        std::string& bytes = soloLectura && !existe(nombre) ? vacio_ : ficheros[clave(nombre)];
        return std::make_unique<Abierto>(*this, std::string{nombre}, bytes);
    }

    [[nodiscard]] std::string leeHasta(std::string_view nombre, std::size_t maximo) const override {
        const auto encontrado = ficheros.find(clave(nombre));
        if (encontrado == ficheros.end()) throw FicheroInaccesible{std::string{nombre}, "no existe"};
        if (encontrado->second.size() > maximo)
            throw FicheroInaccesible{std::string{nombre}, "es demasiado grande"};
        return encontrado->second;
    }

    void sustituye(std::string_view nombre, std::string_view contenido) override {
        if (soloLectura || contenido.size() > sitio || seCorta(contenido.size()) < contenido.size()) {
            throw FicheroInaccesible{std::string{nombre}, "no se puede escribir"};
        }
        ficheros[clave(nombre)] = contenido;
    }

    bool elimina(std::string_view nombre) override {
        if (soloLectura || rota()) return false;
        if (averia && averia->mortal && averia->bytes == 0) throw Muerte{};
        ficheros.erase(clave(nombre));
        return true;
    }

    [[nodiscard]] std::filesystem::path ruta(std::string_view nombre) const override {
        return std::filesystem::path{nombre};
    }

  private:
    class Abierto final : public FicheroAleatorio {
      public:
        Abierto(AlmacenMemoria& almacen, std::string nombre, std::string& bytes)
            : almacen_{almacen}, nombre_{std::move(nombre)}, bytes_{bytes} {}
        [[nodiscard]] std::uint64_t longitud() override { return bytes_.size(); }
        std::size_t lee(std::uint64_t posicion, std::span<char> destino) override {
            if (almacen_.lecturas <= 0) throw FicheroInaccesible{nombre_, "no se puede leer"};
            --almacen_.lecturas;
            if (posicion >= bytes_.size()) return 0;
            return bytes_.copy(destino.data(), destino.size(), posicion);
        }
        std::size_t escribe(std::uint64_t posicion, std::span<const char> origen) override {
            const std::uint64_t cabe = almacen_.admite(origen.size(), posicion, bytes_.size());
            if (cabe == 0 && almacen_.averia && almacen_.averia->mortal) throw Muerte{};
            if (cabe == 0) return 0;
            if (posicion + cabe > bytes_.size()) bytes_.resize(posicion + cabe, '\0');
            std::copy_n(origen.begin(), cabe, bytes_.begin() + static_cast<std::ptrdiff_t>(posicion));
            if (cabe < origen.size() && almacen_.averia && almacen_.averia->mortal) throw Muerte{};
            return cabe;
        }
        bool corta(std::uint64_t nueva) override {
            if (almacen_.rota()) return false;
            almacen_.sitio += bytes_.size() - std::min<std::uint64_t>(nueva, bytes_.size());
            bytes_.resize(nueva);
            return true;
        }

      private:
        AlmacenMemoria& almacen_;
        std::string nombre_;
        std::string& bytes_;
    };

    [[nodiscard]] bool rota() const { return averia && averia->duradera && averia->bytes == 0; }

    /// How many of `bytes` the present breakdown lets through.
    std::uint64_t seCorta(std::uint64_t bytes) {
        if (!averia) return bytes;
        const std::uint64_t escritos = std::min(bytes, averia->bytes);
        averia->bytes -= escritos;
        if (escritos < bytes && !averia->duradera && !averia->mortal) averia.reset();
        return escritos;
    }

    /// How many of `bytes` reach a file of that length at that place; takes the room for its growth.
    std::uint64_t admite(std::uint64_t bytes, std::uint64_t posicion, std::uint64_t longitud) {
        const std::uint64_t encima = std::min(bytes, longitud - std::min(posicion, longitud));
        const std::uint64_t escritos = seCorta(encima + std::min(bytes - encima, sitio));
        if (escritos > encima) sitio -= escritos - encima;
        return escritos;
    }

    std::string vacio_;
};

}  // namespace orvemo::pruebas
