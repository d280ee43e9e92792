#include "foundations/frame/enlaces.h"

#include "foundations/values/formatos.h"
#include "foundations/values/numeros.h"

namespace orvemo::vias {

double leeNumero(std::string_view texto) {
    return LeeNumeroRegional(texto);
}

double leeNumeroOCero(std::string_view texto) {
    return DobleDe(std::string{texto});
}

Fecha leeFecha(std::string_view texto) {
    return LeeFecha(texto);
}

Fecha leeFechaOCero(std::string_view texto) {
    return FechaDe(std::string{texto});
}

std::string escribeImporte(double valor) {
    return FormatoNumero(valor, "#0.00");
}

std::string escribeNumero(double valor) {
    return TextoPlano(valor);
}

std::string escribeFecha(Fecha valor) {
    return FormatoFecha(valor, "dd-MM-yyyy");
}

std::int32_t leeEntero(std::string_view texto) {
    return LeeEnteroRegional(texto);
}

std::int16_t leeEntero16(std::string_view texto) {
    return RedondeaPar16(LeeNumeroRegional(texto));
}

std::uint8_t leeEntero8(std::string_view texto) {
    return RedondeaPar8(LeeNumeroRegional(texto));
}

std::string escribeEntero(std::int32_t valor) {
    return TextoPlano(valor);
}

}  // namespace orvemo::vias
