#include "cases/registro.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <initializer_list>
#include <limits>

#include "cases/texto_caso.h"

namespace orvemo {
namespace {

/// An element of a record: someone who depends on its person.
struct Familiar {
    std::uint8_t Presente = 0;
    std::int16_t Nacimiento = 0;

    friend bool operator==(const Familiar&, const Familiar&) = default;
};
constexpr Diseno kFamiliar{3, Tramo{0, "Presente", &Familiar::Presente},
                           Tramo{1, "Nacimiento", &Familiar::Nacimiento}};
constexpr const auto& DisenoDe(const Familiar*) {
    return kFamiliar;
}

struct Muestra {
    Texto<1> Estado;
    Texto<10> Nombre;
    std::int32_t Edad = 0;
    std::int16_t Hijos = 0;
    float Tipo = 0;
    double Suma = 0;
    Fecha Alta = kFechaCero;
    std::array<double, 2> Bases{};
    std::array<Texto<2>, 2> Claves;
    std::array<Familiar, 2> Hijo{};
    Familiar Padre;
    Texto<4> Contrato;
    Texto<3> reservado;
};
constexpr Diseno kMuestra{73,
                          Tramo{0, "Estado", &Muestra::Estado},
                          Tramo{1, "Nombre", &Muestra::Nombre},
                          Tramo{11, "Edad", &Muestra::Edad},
                          Tramo{15, "Hijos", &Muestra::Hijos},
                          Tramo{17, "Tipo", &Muestra::Tipo},
                          Tramo{21, "Suma", &Muestra::Suma},
                          Tramo{29, "Alta", &Muestra::Alta},
                          Tramo{37, "Bases", &Muestra::Bases},
                          Tramo{53, "Claves", &Muestra::Claves},
                          Tramo{57, "Hijo", &Muestra::Hijo},
                          Tramo{63, "Padre", &Muestra::Padre},
                          Tramo{66, "Contrato", &Muestra::Contrato},
                          Tramo{70, "reservado", &Muestra::reservado}};

std::string imagen(std::initializer_list<int> bytes) {
    std::string texto;
    for (const int byte : bytes) texto += static_cast<char>(byte);
    return texto;
}

// Put together by hand: 06-06-2005 is day 38509, which as a double is 40E2CDA000000000.
const std::string kImagen = imagen({
    0x20,                                                        // " "
    0x50, 0x65, 0xF1, 0x61, 0x20, 0x80, 0x35, 0x20, 0x20, 0x20,  // "Peña €5", blanks
    0x26, 0x00, 0x00, 0x00,                                      // 38
    0xFE, 0xFF,                                                  // -2
    0x00, 0x00, 0x80, 0x3E,                                      // 0.25 in single precision
    0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0xF8, 0x3F,              // 1.5
    0x00, 0x00, 0x00, 0x00, 0xA0, 0xCD, 0xE2, 0x40,              // 06-06-2005
    0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x40,              // 2
    0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0xC0,              // -2
    0x41, 0x20, 0x42, 0x43,                                      // "A", "BC"
    0x01, 0xD1, 0x07,                                            // a child of 2001
    0x00, 0x00, 0x00,                                            // no second child
    0x01, 0x9E, 0x07,                                            // a father of 1950
    0x30, 0x38, 0x37, 0x20,                                      // "087 "
    0x00, 0x00, 0x00,                                            // never written
});

TEST(Registro, LiesByteByByteAsTheLayoutTells) {
    Muestra muestra;
    muestra.Estado.asigna(" ");
    muestra.Nombre.asigna("Peña €5");
    muestra.Edad = 38;
    muestra.Hijos = -2;
    muestra.Tipo = 0.25F;
    muestra.Suma = 1.5;
    muestra.Alta = FechaDMA(6, 6, 2005);
    muestra.Bases = {2, -2};
    muestra.Claves = {Texto<2>{"A"}, Texto<2>{"BC"}};
    muestra.Hijo[0] = {1, 2001};
    muestra.Padre = {1, 1950};
    muestra.Contrato.asigna("087");
    EXPECT_EQ(kMuestra.escribe(muestra), kImagen);
}

TEST(Registro, IsReadBackFieldByField) {
    Muestra muestra;
    kMuestra.lee(kImagen, muestra);
    EXPECT_EQ(muestra.Nombre.utf8(), "Peña €5");
    EXPECT_EQ(muestra.Edad, 38);
    EXPECT_EQ(muestra.Hijos, -2);
    EXPECT_EQ(muestra.Tipo, 0.25F);
    EXPECT_EQ(muestra.Suma, 1.5);
    EXPECT_EQ(muestra.Alta, FechaDMA(6, 6, 2005));
    EXPECT_EQ(muestra.Bases, (std::array<double, 2>{2, -2}));
    EXPECT_EQ(muestra.Claves[1].utf8(), "BC");
    EXPECT_EQ(muestra.Hijo, (std::array{Familiar{1, 2001}, Familiar{}}));
    EXPECT_EQ(muestra.Padre, (Familiar{1, 1950}));
    EXPECT_EQ(muestra.Contrato.utf8(), "087");
    EXPECT_EQ(muestra.Contrato.utf8SinRecortar(), "087 ");
    EXPECT_EQ(muestra.reservado.utf8SinRecortar(), "");
    EXPECT_EQ(kMuestra.escribe(muestra), kImagen) << "reserved bytes go back as they came";
}

TEST(Registro, TellsItsFieldsByName) {
    std::string texto;
    EscribeCampos(texto, kFormaDe<kMuestra>, kImagen);
    EXPECT_EQ(texto, R"({"Estado":"","Nombre":"Peña €5","Edad":38,"Hijos":-2,"Tipo":0.25,"Suma":1.5,)"
                     R"("Alta":"2005-06-06","Bases":[2,-2],"Claves":["A","BC"],)"
                     R"("Hijo":[{"Presente":1,"Nacimiento":2001},{"Presente":0,"Nacimiento":0}],)"
                     R"("Padre":{"Presente":1,"Nacimiento":1950},"Contrato":"087","reservado":null})");
}

// What a damaged file may hold, and has to come out of its text as it went in.
TEST(Registro, TellsAlsoWhatNoScreenWrites) {
    std::string bytes = kImagen;
    bytes.replace(1, 10, std::string{" \0\x1B\"\x81\n    ", 10});
    EnRegistro<float>::escribe(&bytes[17], 12.35F);
    EnRegistro<double>::escribe(&bytes[21], -0.0);
    EnRegistro<double>::escribe(&bytes[29], 38509.5);
    EnRegistro<double>::escribe(&bytes[37], std::numeric_limits<double>::infinity());
    std::string texto;
    EscribeCampos(texto, kFormaDe<kMuestra>, bytes);
    EXPECT_THAT(
        texto,
        testing::StartsWith(
            R"({"Estado":"","Nombre":" \u0000\u001b\"\u0081\n","Edad":38,"Hijos":-2,"Tipo":12.35,"Suma":-0.0,)"
            R"("Alta":38509.5,"Bases":["0x7ff0000000000000",-2])"));
}

TEST(Registro, ADateThatIsNoneReadsAs01011900) {
    std::string bytes = kImagen;
    EnRegistro<double>::escribe(&bytes[29], std::numeric_limits<double>::quiet_NaN());
    Muestra muestra;
    kMuestra.lee(bytes, muestra);
    EXPECT_EQ(muestra.Alta, FechaDMA(1, 1, 1900));
}

TEST(Registro, TextsAreWrittenInTheirWidth) {
    struct Caso {
        const char* titulo;
        std::string utf8;
        std::string bytes;
    };
    const Caso kCasos[] = {
        {"nothing: blanks", "", "          "},
        {"shorter: blanks on the right", "Luis", "Luis      "},
        {"just as wide", "0123456789", "0123456789"},
        {"longer: its end is lost", "0123456789A", "0123456789"},
        {"characters are counted, not bytes", "ññññññññññ", std::string(10, '\xF1')},
        {"what the file lacks", "Łódź ψ",
         "?\xF3"
         "d? ?    "},
        {"outside Latin 1", "€ŠœŸ", "\x80\x8A\x9C\x9F      "},
        {"blanks on the left stay", "  a", "  a       "},
    };
    for (const Caso& caso : kCasos) {
        const Texto<10> texto{caso.utf8};
        EXPECT_EQ((std::string{texto.bytes().data(), 10}), caso.bytes) << caso.titulo;
    }
}

TEST(Registro, TextsAreReadTrimmedAndUpToTheirFirstNul) {
    struct Caso {
        const char* titulo;
        std::string bytes;
        std::string utf8;
    };
    const Caso kCasos[] = {
        {"never written", std::string(10, '\0'), ""},
        {"blank", std::string(10, ' '), ""},
        {"blanks at both ends", "  a b     ", "a b"},
        {"NUL in the middle", std::string{"ab\0cdefghi", 10}, "ab"},
        {"blanks before a NUL", std::string{"ab  \0     ", 10}, "ab"},
        {"every byte is a character", "\x81\x8D\x8F\x90\x9D\xFF\xA0\x7F\x01\x80",
         "\u0081\u008D\u008F\u0090\u009Dÿ\u00A0\u007F\u0001€"},
    };
    for (const Caso& caso : kCasos) {
        Texto<10> texto;
        EnRegistro<Texto<10>>::lee(caso.bytes.data(), texto);
        EXPECT_EQ(texto.utf8(), caso.utf8) << caso.titulo;
    }
}

}  // namespace
}  // namespace orvemo
