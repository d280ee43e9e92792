// Writes the "CONTRATO.NOM" or the "EPIG.NOM" that ships into the current directory, from its source in data:
// contract types with their incentives, or premiums for accidents at work. Windows-1252, fields between "#",
// lines ended by CR LF. A row that the payroll could not read back as it stands is refused.
#include <cstdio>
#include <exception>
#include <filesystem>
#include <stdexcept>
#include <string>
#include <vector>

#include "foundations/values/almacen.h"
#include "foundations/values/textos.h"
#include "payroll/contratos/contratos.h"
#include "payroll/contratos/epigrafes.h"

namespace {

using namespace orvemo;

constexpr int kUsoIncorrecto = 2;
constexpr std::size_t kTextoContrato = 80;
constexpr std::size_t kTextoEpigrafe = 50;

using Fila = std::vector<std::string>;

/// The fields of a line: commas between, quotation marks round those that hold one.
Fila parte(const std::string& linea) {
    Fila campos(1);
    bool entreComillas = false;
    for (const char c : linea) {
        if (c == '"') {
            entreComillas = !entreComillas;
        } else if (c == ',' && !entreComillas) {
            campos.emplace_back();
        } else {
            campos.back() += c;
        }
    }
    return campos;
}

std::string texto(const std::string& campo, std::size_t ancho) {
    if (CuentaCaracteres(campo) > ancho || campo.find('#') != std::string::npos) {
        throw std::runtime_error{"unfit text: " + campo};
    }
    return campo;
}

/// grupo, clase, codigo, texto, clave, modo, incentivo, flags and three pairs of percentage and years.
std::string lineaContrato(const Fila& fila) {
    constexpr std::size_t kClase = 1;
    constexpr std::size_t kCodigo = 2;
    constexpr std::size_t kTexto = 3;
    constexpr std::size_t kUltimo = 13;
    if (fila.at(kCodigo) == "*") return "*#" + texto(fila.at(kTexto), kTextoContrato) + "#" + fila.at(kClase);
    std::string linea = fila.at(kCodigo) + "#" + texto(fila.at(kTexto), kTextoContrato);
    for (std::size_t i = kTexto + 1; i <= kUltimo; ++i) linea += "#" + fila.at(i);
    return linea;
}

/// codigo, actividad, it, ims, estado_actividad, estado_tipos: rates of another year are told in the text.
std::string lineaEpigrafe(const Fila& fila) {
    const std::string aviso = fila.at(5) == "de 2008" ? " (tipos de 2008)" : "";
    return fila.at(0) + "#" + fila.at(2) + "#" + fila.at(3) + "#" + texto(fila.at(1) + aviso, kTextoEpigrafe);
}

std::string convierte(std::string fuente, std::string (*linea)(const Fila&)) {
    static_cast<void>(CortaCampo(fuente, "\n"));  // names of the columns
    std::string lista;
    while (!fuente.empty()) lista += linea(parte(CortaCampo(fuente, "\n"))) + "\r\n";
    return A1252(lista);
}

void compruebaContratos(const nomina::Contratos& contratos) {
    for (const nomina::ContratoNomina& fila : contratos.filas()) {
        if (fila.Texto.substr(0, 3) != fila.Codigo.substr(0, 3))
            throw std::runtime_error{"bad row " + fila.Codigo};
    }
    static_cast<void>(contratos.indiceDe("087 "));
    static_cast<void>(contratos.indiceDe("421A"));
}

void escribe(const std::filesystem::path& fuente) {
    const std::string contenido =
        DirectorioAplicacion{fuente.parent_path()}.leeTodo(fuente.filename().string());
    DirectorioAplicacion destino{"."};
    if (fuente.stem() == "contratos") {
        const std::string lista = convierte(contenido, lineaContrato);
        compruebaContratos(nomina::Contratos{lista});
        destino.sustituye(nomina::kFicheroContratos, lista);
    } else {
        destino.sustituye(nomina::kFicheroEpigrafes, convierte(contenido, lineaEpigrafe));
    }
}

}  // namespace

int main(int argc, char** argv) {
    if (argc != 2) {
        std::fputs("genera_listas contratos.csv|epigrafes.csv\n", stderr);
        return kUsoIncorrecto;
    }
    try {
        escribe(argv[1]);
        return 0;
    } catch (const std::exception& fallo) {
        std::fprintf(stderr, "genera_listas: %s\n", fallo.what());
        return 1;
    }
}
