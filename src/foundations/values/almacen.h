#pragma once

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <memory>
#include <span>
#include <string>
#include <string_view>

namespace orvemo {

/// An open file of random access. Closed when destroyed.
class FicheroAleatorio {
  public:
    virtual ~FicheroAleatorio() = default;
    /// Bytes.
    [[nodiscard]] virtual std::uint64_t longitud() = 0;
    /// Bytes really read, fewer at the end of the file. Throws FicheroInaccesible.
    virtual std::size_t lee(std::uint64_t posicion, std::span<char> destino) = 0;
    /// Writes in one go and flushes; gives the bytes really written, fewer on a full disk.
    virtual std::size_t escribe(std::uint64_t posicion, std::span<const char> origen) = 0;
    /// Cuts the file to `longitud` bytes; false when that can't be done.
    virtual bool corta(std::uint64_t longitud) = 0;
};

enum class Acceso { Lectura, Escritura };

/// Bytes of the largest text that the program reads whole, and of the largest picture.
inline constexpr std::size_t kMaximoFicheroTexto = std::size_t{4} << 20;
inline constexpr std::size_t kMaximoFicheroImagen = std::size_t{64} << 20;

/// The application directory: all the program's files, by bare name, without regard to case.
class Almacen {
  public:
    virtual ~Almacen() = default;
    /// True for an ordinary file.
    [[nodiscard]] virtual bool existe(std::string_view nombre) const = 0;
    /// Opens for random access and creates the file if absent. For reading, a file that is absent and can't
    /// be created reads as empty. Throws FicheroInaccesible.
    [[nodiscard]] virtual std::unique_ptr<FicheroAleatorio> abre(std::string_view nombre, Acceso acceso) = 0;
    /// The whole file, which must not be larger than it can sensibly be. Throws FicheroInaccesible.
    [[nodiscard]] virtual std::string leeHasta(std::string_view nombre, std::size_t maximo) const = 0;
    /// The same for a list, an index or any other text of the program.
    [[nodiscard]] std::string leeTodo(std::string_view nombre) const {
        return leeHasta(nombre, kMaximoFicheroTexto);
    }
    /// So many bytes of a file that must be there, from a place on; fewer at its end. Throws
    /// FicheroInaccesible.
    [[nodiscard]] virtual std::string leeTramo(std::string_view nombre, std::uint64_t posicion,
                                               std::size_t longitud) const {
        const std::string contenido = leeTodo(nombre);
        return posicion < contenido.size() ? contenido.substr(posicion, longitud) : std::string{};
    }
    /// Puts a whole new file in the place of the old, which stays as it was if anything fails. Throws
    /// FicheroInaccesible.
    virtual void sustituye(std::string_view nombre, std::string_view contenido) = 0;
    /// Removes the file, if there is one; false when that can't be done.
    virtual bool elimina(std::string_view nombre) = 0;
    /// Where the name lies on disk, for libraries that read files themselves (pictures).
    [[nodiscard]] virtual std::filesystem::path ruta(std::string_view nombre) const = 0;
};

/// A real directory.
class DirectorioAplicacion final : public Almacen {
  public:
    explicit DirectorioAplicacion(std::filesystem::path directorio);

    [[nodiscard]] bool existe(std::string_view nombre) const override;
    [[nodiscard]] std::unique_ptr<FicheroAleatorio> abre(std::string_view nombre, Acceso acceso) override;
    [[nodiscard]] std::string leeHasta(std::string_view nombre, std::size_t maximo) const override;
    [[nodiscard]] std::string leeTramo(std::string_view nombre, std::uint64_t posicion,
                                       std::size_t longitud) const override;
    void sustituye(std::string_view nombre, std::string_view contenido) override;
    bool elimina(std::string_view nombre) override;
    /// The exact name first, then the smallest that matches without regard to case, else the name as given.
    [[nodiscard]] std::filesystem::path ruta(std::string_view nombre) const override;

  private:
    std::filesystem::path directorio_;
};

/// Opens the file of exactly that path, to be read only. Throws FicheroInaccesible.
[[nodiscard]] std::unique_ptr<FicheroAleatorio> AbreParaLeer(const std::filesystem::path& ruta);

/// Puts a whole new file in that very place, as Almacen::sustituye does. Throws FicheroInaccesible.
void SustituyeFichero(const std::filesystem::path& ruta, std::string_view contenido);

/// True when the path names an existing ordinary file; a directory doesn't count.
[[nodiscard]] bool ExisteArchivo(const std::filesystem::path& ruta);

}  // namespace orvemo
