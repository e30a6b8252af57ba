#pragma once

#include <QLineEdit>

namespace kelvora {

/// A box of a data entry window. It types nothing by itself: each character, typed, pasted or
/// composed, goes out as a key for the window's key filter, and the window writes the text
/// back. Deleting and cutting stay with the box and are told as an edit. There is no undo.
class CajaValor : public QLineEdit {
    Q_OBJECT

public:
    CajaValor(int indice, QWidget* padre = nullptr);

    int Indice() const { return mIndice; }

signals:
    /// A key for `txtValor_KeyPress`: a character, 8 for Backspace or 13 for Enter.
    void Tecla(int indice, int KeyAscii);

protected:
    void keyPressEvent(QKeyEvent* evento) override;
    void inputMethodEvent(QInputMethodEvent* evento) override;
    void contextMenuEvent(QContextMenuEvent* evento) override;

private:
    void Teclear(const QString& texto);
    void Pegar();

    int mIndice;
};

}  // namespace kelvora
