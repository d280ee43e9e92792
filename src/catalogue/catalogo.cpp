#include "catalogue/catalogo.h"

#include <array>

#include "benefits/desempleo/desemp_frm.h"
#include "benefits/familiar/familiar_frm.h"
#include "benefits/it/ilt_frm.h"
#include "benefits/maternidad/mater_frm.h"
#include "benefits/nocontributiva/nocon_frm.h"
#include "benefits/riesgo/riesgo_embarazo_frm.h"
#include "capital/capitalizacion/capit_frm.h"
#include "payroll/pantallas/nomina_frm.h"
#include "pensions/incapacidad/inva_frm.h"
#include "pensions/jubilacion/pension_frm.h"
#include "pensions/muerte/muerte_frm.h"
#include "tax/liquidos_frm.h"
#include "tax/rirpf_frm.h"

namespace orvemo {

namespace {

constexpr std::array kCalculadoras{
    conSupuestos<PensionFrm>("jubilacion", "PensionFrm", "jubila.nom", "ejemplos/jubila.nom"),
    conSupuestos<InvaFrm>("incapacidad", "InvaFrm", "invalid.nom", "ejemplos/invalid.nom"),
    conSupuestos<MuerteFrm>("muerte", "MuerteFrm", "muerte.nom", "muerte.nom"),
    conSupuestos<DesempFrm>("desempleo", "DesempFrm", "desemp.nom", "ejemplos/desemp.nom"),
    conSupuestos<ILTFrm>("it", "ILTFrm", "ILT.nom", "ejemplos/ILT.nom"),
    conSupuestos<MaterFrm>("maternidad", "MaterFrm", "Mater.nom", "ejemplos/Mater.nom"),
    conSupuestos<RiesgoEmbarazo>("riesgo", "RiesgoEmbarazo", "RiesgoEm.nom", "ejemplos/RiesgoEm.nom"),
    conSupuestos<NoConFrm>("nocontributiva", "NoConFrm", "nocont.nom", "nocont.nom"),
    conSupuestos<FamiliarFrm>("familiar", "FamiliarFrm", "Familiar.nom", "ejemplos/Familiar.nom"),
    conSupuestos<CapitFrm>("capital", "CapitFrm", "Capit.nom", "Capit.nom"),
    conSupuestos<NominaFrm>("nomina", "NominaFrm", "nominas.nom", "ejemplos/nominas.nom"),
    conSupuestos<RetIrpfFrm>("irpf", "RetIrpfFrm", "RIRPF.nom", "ejemplos/RIRPF.nom"),
    EntradaCatalogo{.clave = "liquidos", .pantalla = "LiquidosFrm", .abre = abrePantalla<LiquidosFrm>},
};

}  // namespace

Calculadoras CalculadorasDelPrograma() {
    return kCalculadoras;
}

}  // namespace orvemo
