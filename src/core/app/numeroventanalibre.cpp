#include "core/app/numeroventanalibre.h"

#include "core/runtime/numeros.h"
#include "core/runtime/texto.h"

#include <algorithm>

namespace kelvora {

namespace {

std::vector<double> NumerosEnUso(std::string_view base, const std::vector<std::string>& captions) {
    std::vector<double> numeros;
    for (const std::string& caption : captions) {
        const size_t corchete = caption.find('[');
        if (corchete != std::string::npos &&
            IgualTexto(std::string_view(caption).substr(0, corchete + 1), base)) {
            numeros.push_back(Val(std::string_view(caption).substr(corchete + 1)));
        }
    }
    return numeros;
}

}  // namespace

int16_t NumeroVentanaLibre(std::string_view base, const std::vector<std::string>& captions) {
    std::vector<double> numeros = NumerosEnUso(base, captions);
    std::sort(numeros.begin(), numeros.end());
    int16_t k = 1;
    for (size_t i = 1; i < numeros.size() && numeros[i] == k; ++i) {
        ++k;
    }
    return k;
}

}  // namespace kelvora
