#include "payroll/validaciones/adicionales.h"

#include "foundations/values/formatos.h"
#include "foundations/values/textos.h"
#include "payroll/validaciones/fechas_nomina.h"
#include "payroll/validaciones/rangos.h"

namespace orvemo::nomina {

namespace {

constexpr const char* kPeriodoNoValido = "La fecha del periodo requerido para paga extra no es válida.";
constexpr const char* kBaseExcesiva = "La base del mes anterior debe ser inferior a 10,000 euros";

void compruebaExtra(DatosAdicionales& d, std::vector<AvisoCampo>& avisos) {
    if (!EsFecha(d.FechaExtra1)) {
        d.FechaExtra1 = kPrimerDiaAnio;
        avisos.push_back({"NomiFechaExtra1", kPeriodoNoValido, d.FechaExtra1});
    }
    if (!EsFecha(d.FechaExtra2)) {
        d.FechaExtra2 = kFinPrimerSemestre;
        avisos.push_back({"NomiFechaExtra2", kPeriodoNoValido, d.FechaExtra2});
    }
    if (FechaDe(d.FechaExtra1) > FechaDe(d.FechaExtra2)) {
        avisos.push_back({"NomiFechaExtra2",
                          "La fecha de inicio del periodo para paga extra debe ser anterior a la fecha de "
                          "finalización del periodo.",
                          FinExtraPropuesto(d.FechaExtra1)});
    }
}

void compruebaMaximo(const char* campo, const std::string& texto, const char* mensaje,
                     std::vector<AvisoCampo>& avisos) {
    if (Supera(texto, kMaximoAnterior)) avisos.push_back({campo, mensaje});
}

void compruebaBaja(const DatosAdicionales& d, std::vector<AvisoCampo>& avisos) {
    const std::string dias = CompruebaDiasAnt(d.DiasAnt, d.Mes);
    if (!dias.empty()) avisos.push_back({"NomiDiasAnt", dias});
    compruebaMaximo("NomiBaseCCAnt", d.BaseCCAnt, kBaseExcesiva, avisos);
    compruebaMaximo("NomiBaseATEPAnt", d.BaseATEPAnt, kBaseExcesiva, avisos);
    compruebaMaximo("NomiHEAnt", d.HEAnt,
                    "El importe de las horas extra del mes anterior debe ser inferior a 10,000 euros",
                    avisos);
    compruebaMaximo("NomiHEAñoAnt", d.HEAnioAnt,
                    "El importe de las horas extra del año anterior debe ser inferior a 10,000 euros",
                    avisos);
}

}  // namespace

std::vector<AvisoCampo> CompruebaAdicionales(DatosAdicionales datos) {
    std::vector<AvisoCampo> avisos;
    if (datos.hayExtra) compruebaExtra(datos, avisos);
    if (datos.hayBaja) compruebaBaja(datos, avisos);
    if (datos.hayParcial) {
        compruebaMaximo("NomiPromedio6Meses", datos.Promedio6Meses,
                        "El promedio de las bases de los últimos 6 meses debe ser inferior a 10,000 euros",
                        avisos);
    }
    return avisos;
}

std::string CompruebaDatosCese(const std::string& FechaBaja) {
    if (EsVacio(FechaBaja) || EsFecha(FechaBaja)) return {};
    return "La fecha de cese en la empresa no es válida.";
}

}  // namespace orvemo::nomina
