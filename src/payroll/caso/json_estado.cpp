#include "payroll/caso/json_estado.h"

#include "foundations/values/formatos.h"
#include "foundations/values/json.h"

namespace orvemo::nomina {

namespace {

/// Writes each member of an object as it comes.
class Objeto {
  public:
    explicit Objeto(std::string& json) : json_{json} {}

    void operator()(std::string_view nombre, const Fecha& fecha) {
        AgregaCampoJson(json_, nombre, FormatoFecha(fecha, "yyyy-mm-dd"));
    }
    void operator()(std::string_view nombre, const Octeto& contador) {
        AgregaCampoJson(json_, nombre, static_cast<int>(contador));
    }
    template <typename T>
    void operator()(std::string_view nombre, const T& valor) {
        AgregaCampoJson(json_, nombre, valor);
    }

  private:
    std::string& json_;
};

}  // namespace

void AgregaEstado(std::string& json, const EstadoNomina& estado) {
    json += ",\"estado\":{";
    CadaCampo(estado, Objeto{json});
    json += "},\"cuotas\":{";
    CadaCuota(estado, Objeto{json});
    json += '}';
}

}  // namespace orvemo::nomina
