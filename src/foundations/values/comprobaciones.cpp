#include "foundations/values/comprobaciones.h"

#include "foundations/values/fallos.h"
#include "foundations/values/formatos.h"
#include "foundations/values/numeros.h"

namespace orvemo {
namespace {

constexpr std::string_view kPatronFecha = "dd-MM-yyyy";

std::string mensajeDeRango(std::string_view minimo, std::string_view maximo) {
    return "El número no es correcto. Debe introducir un número entre " + std::string{minimo} + " y " +
           std::string{maximo};
}

}  // namespace

bool NumeroEntre(std::string_view texto, double minimo, double maximo) {
    try {
        return EntreLimites(LeeNumero(texto), minimo, maximo);
    } catch (const DesbordeNumerico&) {
        return false;
    }
}

void CompruebaFecha(ControlTexto& campo, bool& DatoMal, Mensajes& mensajes, const Reloj& reloj) {
    if (DatoMal) return;
    if (!EsFecha(campo.texto())) {
        mensajes.ComunicaError("La fecha no es correcta. Debe ser de tipo dd-mm-aaaa");
        DatoMal = true;
        campo.ponTexto(FormatoFecha(reloj.hoy(), kPatronFecha));
        campo.pideFoco();
        return;
    }
    campo.ponTexto(FormatoFecha(FechaDe(campo.texto()), kPatronFecha));
    DatoMal = false;
}

void CompruebaRango(ControlTexto& campo, std::string_view minimo, std::string_view maximo, bool& DatoMal,
                    Mensajes& mensajes) {
    if (DatoMal) return;
    if (!NumeroEntre(campo.texto(), LimiteDe(minimo), LimiteDe(maximo))) {
        mensajes.ComunicaError(mensajeDeRango(minimo, maximo));
        DatoMal = true;
        campo.pideFoco();
        return;
    }
    DatoMal = false;
}

}  // namespace orvemo
