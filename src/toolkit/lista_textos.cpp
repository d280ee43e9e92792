#include "toolkit/lista_textos.h"

#include <QKeyEvent>
#include <algorithm>

#include "toolkit/medidas.h"
#include "toolkit/textos_qt.h"

namespace orvemo {

namespace {

bool mueveLaEleccion(int tecla) {
    return tecla == Qt::Key_Up || tecla == Qt::Key_Down || tecla == Qt::Key_Home || tecla == Qt::Key_PageUp ||
           tecla == Qt::Key_PageDown;
}

}  // namespace

ListaTextos::ListaTextos(QWidget* padre) : QListWidget{padre} {
    setSelectionMode(QAbstractItemView::SingleSelection);
    setUniformItemSizes(true);
    setViewportMargins(px(kRellenoCampo), px(kRellenoCampo), px(kRellenoCampo), px(kRellenoCampo));
    connect(this, &QListWidget::itemSelectionChanged, this, [this] {
        if (!mostrando_ && elegido() >= 0 && alElegir) alElegir(elegido());
    });
    connect(this, &QListWidget::itemDoubleClicked, this, &ListaTextos::acepta);
}

void ListaTextos::muestra(const std::vector<std::string>& textos, int elegido) {
    mostrando_ = true;
    if (textos != textos_) {
        textos_ = textos;
        QStringList lista;
        for (const std::string& texto : textos) lista << aQt(texto);
        clear();
        addItems(lista);
    }
    if (elegido < 0) {
        clearSelection();
    } else {
        setCurrentRow(elegido, QItemSelectionModel::ClearAndSelect);
    }
    mostrando_ = false;
}

int ListaTextos::elegido() const {
    const QModelIndexList filas = selectedIndexes();
    return filas.isEmpty() ? -1 : filas.front().row();
}

void ListaTextos::acepta() {
    if (elegido() >= 0 && alAceptar) alAceptar();
}

void ListaTextos::keyPressEvent(QKeyEvent* suceso) {
    const int tecla = suceso->key();
    if (tecla == Qt::Key_Return || tecla == Qt::Key_Enter) {
        acepta();
    } else if (tecla == Qt::Key_Delete && alBorrar) {
        alBorrar();
    } else if (mueveLaEleccion(tecla) && elegido() < 0) {
        setCurrentRow(std::max(currentRow(), 0), QItemSelectionModel::ClearAndSelect);
    } else {
        QListWidget::keyPressEvent(suceso);
    }
}

}  // namespace orvemo
