#include "presentacion.h"

#include <QStringList>
#include <array>

#include "lienzo.h"
#include "toolkit/paleta.h"

namespace orvemo::dibuja {

namespace {

// The shape of the room that the information screen leaves for them.
constexpr int kAncho = 720;
constexpr int kAlto = 340;
constexpr double kMargen = 24;
constexpr double kSangria = 22;

struct Apartado {
    const char* titulo;
    const char* texto;
};

struct Pagina {
    const char* fichero;
    const char* titulo;
    std::array<Apartado, 3> apartados;
};

constexpr std::array<Pagina, 3> kPaginas{{
    {"presen1.bmp",
     "El programa",
     {{{"Qué hace",
        "Calcula prestaciones de la Seguridad Social, retenciones del IRPF y nóminas, y explica cada "
        "resultado con sus razones."},
       {"Cómo se usa",
        "Elija un cálculo en el menú, rellene el supuesto y pulse Siguiente. Las conclusiones se imprimen y "
        "el supuesto se guarda."},
       {"Año de las cifras",
        "Cuantías, bases y tipos de 2005. La escala de las retenciones es la de 2004."}}}},
    {"presen2.bmp",
     "Nota del autor",
     {{{"Es una simulación",
        "Los resultados orientan. No son asesoramiento jurídico ni sustituyen la resolución del organismo "
        "competente."},
       {"Solo el año 2005",
        "No recoge normas ni cuantías posteriores, y no debe usarse para calcular prestaciones de otros "
        "años."},
       {"Cada caso es distinto",
        "El programa solo conoce los datos que se le dan. Ante una decisión importante, consulte a un "
        "profesional."}}}},
    {"presen3.bmp",
     "Direcciones de interés",
     {{{"Prestaciones y cotización",
        "Los centros de atención e información y las administraciones de la Seguridad Social, y sus páginas "
        "en Internet."},
       {"Desempleo",
        "La oficina del servicio público de empleo que corresponda al domicilio del trabajador."},
       {"Impuestos y legislación",
        "Las oficinas de la Agencia Tributaria y, para los textos legales, los diarios oficiales del Estado "
        "y de cada comunidad."}}}},
}};

double dibujaApartado(Lienzo& lienzo, double y, const Apartado& apartado) {
    QPainter& pincel = lienzo.pincel();
    pincel.setBrush(kColorAcentoClaro);
    pincel.drawEllipse(QPointF(kMargen + 5, y + 11), 5, 5);
    const double x = kMargen + kSangria;
    const QRectF caja(x, y, kAncho - kMargen - x, kAlto - y);
    y += lienzo.parrafo(caja, QString::fromUtf8(apartado.titulo), 18, kColorTexto, QFont::Bold) + 2;
    y += lienzo.parrafo({x, y, caja.width(), kAlto - y}, QString::fromUtf8(apartado.texto), 17,
                        kColorTextoSecundario);
    return y + 18;
}

void dibujaPagina(const Pagina& pagina) {
    Lienzo lienzo(kAncho, kAlto, kColorPanel);
    lienzo.linea({kMargen, 10}, QString::fromUtf8(pagina.titulo), 28, kColorAcento, QFont::Bold);
    lienzo.pincel().setBrush(kColorAcentoClaro);
    lienzo.pincel().drawRect(QRectF(kMargen, 48, 44, 4));
    double y = 70;
    for (const Apartado& apartado : pagina.apartados) {
        y = dibujaApartado(lienzo, y, apartado);
    }
    lienzo.guarda(QString::fromUtf8(pagina.fichero));
}

}  // namespace

void dibujaPresentaciones() {
    for (const Pagina& pagina : kPaginas) {
        dibujaPagina(pagina);
    }
}

}  // namespace orvemo::dibuja
