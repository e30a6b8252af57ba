#pragma once

#include <QWidget>

namespace kelvora {

/// An up-down control: two arrows that step a whole value between limits.
class ArribaAbajo : public QWidget {
    Q_OBJECT

public:
    explicit ArribaAbajo(QWidget* padre = nullptr);

    int Value() const { return mValor; }
    /// Held within the limits; a change is signalled.
    void SetValue(int valor);
    void SetLimites(int minimo, int maximo);

signals:
    void Change(int valor);

private:
    int mValor = 0;
    int mMinimo = 0;
    int mMaximo = 100;
};

}  // namespace kelvora
