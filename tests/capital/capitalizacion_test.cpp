#include "capital/capitalizacion/capitalizacion.h"

#include <gtest/gtest.h>

#include <string>

#include "foundations/values/fallos.h"

namespace orvemo::capital {
namespace {

const DirectorioAplicacion kDatos{ORVEMO_DATOS};
constexpr int kCausaMuerte = 3;

/// Ages on 15-06-2005 and days married. Unless told otherwise: widows of 40 and 45 who were married one day
/// out of four and three, and others of 10, 12 and 8.
struct Personas {
    int a = 40, b = 45, c = 10, e = 12, f = 8;
    int Dias1 = 1000, Dias2 = 3000;
};

Fecha nacido(int edad, int mes = 6) {
    return FechaDMA(30, mes, 2005 - edad);
}

RegistroCapital casoDe(const Personas& p) {
    RegistroCapital caso;
    caso.Situacion = kCausaMuerte;
    caso.fConce = caso.fCapi = FechaDMA(15, 6, 2005);
    caso.Edad = nacido(p.a);
    caso.EdadB = nacido(p.b);
    caso.Edad1 = nacido(p.c);
    caso.Edad2 = nacido(p.e);
    caso.Edad3 = nacido(p.f);
    caso.Dias1 = p.Dias1;
    caso.Dias2 = p.Dias2;
    return caso;
}

RegistroCapital invalidoDe40(int Situacion, int aniosHastaLaDeclaracion) {
    RegistroCapital caso = casoDe({});
    caso.Situacion = static_cast<std::int16_t>(Situacion);
    caso.fCapi = FechaDMA(1, 6, 2005 + aniosHastaLaDeclaracion);
    return caso;
}

void espera(const char* historia, const RegistroCapital& caso, int papel, double coste) {
    Dictamen dictamen;
    EXPECT_NEAR(CalculaCapital(caso, papel, "1000", kDatos, dictamen), coste, 0.005) << historia;
}

// The factors are put together by hand from the files; 1,000 euros of base each.
TEST(CalculaCapital, TiposDeBeneficiarios) {
    const struct {
        const char* historia;
        int papel;
        Personas personas;
        double coste;
    } filas[] = {
        {"115.1115 to 23 x 0.65", 0, {}, 74822.48},
        {"a child of 22: 11.6867 to 23", 0, {.c = 22}, 7596.35},
        {"an ascendant of 70: 125.5307 x 0.65", 1, {.c = 70}, 81594.96},
        {"207.8580 x 0.45", 2, {}, 93536.10},
        {"no table reaches 105", 2, {.a = 105}, 0.00},
        {"(207.8580 / 4 + 199.8383 x 3 / 4) x 0.45", 3, {}, 90829.45},
        {"the widow after the child's 21, and the child", 4, {}, 114391.73},
        {"a child of 22 has nothing to 21: the widow alone", 4, {.c = 22}, 93536.10},
        {"a widow of 71: the child's years aren't taken off hers", 4, {.a = 71}, 120750.68},
        {"a child for life", 5, {}, 152913.53},
        {"(115.1115 + 101.7841) x 0.65 - 101.6496 x 0.45", 6, {}, 95239.82},
        {"two ascendants", 7, {.c = 70, .e = 65}, 126455.63},
        {"two widows and a child", 8, {}, 111758.25},
        {"no days of marriage: the child alone, 101.8263 x 0.65", 8, {.Dias1 = 0, .Dias2 = 0}, 66187.10},
        {"two widows and a child for life", 9, {}, 152759.09},
        {"three children of 12, 10 and 8", 10, {}, 110534.00},
        {"three of 20, 10 and 5: the two eldest count, and the eldest's years",
         10,
         {40, 45, 5, 20, 10},
         86520.18},
        {"(87.2485 + 121.3730) x 0.45 + (87.1324 + 101.8263) x 0.2", 11, {}, 131671.41},
        {"an eldest of 21: the widow's part is lost, 101.8263 x 0.2", 11, {.e = 21}, 20365.26},
        {"the same as 11, and 115.1531 x 0.15", 12, {}, 148944.38},
        {"in any order", 12, {40, 45, 8, 10, 12}, 148944.38},
        {"two children for life", 13, {.a = 45, .c = 15, .e = 20}, 195493.18},
        {"two widows and two children", 14, {}, 129013.54},
        {"and a third", 15, {}, 146286.50},
        {"two widows and two children for life", 16, {}, 198782.02},
    };
    for (const auto& fila : filas) espera(fila.historia, casoDe(fila.personas), fila.papel, fila.coste);
}

TEST(CalculaCapital, InvalidosYEdades) {
    espera("total: 169.4619 x 0.55", invalidoDe40(0, 1), 0, 93204.04);
    espera("absolute", invalidoDe40(1, 1), 0, 169461.90);
    espera("great: x 1.5", invalidoDe40(2, 1), 0, 254192.85);
    espera("declared seven years later: an invalid of 47", invalidoDe40(1, 7), 0, 160485.70);
    espera("declared before the accident", invalidoDe40(1, -1), 0, 0.00);
    RegistroCapital caso = casoDe({});
    caso.Edad = FechaDMA(31, 12, 1964);
    espera("486 months are 40 years and a half: 40", caso, 2, 93536.10);
    caso.Edad = FechaDMA(1, 12, 1963);
    espera("498 are 41 and a half: 42", caso, 2, 92185.87);
}

TEST(CalculaCapital, LoQueNoCabeEnUnNumeroFalla) {
    Dictamen dictamen;
    EXPECT_THROW(CalculaCapital(casoDe({}), 2, "9" + std::string(307, '0'), kDatos, dictamen),
                 DesbordeNumerico);
}

}  // namespace
}  // namespace orvemo::capital
