#pragma once

#include <QColor>
#include <QFont>
#include <QImage>
#include <QPainter>
#include <QString>

namespace orvemo::dibuja {

/// A picture in the making. Its unit is one pixel of a screen at 100 %; twice as many are drawn, so that it
/// stays sharp on the scaled panels.
class Lienzo {
  public:
    Lienzo(int ancho, int alto, QColor fondo);

    [[nodiscard]] QPainter& pincel() { return pincel_; }

    /// One line that starts at `origen`, the top left corner of its letters. Throws std::runtime_error when
    /// the line runs out of the picture.
    void linea(QPointF origen, const QString& texto, double cuerpo, QColor color,
               QFont::Weight peso = QFont::Normal);
    /// Words wrapped within `caja`; gives the height used. Throws std::runtime_error when they don't fit.
    double parrafo(QRectF caja, const QString& texto, double cuerpo, QColor color,
                   QFont::Weight peso = QFont::Normal, Qt::Alignment posicion = Qt::AlignLeft);

    /// Ends the drawing and writes it as a bitmap. Throws std::runtime_error when it can't be written.
    void guarda(const QString& fichero);

  private:
    QImage imagen_;
    QPainter pincel_;
    QRectF hoja_;
};

/// The house's letter, at a height in units. Throws std::runtime_error when the machine hasn't got it: a
/// picture with another letter would come out differently on each machine.
[[nodiscard]] QFont letra(double cuerpo, QFont::Weight peso);

/// The picture on its 256 commonest colours, any other on the nearest of them: a third of the size, and no
/// difference that the eye sees in flat drawings.
[[nodiscard]] QImage reduceColores(const QImage& imagen);

/// Throws std::runtime_error when the picture can't be written.
void escribe(const QImage& imagen, const QString& fichero);

}  // namespace orvemo::dibuja
