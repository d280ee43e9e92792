#include "toolkit/linea_campo.h"

#include <QClipboard>
#include <QFocusEvent>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QScopedValueRollback>
#include <QStyleOptionFrame>
#include <QToolTip>
#include <algorithm>
#include <utility>

#include "toolkit/importe_pegado.h"
#include "toolkit/medidas.h"
#include "toolkit/textos_qt.h"

namespace orvemo {

namespace {

// Characters.
constexpr int kAnchuraTexto = 34;
constexpr int kAnchuraEntero = 7;
constexpr int kAnchuraDecimal = 13;
constexpr int kAnchuraMinima = 3;
constexpr int kAnchuraEstrecha = 20;  // more than any figure or date asks for
constexpr int kCitaMaxima = 20;       // of what could not be pasted

/// A key whose text is to be inserted, no command of the line editor.
bool escribeTexto(const QKeyEvent& tecla) {
    const auto mandos = tecla.modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier);
    return mandos == Qt::NoModifier && !tecla.text().isEmpty() && tecla.text().front().isPrint();
}

/// A result in words, which stands at the left.
bool esLetra(const QString& texto) {
    return std::ranges::any_of(texto, [](QChar c) { return c.isLetter(); });
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
    if (esNumero() || esResultado) {
        setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    }
    if (esResultado) {
        setReadOnly(true);
        setFocusPolicy(Qt::NoFocus);
    }
    setTextMargins(px(kRellenoCampo), 0, px(kRellenoCampo), 0);
    setSizePolicy(QSizePolicy::Maximum, QSizePolicy::Fixed);
    connect(this, &QLineEdit::textChanged, this, &LineaCampo::cambia);
    // Both come after the change that they tell: until then the place where it began is still known.
    connect(this, &QLineEdit::selectionChanged, this, &LineaCampo::recuerdaElCursor);
    connect(this, &QLineEdit::cursorPositionChanged, this, &LineaCampo::recuerdaElCursor);
}

bool LineaCampo::esNumero() const {
    return esDecimal() || campo().def().contenido == Contenido::Entero;
}

bool LineaCampo::esDecimal() const {
    const DefCampo& def = campo().def();
    return def.contenido == Contenido::Decimal || (def.contenido == Contenido::Libre && !def.formato.empty());
}

int LineaCampo::anchura() const {
    const DefCampo& def = campo().def();
    if (def.anchura > 0) return std::max(def.anchura, kAnchuraMinima);
    if (def.contenido == Contenido::Entero) return kAnchuraEntero;
    if (esDecimal()) return kAnchuraDecimal;
    if (def.largo > 0) return std::clamp(static_cast<int>(def.largo), kAnchuraMinima, kAnchuraTexto);
    return kAnchuraTexto;
}

int LineaCampo::anchoDelTexto() const {
    return fontMetrics().horizontalAdvance(QString{anchura(), QLatin1Char('0')});
}

QSize LineaCampo::sizeHint() const {
    QStyleOptionFrame opcion;
    initStyleOption(&opcion);
    const QMargins margenes = textMargins();
    const QSize contenido{
        anchoDelTexto() + margenes.left() + margenes.right() + 2 * opcion.lineWidth + px(kRellenoCampo),
        fontMetrics().height()};
    return style()->sizeFromContents(QStyle::CT_LineEdit, &opcion, contenido, this);
}

QSize LineaCampo::minimumSizeHint() const {
    const QSize talla = sizeHint();
    return {std::min(talla.width(), fontMetrics().averageCharWidth() * kAnchuraEstrecha), talla.height()};
}

// --- Program to screen

void LineaCampo::refrescaValor() {
    muestra(aQt(editando_ ? campo().texto() : campo().presentacion()));
    if (!isReadOnly()) return;
    setAlignment((esLetra(text()) ? Qt::AlignLeft : Qt::AlignRight) | Qt::AlignVCenter);
    // A result that its place cuts tells itself whole.
    const bool cabe = fontMetrics().horizontalAdvance(text()) <= anchoDelTexto();
    setToolTip(cabe ? aQt(campo().def().ayuda) : text());
}

void LineaCampo::muestra(const QString& texto) {
    if (texto == text()) return;
    // Of a blank field all is selected: what is proposed as it is entered goes when the first key is typed.
    const bool todo = selectedText() == text();
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

void LineaCampo::recuerdaElCursor() {
    antesDelCambio_ = hasSelectedText() ? selectionStart() : cursorPosition();
}

void LineaCampo::cambia(const QString& texto) {
    if (mostrando_) return;
    if (tecleando_ || !esNumero()) return formulario().escribe(campo(), deQt(texto));
    cambiaDeGolpe(texto);
}

/// A number that came in all at once (pasted, dropped, dictated) is understood before it is taken; what is no
/// number leaves the field as it was.
void LineaCampo::cambiaDeGolpe(const QString& texto) {
    const QString entrado = texto.mid(antesDelCambio_, qMax(0, cursorPosition() - antesDelCambio_));
    const auto numero = importePegado(entrado);
    if (entrado.isEmpty()) {
        formulario().escribe(campo(), deQt(texto));
    } else if (numero && (esDecimal() || !numero->contains(u','))) {
        const QString antes = texto.left(antesDelCambio_);
        const QString despues = texto.mid(cursorPosition());
        formulario().escribe(campo(), deQt(antes + despues));  // what was selected has gone
        formulario().escribe(campo(), deQt(antes + *numero + despues));
    } else {
        refrescaValor();
        const QString queEs = esDecimal() ? QStringLiteral("un número") : QStringLiteral("un número entero");
        QToolTip::showText(mapToGlobal(QPoint{0, height()}),
                           QStringLiteral("«%1» no es %2").arg(entrado.left(kCitaMaxima), queEs), this);
    }
}

void LineaCampo::keyPressEvent(QKeyEvent* suceso) {
    const bool arriba = suceso->key() == Qt::Key_Up;
    if ((arriba || suceso->key() == Qt::Key_Down) && suceso->modifiers() == Qt::NoModifier) {
        if (const Campo* otro = enOtraFila(arriba ? -1 : 1)) anfitrion().enfoca(*otro);
        return;
    }
    // With nothing to paste the toolkit would still take what is selected away.
    if (suceso->matches(QKeySequence::Paste) && QGuiApplication::clipboard()->text().isEmpty()) return;
    if (isReadOnly() || !escribeTexto(*suceso)) {
        QLineEdit::keyPressEvent(suceso);
        return;
    }
    const bool comaDelTeclado = suceso->modifiers().testFlag(Qt::KeypadModifier) && esDecimal() &&
                                suceso->text() == QLatin1String(".");
    teclea(comaDelTeclado ? QStringLiteral(",") : suceso->text());
    suceso->accept();
}

/// The field of the same column in the next row of a table, or in the one before.
const Campo* LineaCampo::enOtraFila(int paso) const {
    const DefCampo& def = campo().def();
    const Campo* vecino = nullptr;
    for (const Campo& otro : formulario().campos()) {
        const int filas = (otro.def().indice - def.indice) * paso;
        const bool deLaColumna = otro.def().nombre == def.nombre && filas > 0;
        if (!deLaColumna || !otro.enfocable() || !formulario().enPantalla(otro)) continue;
        if (vecino == nullptr || filas < (vecino->def().indice - def.indice) * paso) vecino = &otro;
    }
    return vecino;
}

void LineaCampo::teclea(const QString& texto) {
    const QScopedValueRollback tecleando{tecleando_, true};
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
    if (cambiaDeCampo(suceso->reason())) deja();
}

void LineaCampo::deja() {
    recienEntrado_ = false;
    editando_ = false;
    deselect();
    refrescaValor();
}

void LineaCampo::mousePressEvent(QMouseEvent* suceso) {
    if (!std::exchange(recienEntrado_, false)) QLineEdit::mousePressEvent(suceso);
}

}  // namespace orvemo
