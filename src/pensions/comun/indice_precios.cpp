#include <string>

#include "foundations/values/fallos.h"
#include "foundations/values/numeros.h"
#include "foundations/values/textos.h"
#include "pensions/comun/tablas_pensiones.h"

namespace orvemo::pensiones {

namespace {

constexpr double kIndiceDiciembre2004 = 111.69;
constexpr double kPuntosPorAnio = 2.0;  // growth of the projected index
constexpr int kMesesHastaDiciembre2004 = 12 * 2004 + 12;

constexpr int kPrimerAnioAcumulado = 1990;
// Yearly increase of prices, percent, from 1991 to 2005.
constexpr std::array kSubidas{6.7, 5.7, 5.1, 4.4, 4.4, 3.5, 3.5, 2.1, 2.7, 4.1, 2.7, 3.9, 2.8, 3.5, 2.0};

/// The lines of a text, counted.
class Lineas {
  public:
    explicit Lineas(std::string_view texto) : resto_{texto} {}

    [[nodiscard]] bool quedan() const { return !resto_.empty(); }
    /// Number of the line last read.
    [[nodiscard]] int numero() const { return numero_; }

    std::string siguiente() {
        ++numero_;
        const auto fin = resto_.find('\n');
        std::string linea{resto_.substr(0, fin)};
        resto_.remove_prefix(fin == std::string_view::npos ? resto_.size() : fin + 1);
        if (linea.ends_with('\r')) linea.pop_back();
        return linea;
    }

  private:
    std::string_view resto_;
    int numero_ = 0;
};

[[noreturn]] void falla(int linea, const std::string& motivo) {
    throw FicheroMalFormado{std::string{kFicheroIPC}, linea, motivo};
}

/// What stands between the second tab of a line and the third, or its end.
std::string tercerCampo(std::string linea) {
    std::string campo;
    for (int i = 1; i <= 3; ++i) campo = CortaCampo(linea, "\t");
    return campo;
}

double leeMes(Lineas& lineas) {
    if (!lineas.quedan()) falla(lineas.numero() + 1, "el fichero acaba en mitad de un año");
    const std::string indice = tercerCampo(lineas.siguiente());
    try {
        return LeeNumeroRegional(indice);
    } catch (const TextoIlegible&) {
        falla(lineas.numero(), EntreComillas(De1252(indice)) + " no es un índice de precios");
    }
}

}  // namespace

TablaIPC LeeIPC(std::string_view texto) {
    TablaIPC tabla{};
    Lineas lineas{texto};
    for (auto anio = tabla.begin(); lineas.quedan(); ++anio) {
        // The heading says nothing: the year follows from the place of its group.
        static_cast<void>(lineas.siguiente());
        if (anio == tabla.end()) falla(lineas.numero(), "hay más de 50 años");
        for (double& mes : *anio) mes = leeMes(lineas);
    }
    return tabla;
}

IndiceIPC TablasPensiones::IPCDe(int anio, int mes) const {
    if (anio < kPrimerAnioIPC || mes > 12 || mes < 1) return {0, false};
    if (anio > kUltimoAnioIPC) {
        const int meses = 12 * anio + mes - kMesesHastaDiciembre2004;
        return {kIndiceDiciembre2004 + kPuntosPorAnio * meses / 12, true};
    }
    return {ipc_[static_cast<std::size_t>(anio - kPrimerAnioIPC)][static_cast<std::size_t>(mes - 1)], false};
}

double FactorIPCAcumulado(int anio) {
    if (anio < kPrimerAnioAcumulado) return 0;
    double factor = 1.0;
    for (auto i = static_cast<std::size_t>(anio - kPrimerAnioAcumulado); i < kSubidas.size(); ++i) {
        factor *= 1 + kSubidas[i] / 100;
    }
    return factor;
}

TablasPensiones IniciaPensiones(const Almacen& almacen) {
    const TablaBasesMinimas basesMinimas = CargaBasesMinimas();
    const std::string ipc = almacen.leeTodo(kFicheroIPC);
    if (ipc.empty()) falla(0, "está vacío");
    return {LeeIPC(ipc), basesMinimas};
}

}  // namespace orvemo::pensiones
