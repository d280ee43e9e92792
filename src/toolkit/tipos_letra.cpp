#include "toolkit/tipos_letra.h"

#include <QFontDatabase>
#include <algorithm>
#include <array>

namespace orvemo {

namespace {

struct Sustituta {
    std::string_view pedida;
    const char* familia;
    QFont::StyleHint clase;  ///< what to look for if the family is missing
};

constexpr std::array kSustitutas{
    Sustituta{"Arial", "Liberation Sans", QFont::SansSerif},
    Sustituta{"SmallFonts", "Liberation Sans", QFont::SansSerif},
    Sustituta{"Courier New", "Liberation Mono", QFont::Monospace},
};

[[nodiscard]] const Sustituta& sustitutaDe(std::string_view nombre) {
    const auto* const hallada = std::find_if(kSustitutas.begin(), kSustitutas.end(),
                                             [&](const Sustituta& s) { return s.pedida == nombre; });
    return hallada != kSustitutas.end() ? *hallada : kSustitutas.front();
}

}  // namespace

QFont tipoDeLetra(const Fuente& fuente) {
    const Sustituta& sustituta = sustitutaDe(fuente.nombre);
    QFont letra{QString::fromLatin1(sustituta.familia)};
    letra.setStyleHint(sustituta.clase);
    letra.setPointSize(std::max(1, fuente.tamano));
    letra.setBold(fuente.negrita);
    return letra;
}

bool fuentesInstaladas() {
    return std::all_of(kSustitutas.begin(), kSustitutas.end(), [](const Sustituta& s) {
        return QFontDatabase::hasFamily(QString::fromLatin1(s.familia));
    });
}

}  // namespace orvemo
