#include "toolkit/iconos.h"

#include <QIconEngine>
#include <QPainter>
#include <QPolygonF>
#include <cmath>
#include <map>
#include <numbers>
#include <vector>

#include "toolkit/medidas.h"
#include "toolkit/paleta.h"

namespace orvemo {

namespace {

// Drawings are strokes on a square of 24 by 24.
constexpr double kLado = 24;
constexpr double kGrueso = 1.6;

using Trazos = std::vector<QPolygonF>;

QPolygonF aro() {
    constexpr int kLados = 48;
    QPolygonF puntos;
    for (int i = 0; i <= kLados; ++i) {
        const double angulo = 2 * std::numbers::pi * i / kLados;
        puntos << QPointF{12 + 10 * std::cos(angulo), 12 + 10 * std::sin(angulo)};
    }
    return puntos;
}

const std::map<Dibujo, Trazos>& dibujos() {
    static const std::map<Dibujo, Trazos> todos{
        {Dibujo::Nuevo,
         {{{13, 3}, {6, 3}, {5, 4}, {5, 20}, {6, 21}, {18, 21}, {19, 20}, {19, 9}, {13, 3}},
          {{13, 3}, {13, 9}, {19, 9}},
          {{12, 12}, {12, 18}},
          {{9, 15}, {15, 15}}}},
        {Dibujo::Carpeta,
         {{{3, 19}, {3, 6}, {4, 5}, {9, 5}, {11, 7}, {18, 7}, {19, 8}, {19, 10}},
          {{3, 19}, {6, 10}, {22, 10}, {19, 19}, {3, 19}}}},
        {Dibujo::Disco,
         {{{4, 4}, {17, 4}, {20, 7}, {20, 20}, {4, 20}, {4, 4}},
          {{8, 4}, {8, 9}, {15, 9}, {15, 4}},
          {{7, 20}, {7, 13}, {17, 13}, {17, 20}}}},
        {Dibujo::Impresora,
         {{{7, 9}, {7, 3}, {17, 3}, {17, 9}},
          {{7, 17}, {4, 17}, {3, 16}, {3, 10}, {4, 9}, {20, 9}, {21, 10}, {21, 16}, {20, 17}, {17, 17}},
          {{7, 14}, {17, 14}, {17, 21}, {7, 21}, {7, 14}}}},
        {Dibujo::Puerta,
         {{{13, 4}, {5, 4}, {5, 20}, {13, 20}}, {{10, 12}, {21, 12}}, {{17, 8}, {21, 12}, {17, 16}}}},
        {Dibujo::Papelera,
         {{{4, 6}, {20, 6}},
          {{9, 6}, {9, 3}, {15, 3}, {15, 6}},
          {{6, 6}, {7, 21}, {17, 21}, {18, 6}},
          {{10, 10}, {10, 17}},
          {{14, 10}, {14, 17}}}},
        {Dibujo::Aspa, {{{6, 6}, {18, 18}}, {{18, 6}, {6, 18}}}},
        {Dibujo::Visto, {{{5, 13}, {10, 18}, {19, 7}}}},
        {Dibujo::Calendario,
         {{{4, 5}, {20, 5}, {20, 20}, {4, 20}, {4, 5}},
          {{4, 10}, {20, 10}},
          {{8, 3}, {8, 7}},
          {{16, 3}, {16, 7}},
          {{8, 14}, {9, 14}},
          {{12, 14}, {13, 14}},
          {{16, 14}, {17, 14}},
          {{8, 17}, {9, 17}},
          {{12, 17}, {13, 17}}}},
        {Dibujo::FlechaIzquierda, {{{14, 6}, {8, 12}, {14, 18}}}},
        {Dibujo::Pregunta,
         {aro(),
          {{9, 9.5},
           {9.4, 7.8},
           {10.6, 6.8},
           {12, 6.5},
           {13.6, 6.9},
           {14.7, 8},
           {15, 9.5},
           {14.4, 11},
           {12.8, 12.2},
           {12, 13.2},
           {12, 14.3}},
          {{12, 17.3}, {12, 17.4}}}},
        {Dibujo::Informacion, {aro(), {{12, 11}, {12, 17}}, {{12, 7}, {12, 7.1}}}},
        {Dibujo::Aviso,
         {{{12, 2.5}, {22.5, 21}, {1.5, 21}, {12, 2.5}}, {{12, 9}, {12, 14.5}}, {{12, 17.8}, {12, 17.9}}}},
        {Dibujo::FlechaDerecha, {{{10, 6}, {16, 12}, {10, 18}}}},
    };
    return todos;
}

class MotorDeTrazos final : public QIconEngine {
  public:
    MotorDeTrazos(const Trazos& trazos, QColor color) : trazos_{trazos}, color_{color} {}

    void paint(QPainter* pincel, const QRect& sitio, QIcon::Mode modo, QIcon::State /*estado*/) override {
        const double lado = qMin(sitio.width(), sitio.height());
        pincel->save();
        pincel->setRenderHint(QPainter::Antialiasing);
        pincel->translate(QRectF{sitio}.center() - QPointF{lado / 2, lado / 2});
        pincel->scale(lado / kLado, lado / kLado);
        pincel->setPen({modo == QIcon::Disabled ? kColorTextoInactivo : color_, kGrueso, Qt::SolidLine,
                        Qt::RoundCap, Qt::RoundJoin});
        for (const QPolygonF& trazo : trazos_) pincel->drawPolyline(trazo);
        pincel->restore();
    }

    QPixmap pixmap(const QSize& talla, QIcon::Mode modo, QIcon::State estado) override {
        QPixmap lienzo{talla};
        lienzo.fill(Qt::transparent);
        QPainter pincel{&lienzo};
        paint(&pincel, QRect{{0, 0}, talla}, modo, estado);
        return lienzo;
    }

    [[nodiscard]] QIconEngine* clone() const override { return new MotorDeTrazos{trazos_, color_}; }

  private:
    const Trazos& trazos_;
    QColor color_;
};

QIcon deColor(Dibujo dibujo, QColor color) {
    const auto encontrado = dibujos().find(dibujo);
    return encontrado == dibujos().end() ? QIcon{} : QIcon{new MotorDeTrazos{encontrado->second, color}};
}

}  // namespace

QIcon icono(Dibujo dibujo) {
    return deColor(dibujo, kColorAcento);
}

QIcon iconoClaro(Dibujo dibujo) {
    return deColor(dibujo, kColorBase);
}

}  // namespace orvemo
