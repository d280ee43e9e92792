#include "foundations/values/almacen.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <system_error>
#include <utility>

#include "foundations/values/fallos.h"

namespace orvemo {
namespace {

namespace fs = std::filesystem;

/// Why the system refused, for the user.
struct Motivo {
    std::errc error;
    const char* texto;
};

constexpr Motivo kMotivos[] = {
    {std::errc::permission_denied, "no hay permiso"},
    {std::errc::operation_not_permitted, "no hay permiso"},
    {std::errc::read_only_file_system, "el disco es de solo lectura"},
    {std::errc::no_such_file_or_directory, "no existe"},
    {std::errc::not_a_directory, "su carpeta no existe"},
    {std::errc::is_a_directory, "es una carpeta"},
    {std::errc::no_space_on_device, "el disco está lleno"},
    {std::errc::file_too_large, "no cabe en el disco"},
    {std::errc::too_many_symbolic_link_levels, "sus enlaces dan vueltas sin fin"},
    {std::errc::filename_too_long, "el nombre es demasiado largo"},
    {std::errc::too_many_files_open, "hay demasiados ficheros abiertos"},
    {std::errc::text_file_busy, "otro programa lo está usando"},
    {std::errc::device_or_resource_busy, "otro programa lo está usando"},
    {std::errc::io_error, "el disco falla"},
};

std::string motivo(const std::error_code& error, const char* otro) {
    const auto conocido = std::find_if(std::begin(kMotivos), std::end(kMotivos), [&](const Motivo& m) {
        return error == std::make_error_code(m.error);
    });
    return conocido == std::end(kMotivos) ? otro : conocido->texto;
}

std::error_code errorDelSistema() {
    return {errno, std::generic_category()};
}

[[noreturn]] void rechaza(const fs::path& ruta, const std::string& porque) {
    throw FicheroInaccesible{ruta.filename().string(), porque};
}

bool existeAlgo(const fs::path& ruta) {
    std::error_code error;
    return fs::exists(ruta, error);
}

/// What stands where a file should, when it is something else; null for a file.
const char* otraCosa(mode_t modo) {
    if (S_ISREG(modo)) return nullptr;
    if (S_ISDIR(modo)) return "es una carpeta";
    if (S_ISFIFO(modo)) return "es una tubería";
    return "es un dispositivo";
}

/// An open file of the disk. Nothing is buffered: what is written goes to the system at once, and what fails
/// is known at once. Only files are opened: a pipe in the place of one would be waited for without end.
class Descriptor {
  public:
    Descriptor(const fs::path& ruta, int modo)
        : fd_{::open(ruta.c_str(), modo | O_CLOEXEC | O_NONBLOCK, 0666)}, error_{fd_ < 0 ? errno : 0} {
        struct stat datos {};
        // What can't be opened for lack of a reader or of a device says what it is all the same.
        const bool hay = (fd_ < 0 ? ::stat(ruta.c_str(), &datos) : ::fstat(fd_, &datos)) == 0;
        if (hay) otraCosa_ = otraCosa(datos.st_mode);
    }
    Descriptor(Descriptor&& otro) noexcept
        : fd_{std::exchange(otro.fd_, -1)}, error_{otro.error_}, otraCosa_{otro.otraCosa_} {}
    Descriptor(const Descriptor&) = delete;
    Descriptor& operator=(const Descriptor&) = delete;
    ~Descriptor() {
        if (fd_ >= 0) ::close(fd_);
    }

    [[nodiscard]] bool abierto() const { return fd_ >= 0 && otraCosa_ == nullptr; }
    /// Nothing of that name, and nothing else in its place.
    [[nodiscard]] bool ausente() const {
        return error_ == ENOENT || error_ == ENOTDIR || error_ == ENAMETOOLONG;
    }
    /// Something is there and it is no file.
    [[nodiscard]] bool esOtraCosa() const { return otraCosa_ != nullptr; }
    /// Why it isn't open.
    [[nodiscard]] std::string porque() const {
        return otraCosa_ != nullptr ? otraCosa_
                                    : motivo({error_, std::generic_category()}, "no se puede abrir");
    }

    /// -1 when it can't be known.
    [[nodiscard]] off_t longitud() const {
        struct stat datos {};
        return ::fstat(fd_, &datos) == 0 ? datos.st_size : -1;
    }
    /// Bytes read, fewer at the end of the file; -1 when the disk fails.
    [[nodiscard]] ssize_t lee(std::uint64_t posicion, std::span<char> destino) const {
        return todo(destino, [&](std::span<char> resto, std::size_t hechos) {
            return ::pread(fd_, resto.data(), resto.size(), static_cast<off_t>(posicion + hechos));
        });
    }
    /// Bytes written; `errno` tells why they are fewer.
    [[nodiscard]] std::size_t escribe(std::uint64_t posicion, std::span<const char> origen) const {
        std::size_t hechos = 0;
        while (hechos < origen.size()) {
            const auto resto = origen.subspan(hechos);
            const ssize_t n =
                ::pwrite(fd_, resto.data(), resto.size(), static_cast<off_t>(posicion + hechos));
            if (n < 0 && errno == EINTR) continue;
            if (n <= 0) break;
            hechos += static_cast<std::size_t>(n);
        }
        return hechos;
    }
    [[nodiscard]] bool corta(std::uint64_t longitud) const {
        return ::ftruncate(fd_, static_cast<off_t>(longitud)) == 0;
    }

  private:
    template <typename Lee>
    static ssize_t todo(std::span<char> destino, const Lee& lee) {
        std::size_t hechos = 0;
        while (hechos < destino.size()) {
            const ssize_t n = lee(destino.subspan(hechos), hechos);
            if (n < 0 && errno == EINTR) continue;
            if (n < 0) return -1;
            if (n == 0) break;
            hechos += static_cast<std::size_t>(n);
        }
        return static_cast<ssize_t>(hechos);
    }

    int fd_;
    int error_;
    const char* otraCosa_ = nullptr;
};

/// The same, for a file that must be there.
Descriptor exigeAbierto(const fs::path& ruta, int modo) {
    Descriptor descriptor{ruta, modo};
    if (!descriptor.abierto()) rechaza(ruta, descriptor.porque());
    return descriptor;
}

/// A file that is absent from a directory where nothing can be created.
class FicheroVacio final : public FicheroAleatorio {
  public:
    [[nodiscard]] std::uint64_t longitud() override { return 0; }
    std::size_t lee(std::uint64_t, std::span<char>) override { return 0; }
    std::size_t escribe(std::uint64_t, std::span<const char>) override { return 0; }
    bool corta(std::uint64_t) override { return false; }
};

class FicheroEnDisco final : public FicheroAleatorio {
  public:
    FicheroEnDisco(fs::path ruta, Descriptor descriptor)
        : ruta_{std::move(ruta)}, descriptor_{std::move(descriptor)} {}

    [[nodiscard]] std::uint64_t longitud() override {
        return static_cast<std::uint64_t>(std::max<off_t>(descriptor_.longitud(), 0));
    }
    std::size_t lee(std::uint64_t posicion, std::span<char> destino) override {
        const ssize_t leidos = descriptor_.lee(posicion, destino);
        if (leidos < 0) rechaza(ruta_, "no se puede leer");
        return static_cast<std::size_t>(leidos);
    }
    std::size_t escribe(std::uint64_t posicion, std::span<const char> origen) override {
        return descriptor_.escribe(posicion, origen);
    }
    bool corta(std::uint64_t longitud) override { return descriptor_.corta(longitud); }

  private:
    fs::path ruta_;
    Descriptor descriptor_;
};

/// The file to replace, behind the links, once it's known that it may be written; an absent one is itself.
fs::path reemplazable(const fs::path& ruta) {
    const Descriptor hallado{ruta, O_RDWR};
    if (!hallado.abierto() && !hallado.ausente()) rechaza(ruta, hallado.porque());
    std::error_code error;
    fs::path real = fs::canonical(ruta, error);
    return error ? ruta : real;
}

/// A file being written beside the one that it will replace. Removed unless it takes that place.
class Relevo {
  public:
    explicit Relevo(fs::path destino) : destino_{std::move(destino)}, ruta_{destino_} { ruta_ += ".nuevo"; }
    Relevo(const Relevo&) = delete;
    Relevo& operator=(const Relevo&) = delete;
    ~Relevo() {
        std::error_code error;
        if (!puesto_ && creado_) fs::remove(ruta_, error);
    }

    void escribe(std::string_view contenido) {
        const Descriptor fichero{ruta_, O_WRONLY | O_CREAT};
        if (!fichero.abierto()) rechaza(destino_, estorbo(fichero));
        creado_ = true;
        errno = 0;
        if (fichero.escribe(0, contenido) != contenido.size() || !fichero.corta(contenido.size()))
            rechaza(destino_, motivo(errorDelSistema(), "no se puede escribir"));
    }

    void ocupaSuSitio() {
        std::error_code error;
        const auto antes = fs::status(destino_, error);
        if (fs::exists(antes)) fs::permissions(ruta_, antes.permissions(), error);
        fs::rename(ruta_, destino_, error);
        if (error) rechaza(destino_, motivo(error, "no se puede escribir"));
        puesto_ = true;
    }

  private:
    /// Something else that stands in the way is told by its own name.
    [[nodiscard]] std::string estorbo(const Descriptor& fichero) const {
        return fichero.esOtraCosa() ? ruta_.filename().string() + " " + fichero.porque() : fichero.porque();
    }

    fs::path destino_;
    fs::path ruta_;
    bool creado_ = false;
    bool puesto_ = false;
};

char minuscula(char c) {
    return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
}

bool igualSinCaja(std::string_view a, std::string_view b) {
    return std::equal(a.begin(), a.end(), b.begin(), b.end(),
                      [](char x, char y) { return minuscula(x) == minuscula(y); });
}

/// One name in a directory: the exact one, else the smallest that matches without regard to case.
fs::path resuelve(const fs::path& carpeta, const std::string& nombre) {
    fs::path exacta = carpeta / nombre;
    if (existeAlgo(exacta)) return exacta;
    std::string elegido;
    std::error_code error;
    for (fs::directory_iterator entrada{carpeta, error}, fin; !error && entrada != fin;
         entrada.increment(error)) {
        std::string candidato = entrada->path().filename().string();
        const bool mejor = elegido.empty() || candidato < elegido;
        if (igualSinCaja(candidato, nombre) && mejor) elegido = std::move(candidato);
    }
    return elegido.empty() ? exacta : carpeta / elegido;
}

}  // namespace

DirectorioAplicacion::DirectorioAplicacion(fs::path directorio) : directorio_{std::move(directorio)} {}

bool DirectorioAplicacion::existe(std::string_view nombre) const {
    return ExisteArchivo(ruta(nombre));
}

std::unique_ptr<FicheroAleatorio> DirectorioAplicacion::abre(std::string_view nombre, Acceso acceso) {
    const fs::path fichero = ruta(nombre);
    const int modo = acceso == Acceso::Lectura ? O_RDONLY : O_RDWR;
    Descriptor hallado{fichero, modo};
    if (hallado.abierto()) return std::make_unique<FicheroEnDisco>(fichero, std::move(hallado));
    if (!hallado.ausente()) rechaza(fichero, hallado.porque());
    Descriptor nuevo{fichero, modo | O_CREAT};
    if (nuevo.abierto()) return std::make_unique<FicheroEnDisco>(fichero, std::move(nuevo));
    if (acceso == Acceso::Lectura) return std::make_unique<FicheroVacio>();
    rechaza(fichero, nuevo.porque());
}

std::string DirectorioAplicacion::leeTramo(std::string_view nombre, std::uint64_t posicion,
                                           std::size_t longitud) const {
    const fs::path fichero = ruta(nombre);
    std::string tramo(longitud, '\0');
    const ssize_t leidos = exigeAbierto(fichero, O_RDONLY).lee(posicion, tramo);
    if (leidos < 0) rechaza(fichero, "no se puede leer");
    tramo.resize(static_cast<std::size_t>(leidos));
    return tramo;
}

std::string DirectorioAplicacion::leeHasta(std::string_view nombre, std::size_t maximo) const {
    const fs::path fichero = ruta(nombre);
    const Descriptor descriptor = exigeAbierto(fichero, O_RDONLY);
    const off_t longitud = descriptor.longitud();
    if (longitud < 0) rechaza(fichero, "no se puede leer");
    std::string contenido;
    // A file without a length of its own is read to its end all the same, a byte beyond the bound at most.
    constexpr std::size_t kTrozo = 65536;
    std::size_t trozo = std::min(static_cast<std::size_t>(longitud), maximo) + 1;
    ssize_t leidos = 0;
    do {
        const std::size_t antes = contenido.size();
        contenido.resize(std::min(antes + trozo, maximo + 1));
        leidos = descriptor.lee(antes, std::span{contenido}.subspan(antes));
        if (leidos < 0) rechaza(fichero, "no se puede leer");
        contenido.resize(antes + static_cast<std::size_t>(leidos));
        if (contenido.size() > maximo) rechaza(fichero, "es demasiado grande para lo que debe contener");
        trozo = kTrozo;
    } while (leidos > 0);
    return contenido;
}

void DirectorioAplicacion::sustituye(std::string_view nombre, std::string_view contenido) {
    SustituyeFichero(ruta(nombre), contenido);
}

bool DirectorioAplicacion::elimina(std::string_view nombre) {
    std::error_code error;
    const fs::path fichero = ruta(nombre);
    return !ExisteArchivo(fichero) || fs::remove(fichero, error);
}

fs::path DirectorioAplicacion::ruta(std::string_view nombre) const {
    std::string conBarras{nombre};
    std::replace(conBarras.begin(), conBarras.end(), '\\', '/');
    fs::path encontrada = directorio_;
    for (const auto& parte : fs::path{conBarras}.relative_path())
        encontrada = resuelve(encontrada, parte.string());
    return encontrada;
}

std::unique_ptr<FicheroAleatorio> AbreParaLeer(const fs::path& ruta) {
    return std::make_unique<FicheroEnDisco>(ruta, exigeAbierto(ruta, O_RDONLY));
}

void SustituyeFichero(const fs::path& ruta, std::string_view contenido) {
    Relevo relevo{reemplazable(ruta)};
    relevo.escribe(contenido);
    relevo.ocupaSuSitio();
}

bool ExisteArchivo(const fs::path& ruta) {
    std::error_code error;
    return fs::is_regular_file(ruta, error);
}

}  // namespace orvemo
