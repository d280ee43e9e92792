#include "tax/rirpf_frm.h"

#include <utility>

#include "foundations/frame/declaraciones.h"
#include "tax/conclusiones_irpf.h"
#include "tax/resultado_json.h"

namespace orvemo {

namespace {

using irpf::dijoSi;
using irpf::siONo;

enum Panel { kDatos, kFamiliares, kRegularizacion };

constexpr std::size_t kLargoNombre = 80;
constexpr std::size_t kLargoNIF = 9;
constexpr int kAnchoTextos = 28;  // characters: the amounts stand at their right

const std::vector<std::string> kTiposContrato{"General", "Duración inferior al año y peonadas",
                                              "Relación laboral de carácter especial"};

const std::vector<std::string> kCausas{
    "Aumento retribuciones/gastos deducibles",
    "Disminución retribuciones/gastos deducibles",
    "Prolongación actividad laboral",
    "Movilidad geográfica",
    "Aumento número descendientes derecho a reducción",
    "Aumento grado minusvalía de perceptor o descendientes",
    "Aumento del número de ascendientes o grado minusvalía",
    "Disminución del número de ascendientes o grado minusvalía",
    "Quedar obligado a satisfacer pensión al cónyuge",
    "Quedar obligado a satisfacer anualidades por hijos",
    "Cambio situación familiar 2 a 3",
    "Pérdida de la condición de residente en Ceuta/Melilla",
    "Adquisición de la condición de residente en Ceuta/Melilla",
    "Comenzar a realizar trabajos fuera de Ceuta/Melilla",
    "Otras causas",
};

DefCampo deGrupo(DefCampo def, Grupo& grupo) {
    def.pantalla = grupo.def().pantalla;
    def.grupo = &grupo;
    return def;
}

DefCampo nif(std::string nombre, std::string rotulo, Grupo& grupo) {
    return {.nombre = std::move(nombre),
            .rotulo = std::move(rotulo),
            .grupo = &grupo,
            .largo = kLargoNIF,
            .filtro = TeclaMayuscula,
            .anchura = 12};
}

}  // namespace

// --- Declaration

RetIrpfFrm::RetIrpfFrm(Entorno& entorno)
    : AsistenteDe{entorno,
                  {.titulo = "RETENCIONES A CUENTA DEL IRPF",
                   .caption = "Retenciones del Trabajo Personal a cuenta del IRPF",
                   .fichero = "RIRPF.nom",
                   .subtitulos = {"Datos del solicitante", "Datos del solicitante", "Datos del solicitante",
                                  "CONCLUSIONES SOBRE RETENCION A CUENTA DEL IRPF"}}},
      FrmPersona{nuevoGrupo({.nombre = "FrmPersona"})},
      FrmImportes{nuevoGrupo({.nombre = "FrmImportes", .alLado = true})},
      FrmFamilia{nuevoGrupo({.nombre = "FrmFamilia"})},
      Nombre{nuevo({.nombre = "Nombre",
                    .rotulo = "Nombre completo:",
                    .grupo = &FrmPersona,
                    .largo = kLargoNombre,
                    .anchura = kAnchoTextos})},
      NIF{nuevo(nif("NIF", "NIF:", FrmPersona))},
      AnioNacimiento{nuevo(deGrupo(entero("AñoNacimiento", "Año de nacimiento:", {}), FrmPersona))},
      TipoContrato{nuevo(conAnchura(
          deGrupo(lista("TipoContrato", "Tipo de contrato:", kTiposContrato), FrmPersona), kAnchoTextos))},
      SituacionLaboral{
          nuevo(deGrupo(lista("SituacionLaboral", "Situación laboral:",
                              {irpf::kSituacionesLaborales.begin(), irpf::kSituacionesLaborales.end()}),
                        FrmPersona))},
      Retribuciones{importe("Retribuciones", "Retribuciones anuales:", FrmImportes)},
      Reducciones{importe("Reducciones", "Reducciones (art. 17.2):", FrmImportes)},
      Gastos{importe("Gastos", "Gastos (art. 17.3 a, b y c):", FrmImportes)},
      circunstancias{enPantalla(kDatos), &FrmImportes, &FrmPersona, &FrmFamilia},
      NIFConyuge{nuevo(nif("NIFConyuge", "NIF del cónyuge:", FrmFamilia))},
      familiares{enPantalla(kFamiliares)},
      Regularizacion{nuevo(siONo("Regularizacion", "Regularización:", kRegularizacion, nullptr,
                                 [this](Campo&) { ajusta(); }))},
      FrmRegularizacion{nuevoGrupo({.nombre = "FrmRegularizacion",
                                    .titulo = "Regularización",
                                    .pantalla = kRegularizacion,
                                    .visible = false})},
      Causa{nuevo(deGrupo(lista("Causa", "Causa:", kCausas), FrmRegularizacion))},
      Rencemea{nuevo(deGrupo(casilla("Rencemea", "Rendimientos en Ceuta y Melilla"), FrmRegularizacion))},
      RetribucionInicial{importe("RetribucionInicial", "Ingresos Anuales Iniciales:", FrmRegularizacion)},
      RetencionInicial{importe("RetencionInicial", "Retención Anual Inicial:", FrmRegularizacion)},
      RetribucionAcumulada{importe("RetribucionAcumulada", "Ingresos Acumulados:", FrmRegularizacion)},
      RetencionAcumulada{importe("RetencionAcumulada", "Ret. Acumulada/Ingresos Cta.:", FrmRegularizacion)},
      BaseA{importe("BaseA", "Base retención anterior:", FrmRegularizacion, "0.00")},
      TipoA{nuevo(deGrupo(entero("TipoA", "Tipo anterior:", {}), FrmRegularizacion))} {
    ponPanel(kDatos, {.denso = true});
    enlazaCampos();
}

irpf::Declarador RetIrpfFrm::enPantalla(int pantalla) {
    return {.campo = [this](DefCampo def) -> Campo& { return nuevo(std::move(def)); },
            .grupo = [this](DefGrupo def) -> Grupo& { return nuevoGrupo(std::move(def)); },
            .mensajes = mensajes(),
            .pantalla = pantalla};
}

Campo& RetIrpfFrm::importe(const char* nombre, const char* rotulo, Grupo& grupo, const char* defecto) {
    DefCampo def = deGrupo(decimal(nombre, rotulo, {}), grupo);
    def.defecto = defecto;
    return nuevo(std::move(def));
}

void RetIrpfFrm::ajusta() {
    circunstancias.ajusta();
    FrmRegularizacion.ponVisible(dijoSi(Regularizacion));
}

// --- Fields and record

void RetIrpfFrm::LimpiaDatos() {
    AsistenteDe::LimpiaDatos();
    familiares.limpia();
    ajusta();
}

void RetIrpfFrm::enlazaCampos() {
    using D = RegistroDelCaso;
    enlaza(Nombre, &D::Nombre);
    enlaza(NIF, &D::NIF);
    enlaza(AnioNacimiento, &D::AnioNacimiento);
    enlazaEntrada(enlaces(), TipoContrato, &D::TipoContrato);
    enlazaEntrada(enlaces(), SituacionLaboral, &D::SituacionLaboral);
    enlaza(NIFConyuge, &D::NIFConyuge);
    enlaza(Retribuciones, &D::Retribuciones);
    enlaza(Reducciones, &D::Reducciones);
    enlaza(Gastos, &D::Gastos);
    circunstancias.enlaza(enlaces());
    enlazaSi(enlaces(), Regularizacion, &D::Regularizacion);
    enlaza(RetribucionAcumulada, &D::RetribucionAcumulada);
    enlaza(RetencionAcumulada, &D::RetencionAcumulada);
    enlaza(RetribucionInicial, &D::RetribucionInicial);
    enlaza(RetencionInicial, &D::RetencionInicial);
    familiares.enlaza(enlaces());
    enlaza(Rencemea, &D::Rencemea);
    enlaza(TipoA, &D::TipoA);
    enlaza(BaseA, &D::BaseA);
    enlazaEntrada(enlaces(), Causa, &D::Causa);
}

// --- Conclusions

void RetIrpfFrm::calcula(Dictamen& dictamen) {
    resultado_.reset();
    std::string& LimitaTipo = entorno().valores.LimitaTipo;
    resultado_ = CalculaRetencion(caso_, LimitaTipo);
    LimitaTipo = resultado_->LimitaTipo;
    EscribeConclusiones(caso_, *resultado_, dictamen);
}

void RetIrpfFrm::agregaResultados(std::string& json) const {
    if (resultado_) AgregaResultado(json, *resultado_);
}

}  // namespace orvemo
