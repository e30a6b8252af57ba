#include "core/app/mosaico.h"

namespace kelvora {

std::vector<Rectangulo> CalcularMosaico(int n, int ancho, int alto, Mosaico tipo) {
    std::vector<Rectangulo> rectangulos;
    if (n <= 0) {
        return rectangulos;
    }
    const bool horizontal = tipo == Mosaico::Horizontal;
    const int largo = horizontal ? alto : ancho;
    const int paso = largo / n;
    for (int i = 0; i < n; ++i) {
        const int inicio = i * paso;
        const int tramo = i == n - 1 ? largo - inicio : paso;
        rectangulos.push_back(horizontal ? Rectangulo{0, inicio, ancho, tramo}
                                         : Rectangulo{inicio, 0, tramo, alto});
    }
    return rectangulos;
}

}  // namespace kelvora
