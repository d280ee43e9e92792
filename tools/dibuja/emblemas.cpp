#include "emblemas.h"

#include <QPainterPath>
#include <algorithm>
#include <array>
#include <cmath>
#include <numbers>

#include "lienzo.h"
#include "toolkit/paleta.h"

namespace orvemo::dibuja {

namespace {

constexpr int kAncho = 240;
constexpr int kAlto = 240;
constexpr QRectF kDisco{50, 16, 140, 140};
constexpr QRectF kRotulo{8, 170, 224, 64};
constexpr double kCuerpoRotulo = 21;
constexpr double kTrazo = 4.5;  // of the emblems, which are drawn on a square of 100 with its middle at 0, 0

void trazo(QPainter& pincel, double grueso = kTrazo) {
    pincel.setBrush(Qt::NoBrush);
    pincel.setPen(QPen(kColorAcento, grueso, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
}

void relleno(QPainter& pincel, QColor color = kColorAcento) {
    pincel.setPen(Qt::NoPen);
    pincel.setBrush(color);
}

/// Retirement: a low sun over the horizon.
void dibujaSol(QPainter& pincel) {
    relleno(pincel);
    pincel.drawPie(QRectF(-17, -7, 34, 34), 0, 180 * 16);
    trazo(pincel);
    pincel.drawLine(QPointF(-36, 16), QPointF(36, 16));
    pincel.drawLine(QPointF(-22, 27), QPointF(22, 27));
    for (const double grados : {0.0, 36.0, 72.0, 108.0, 144.0, 180.0}) {
        const double angulo = grados * std::numbers::pi / 180;
        const QPointF rumbo(std::cos(angulo), -std::sin(angulo));
        if (grados > 0 && grados < 180) {
            pincel.drawLine(QPointF(0, 10) + rumbo * 25, QPointF(0, 10) + rumbo * 36);
        }
    }
}

/// Incapacity: a person in a wheelchair.
void dibujaSilla(QPainter& pincel) {
    relleno(pincel);
    pincel.drawEllipse(QPointF(-6, -30), 7, 7);
    trazo(pincel, 6);
    pincel.drawPolyline(QPolygonF({{-6, -17}, {-6, 6}, {14, 6}, {22, 28}, {29, 26}}));
    pincel.drawLine(QPointF(-6, -7), QPointF(12, -7));
    trazo(pincel);
    pincel.drawArc(QRectF(-29, -9, 42, 42), 115 * 16, 235 * 16);
}

void dibujaPersona(QPainter& pincel, QPointF cabeza, double radio) {
    pincel.drawEllipse(cabeza, radio, radio);
    const double ancho = radio * 3.6;
    QPainterPath cuerpo;
    cuerpo.addRoundedRect(QRectF(cabeza.x() - ancho / 2, cabeza.y() + radio * 1.5, ancho, radio * 7),
                          ancho / 2, ancho / 2);
    QPainterPath suelo;
    suelo.addRect(-50, -50, 100, 76);
    pincel.drawPath(cuerpo.intersected(suelo));
}

/// Family: two grown people and a child before them.
void dibujaFamilia(QPainter& pincel) {
    relleno(pincel);
    dibujaPersona(pincel, {-18, -23}, 9);
    dibujaPersona(pincel, {18, -23}, 9);
    pincel.setPen(QPen(kColorAcentoPalido, kTrazo));
    pincel.setBrush(kColorAcentoClaro);
    dibujaPersona(pincel, {0, -1}, 8);
}

/// Unemployment: a briefcase and the glass of who looks for work.
void dibujaMaletin(QPainter& pincel) {
    trazo(pincel);
    pincel.drawRoundedRect(QRectF(-36, -17, 60, 42), 5, 5);
    pincel.drawPolyline(QPolygonF({{-17, -17}, {-17, -28}, {5, -28}, {5, -17}}));
    pincel.drawLine(QPointF(-36, 2), QPointF(24, 2));
    pincel.setBrush(kColorAcentoPalido);
    pincel.setPen(QPen(kColorAcentoPalido, 14));
    pincel.drawEllipse(QPointF(19, 14), 12, 12);
    trazo(pincel);
    pincel.drawEllipse(QPointF(19, 14), 12, 12);
    trazo(pincel, 6);
    pincel.drawLine(QPointF(29, 24), QPointF(38, 33));
}

/// Health at work: a cross on a shield.
void dibujaEscudo(QPainter& pincel) {
    QPainterPath escudo(QPointF(0, -36));
    escudo.cubicTo(10, -28, 20, -26, 30, -26);
    escudo.cubicTo(30, 6, 24, 24, 0, 36);
    escudo.cubicTo(-24, 24, -30, 6, -30, -26);
    escudo.cubicTo(-20, -26, -10, -28, 0, -36);
    relleno(pincel);
    pincel.drawPath(escudo);
    relleno(pincel, kColorBase);
    pincel.drawRect(QRectF(-5, -19, 10, 34));
    pincel.drawRect(QRectF(-17, -7, 34, 10));
}

void dibujaLetra(QPainter& pincel, QPointF centro, const QString& letras, double cuerpo, QColor color) {
    pincel.setFont(letra(cuerpo, QFont::Bold));
    pincel.setPen(color);
    pincel.drawText(QRectF(centro.x() - 30, centro.y() - 30, 60, 60), Qt::AlignCenter, letras);
}

/// Payroll: a payslip.
void dibujaRecibo(QPainter& pincel) {
    trazo(pincel);
    pincel.setBrush(kColorBase);
    pincel.drawRoundedRect(QRectF(-26, -36, 52, 72), 4, 4);
    for (const double y : {-22.0, -11.0, 0.0}) {
        pincel.drawLine(QPointF(-15, y), QPointF(15, y));
    }
    dibujaLetra(pincel, {0, 19}, QStringLiteral("€"), 28, kColorAcento);
}

/// Taxes: the part that is kept back.
void dibujaPorcentaje(QPainter& pincel) {
    relleno(pincel);
    pincel.drawEllipse(QPointF(0, 0), 36, 36);
    pincel.setPen(QPen(kColorBase, 5, Qt::SolidLine, Qt::RoundCap));
    pincel.drawLine(QPointF(-13, 16), QPointF(13, -16));
    pincel.setBrush(Qt::NoBrush);
    pincel.drawEllipse(QPointF(-13, -11), 6.5, 6.5);
    pincel.drawEllipse(QPointF(13, 11), 6.5, 6.5);
}

/// Contributions: piles of coins that grow.
void dibujaMonedas(QPainter& pincel) {
    constexpr std::array kPilas{2, 4, 6};
    double x = -36;
    for (const int monedas : kPilas) {
        relleno(pincel);
        for (int moneda = 0; moneda < monedas; ++moneda) {
            pincel.drawRoundedRect(QRectF(x, 20 - moneda * 10, 22, 7.5), 3, 3);
        }
        x += 25;
    }
    trazo(pincel);
    pincel.drawLine(QPointF(-36, 34), QPointF(36, 34));
}

/// Any other subject: an open book.
void dibujaLibro(QPainter& pincel) {
    trazo(pincel);
    pincel.setBrush(kColorBase);
    for (const double lado : {-1.0, 1.0}) {
        QPainterPath hoja(QPointF(0, -20));
        hoja.cubicTo(lado * 10, -28, lado * 26, -28, lado * 36, -22);
        hoja.lineTo(lado * 36, 22);
        hoja.cubicTo(lado * 26, 16, lado * 10, 16, 0, 26);
        hoja.closeSubpath();
        pincel.drawPath(hoja);
    }
}

struct Emblema {
    const char* raiz;  // found in the captions it fits
    void (*dibuja)(QPainter&);
};

/// In this order: the first root that the caption holds decides.
constexpr std::array<Emblema, 15> kEmblemas{{
    {"jubila", dibujaSol},
    {"pension", dibujaSol},
    {"incapaci", dibujaSilla},
    {"invalid", dibujaSilla},
    {"famili", dibujaFamilia},
    {"superviv", dibujaFamilia},
    {"desempleo", dibujaMaletin},
    {"empleo", dibujaMaletin},
    {"salud", dibujaEscudo},
    {"riesgo", dibujaEscudo},
    {"nómina", dibujaRecibo},
    {"salario", dibujaRecibo},
    {"impuesto", dibujaPorcentaje},
    {"retenci", dibujaPorcentaje},
    {"cotiza", dibujaMonedas},
}};

void (*emblemaDe(const QString& materia))(QPainter&) {
    const auto* hallado = std::find_if(kEmblemas.begin(), kEmblemas.end(), [&](const Emblema& emblema) {
        return materia.contains(QString::fromUtf8(emblema.raiz), Qt::CaseInsensitive);
    });
    return hallado == kEmblemas.end() ? dibujaLibro : hallado->dibuja;
}

void dibujaFondo(int numero, const QString& materia) {
    Lienzo lienzo(kAncho, kAlto, kColorPanel);
    QPainter& pincel = lienzo.pincel();
    relleno(pincel, kColorAcentoPalido);
    pincel.drawEllipse(kDisco);
    pincel.save();
    pincel.translate(kDisco.center());
    emblemaDe(materia)(pincel);
    pincel.restore();
    lienzo.parrafo(kRotulo, materia, kCuerpoRotulo, kColorTexto, QFont::Bold, Qt::AlignHCenter);
    lienzo.guarda(QStringLiteral("fondo%1.bmp").arg(numero));
}

}  // namespace

void dibujaEmblemas(const Materias& materias) {
    for (int numero = 1; numero <= kMaterias; ++numero) {
        dibujaFondo(numero, materias[static_cast<std::size_t>(numero - 1)]);
    }
}

}  // namespace orvemo::dibuja
