#include "toolkit/linea_campo.h"

#include <QFocusEvent>
#include <QKeyEvent>
#include <QStyleOptionFrame>
#include <algorithm>
#include <utility>

#include "toolkit/medidas.h"
#include "toolkit/textos_qt.h"

namespace orvemo {

namespace {

// Characters.
constexpr int kAnchuraTexto = 34;
constexpr int kAnchuraEntero = 7;
constexpr int kAnchuraDecimal = 13;
constexpr int kAnchuraMinima = 3;

/// A key whose text is to be inserted, no command of the line editor.
bool escribeTexto(const QKeyEvent& tecla) {
    const auto mandos = tecla.modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier);
    return mandos == Qt::NoModifier && !tecla.text().isEmpty() && tecla.text().front().isPrint();
}

/// The focus moves within the window and not to a menu, a box or another program.
bool cambiaDeCampo(Qt::FocusReason motivo) {
    return motivo != Qt::ActiveWindowFocusReason && motivo != Qt::PopupFocusReason &&
           motivo != Qt::MenuBarFocusReason;
}

}  // namespace

LineaCampo::LineaCampo(Campo& campo, Anfitrion& anfitrion) : Control{campo, anfitrion} {
    if (campo.def().largo > 0) setMaxLength(static_cast<int>(campo.def().largo));
    const bool esResultado = campo.def().clase == Clase::Resultado;
    if (esDecimal() || campo.def().contenido == Contenido::Entero || esResultado) {
        setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    }
    if (esResultado) {
        setReadOnly(true);
        setFocusPolicy(Qt::NoFocus);
    }
    setTextMargins(px(kRellenoCampo), 0, px(kRellenoCampo), 0);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    connect(this, &QLineEdit::textChanged, this, &LineaCampo::cambia);
}

bool LineaCampo::esDecimal() const {
    return campo().def().contenido == Contenido::Decimal || !campo().def().formato.empty();
}

int LineaCampo::anchura() const {
    const DefCampo& def = campo().def();
    if (def.anchura > 0) return std::max(def.anchura, kAnchuraMinima);
    if (def.contenido == Contenido::Entero) return kAnchuraEntero;
    if (esDecimal()) return kAnchuraDecimal;
    if (def.largo > 0) return std::clamp(static_cast<int>(def.largo), kAnchuraMinima, kAnchuraTexto);
    return kAnchuraTexto;
}

QSize LineaCampo::sizeHint() const {
    QStyleOptionFrame opcion;
    initStyleOption(&opcion);
    const QMargins margenes = textMargins();
    const int texto = fontMetrics().horizontalAdvance(QLatin1Char('0')) * anchura();
    const QSize contenido{
        texto + margenes.left() + margenes.right() + 2 * opcion.lineWidth + px(kRellenoCampo),
        fontMetrics().height()};
    return style()->sizeFromContents(QStyle::CT_LineEdit, &opcion, contenido, this);
}

// --- Program to screen

void LineaCampo::refrescaValor() {
    muestra(aQt(editando_ ? campo().texto() : campo().presentacion()));
}

void LineaCampo::muestra(const QString& texto) {
    if (texto == text()) return;
    const bool todo = hasSelectedText() && selectedText() == text();
    const auto trasElCursor = text().size() - cursorPosition();
    mostrando_ = true;
    setText(texto);
    mostrando_ = false;
    if (todo && editando_) {
        seleccionaTexto();
    } else {
        setCursorPosition(editando_ ? static_cast<int>(std::max<qsizetype>(texto.size() - trasElCursor, 0))
                                    : 0);
    }
}

void LineaCampo::seleccionaTexto() {
    const int largo = static_cast<int>(text().size());
    setSelection(largo, -largo);
}

void LineaCampo::enfoca() {
    setFocus(Qt::OtherFocusReason);
    editando_ = true;
    refrescaValor();
    seleccionaTexto();
}

// --- User to program

void LineaCampo::cambia(const QString& texto) {
    if (!mostrando_) formulario().escribe(campo(), deQt(texto));
}

void LineaCampo::keyPressEvent(QKeyEvent* suceso) {
    if (isReadOnly() || !escribeTexto(*suceso)) {
        QLineEdit::keyPressEvent(suceso);
        return;
    }
    const bool comaDelTeclado = suceso->modifiers().testFlag(Qt::KeypadModifier) && esDecimal() &&
                                suceso->text() == QLatin1String(".");
    teclea(comaDelTeclado ? QStringLiteral(",") : suceso->text());
    suceso->accept();
}

void LineaCampo::teclea(const QString& texto) {
    for (const char32_t tecla : texto.toStdU32String()) {
        const char32_t admitida = formulario().teclea(campo(), tecla);
        if (admitida != 0) insert(QString::fromUcs4(&admitida, 1));
    }
}

void LineaCampo::focusInEvent(QFocusEvent* suceso) {
    QLineEdit::focusInEvent(suceso);
    if (!cambiaDeCampo(suceso->reason())) return;
    recienEntrado_ = suceso->reason() == Qt::MouseFocusReason;
    editando_ = true;
    refrescaValor();
    seleccionaTexto();
}

void LineaCampo::focusOutEvent(QFocusEvent* suceso) {
    QLineEdit::focusOutEvent(suceso);
    if (!cambiaDeCampo(suceso->reason())) return;
    recienEntrado_ = false;
    editando_ = false;
    deselect();
    refrescaValor();
}

void LineaCampo::mousePressEvent(QMouseEvent* suceso) {
    if (!std::exchange(recienEntrado_, false)) QLineEdit::mousePressEvent(suceso);
}

}  // namespace orvemo
