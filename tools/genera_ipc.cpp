// Writes the "ipc.txt" that ships into the current directory, from its source "anio,mes,indice": a group of
// 13 lines a year, the year and its twelve months, with decimal commas and lines ended by CR LF. A series
// with a gap is refused.
#include <cstdio>
#include <exception>
#include <filesystem>
#include <stdexcept>
#include <string>

#include "foundations/values/ajustes.h"
#include "foundations/values/almacen.h"
#include "foundations/values/formatos.h"
#include "foundations/values/numeros.h"
#include "foundations/values/textos.h"
#include "pensions/comun/tablas_pensiones.h"

namespace {

using namespace orvemo;

constexpr int kUsoIncorrecto = 2;

struct Mes {
    int anio, mes;
    double indice;
};

Mes leeMes(std::string linea) {
    const int anio = EnteroDe(CortaCampo(linea, ","));
    const int mes = EnteroDe(CortaCampo(linea, ","));
    return {anio, mes, LeeNumero(linea)};
}

std::string lineaDe(const Mes& mes) {
    const std::string_view nombre = kEspana.meses.at(static_cast<std::size_t>(mes.mes - 1));
    std::string linea = mes.mes == 1 ? TextoPlano(mes.anio) + "\r\n" : "";
    return linea.append(TextoPlano(mes.mes))
        .append("\t")
        .append(nombre)
        .append("\t")
        .append(FormatoNumero(mes.indice, "0.000") + "\r\n");
}

std::string convierte(std::string fuente) {
    static_cast<void>(CortaCampo(fuente, "\n"));  // names of the columns
    std::string ipc;
    for (int i = 0; !fuente.empty(); ++i) {
        const Mes mes = leeMes(CortaCampo(fuente, "\n"));
        const bool sigue = mes.anio == pensiones::kPrimerAnioIPC + i / 12 && mes.mes == i % 12 + 1;
        if (!sigue || mes.indice <= 0) throw std::runtime_error{"bad row " + std::to_string(i + 2)};
        ipc += lineaDe(mes);
    }
    return ipc;
}

void escribe(const std::filesystem::path& fuente) {
    const DirectorioAplicacion carpeta{fuente.parent_path()};
    const std::string ipc = convierte(carpeta.leeTodo(fuente.filename().string()));
    const pensiones::TablasPensiones tablas{pensiones::LeeIPC(ipc), pensiones::CargaBasesMinimas()};
    if (tablas.IPCDe(pensiones::kUltimoAnioIPC, 12).valor == 0)
        throw std::runtime_error{"the series ends early"};
    DirectorioAplicacion{"."}.sustituye(pensiones::kFicheroIPC, ipc);
}

}  // namespace

int main(int argc, char** argv) {
    if (argc != 2) {
        std::fputs("genera_ipc SOURCE\n", stderr);
        return kUsoIncorrecto;
    }
    try {
        escribe(argv[1]);
        return 0;
    } catch (const std::exception& fallo) {
        std::fprintf(stderr, "genera_ipc: %s\n", fallo.what());
        return 1;
    }
}
