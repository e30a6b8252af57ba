#include "gui/materials/teclasmateriales.h"

#include "gui/platform/texto.h"

#include <QKeyEvent>
#include <QLineEdit>

namespace kelvora {

namespace {

constexpr int kAsciiPegar = 22;
constexpr int kAsciiCortar = 24;

// Length in characters, as the filter counts, of the first `unidades` UTF-16 units of a text.
int Caracteres(const QString& texto, int unidades) {
    return static_cast<int>(texto.left(unidades).toUcs4().size());
}

// The UTF-16 units of the first `caracteres` characters of a text.
int Unidades(const QString& texto, int caracteres) {
    int unidades = 0;
    for (int c = 0; c < caracteres && unidades < texto.size(); ++c) {
        unidades += texto.at(unidades).isHighSurrogate() ? 2 : 1;
    }
    return unidades;
}

}  // namespace

std::optional<int> KeyAsciiDe(const QKeyEvent& tecla) {
    if (tecla.matches(QKeySequence::Paste)) {
        return kAsciiPegar;
    }
    if (tecla.matches(QKeySequence::Cut)) {
        return kAsciiCortar;
    }
    const Qt::KeyboardModifiers ordenes = Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier;
    if ((tecla.modifiers() & ordenes) != 0) {
        return std::nullopt;
    }
    if (tecla.key() == Qt::Key_Return || tecla.key() == Qt::Key_Enter) {
        return kAsciiEnter;
    }
    if (tecla.key() == Qt::Key_Backspace) {
        return kAsciiRetroceso;
    }
    const QString texto = tecla.text();
    if (texto.isEmpty() || !texto.front().isPrint()) {
        return std::nullopt;
    }
    return static_cast<int>(texto.toUcs4().front());
}

void MostrarTecla(QLineEdit& caja, const ResultadoTeclaNumerica& resultado) {
    const QString texto = Q(resultado.texto);
    if (caja.text() != texto) {
        caja.setText(texto);
    }
    caja.setCursorPosition(Unidades(texto, resultado.caret));
}

int CaretDe(const QLineEdit& caja) {
    const int inicio = caja.hasSelectedText() ? caja.selectionStart() : caja.cursorPosition();
    return Caracteres(caja.text(), inicio);
}

int SeleccionDe(const QLineEdit& caja) {
    if (!caja.hasSelectedText()) {
        return 0;
    }
    const QString texto = caja.text();
    return Caracteres(texto, caja.selectionEnd()) - Caracteres(texto, caja.selectionStart());
}

}  // namespace kelvora
