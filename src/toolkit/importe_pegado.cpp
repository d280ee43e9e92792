#include "toolkit/importe_pegado.h"

#include <QRegularExpression>
#include <array>

namespace orvemo {

namespace {

struct Escritura {
    QRegularExpression forma;
    QChar millares;
    QChar decimales;
};

/// The ways of writing a number, the Spanish one first.
const std::array<Escritura, 4>& escrituras() {
    static const auto forma = [](const char* patron) {
        return QRegularExpression{QRegularExpression::anchoredPattern(QLatin1String{patron})};
    };
    static const std::array<Escritura, 4> todas{{
        {forma(R"(-?\d{1,3}(\.\d{3})+(,\d*)?)"), u'.', u','},
        {forma(R"(-?\d*,?\d+|-?\d+,)"), QChar{}, u','},
        {forma(R"(-?\d{1,3}(,\d{3})+\.\d*)"), u',', u'.'},
        {forma(R"(-?\d*\.\d+|-?\d+\.)"), QChar{}, u'.'},
    }};
    return todas;
}

/// The text without what only dresses a number.
QString desnudo(QString texto) {
    static const QRegularExpression adornos{
        QStringLiteral("[\\s'’€]|euros?|eur"),
        QRegularExpression::CaseInsensitiveOption | QRegularExpression::UseUnicodePropertiesOption};
    return texto.remove(adornos);
}

}  // namespace

std::optional<QString> importePegado(const QString& texto) {
    QString numero = desnudo(texto);
    for (const Escritura& escritura : escrituras()) {
        if (!escritura.forma.match(numero).hasMatch()) continue;
        if (!escritura.millares.isNull()) numero.remove(escritura.millares);
        return numero.replace(escritura.decimales, u',');
    }
    return std::nullopt;
}

}  // namespace orvemo
