#include "payroll/conceptos/conceptos.h"

#include <algorithm>

#include "foundations/values/numeros.h"
#include "foundations/values/textos.h"

namespace orvemo::nomina {

namespace {

constexpr std::size_t kAnchoDescripcion = 40;

// clang-format off
//                                     salarial sinBaja sinPermiso cotizaCC cotizaAT tributa
constexpr FlagsConcepto kSalario     { true,    true,   true,      true,    true,    true };
constexpr FlagsConcepto kAsistencial { false,   true,   true,      true,    true,    true };
constexpr FlagsConcepto kVacaciones  { true,    false,  false,     true,    true,    true };
constexpr FlagsConcepto kEspecie     { true,    false,  false,     true,    true,    false};
constexpr FlagsConcepto kHorasExtra  { true,    false,  false,     false,   true,    true };
constexpr FlagsConcepto kPaga        { true,    false,  false,     false,   false,   true };
constexpr FlagsConcepto kComputable  { false,   false,  false,     true,    true,    true };
constexpr FlagsConcepto kSoloTributa { false,   false,  false,     false,   false,   true };
constexpr FlagsConcepto kExento      { false,   false,  false,     false,   false,   false};

constexpr char kElegida = ' ';  // the user chooses the period
constexpr char kUnica = 'A';    // whatever the days worked
constexpr char kExtra = 'E';    // by the part of the extra pay earned

// Limits in euros: what the tax lets go free of allowances, a day or a month. They are compared in whole euros.
constexpr ConceptoNomina kCatalogo[] = {
    {"01", "Salario Base", kSalario, kElegida},
    {"02", "Antigüedad", kSalario, kElegida},
    {"03", "Idiomas", kSalario, kElegida},
    {"04", "Títulos", kSalario, kElegida},
    {"05", "Lineal", kSalario, kElegida},
    {"08", "Incentivo", kSalario, kElegida},
    {"20", "*** Complementos Salariales por puesto ***", kSalario, kElegida},
    {"21", "Plus de Nocturnidad", kSalario, kElegida},
    {"22", "Plus de Altura", kSalario, kElegida},
    {"23", "Plus de Toxicidad", kSalario, kElegida},
    {"24", "Plus de Peligrosidad", kSalario, kElegida},
    {"25", "Plus de Suciedad", kSalario, kElegida},
    {"26", "Plus de Vuelo", kSalario, kElegida},
    {"27", "Plus de Embarque", kSalario, kElegida},
    {"28", "Plus de Navegación", kSalario, kElegida},
    {"29", "Plus de Penosidad", kSalario, kElegida},
    {"31", "Gratificación Jefe Departamento", kSalario, kElegida},
    {"32", "Gratificación Apoderamiento", kSalario, kElegida},
    {"40", "*** Complementos Salariales por trabajo ***", kSalario, kElegida},
    {"41", "Diferencia Salarios por convenio", kSalario, kElegida},
    {"42", "Direferencia salario empresa", kSalario, kElegida},
    {"43", "Retribución extra-salarial", kSalario, kElegida},
    {"44", "Plus de Convenio", kSalario, kElegida},
    {"45", "Carencia de incentivos", kSalario, kElegida},
    {"46", "Compensación por comidas", kSalario, kElegida},
    {"47", "Incentivo sobre horas extras", kSalario, kElegida},
    {"48", "Gratificación vivienda", kSalario, kElegida},
    {"49", "Prima Asistencia", kSalario, kElegida},
    {"50", "Plus de Asistencia", kSalario, kElegida},
    {"51", "Plus días festivos", kSalario, kElegida},
    {"52", "Prima de carga", kSalario, kElegida},
    {"53", "Plus de turnos", kSalario, kElegida},
    {"54", "Plus de actividad", kSalario, kElegida},
    {"55", "Plus de asiduidad", kSalario, kElegida},
    {"56", "Complemento de categoría", kSalario, kElegida},
    {"57", "Compensación por trabajos en domingo", kSalario, kElegida},
    {"58", "Compensación por trabajos en festivo", kSalario, kElegida},
    {"59", "Prima fija o variable", kSalario, kElegida},
    {"60", "Prima asistencia", kSalario, kElegida},
    {"61", "Prima puntualidad", kSalario, kElegida},
    {"62", "Prima buen comportamiento", kSalario, kElegida},
    {"63", "Comisiones", kSalario, kElegida},
    {"70", "Plus de Residencia", kSalario, kElegida},
    {"71", "Provincias Insulares", kSalario, kElegida},
    {"72", "Ceuta y Melilla", kSalario, kElegida},
    {"74", "Becas Salario", kSalario, kElegida},
    {"75", "Comedores", kSalario, kElegida},
    {"76", "Economatos", kSalario, kElegida},
    {"77", "Percepciones asistenciales", kAsistencial, kElegida},
    {"78", "Premio de Jubilación", kPaga, kUnica},
    {"80", "Dietas en general (no computables)", kExento, kUnica},
    {"8A", "Dietas territorio nacional (< 52,29 Euros diarias)", kExento, kUnica, 52.29},
    {"8B", "Dietas territorio nacional (exceso sobre 52,29 Euros diarias)", kComputable, kUnica},
    {"8C", "Dietas territorio extranjero (no computables)", kExento, kUnica, 91.35},
    {"8D", "Dietas territorio extranjero (exceso sobre 91,35 Euros diarias)", kComputable, kUnica, 91.35},
    {"81", "Gastos de Locomoción (exentas 0,17 Euros/km)", kExento, kElegida},
    {"82", "Plus de Distancia (no computable)", kSoloTributa, kElegida, 92.1},
    {"83", "Plus de Transporte (no computable)", kSoloTributa, kElegida, 92.1},
    {"84", "Indemnización por fallecimiento", kExento, kUnica},
    {"85", "Indemnización por traslados", kExento, kUnica},
    {"86", "Ind. por Despido", kExento, kUnica},
    {"87", "Ind. por Suspensiones", kSoloTributa, kUnica},
    {"88", "Indemnización quebranto moneda (no comput)", kExento, kElegida, 92.1},
    {"89", "Desgaste útiles o herramientas (no comput)", kExento, kElegida, 92.1},
    {"95", "Percepciones por matrimonio (no comput)", kExento, kElegida},
    {"90", "Dietas (computable)", kComputable, kUnica},
    {"91", "Gastos de Locomoción (computable)", kComputable, kElegida},
    {"92", "Plus de Distancia (computable)", kComputable, kElegida},
    {"93", "Plus de Transporte (computable)", kComputable, kElegida},
    {"98", "Indemnización quebranto moneda (computable)", kComputable, kElegida},
    {"99", "Desgaste útiles o herramientas (computable)", kComputable, kElegida},
    {"AN", "Anticipos", kExento, kUnica},
    {"SP", "Pago en Especie", kEspecie, kElegida},
    {"HE", "H.Ext Estructurales", kHorasExtra, kUnica},
    {"HN", "H.Ext No Estructurales", kHorasExtra, kUnica},
    {"HF", "Horas Extra por Fuerza Mayor", kHorasExtra, kUnica},
    {"PE", "Paga Extraordinaria", kPaga, kExtra},
    {"DP", "Ind. Desempleo Parcial", kSoloTributa, kUnica, kSinLimite, kOculto},
    {"IX", "P.P. Vacaciones (-)", kExento, kUnica, kSinLimite, kOculto},
    {"IE", "Ind. por Extinción de Contrato", kExento, kUnica, kSinLimite, kOculto},
    {"IO", "Ind. por Omisión de Preaviso", kSoloTributa, kUnica, kSinLimite, kOculto},
    {"IV", "P.P. vacaciones", kVacaciones, kUnica, kSinLimite, kOculto},
    {"IC", "Compensación Fin Contrato Conv.", kSoloTributa, kUnica, kSinLimite, kOculto},
    {"IT", "IT enfermedad común/acc.no laboral", kSoloTributa, kUnica, kSinLimite, kOculto},
    {"AT", "IT accidente de trabajo", kSoloTributa, kUnica, kSinLimite, kOculto},
};
// clang-format on

constexpr std::string_view kIncidencias[] = {"1. Baja por Enfermedad ó Accidente no laboral",
                                             "2. Baja por Accidente Laboral", "3. Baja por Maternidad",
                                             "4. Permiso no retribuido", "5. Huelga/Suspensión de empleo"};

/// The item that begins with the code; nullptr when none does.
const std::string* itemDe(std::string_view Codigo, std::span<const std::string> lista) {
    const auto item = std::ranges::find_if(lista, [&](const auto& i) { return i.starts_with(Codigo); });
    return item == lista.end() ? nullptr : &*item;
}

}  // namespace

std::string TextoFlags(const FlagsConcepto& flags) {
    std::string texto;
    for (const bool flag :
         {flags.salarial, flags.sinBaja, flags.sinPermiso, flags.cotizaCC, flags.cotizaAT, flags.tributa}) {
        texto += flag ? 'S' : 'N';
    }
    return texto;
}

std::string_view ConceptoNomina::Descripcion() const {
    return PrimerosCaracteres(Texto, kAnchoDescripcion);
}

std::int32_t ConceptoNomina::Limite() const {
    return RedondeaPar(importeMaximo);
}

std::span<const ConceptoNomina> CatalogoConceptos() {
    return kCatalogo;
}

const ConceptoNomina* ConceptoDe(std::string_view Codigo) {
    const auto* fila = std::ranges::find(kCatalogo, Codigo, &ConceptoNomina::Codigo);
    return fila == std::end(kCatalogo) ? nullptr : fila;
}

FlagsConcepto FlagsDe(std::string_view Codigo) {
    const ConceptoNomina* concepto = ConceptoDe(Codigo);
    return concepto == nullptr ? FlagsConcepto{} : concepto->Flags;
}

std::string_view TextoConcepto(std::string_view Codigo) {
    const ConceptoNomina* concepto = ConceptoDe(Codigo);
    return concepto == nullptr ? "???" : concepto->Descripcion();
}

HallazgoConcepto BuscaConcepto(std::string_view Codigo) {
    if (EsVacio(Codigo)) return {0, ' '};
    const ConceptoNomina* concepto = ConceptoDe(Codigo);
    if (concepto == nullptr) return {-1, ' '};
    return {static_cast<int>(concepto - kCatalogo) + 1, concepto->Periodicidad};
}

std::vector<std::string> ListaConceptos() {
    std::vector<std::string> lista;
    for (const ConceptoNomina& concepto : kCatalogo) {
        if (concepto.visible)
            lista.push_back(std::string{concepto.Codigo} + ". " + std::string{concepto.Texto});
    }
    return lista;
}

std::vector<std::string> ListaIncidencias() {
    return {std::begin(kIncidencias), std::end(kIncidencias)};
}

std::string TextoDeLista(std::string_view Codigo, std::span<const std::string> lista) {
    if (EsVacio(Codigo)) return {};
    const std::string* item = itemDe(Codigo, lista);
    return item == nullptr ? "¿¿¿???" : item->substr(std::string_view{"01. "}.size());
}

std::string TextoIncidencia(std::string_view Codigo, std::span<const std::string> lista) {
    const std::string* item = EsVacio(Codigo) ? nullptr : itemDe(Codigo, lista);
    return item == nullptr ? std::string{} : item->substr(std::string_view{"1. "}.size());
}

int IndiceIncidencia(std::string_view Codigo, std::span<const std::string> lista) {
    if (EsVacio(Codigo)) return 0;
    const std::string* item = itemDe(Codigo, lista);
    return item == nullptr ? -1 : static_cast<int>(item - lista.data()) + 1;
}

}  // namespace orvemo::nomina
