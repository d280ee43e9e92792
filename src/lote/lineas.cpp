#include "lote/lineas.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QJsonParseError>

namespace orvemo::lote {

namespace {

constexpr const char* kBlancos = " \t\r";

ValorDeCampo valorDe(const QJsonValue& json) {
    switch (json.type()) {
        case QJsonValue::Bool:
            return {json.toBool()};
        case QJsonValue::Double:
            return {json.toDouble()};
        case QJsonValue::String:
            return {json.toString().toStdString()};
        case QJsonValue::Array: {
            ValorDeCampo::Lista lista;
            for (const auto& elemento : json.toArray()) lista.push_back(valorDe(elemento));
            return {std::move(lista)};
        }
        case QJsonValue::Object: {
            ValorDeCampo::Conjunto conjunto;
            const QJsonObject objeto = json.toObject();
            for (auto par = objeto.begin(); par != objeto.end(); ++par)
                conjunto.emplace_back(par.key().toStdString(), valorDe(par.value()));
            return {std::move(conjunto)};
        }
        default:
            return {nullptr};
    }
}

}  // namespace

std::optional<std::string> Lineas::siguiente() {
    std::string linea;
    do {
        linea.clear();
        std::streambuf& bytes = *entrada_.rdbuf();
        int byte = bytes.sbumpc();
        if (byte == std::char_traits<char>::eof()) return std::nullopt;
        ++numero_;
        for (; byte != '\n' && byte != std::char_traits<char>::eof(); byte = bytes.sbumpc()) {
            if (linea.size() == kMaximoLinea)
                throw Fallo{"la línea " + std::to_string(numero_) + " es demasiado larga para un supuesto"};
            linea += static_cast<char>(byte);
        }
    } while (linea.find_first_not_of(kBlancos) == std::string::npos);
    return linea;
}

ValorDeCampo LeeJson(const std::string& linea) {
    QJsonParseError error;
    const auto documento = QJsonDocument::fromJson(QByteArray::fromStdString(linea), &error);
    if (error.error != QJsonParseError::NoError)
        throw Fallo{"no es JSON desde su byte " + std::to_string(error.offset + 1)};
    if (!documento.isObject()) throw Fallo{"no es un objeto JSON"};
    return valorDe(documento.object());
}

}  // namespace orvemo::lote
