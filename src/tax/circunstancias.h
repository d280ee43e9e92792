#pragma once

#include "foundations/frame/enlaces.h"
#include "tax/familiares.h"

namespace orvemo::irpf {

/// The list "Sí", "No" of a question, "No" in a new case.
[[nodiscard]] DefCampo siONo(std::string nombre, std::string rotulo, int pantalla, Grupo* grupo,
                             Reaccion alCambiar = {});
[[nodiscard]] bool dijoSi(const Campo& lista);

/// Ties the list of a question to a member, 1 for "Sí".
void enlazaSi(Enlaces<DatosRetencion>& enlaces, Campo& lista, std::uint8_t DatosRetencion::*miembro);

/// Ties a list to a member that counts its entries from `primero`. A member that no entry tells stays as it
/// is, and shows none.
void enlazaEntrada(Enlaces<DatosRetencion>& enlaces, Campo& lista, std::uint8_t DatosRetencion::*miembro,
                   int primero = 0);

/// The fields on the taxpayer's circumstances, alike in the withholding and in net to gross.
class Circunstancias {
  public:
    Circunstancias(const Declarador& declara, Grupo* importes, Grupo* persona, Grupo* familia);

    /// After any change from outside: hides what doesn't count.
    void ajusta();
    void enlaza(Enlaces<DatosRetencion>& enlaces);

    Campo& Pension;
    Campo& Anualidades;
    Campo& Discapacidad;
    Campo& GradoDiscapacidad;
    Campo& CeutaMelilla;
    Campo& Movil;
    Campo& Prolon;
    Campo& SituacionFamiliar;
};

}  // namespace orvemo::irpf
