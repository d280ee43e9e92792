// The readers of numbers, dates and characters, on any text.

#include <cmath>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string>
#include <string_view>

#include "exige.h"
#include "foundations/values/fallos.h"
#include "foundations/values/formatos.h"
#include "foundations/values/numeros.h"
#include "foundations/values/teclas.h"
#include "foundations/values/textos.h"

namespace {

using namespace orvemo;

/// Gives a finite number or says that it is too large; nothing else may happen.
void leeSinAjustes(std::string_view texto) {
    try {
        exige(std::isfinite(LeeNumero(texto)) && std::isfinite(ValComa(texto)), "a number read is finite");
    } catch (const DesbordeNumerico&) {
    }
}

void leeRegional(std::string_view texto) {
    const double doble = DobleDe(texto);
    exige(std::isfinite(doble), "DobleDe is finite");
    (void)EnteroDe(texto);
    bool legible = true;
    try {
        exige(LeeNumeroRegional(texto) == doble, "DobleDe reads as LeeNumeroRegional");
    } catch (const TextoIlegible&) {
        legible = false;
    }
    exige(legible == EsNumero(texto), "EsNumero tells whether the text can be read");
    if (std::abs(doble) > kReleible) return;
    const std::string plano = TextoPlano(doble);
    exige(TextoPlano(LeeNumeroRegional(plano)) == plano, "a plain text reads back as itself");
    exige(std::abs(LeeNumeroRegional(plano) - doble) <= std::abs(doble) * 1e-14, "and tells the same number");
}

void leeFecha(std::string_view texto) {
    const Fecha fecha = FechaDe(texto);
    exige(FechaDe(FormatoFecha(fecha, "dd-mm-yyyy")) == fecha, "a date written reads back");
    bool legible = true;
    try {
        exige(LeeFecha(texto) == fecha, "FechaDe reads as LeeFecha");
    } catch (const Fallo&) {
        legible = false;
    }
    exige(legible == EsFecha(texto), "EsFecha tells whether the text can be read");
}

void leeSerie(std::string_view bytes) {
    double serie = 0;
    if (bytes.size() < sizeof serie) return;
    std::memcpy(&serie, bytes.data(), sizeof serie);
    const Fecha fecha = FechaDeSerie(serie);
    exige(ExisteFecha(Dia(fecha), Mes(fecha), Anio(fecha)), "a stored date is on the calendar");
    exige(FechaDeSerie(SerieDeFecha(fecha)) == fecha, "a stored date comes back");
}

void leeCaracteres(std::string_view texto) {
    exige(A1252(De1252(texto)) == texto, "every byte of a file comes back");
    exige(A1252(texto).size() == CuentaCaracteres(texto), "a byte a character");
    std::string resto{texto};
    std::string junto = CortaCampo(resto, ";");
    if (junto.size() < texto.size()) junto += ";" + resto;
    exige(junto == texto, "a cut line put together again");
}

void filtra(std::string_view texto) {
    const std::string numero = FiltraTexto(TeclaNumero, texto);
    exige(FiltraTexto(TeclaNumero, numero) == numero, "what passes the filter passes it again");
    exige(numero.find(',') == numero.rfind(','), "one comma at most");
    exige(numero.rfind('-') == std::string::npos || numero.rfind('-') == 0, "a minus only in front");
    (void)FiltraTexto(TeclaMayuscula, texto);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* datos, std::size_t largo) {
    const std::string texto(datos, datos + largo);
    leeSinAjustes(texto);
    leeRegional(texto);
    leeFecha(texto);
    leeSerie(texto);
    leeCaracteres(texto);
    filtra(texto);
    return 0;
}
