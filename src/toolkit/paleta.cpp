#include "toolkit/paleta.h"

#include <QPalette>

namespace orvemo {

QPalette paletaClara() {
    QPalette paleta{kColorTexto, kColorBase, kColorBase, kColorBorde,  kColorBordeControl,
                    kColorTexto, kColorBase, kColorBase, kColorVentana};
    paleta.setColor(QPalette::AlternateBase, kColorPanel);
    paleta.setColor(QPalette::Highlight, kColorAcento);
    paleta.setColor(QPalette::HighlightedText, kColorBase);
    paleta.setColor(QPalette::Inactive, QPalette::Highlight, kColorAcentoPalido);
    paleta.setColor(QPalette::Inactive, QPalette::HighlightedText, kColorTexto);
    paleta.setColor(QPalette::ToolTipBase, kColorBase);
    paleta.setColor(QPalette::ToolTipText, kColorTexto);
    paleta.setColor(QPalette::Link, kColorAcento);
    paleta.setColor(QPalette::LinkVisited, kColorAcento);
    paleta.setColor(QPalette::PlaceholderText, kColorTextoInactivo);
    for (const auto papel : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
        paleta.setColor(QPalette::Disabled, papel, kColorTextoInactivo);
    }
    return paleta;
}

}  // namespace orvemo
