#pragma once

#include <sys/resource.h>

#include <algorithm>
#include <csignal>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <string_view>
#include <vector>

namespace orvemo::pruebas {

/// A directory of its own on the disk, which goes with all that lies in it.
class CarpetaTemporal {
  public:
    CarpetaTemporal() {
        std::string plantilla = (std::filesystem::temp_directory_path() / "orvemo-XXXXXX").string();
        ruta_ = mkdtemp(plantilla.data());
    }
    ~CarpetaTemporal() { std::filesystem::remove_all(ruta_); }
    CarpetaTemporal(const CarpetaTemporal&) = delete;
    CarpetaTemporal& operator=(const CarpetaTemporal&) = delete;

    operator const std::filesystem::path&() const { return ruta_; }
    [[nodiscard]] std::filesystem::path operator/(const std::filesystem::path& nombre) const {
        return ruta_ / nombre;
    }
    void pon(const std::string& nombre, std::string_view contenido) const {
        std::ofstream{ruta_ / nombre, std::ios::binary} << contenido;
    }
    [[nodiscard]] std::string contenido(const std::string& nombre) const {
        std::ifstream flujo{ruta_ / nombre, std::ios::binary};
        return {std::istreambuf_iterator<char>{flujo}, {}};
    }
    [[nodiscard]] std::vector<std::string> ficheros() const {
        std::vector<std::string> nombres;
        for (const auto& entrada : std::filesystem::directory_iterator{ruta_})
            nombres.push_back(entrada.path().filename());
        std::ranges::sort(nombres);
        return nombres;
    }

  private:
    std::filesystem::path ruta_;
};

/// No file grows beyond so many bytes while this lives, as on a disk that is full from there on.
class DiscoLleno {
  public:
    explicit DiscoLleno(rlim_t bytes) {
        getrlimit(RLIMIT_FSIZE, &antes_);
        const rlimit ahora{bytes, antes_.rlim_max};
        setrlimit(RLIMIT_FSIZE, &ahora);
    }
    ~DiscoLleno() {
        setrlimit(RLIMIT_FSIZE, &antes_);
        std::signal(SIGXFSZ, senal_);
    }
    DiscoLleno(const DiscoLleno&) = delete;
    DiscoLleno& operator=(const DiscoLleno&) = delete;

  private:
    rlimit antes_{};
    void (*senal_)(int) = std::signal(SIGXFSZ, SIG_IGN);
};

}  // namespace orvemo::pruebas
