#include "toolkit/fecha_campo.h"

#include <QAction>
#include <QCalendarWidget>
#include <QKeyEvent>
#include <QLocale>
#include <QMenu>
#include <QTextCharFormat>
#include <QWidgetAction>

#include "foundations/values/formatos.h"
#include "toolkit/iconos.h"
#include "toolkit/medidas.h"
#include "toolkit/paleta.h"

namespace orvemo {

namespace {

constexpr int kAnchuraFecha = 14;  // characters, the button included

QDate diaDelCalendario(Fecha fecha) {
    return {Anio(fecha), Mes(fecha), Dia(fecha)};
}

Fecha fechaElegida(const QDate& dia) {
    return FechaDMA(dia.day(), dia.month(), dia.year());
}

bool despliega(const QKeyEvent& tecla) {
    const bool altAbajo = tecla.key() == Qt::Key_Down && tecla.modifiers().testFlag(Qt::AltModifier);
    return altAbajo || tecla.key() == Qt::Key_F4;
}

QCalendarWidget* nuevoCalendario(QWidget* padre) {
    auto* calendario = new QCalendarWidget{padre};
    calendario->setObjectName(QStringLiteral("Calendario"));
    calendario->setLocale(QLocale{QLocale::Spanish, QLocale::Spain});
    calendario->setFirstDayOfWeek(Qt::Monday);
    calendario->setVerticalHeaderFormat(QCalendarWidget::NoVerticalHeader);
    QTextCharFormat festivo;
    festivo.setForeground(kColorAcento);
    calendario->setWeekdayTextFormat(Qt::Saturday, festivo);
    calendario->setWeekdayTextFormat(Qt::Sunday, festivo);
    return calendario;
}

}  // namespace

FechaCampo::FechaCampo(Campo& campo, Anfitrion& anfitrion) : LineaCampo{campo, anfitrion} {
    QAction* boton = addAction(icono(Dibujo::Calendario), QLineEdit::TrailingPosition);
    boton->setText(QStringLiteral("Calendario"));
    boton->setToolTip(QStringLiteral("Elegir en el calendario (Alt+↓)"));
    connect(boton, &QAction::triggered, this, &FechaCampo::despliegaCalendario);
}

int FechaCampo::anchura() const {
    return kAnchuraFecha;
}

void FechaCampo::keyPressEvent(QKeyEvent* suceso) {
    if (despliega(*suceso)) {
        despliegaCalendario();
    } else {
        LineaCampo::keyPressEvent(suceso);
    }
}

void FechaCampo::despliegaCalendario() {
    if (!anfitrion().tomaFoco(*this)) return;
    auto* menu = new QMenu{this};
    menu->setAttribute(Qt::WA_DeleteOnClose);
    auto* calendario = nuevoCalendario(menu);
    if (EsFecha(campo().texto())) calendario->setSelectedDate(diaDelCalendario(FechaDe(campo().texto())));
    auto* contenido = new QWidgetAction{menu};
    contenido->setDefaultWidget(calendario);
    menu->addAction(contenido);
    // "activated" is Enter or a double click on a day, "clicked" a single one.
    const auto elige = [this, menu](const QDate& dia) {
        menu->close();
        formulario().eligeFecha(campo(), fechaElegida(dia));
        enfoca();
    };
    connect(calendario, &QCalendarWidget::clicked, this, elige);
    connect(calendario, &QCalendarWidget::activated, this, elige);
    menu->popup(mapToGlobal(QPoint{0, height()}));
    calendario->setFocus();
}

}  // namespace orvemo
