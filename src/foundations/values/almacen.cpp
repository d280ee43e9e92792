#include "foundations/values/almacen.h"

#include <algorithm>
#include <cerrno>
#include <fstream>
#include <ios>
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

/// The system's last error: the streams of the library tell no more than that they failed.
std::error_code errorDelSistema() {
    return {errno, std::generic_category()};
}

[[noreturn]] void rechaza(const fs::path& ruta, const std::string& porque) {
    throw FicheroInaccesible{ruta.filename().string(), porque};
}

bool esCarpeta(const fs::path& ruta) {
    std::error_code error;
    return fs::is_directory(ruta, error);
}

bool existeAlgo(const fs::path& ruta) {
    std::error_code error;
    return fs::exists(ruta, error);
}

/// Opens a file without a buffer: what is written goes to the disk at once, and what fails is known at once.
std::fstream abreFlujo(const fs::path& ruta, std::ios::openmode modo) {
    std::fstream flujo;
    flujo.rdbuf()->pubsetbuf(nullptr, 0);
    errno = 0;
    flujo.open(ruta, modo | std::ios::binary);
    return flujo;
}

void exigeQueNoSeaCarpeta(const fs::path& ruta) {
    if (esCarpeta(ruta)) rechaza(ruta, "es una carpeta");
}

/// The same, for a file that must be there; gives the reason when it can't be opened.
std::fstream exigeFlujo(const fs::path& ruta, std::ios::openmode modo) {
    std::fstream flujo = abreFlujo(ruta, modo);
    if (!flujo.is_open()) rechaza(ruta, motivo(errorDelSistema(), "no se puede abrir"));
    return flujo;
}

/// Makes an empty file where there is none; gives the error when it can't.
std::error_code creaSiFalta(const fs::path& ruta) {
    if (existeAlgo(ruta)) return {};
    return abreFlujo(ruta, std::ios::out | std::ios::app).is_open() ? std::error_code{} : errorDelSistema();
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
    FicheroEnDisco(fs::path ruta, std::fstream flujo) : ruta_{std::move(ruta)}, flujo_{std::move(flujo)} {}

    [[nodiscard]] std::uint64_t longitud() override {
        flujo_.clear();
        flujo_.seekg(0, std::ios::end);
        const auto fin = flujo_.tellg();
        return fin < 0 ? 0 : static_cast<std::uint64_t>(fin);
    }

    std::size_t lee(std::uint64_t posicion, std::span<char> destino) override {
        flujo_.clear();
        flujo_.seekg(static_cast<std::streamoff>(posicion));
        flujo_.read(destino.data(), static_cast<std::streamsize>(destino.size()));
        if (flujo_.bad()) rechaza(ruta_, "no se puede leer");
        return static_cast<std::size_t>(flujo_.gcount());
    }

    std::size_t escribe(std::uint64_t posicion, std::span<const char> origen) override {
        flujo_.clear();
        if (!flujo_.seekp(static_cast<std::streamoff>(posicion))) return 0;
        const auto escritos =
            flujo_.rdbuf()->sputn(origen.data(), static_cast<std::streamsize>(origen.size()));
        flujo_.flush();
        return static_cast<std::size_t>(std::max<std::streamsize>(escritos, 0));
    }

    bool corta(std::uint64_t longitud) override {
        std::error_code error;
        fs::resize_file(ruta_, longitud, error);
        return !error;
    }

  private:
    fs::path ruta_;
    std::fstream flujo_;
};

/// The file that stands under a name, behind the links, once it's known that it may be written.
fs::path reemplazable(const fs::path& ruta) {
    if (!ExisteArchivo(ruta)) rechaza(ruta, "no es un fichero corriente");
    (void)exigeFlujo(ruta, std::ios::in | std::ios::out);
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
        std::fstream flujo = abreFlujo(ruta_, std::ios::out | std::ios::trunc);
        if (!flujo.is_open()) falla(errorDelSistema());
        creado_ = true;
        const auto escritos =
            flujo.rdbuf()->sputn(contenido.data(), static_cast<std::streamsize>(contenido.size()));
        if (escritos != static_cast<std::streamsize>(contenido.size())) falla(errorDelSistema());
        flujo.close();
        if (flujo.fail()) falla(errorDelSistema());
    }

    void ocupaSuSitio() {
        std::error_code error;
        const auto antes = fs::status(destino_, error);
        if (fs::exists(antes)) fs::permissions(ruta_, antes.permissions(), error);
        fs::rename(ruta_, destino_, error);
        if (error) falla(error);
        puesto_ = true;
    }

  private:
    [[noreturn]] void falla(const std::error_code& error) const {
        rechaza(destino_, motivo(error, "no se puede escribir"));
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
    exigeQueNoSeaCarpeta(fichero);
    const std::error_code falta = creaSiFalta(fichero);
    if (falta && acceso == Acceso::Lectura) return std::make_unique<FicheroVacio>();
    if (falta) rechaza(fichero, motivo(falta, "no se puede crear"));
    if (acceso == Acceso::Lectura) return AbreParaLeer(fichero);
    return std::make_unique<FicheroEnDisco>(fichero, exigeFlujo(fichero, std::ios::in | std::ios::out));
}

std::string DirectorioAplicacion::leeTodo(std::string_view nombre) const {
    const fs::path fichero = ruta(nombre);
    exigeQueNoSeaCarpeta(fichero);
    std::fstream flujo = exigeFlujo(fichero, std::ios::in);
    constexpr std::size_t kTrozo = 65536;
    std::string contenido;
    do {
        const std::size_t leidos = contenido.size();
        contenido.resize(leidos + kTrozo);
        flujo.read(contenido.data() + leidos, static_cast<std::streamsize>(kTrozo));
        contenido.resize(leidos + static_cast<std::size_t>(flujo.gcount()));
    } while (flujo);
    if (flujo.bad()) rechaza(fichero, "no se puede leer");
    return contenido;
}

void DirectorioAplicacion::sustituye(std::string_view nombre, std::string_view contenido) {
    const fs::path fichero = ruta(nombre);
    exigeQueNoSeaCarpeta(fichero);
    Relevo relevo{existeAlgo(fichero) ? reemplazable(fichero) : fichero};
    relevo.escribe(contenido);
    relevo.ocupaSuSitio();
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
    return std::make_unique<FicheroEnDisco>(ruta, exigeFlujo(ruta, std::ios::in));
}

bool ExisteArchivo(const fs::path& ruta) {
    std::error_code error;
    return fs::is_regular_file(ruta, error);
}

}  // namespace orvemo
