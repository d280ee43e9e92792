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
    struct Mes {
        int anio, mes;
        double mensual, diaria;
    };
    // The last month of each row up to 2005 (pesetas over 166,386 up to 2001; the row of 598,50 is never
    // reached), then 598 x 102 / 100 = 609,96, 610 x 102 / 100 = 622,2, the last row and what lies past it.
    const Mes meses[] = {{1980, 5, 135.23, 4.51},   {1980, 12, 148.39, 4.95},
                         {1981, 3, 148.39, 4.95},   {1981, 12, 166.96, 5.57},
                         {1982, 12, 185.17, 6.17},  {1983, 12, 209.33, 6.98},
                         {1984, 12, 243.59, 8.12},  {1985, 12, 260.66, 8.69},
                         {1986, 12, 281.45, 9.38},  {1987, 12, 295.52, 9.85},
                         {1988, 12, 308.86, 10.30}, {1989, 12, 327.43, 10.91},
                         {1990, 12, 350.69, 11.69}, {1991, 12, 373.41, 12.45},
                         {1992, 12, 394.68, 13.16}, {1993, 12, 410.55, 13.69},
                         {1994, 12, 424.80, 14.16}, {1995, 12, 439.58, 14.65},
                         {1996, 12, 454.91, 15.16}, {1997, 12, 467.17, 15.57},
                         {1998, 12, 477.08, 15.90}, {1999, 12, 485.74, 16.19},
                         {2000, 12, 495.65, 16.52}, {2001, 12, 505.75, 16.86},
                         {2002, 12, 516.00, 17.20}, {2003, 12, 526.50, 17.55},
                         {2004, 6, 537.30, 17.91},  {2005, 12, 572.70, 19.09},
                         {2006, 1, 610, 20},        {2007, 6, 622, 20},
                         {2044, 12, 1292, 20},      {2045, 1, 0, 0}};
    for (const Mes& mes : meses) {
        EXPECT_EQ(tablas.BaseMinima(mes.anio, mes.mes, "M"), mes.mensual) << mes.mes << '/' << mes.anio;
        EXPECT_EQ(tablas.BaseMinima(mes.anio, mes.mes, "D"), mes.diaria) << mes.mes << '/' << mes.anio;
    }
    EXPECT_EQ(tablas.BaseMinima(1970, 1, "M"), 135.23) << "before the list: its first row";
    EXPECT_EQ(tablas.BaseMinima(2004, 7, "M"), 572.70) << "a row begins the day after the one before";
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
