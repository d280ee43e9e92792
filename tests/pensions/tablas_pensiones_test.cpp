#include "pensions/tablas_pensiones.h"

#include <gtest/gtest.h>

#include <fstream>
#include <iterator>
#include <string>

#include "apoyo/almacen_memoria.h"
#include "foundations/values/fallos.h"

namespace orvemo::pensiones {
namespace {

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
    for (const std::string& texto : {ipcDe(21), ipcDe(21, "\n"), sinUltimoFin}) {
        const TablasPensiones tablas = tablasDe(texto);
        EXPECT_EQ(tablas.IPCDe(1984, 1).valor, 100.5);
        EXPECT_EQ(tablas.IPCDe(1984, 12).valor, 111.5);
        EXPECT_EQ(tablas.IPCDe(2004, 12).valor, 351.5);
    }
    std::string conResto = ipcDe(1);
    conResto.replace(conResto.find("100,5"), 5, "1.042,5\tresto");
    EXPECT_EQ(tablasDe(conResto).IPCDe(1984, 1).valor, 1042.5);
}

TEST(LeeIPC, BlamesTheLineThatIsWrong) {
    struct Roto {
        const char* historia;
        std::string texto;
        int linea;
    };
    const std::string entero = ipcDe(21);
    const Roto rotos[] = {
        {"cut after the heading of the first year", "1984\r\n", 2},
        {"cut after March 2004", entero.substr(0, entero.find("x\ty\t343,5")), 20 * 13 + 5},
        {"a 51st year", ipcDe(51), 50 * 13 + 1},
        {"letters instead of an index", "1984\r\nx\ty\t100\r\nx\ty\tcien\r\n", 3},
        {"a month without its third field", "1984\r\nx\ty\r\n", 2},
        {"an empty line where a month should be", "1984\r\nx\ty\t1\r\n\r\n", 3},
    };
    for (const Roto& roto : rotos) {
        SCOPED_TRACE(roto.historia);
        try {
            static_cast<void>(LeeIPC(roto.texto));
            ADD_FAILURE() << "was accepted";
        } catch (const FicheroMalFormado& fallo) {
            EXPECT_EQ(fallo.nombre, "ipc.txt");
            EXPECT_EQ(fallo.linea, roto.linea);
            EXPECT_NE(std::string{fallo.what()}.find("ipc.txt"), std::string::npos) << fallo.what();
        }
    }
}

TEST(LeeIPC, TakesFiftyYearsAndNone) {
    EXPECT_NO_THROW(static_cast<void>(LeeIPC(ipcDe(50))));
    EXPECT_EQ(tablasDe("").IPCDe(1984, 1).valor, 0);
}

TEST(IniciaPensiones, NeedsTheFile) {
    pruebas::AlmacenMemoria almacen;
    EXPECT_THROW(static_cast<void>(IniciaPensiones(almacen)), FicheroInaccesible);
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
        {1983, 12, 0, false},
        {1984, 0, 0, false},
        {1984, 13, 0, false},
        {2005, 13, 0, false},
        {1984, 1, 100.5, false},
        {2004, 12, 351.5, false},
        {2005, 1, 111.69 + 2.0 / 12, true},
        {2005, 12, 113.69, true},
        {2010, 6, 122.69, true},
    };
    for (const Mes& mes : meses) {
        SCOPED_TRACE(std::to_string(mes.mes) + "/" + std::to_string(mes.anio));
        const IndiceIPC indice = tablas.IPCDe(mes.anio, mes.mes);
        EXPECT_DOUBLE_EQ(indice.valor, mes.valor);
        EXPECT_EQ(indice.IPCProyectado, mes.proyectado);
    }
}

TEST(BaseMinima, FollowsTheListAndItsProjection) {
    const TablasPensiones tablas = tablasDe("");
    struct Mes {
        const char* historia;
        int anio, mes;
        double mensual, diaria;
    };
    const Mes meses[] = {
        {"before the list: its first row, 22500 and 750 pesetas", 1970, 1, 135.23, 4.51},
        {"May 1980 is still in it", 1980, 5, 135.23, 4.51},
        {"June 1980: 24690 and 823 pesetas", 1980, 6, 148.39, 4.95},
        {"the last month in pesetas: 84150 and 2805", 2001, 12, 505.75, 16.86},
        {"the first month in euros", 2002, 1, 516.00, 17.20},
        {"the first half of 2004", 2004, 6, 537.30, 17.91},
        {"from July 2004 on", 2004, 7, 572.70, 19.09},
        {"to December 2005, the row of 598,50 never being reached", 2005, 12, 572.70, 19.09},
        {"2006: 598 x 102 / 100 = 609,96", 2006, 1, 610, 20},
        {"2007: 610 x 102 / 100 = 622,2", 2007, 6, 622, 20},
        {"the end of the list", 2044, 12, 1292, 20},
        {"past its end", 2045, 1, 0, 0},
    };
    for (const Mes& mes : meses) {
        SCOPED_TRACE(mes.historia);
        EXPECT_EQ(tablas.BaseMinima(mes.anio, mes.mes, "M"), mes.mensual);
        EXPECT_EQ(tablas.BaseMinima(mes.anio, mes.mes, "D"), mes.diaria);
    }
    EXPECT_EQ(tablas.BaseMinima(2005, 6, ""), 572.70) << "anything but D is a month";
    EXPECT_THROW(static_cast<void>(tablas.BaseMinima(2005, 13, "M")), FechaInexistente);
}

TEST(FactorIPCAcumulado, MultipliesTheYearsUpTo2005) {
    EXPECT_EQ(FactorIPCAcumulado(1989), 0);
    EXPECT_NEAR(FactorIPCAcumulado(1990), 1.7494049951, 1e-10);
    EXPECT_DOUBLE_EQ(FactorIPCAcumulado(2003), 1.035 * 1.02);
    EXPECT_EQ(FactorIPCAcumulado(2004), 1.02);
    EXPECT_EQ(FactorIPCAcumulado(2005), 1.0);
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
