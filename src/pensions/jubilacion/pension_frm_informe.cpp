#include <array>

#include "foundations/values/formatos.h"
#include "foundations/values/numeros.h"
#include "pensions/jubilacion/pension_frm.h"
#include "printing/informe.h"

namespace orvemo {

namespace {

constexpr int kColumnas = 3;

std::string fecha(const Campo& campo) {
    return FormatoFecha(FechaDe(campo.texto()), "dd-mm-yyyy");
}

}  // namespace

void PensionFrm::ImprimeInforme(RutinasImpresion& rutinas) {
    Informe informe{rutinas, "PENSIÓN DE JUBILACIÓN"};
    informe.linea("Nombre:$N" + JubiNombre.texto() + "$n");
    informe.linea("Fecha de nacimiento del solicitante: " + fecha(JubiFechaNac));
    informe.linea("Fecha de efectiva de la jubilación: " + fecha(JubiFechaJub));
    informe.linea("Régimen de la Seguridad Social: " + JubiRegimen.texto());
    informe.linea("$SPeriodos cotizados:$s");
    for (const FilaPeriodo& fila : periodos) {
        if (EsVacio(fila.JubiPerDesde.texto())) continue;
        informe.linea("Del " + fecha(fila.JubiPerDesde) + " al " + fecha(fila.JubiPerHasta) + " en " +
                      fila.JubiPerEmpresa.texto());
    }
    imprimeBases(informe);
    informe.separa();
    informe.tituloConclusiones();
    informe.conclusiones(textoConclusion());
}

void PensionFrm::imprimeBases(Informe& informe) const {
    const std::string meses = TextoPlano(serie_.MesesBases);
    if (!JubiBasesDesglosadas.marcado()) {
        informe.linea("Suma de las Bases de Cotización por C.Comunes en los últimos " + meses +
                      " meses: " + FormatoNumero(DobleDe(JubiSumaBases.texto()), "###,###,##0.00"));
        return;
    }
    informe.linea("$SBases de cotización de los últimos " + meses + " meses:$s");
    const int filas = serie_.MesesBases / kColumnas;
    for (int fila = 1; fila <= filas; ++fila) {
        std::array<CeldaInforme, kColumnas> celdas;
        for (std::size_t columna = 0; columna < celdas.size(); ++columna) {
            const Campo& base = JubiBase(fila + static_cast<int>(columna) * filas);
            celdas[columna] = {base.rotulo(), FormatoNumero(DobleDe(base.texto()), "###,##0.00")};
        }
        informe.columnas(celdas);
    }
}

}  // namespace orvemo
