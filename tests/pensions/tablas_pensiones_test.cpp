#include "pensions/comun/tablas_pensiones.h"

#include <gmock/gmock.h>

#include <array>
#include <fstream>
#include <iterator>
#include <string>
#include <vector>

#include "apoyo/almacen_memoria.h"
#include "foundations/values/fallos.h"

namespace orvemo::pensiones {
namespace {

using testing::ElementsAre;

/// The text of "ipc.txt" for so many years, the index growing by one a month from 100.
std::string ipcDe(int anios, const std::string& finDeLinea = "\r\n") {
    std::string texto;
    for (int anio = 0; anio < anios; ++anio) {
        texto += std::to_string(1984 + anio) + "\tÍndice general" + finDeLinea;
        for (int mes = 1; mes <= 12; ++mes) {
            texto += "x\ty\t" + std::to_string(99 + 12 * anio + mes) + ",5" + finDeLinea;
        }
    }
    return texto;
}

TablasPensiones tablasDe(const std::string& ipc) {
    return {LeeIPC(ipc), CargaBasesMinimas()};
}

TEST(LeeIPC, TakesTheThirdFieldOfEachMonthYearByYear) {
    const std::string sinUltimoFin = ipcDe(21).substr(0, ipcDe(21).size() - 2);
    for (const std::string& texto : {ipcDe(21), ipcDe(21, "\n"), sinUltimoFin, ipcDe(50)}) {
        EXPECT_EQ(tablasDe(texto).IPCDe(1984, 12).valor, 111.5);
        EXPECT_EQ(tablasDe(texto).IPCDe(2004, 12).valor, 351.5);
    }
    std::string conResto = ipcDe(1);
    conResto.replace(conResto.find("100,5"), 5, "1.042,5\tresto");
    EXPECT_EQ(tablasDe(conResto).IPCDe(1984, 1).valor, 1042.5);
    EXPECT_EQ(tablasDe("").IPCDe(1984, 1).valor, 0);
}

TEST(LeeIPC, BlamesTheLineThatIsWrong) {
    struct Roto {
        std::string texto;
        const char* dicho;
    };
    const std::string entero = ipcDe(21);
    const Roto rotos[] = {
        {"1984\r\n", "2 (el fichero acaba en mitad de un año)"},
        {entero.substr(0, entero.find("x\ty\t343,5")), "265 (el fichero acaba en mitad de un año)"},
        {ipcDe(51), "651 (hay más de 50 años)"},
        {"1984\r\nx\ty\t100\r\nx\ty\ta\xF1o\r\n", "3 (\"año\" no es un índice de precios)"},
        {"1984\r\nx\ty\r\n", "2 (\"\" no es un índice de precios)"},
        {"1984\r\nx\ty\t1\r\n\r\n", "3 (\"\" no es un índice de precios)"},
    };
    for (const Roto& roto : rotos) {
        try {
            static_cast<void>(LeeIPC(roto.texto));
            ADD_FAILURE() << "accepted instead of " << roto.dicho;
        } catch (const FicheroMalFormado& fallo) {
            EXPECT_EQ(fallo.what(),
                      std::string{"el fichero \"ipc.txt\" no es correcto en la línea "} + roto.dicho);
        }
    }
}

TEST(IniciaPensiones, NeedsTheFile) {
    pruebas::AlmacenMemoria almacen;
    EXPECT_THROW(static_cast<void>(IniciaPensiones(almacen)), FicheroInaccesible);
    almacen["IPC.TXT"] = "";
    EXPECT_THROW(static_cast<void>(IniciaPensiones(almacen)), FicheroMalFormado)
        << "it divided by zero later";
    almacen["IPC.TXT"] = ipcDe(21);
    EXPECT_EQ(IniciaPensiones(almacen).IPCDe(2004, 12).valor, 351.5);
}

TEST(IPCDe, ReadsProjectsOrGivesZero) {
    const TablasPensiones tablas = tablasDe(ipcDe(50));
    struct Mes {
        int anio, mes;
        double valor;
        bool proyectado;
    };
    const Mes meses[] = {
        {1983, 12, 0, false},    {1984, 0, 0, false},      {2005, 13, 0, false},
        {1984, 1, 100.5, false}, {2004, 12, 351.5, false}, {2005, 1, 111.69 + 2.0 / 12, true},
        {2010, 6, 122.69, true},
    };
    for (const Mes& mes : meses) {
        const IndiceIPC indice = tablas.IPCDe(mes.anio, mes.mes);
        EXPECT_DOUBLE_EQ(indice.valor, mes.valor) << mes.mes << '/' << mes.anio;
        EXPECT_EQ(indice.IPCProyectado, mes.proyectado) << mes.mes << '/' << mes.anio;
    }
}

TEST(BaseMinima, FollowsTheListAndItsProjection) {
    const TablasPensiones tablas = tablasDe("");
    std::vector<double> mensuales, diarias;  // of each December, pesetas over 166,386 up to 2001
    for (int anio = 1980; anio <= 2005; ++anio) {
        mensuales.push_back(tablas.BaseMinima(anio, 12, "M"));
        diarias.push_back(tablas.BaseMinima(anio, 12, "D"));
    }
    EXPECT_THAT(mensuales, ElementsAre(148.39, 166.96, 185.17, 209.33, 243.59, 260.66, 281.45, 295.52, 308.86,
                                       327.43, 350.69, 373.41, 394.68, 410.55, 424.80, 439.58, 454.91, 467.17,
                                       477.08, 485.74, 495.65, 505.75, 516.00, 526.50, 572.70, 572.70));
    EXPECT_THAT(diarias, ElementsAre(4.95, 5.57, 6.17, 6.98, 8.12, 8.69, 9.38, 9.85, 10.30, 10.91, 11.69,
                                     12.45, 13.16, 13.69, 14.16, 14.65, 15.16, 15.57, 15.90, 16.19, 16.52,
                                     16.86, 17.20, 17.55, 19.09, 19.09));
    const auto mensual = [&](int anio, int mes) { return tablas.BaseMinima(anio, mes, "M"); };
    EXPECT_THAT((std::array{mensual(1970, 1), mensual(1980, 5), mensual(1980, 6)}),
                ElementsAre(135.23, 135.23, 148.39));
    EXPECT_THAT((std::array{mensual(1981, 3), mensual(1981, 4)}), ElementsAre(148.39, 166.96));
    EXPECT_THAT((std::array{mensual(2004, 6), mensual(2004, 7)}), ElementsAre(537.30, 572.70));
    EXPECT_THAT((std::array{mensual(2006, 1), mensual(2007, 6), mensual(2044, 12), mensual(2045, 1)}),
                ElementsAre(610, 622, 1292, 0))
        << "598 x 102 / 100 = 609,96, 610 x 102 / 100 = 622,2";
    EXPECT_EQ(tablas.BaseMinima(2044, 12, "D"), 20);
    EXPECT_EQ(tablas.BaseMinima(2005, 6, ""), 572.70) << "anything but D is a month";
    EXPECT_THROW(static_cast<void>(tablas.BaseMinima(2005, 13, "M")), FechaInexistente);
}

TEST(FactorIPCAcumulado, MultipliesTheYearsUpTo2005) {
    EXPECT_EQ(FactorIPCAcumulado(1989), 0);
    EXPECT_NEAR(FactorIPCAcumulado(1990), 1.7494049951, 1e-10);
    EXPECT_DOUBLE_EQ(FactorIPCAcumulado(2003), 1.035 * 1.02);
    EXPECT_EQ(FactorIPCAcumulado(2004), 1.02);
    EXPECT_EQ(FactorIPCAcumulado(2030), 1.0);
}

TEST(ElIpcQueSeEntrega, HoldsTheYears1984To2004) {
    std::ifstream fichero{ORVEMO_DATOS "/ipc.txt", std::ios::binary};
    const std::string texto{std::istreambuf_iterator<char>{fichero}, {}};
    const TablasPensiones tablas = tablasDe(texto);
    EXPECT_EQ(tablas.IPCDe(1984, 1).valor, 42.940);
    EXPECT_EQ(tablas.IPCDe(2004, 11).valor, 111.799);
    EXPECT_EQ(tablas.IPCDe(2004, 12).valor, 111.69);
    EXPECT_EQ(std::count(texto.begin(), texto.end(), '\n'), 21 * 13);
}

}  // namespace
}  // namespace orvemo::pensiones
