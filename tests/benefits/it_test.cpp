// What whole cases can't reach of the temporary incapacity: overflow, days of the week, causes and schemes.
#include <limits>

#include "apoyo/pantalla_abierta.h"
#include "benefits/it/ilt_frm.h"
#include "benefits/it/incapacidad_temporal.h"
#include "foundations/values/fallos.h"

namespace orvemo {
namespace {

using testing::ElementsAre;

enum : int { kOrdinario, kTiempoParcial, kAutonomos, kAgrario, kEmpleadosHogar, kFormacion };
enum : int { kEnfermedad, kAccidente, kAccidenteLaboral };

TEST(DiasEfectivos, CountsTheLettersUpToTheDayBeforeTheEnd) {
    const auto dia = [](int n) { return FechaDMA(5, 6, 2005) + std::chrono::days{n}; };
    using incapacidad_temporal::DiasEfectivos;
    EXPECT_EQ(DiasEfectivos(dia(1), dia(8), "LMXJVSD"), 7);
    EXPECT_EQ(DiasEfectivos(dia(1), dia(1), "L"), 0);
    EXPECT_EQ(DiasEfectivos(dia(8), dia(1), "L"), 0);
    std::string semana;
    for (int n = 1; n <= 7; ++n) semana += incapacidad_temporal::MiDay(dia(n));
    EXPECT_EQ(semana, "LMXJVSD") << "6 June 2005 is a Monday";
}

class ILTFrmTest : public pruebas::PantallaAbierta<ILTFrm> {};

TEST_F(ILTFrmTest, MoreDaysThanThirtyTwoBitsHoldAreAnOverflow) {
    rellena(frm.fAlta, "01-02-2000");
    frm.Prev.ponTexto("2147483647");
    concluye();
    EXPECT_THAT(mundo.mensajes.dichos,
                ElementsAre(testing::StartsWith("Error: No se ha podido completar la operación: ")));
    EXPECT_TRUE(frm.Mal.visible());
}

TEST_F(ILTFrmTest, TheCausesFollowTheSchemeAndKeepTheOneChosen) {
    frm.elige(frm.TBaja, kAccidenteLaboral);
    frm.elige(frm.Situacion, kAutonomos);
    EXPECT_THAT(frm.TBaja.opciones(), ElementsAre("Enfermedad", "Accidente"));
    EXPECT_EQ(frm.TBaja.indice(), kAccidente) << "lowered to the last";
    EXPECT_EQ(frm.Bccant.rotulo(), "Base de cotización en el mes anterior al de la baja:");
    frm.elige(frm.Situacion, kFormacion);
    EXPECT_THAT(frm.TBaja.opciones(), ElementsAre("Enfermedad Común", "Accidente No Laboral",
                                                  "Accidente Laboral/Enfermedad Profesional"));
    EXPECT_EQ(frm.TBaja.texto(), "Accidente No Laboral");
    EXPECT_FALSE(frm.DM.visible()) << "training leaves it as it was";
    frm.elige(frm.Situacion, kAgrario);
    ASSERT_TRUE(frm.pulsa(frm.BotonNuevo));
    EXPECT_EQ(frm.TBaja.opciones().size(), 3U) << "those of an employee again";
    EXPECT_TRUE(frm.Sup1.visible() && frm.DM.visible()) << "a new case joined this month";
}

TEST_F(ILTFrmTest, OvertimeIsRewrittenOnLeavingAndStoredInWholeEuros) {
    rellena(frm.fAlta, "01-02-2000");
    frm.elige(frm.TBaja, kAccidenteLaboral);
    const struct {
        const char *escrito, *queda;
        std::int32_t guardado;
    } filas[] = {{"1234,56", "1.234,56", 1235}, {"0", "0,00", 0}, {"2,5", "2,50", 2}, {"", "0,00", 0}};
    for (const auto& fila : filas) {
        SCOPED_TRACE(fila.escrito);
        rellena(frm.He, fila.escrito);
        rellena(frm.He, frm.He.texto());
        EXPECT_EQ(frm.He.texto(), fila.queda) << "judged as 1.234 the second time";
        ASSERT_TRUE(frm.DatosTomaPantalla());
        EXPECT_EQ(frm.caso().He, fila.guardado);
    }
}

/// A record that another program wrote, its head and texts in blanks.
std::string registroAjeno(std::int32_t Situacion, std::int32_t TBaja) {
    std::string bytes = std::string(161, ' ') + std::string(104, '\0') + "LXV    " + "??";
    std::memcpy(&bytes[161], &Situacion, sizeof Situacion);
    std::memcpy(&bytes[217], &TBaja, sizeof TBaja);
    return bytes;
}

TEST_F(ILTFrmTest, ALoadSetsTheSchemeFirstAndThenTheCause) {
    const struct {
        const char* historia;
        int Situacion, indice;
    } filas[] = {
        {"a farm worker's third cause falls on the second", kAgrario, kAccidente},
        {"an employee's third one stands", kOrdinario, kAccidenteLaboral},
        {"a scheme that isn't on the list falls on the last", 77, kAccidenteLaboral},
    };
    for (const auto& fila : filas) {
        SCOPED_TRACE(fila.historia);
        mundo.almacen["ILT.nom"] = registroAjeno(fila.Situacion, kAccidenteLaboral);
        frm.DatosCargaRegistro(1);
        EXPECT_EQ(frm.TBaja.indice(), fila.indice);
        frm.DatosAppendRegistro();
        EXPECT_EQ(mundo.almacen["ILT.nom"].substr(274 + 265), "LXV    ??")
            << "what is reserved goes back as it came";
    }
}

}  // namespace
}  // namespace orvemo
