#pragma once

#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QApplication>
#include <QBuffer>
#include <QImage>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QTest>
#include <QTimer>
#include <deque>
#include <string>
#include <vector>

#include "apoyo/entorno_falso.h"
#include "toolkit/instalacion.h"
#include "toolkit/mensajes_qt.h"
#include "toolkit/textos_qt.h"
#include "toolkit/vista_formulario.h"

namespace orvemo::pruebas {

/// The bytes of a picture of one colour.
[[nodiscard]] inline std::string imagenLlana(int ancho = 40, int alto = 40) {
    QImage imagen{ancho, alto, QImage::Format_RGB32};
    imagen.fill(Qt::blue);
    QBuffer bytes;
    imagen.save(&bytes, "BMP");
    return bytes.data().toStdString();
}

/// The user before the message boxes: reads each, presses the button told or the preselected one, and
/// remembers. A screen that goes on talking is taken for one that never stops.
class Usuario final : public QObject {
  public:
    std::vector<std::string> leido;      ///< "title: text", in order
    std::deque<std::string> respuestas;  ///< captions to press; empty presses the preselected button
    bool cierraCajas = false;            ///< answers with Escape instead

    Usuario() {
        connect(&reloj_, &QTimer::timeout, this, &Usuario::contesta);
        reloj_.start(5);
    }

  private:
    static constexpr std::size_t kDemasiadas = 12;

    void contesta() {
        auto* caja = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
        if (caja == nullptr || !caja->isVisible()) return;
        leido.push_back(deQt(caja->windowTitle() + QStringLiteral(": ") + caja->text()));
        if (leido.size() > kDemasiadas) qFatal("message boxes without end");
        if (cierraCajas) {
            QTest::keyClick(caja, Qt::Key_Escape);
        } else {
            boton(*caja)->click();
        }
    }

    QAbstractButton* boton(QMessageBox& caja) {
        if (respuestas.empty()) return caja.defaultButton();
        const std::string pedido = respuestas.front();
        respuestas.pop_front();
        for (QAbstractButton* boton : caja.buttons()) {
            if (deQt(boton->text().remove(QLatin1Char('&'))) == pedido) return boton;
        }
        qFatal("the box has no button %s", pedido.c_str());
    }

    QTimer reloj_;
};

/// The world outside in memory, but for the message boxes, which are real and answered by a user.
struct MundoDeVentanas {
    MundoDeVentanas() {
        instalaEstilo(*qobject_cast<QApplication*>(QApplication::instance()));
        falso.almacen["logo.bmp"] = imagenLlana();
        falso.almacen["portada.bmp"] = imagenLlana(64, 44);
    }

    EntornoFalso falso;
    MensajesQt mensajes;
    Entorno entorno{mensajes, falso.reloj, falso.almacen, falso.impresora, falso.rutinas, falso.valores};
    Usuario usuario;
};

/// A form of any kind in its window, set up, shown and active.
template <typename Pantalla>
struct Ventana {
    explicit Ventana(Entorno& entorno, const Almacen& almacen)
        : pantalla{entorno}, vista{prepara(), almacen} {
        vista.show();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&vista));
        asienta();
    }

    /// The widget of a field.
    template <typename Widget = QWidget>
    [[nodiscard]] Widget& widget(const char* nombre) {
        auto* encontrado = vista.template findChild<Widget*>(QLatin1String{nombre});
        if (encontrado == nullptr) qFatal("no widget %s", nombre);
        return *encontrado;
    }
    /// Lets what was queued happen, boxes and the window's return included.
    void asienta() {
        QTest::qWait(1);
        if (!vista.isVisible()) return;
        EXPECT_TRUE(QTest::qWaitFor(
            [&] { return QApplication::activePopupWidget() != nullptr || vista.isActiveWindow(); }));
        QCoreApplication::processEvents();
    }
    void tecla(Qt::Key codigo, Qt::KeyboardModifiers mandos = {}) {
        QTest::keyClick(QApplication::focusWidget(), codigo, mandos);
        asienta();
    }
    void clic(const char* nombre) {
        QWidget& destino = widget(nombre);
        // A check box answers to its mark and its caption, at its left.
        QTest::mouseClick(&destino, Qt::LeftButton, {}, QPoint{8, destino.height() / 2});
        asienta();
    }
    /// Name of the widget that has the focus.
    [[nodiscard]] static std::string foco() {
        const QWidget* widget = QApplication::focusWidget();
        return widget == nullptr ? std::string{} : deQt(widget->objectName());
    }
    /// What is selected in the line that has the focus.
    [[nodiscard]] static std::string seleccion() {
        const auto* linea = qobject_cast<QLineEdit*>(QApplication::focusWidget());
        return linea == nullptr ? std::string{} : deQt(linea->selectedText());
    }

    Pantalla pantalla;
    VistaFormulario vista;

  private:
    Formulario& prepara() {
        pantalla.Inicia();
        return pantalla;
    }
};

/// Types a text as a keyboard would, any letter included.
inline void escribe(const std::string& texto, Qt::KeyboardModifiers mandos = {}) {
    for (const QChar letra : aQt(texto)) {
        QKeyEvent pulsada{QEvent::KeyPress, 0, mandos, QString{letra}};
        QApplication::sendEvent(QApplication::focusWidget(), &pulsada);
    }
    QTest::qWait(1);
}

}  // namespace orvemo::pruebas
