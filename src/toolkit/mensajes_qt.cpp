#include "toolkit/mensajes_qt.h"

#include <QApplication>
#include <QLabel>
#include <QMessageBox>
#include <QPointer>
#include <QPushButton>

#include "toolkit/medidas.h"
#include "toolkit/textos_qt.h"

namespace orvemo {

namespace {

// Twips.
constexpr int kAnchoTexto = 6000;
constexpr int kHolgura = 60;

QWidget* ventanaQuePregunta() {
    QWidget* modal = QApplication::activeModalWidget();
    return modal != nullptr ? modal : QApplication::activeWindow();
}

/// Without a window manager nobody gives the window the keyboard back.
void reactiva(const QPointer<QWidget>& ventana) {
    if (ventana != nullptr && ventana->isVisible()) ventana->activateWindow();
}

/// The text in one line where it is short, and never in less than the box's own width.
void ponTexto(QMessageBox& caja, std::string_view texto) {
    caja.setTextFormat(Qt::PlainText);
    caja.setText(aQt(texto));
    if (auto* rotulo = caja.findChild<QLabel*>(QStringLiteral("qt_msgbox_label"))) {
        const QRect escrito =
            rotulo->fontMetrics().boundingRect({0, 0, px(kAnchoTexto), 0}, Qt::TextWordWrap, rotulo->text());
        rotulo->setMinimumWidth(qMin(escrito.width() + px(kHolgura), px(kAnchoTexto)));
    }
}

void dice(QMessageBox::Icon dibujo, const QString& titulo, std::string_view texto) {
    const QPointer<QWidget> ventana = ventanaQuePregunta();
    QMessageBox caja{dibujo, titulo, {}, QMessageBox::NoButton, ventana};
    ponTexto(caja, texto);
    caja.setDefaultButton(caja.addButton(QStringLiteral("&Aceptar"), QMessageBox::AcceptRole));
    caja.exec();
    reactiva(ventana);
}

}  // namespace

bool MensajesQt::Confirma(std::string_view texto) {
    const QPointer<QWidget> ventana = ventanaQuePregunta();
    QMessageBox caja{
        QMessageBox::Question, QStringLiteral("Confirmación"), {}, QMessageBox::NoButton, ventana};
    ponTexto(caja, texto);
    QPushButton* si = caja.addButton(QStringLiteral("&Sí"), QMessageBox::YesRole);
    QPushButton* no = caja.addButton(QStringLiteral("&No"), QMessageBox::NoRole);
    caja.setDefaultButton(si);
    caja.setEscapeButton(no);
    caja.exec();
    reactiva(ventana);
    return caja.clickedButton() == si;
}

void MensajesQt::Informa(std::string_view texto) {
    dice(QMessageBox::Information, QStringLiteral("Mensaje informativo"), texto);
}

void MensajesQt::ComunicaError(std::string_view texto) {
    dice(QMessageBox::Warning, QStringLiteral("Comunicación de error"), texto);
}

}  // namespace orvemo
