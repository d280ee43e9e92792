#include "catalogo.h"

#include <QFile>
#include <QRegularExpression>
#include <stdexcept>

namespace orvemo::dibuja {

Materias leeMaterias(const QString& fichero) {
    QFile catalogo(fichero);
    if (!catalogo.open(QIODevice::ReadOnly)) {
        throw std::runtime_error("No se puede leer " + fichero.toStdString());
    }
    static const QRegularExpression materia(QStringLiteral("^#A:\\s*([1-8])\\s*@(.*)$"));
    Materias materias;
    while (!catalogo.atEnd()) {
        // The letters of Spanish have the same codes in Windows-1252 and in Latin 1.
        const auto hallado = materia.match(QString::fromLatin1(catalogo.readLine()).trimmed());
        if (hallado.hasMatch()) {
            materias[hallado.captured(1).toUInt() - 1] = hallado.captured(2).trimmed();
        }
    }
    return materias;
}

}  // namespace orvemo::dibuja
