// A real program that writes cases without pause, killed again and again: every record stays whole.

#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <csignal>
#include <filesystem>
#include <random>
#include <string>

#include "apoyo/disco.h"
#include "cases/archivo_supuestos.h"

namespace orvemo {
namespace {

namespace fs = std::filesystem;

constexpr std::size_t kLongitud = 2592;  // a record of "jubila.nom"
constexpr int kMuertes = 300;

std::string registro(char relleno) {
    return ' ' + std::string(kLongitud - 1, relleno);
}

/// Overwrites, erases and appends until it's killed.
[[noreturn]] void escribeSinParar(const fs::path& carpeta) {
    DirectorioAplicacion directorio{carpeta};
    ArchivoSupuestos archivo{directorio, "jubila.nom", kLongitud};
    for (char letra = 'a';; letra = letra == 'z' ? 'a' : static_cast<char>(letra + 1)) {
        archivo.sobrescribe(1, registro(letra));
        if (archivo.agrega(registro(letra)) < 20) continue;
        for (int r = 2; r <= 20; ++r) archivo.borra(r);
    }
}

/// One letter throughout: half of one record and half of another are two. An erased one has its head besides.
bool estaEntero(std::string bytes) {
    const bool libre = bytes.front() == kRegistroLibre;
    bytes.erase(0, libre ? kAnchoCabecera : 1);
    return std::ranges::all_of(bytes, [&](char c) { return c == bytes.front(); });
}

TEST(Muertes, TornNoRecordIn300) {
    const pruebas::CarpetaTemporal carpeta;
    DirectorioAplicacion directorio{carpeta};
    ArchivoSupuestos archivo{directorio, "jubila.nom", kLongitud};
    std::minstd_rand azar{2005};
    for (int muerte = 1; muerte <= kMuertes; ++muerte) {
        const pid_t hijo = fork();
        if (hijo == 0) escribeSinParar(carpeta);
        usleep(static_cast<useconds_t>(500 + azar() % 4000));
        kill(hijo, SIGKILL);
        waitpid(hijo, nullptr, 0);
        const int cuenta = archivo.cuenta();
        ASSERT_EQ(directorio.abre("jubila.nom", Acceso::Lectura)->longitud(), cuenta * kLongitud) << muerte;
        for (int r = 1; r <= cuenta; ++r) ASSERT_TRUE(estaEntero(archivo.lee(r))) << muerte;
        ASSERT_FALSE(directorio.existe("jubila.nom.diario"));
    }
    EXPECT_GT(archivo.cuenta(), 1);
}

}  // namespace
}  // namespace orvemo
