// The printed forms of the payroll with the letters that they are printed in: no text meets another or a
// line.
#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

#include "apoyo/almacen_memoria.h"
#include "payroll/caso/calcula_nomina.h"
#include "payroll/documento_nominas.h"
#include "printing/nominas/formularios.h"
#include "toolkit/impresora_pdf.h"

namespace orvemo::nomina {
namespace {

struct Recuadro {
    double x1, y1, x2, y2;
    std::string texto{};

    [[nodiscard]] bool toca(const Recuadro& otra) const {
        return x1 < otra.x2 && otra.x1 < x2 && y1 < otra.y2 && otra.y1 < y2;
    }
};

/// Paper that measures as the printer does and remembers the ink.
class Tinta final : public DestinoImpresion {
  public:
    std::vector<Recuadro> textos, lineas;
    bool terminado = false;

    [[nodiscard]] double Height() const override { return papel_.Height(); }
    [[nodiscard]] double Width() const override { return papel_.Width(); }
    void NewPage() override { ADD_FAILURE() << "a form has one page"; }
    void EndDoc() override { terminado = true; }
    [[nodiscard]] float CurrentX() const override { return x_; }
    [[nodiscard]] float CurrentY() const override { return y_; }
    void CurrentX(float x) override { x_ = x; }
    void CurrentY(float y) override { y_ = y; }
    [[nodiscard]] const Fuente& Font() const override { return papel_.Font(); }
    void Font(const Fuente& fuente) override { papel_.Font(fuente); }
    [[nodiscard]] double TextWidth(std::string_view texto) const override { return papel_.TextWidth(texto); }
    /// From the top of the capitals to what hangs under the foot; dots stand on it.
    void Print(std::string_view texto, bool /*finDeLinea*/) override {
        const double em = Font().tamano * 2.54 / 72;
        const double pie = y_ + 0.0319 * Font().tamano;
        const bool cuelga = texto.find_first_of("gjpqy,;()QÇç") != std::string_view::npos;
        const bool puntos = texto.find_first_not_of('.') == std::string_view::npos;
        textos.push_back({x_, pie - (puntos ? 0.1 : 0.73) * em, x_ + TextWidth(texto),
                          pie + (cuelga ? 0.21 : 0.03) * em, std::string{texto}});
    }
    void Line(double x1, double y1, double x2, double y2) override {
        lineas.push_back({x1, y1, x2, y2, "line"});
    }
    void Caja(double, double, double, double) override { ADD_FAILURE() << "a form has no bars"; }
    void PaintPicture(const Imagen&, double, double, double, double) override {
        ADD_FAILURE() << "a form has no pictures";
    }

  private:
    pruebas::AlmacenMemoria almacen_;
    DestinoPdf papel_{almacen_, "nomina.pdf", "nomina"};
    float x_ = 0, y_ = 0;
};

void compruebaHoja(const Tinta& hoja) {
    EXPECT_TRUE(hoja.terminado);
    for (auto texto = hoja.textos.begin(); texto != hoja.textos.end(); ++texto) {
        EXPECT_TRUE(texto->x1 >= 2.2 - 1e-6 && texto->x2 <= 17.6 + 1e-6)
            << texto->texto << " leaves the form";
        for (auto otro = texto + 1; otro != hoja.textos.end(); ++otro)
            EXPECT_FALSE(texto->toca(*otro)) << texto->texto << " / " << otro->texto;
        for (const Recuadro& linea : hoja.lineas)
            EXPECT_FALSE(texto->toca(linea)) << texto->texto << " on a line at " << linea.y1;
    }
}

/// The longest that each field can hold.
OpcionesImpresion empresaLarga() {
    OpcionesImpresion empresa;
    empresa.DatosEmpresa.asigna(std::string(40, 'W'));
    empresa.DatosDomicilio.asigna("Calle de Nuestra Señora de las Angustias");
    empresa.DatosCif.asigna(std::string(11, 'W'));
    empresa.DatosCuentaSS.asigna(std::string(14, 'W'));
    return empresa;
}

void alarga(RegistroNomina& r) {
    r.Nombre.asigna("MAXIMILIANO-ALEJANDRO HERNÁNDEZ-WAMBA Y WEYLER DE LA SANTÍSIMA CONCEPCIÓN MMMM");
    r.NIF.asigna(std::string(10, 'W'));
    r.NumMatricula.asigna(std::string(15, 'W'));
    r.CuentaSS.asigna(std::string(14, 'W'));
    r.GrupoProfesional.asigna(std::string(30, 'W'));
}

TEST(FormulariosDeNomina, NoTextMeetsAnotherNorALine) {
    const Documento documento = leeDocumento();
    const TablasNomina tablas = documento.tablas();
    const OpcionesImpresion empresa = empresaLarga();
    for (const Historia& historia : documento.historias) {
        SCOPED_TRACE(historia.titulo);
        RegistroNomina registro = historia.registro;
        alarga(registro);
        EstadoNomina estado;
        if (!CalculaSupuesto(registro, tablas, estado).empty()) continue;
        const DatosFormularios datos{estado, registro, empresa, registro.Nombre.utf8(),
                                     FechaDMA(28, 9, 2005)};
        Tinta recibo, tc2;
        ImprimeReciboSalarios(recibo, datos);
        compruebaHoja(recibo);
        ImprimeTC2(tc2, datos);
        compruebaHoja(tc2);
    }
}

}  // namespace
}  // namespace orvemo::nomina
