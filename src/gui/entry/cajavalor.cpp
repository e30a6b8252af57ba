#include "gui/entry/cajavalor.h"

#include <QApplication>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QKeyEvent>
#include <QMenu>

namespace kelvora {

namespace {

constexpr int kRetroceso = 8;
constexpr int kEnter = 13;

bool EsTeclaDeTexto(const QKeyEvent& evento) {
    const Qt::KeyboardModifiers ordenes = Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier;
    return !evento.text().isEmpty() && evento.text().front().isPrint() &&
           (evento.modifiers() & ordenes) == 0;
}

}  // namespace

CajaValor::CajaValor(int indice, QWidget* padre) : QLineEdit(padre), mIndice(indice) {
    setObjectName(QStringLiteral("txtValor_%1").arg(indice));
    setAcceptDrops(false);
    setDragEnabled(false);
}

void CajaValor::keyPressEvent(QKeyEvent* evento) {
    const bool sinOrdenes = (evento->modifiers() & ~(Qt::ShiftModifier | Qt::KeypadModifier)) == 0;
    if (evento->matches(QKeySequence::Paste)) {
        Pegar();
    } else if (evento->matches(QKeySequence::Undo) || evento->matches(QKeySequence::Redo)) {
        evento->accept();
    } else if ((evento->key() == Qt::Key_Return || evento->key() == Qt::Key_Enter) && sinOrdenes) {
        emit Tecla(mIndice, kEnter);
    } else if (evento->key() == Qt::Key_Backspace && sinOrdenes) {
        emit Tecla(mIndice, kRetroceso);
    } else if (EsTeclaDeTexto(*evento)) {
        Teclear(evento->text());
    } else {
        QLineEdit::keyPressEvent(evento);
    }
}

void CajaValor::inputMethodEvent(QInputMethodEvent* evento) {
    Teclear(evento->commitString());
    evento->accept();
}

void CajaValor::contextMenuEvent(QContextMenuEvent* evento) {
    QMenu menu(this);
    const bool seleccion = hasSelectedText();
    const bool editable = !isReadOnly();
    menu.addAction(QStringLiteral("Cor&tar"), this, &QLineEdit::cut)
            ->setEnabled(seleccion && editable);
    menu.addAction(QStringLiteral("&Copiar"), this, &QLineEdit::copy)->setEnabled(seleccion);
    menu.addAction(QStringLiteral("&Pegar"), this, &CajaValor::Pegar)
            ->setEnabled(!QApplication::clipboard()->text().isEmpty());
    menu.addAction(QStringLiteral("&Eliminar"), this, &QLineEdit::del)
            ->setEnabled(seleccion && editable);
    menu.addSeparator();
    menu.addAction(QStringLiteral("Seleccionar &todo"), this, &QLineEdit::selectAll)
            ->setEnabled(!text().isEmpty());
    menu.exec(evento->globalPos());
}

// Only what can be typed goes on; line ends and tabs of a pasted text are dropped.
void CajaValor::Teclear(const QString& texto) {
    for (const char32_t caracter : texto.toUcs4()) {
        if (QChar::isPrint(caracter)) {
            emit Tecla(mIndice, static_cast<int>(caracter));
        }
    }
}

void CajaValor::Pegar() {
    Teclear(QApplication::clipboard()->text());
}

}  // namespace kelvora
