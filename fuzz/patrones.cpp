// The writers of numbers and dates and the sums of dates, on any value and any pattern.

#include <fuzzer/FuzzedDataProvider.h>

#include <algorithm>
#include <bit>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <string>

#include "exige.h"
#include "foundations/values/fallos.h"
#include "foundations/values/formatos.h"
#include "foundations/values/numeros.h"

namespace {

using namespace orvemo;

void escribeNumero(double valor, const std::string& patron) {
    const std::string texto = FormatoNumero(valor, patron);
    exige(std::isfinite(valor) || texto.empty(), "what is no number shows nothing");
    const bool soloCifras = patron.find_first_not_of("#0") == std::string::npos;
    if (soloCifras && patron.ends_with('0') && std::abs(valor) <= kReleible) {
        exige(LeeNumeroRegional(texto) == LeeNumeroRegional(FormatoNumero(valor, "0")),
              "zeros change no number");
    }
}

/// An amount shown tells the amount to the half cent, and its text is shown as it stands.
void escribeImporte(double valor) {
    constexpr const char* kPatron = "##,###,##0.00";
    if (!(std::abs(valor) <= kReleible)) return;
    const std::string texto = FormatoNumero(valor, kPatron);
    const double mostrado = LeeNumeroRegional(texto);
    exige(std::abs(mostrado - valor) <= 0.005 + std::abs(valor) * 1e-14, "an amount shown is the amount");
    exige(FormatoNumero(mostrado, kPatron) == texto, "a shown amount shows the same");
    exige(FormatoNumero(-valor, kPatron).ends_with(texto.starts_with('-') ? texto.substr(1) : texto),
          "the sign changes no digit");
}

void redondea(double valor, int decimales) {
    try {
        const double redondo = Redondeado(valor, decimales);
        const double paso = std::pow(10, -decimales);
        exige(std::abs(redondo - valor) <= 0.5 * paso + 2e-8, "a rounded amount is near");
        exige(Suelo(valor) <= valor && valor < Suelo(valor) + 1.0, "a floor is just below");
    } catch (const DesbordeNumerico&) {
        exige(!(std::abs(valor) < 2), "small amounts can always be rounded");
    }
}

void escribeFecha(Fecha fecha, const std::string& patron) {
    (void)FormatoFecha(fecha, patron);
}

void sumaFechas(Fecha fecha, Intervalo intervalo, int n) {
    try {
        const Fecha suma = SumaFecha(intervalo, n, fecha);
        exige(ExisteFecha(Dia(suma), Mes(suma), Anio(suma)), "a sum stays on the calendar");
        exige(DiferenciaFechas(intervalo, fecha, suma) == n, "the distance is what was added");
        (void)AniosCumplidos(fecha, suma);
    } catch (const DesbordeNumerico&) {
    }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* datos, std::size_t largo) {
    FuzzedDataProvider entrada{datos, largo};
    const auto valor = std::bit_cast<double>(entrada.ConsumeIntegral<std::uint64_t>());
    const Fecha fecha = FechaDeSerie(entrada.ConsumeIntegralInRange<int>(-700000, 3000000));
    const auto intervalo = static_cast<Intervalo>(entrada.ConsumeIntegralInRange<int>(0, 3));
    const int n = entrada.ConsumeIntegral<int>();
    const int decimales = entrada.ConsumeIntegralInRange<int>(0, 9);
    const std::string patron = entrada.ConsumeRemainingBytesAsString();
    escribeNumero(valor, patron);
    escribeImporte(valor);
    redondea(valor, decimales);
    escribeFecha(fecha, patron);
    sumaFechas(fecha, intervalo, n);
    return 0;
}
