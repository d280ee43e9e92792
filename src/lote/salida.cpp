#include "lote/salida.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QString>
#include <string_view>

namespace orvemo::lote {

namespace {

/// The JSON text of a value alone. Whole objects are put together here, since the library sorts their keys.
std::string literal(const QJsonValue& valor) {
    const QByteArray lista = QJsonDocument{QJsonArray{valor}}.toJson(QJsonDocument::Compact);
    return lista.mid(1, lista.size() - 2).toStdString();
}

std::string literal(const std::string& texto) {
    return literal(QJsonValue{QString::fromStdString(texto)});
}

std::string sinRetornos(std::string texto) {
    std::erase(texto, '\r');
    return texto;
}

}  // namespace

void escribeTexto(std::ostream& salida, const Resultado& resultado) {
    salida << "=== " << resultado.registro << ". " << resultado.supuesto << '\n';
    if (!resultado.error.empty()) {
        salida << "ERROR: " << resultado.error << "\n\n";
        return;
    }
    const std::string texto = sinRetornos(resultado.conclusion);
    salida << "Nombre: " << resultado.nombre << '\n' << texto << (texto.ends_with('\n') ? "" : "\n");
    salida << (resultado.derecho ? "[CON DERECHO]" : "[SIN DERECHO]") << "\n\n";
}

void escribeJson(std::ostream& salida, const Resultado& resultado) {
    salida << "{\"registro\":" << resultado.registro << ",\"supuesto\":" << literal(resultado.supuesto);
    if (!resultado.error.empty()) {
        salida << ",\"error\":" << literal(resultado.error) << "}\n";
        return;
    }
    salida << ",\"nombre\":" << literal(resultado.nombre)
           << ",\"derecho\":" << (resultado.derecho ? "true" : "false")
           << ",\"conclusion\":" << literal(resultado.conclusion) << "}\n";
}

}  // namespace orvemo::lote
