#include "core/datafile/alineartexto.h"

#include "core/runtime/numeros.h"
#include "core/runtime/runtimeerror.h"
#include "core/runtime/texto.h"

namespace kelvora {

namespace {

std::string SinSaltosDeLinea(const std::string& texto) {
    std::string resultado;
    resultado.reserve(texto.size());
    for (size_t i = 0; i < texto.size(); ++i) {
        const bool crlf = texto[i] == '\r' && i + 1 < texto.size() && texto[i + 1] == '\n';
        if (crlf) {
            ++i;
        }
        resultado += (texto[i] == '\r' || texto[i] == '\n') ? ' ' : texto[i];
    }
    return resultado;
}

std::string Espacios(int32_t n) {
    return std::string(static_cast<size_t>(n), ' ');
}

std::string Rellenar(const std::string& texto, int32_t relleno, int32_t alineacion) {
    if (alineacion < 0) {
        alineacion = 2;
    }
    switch (alineacion) {
        case 0:
            return Espacios(relleno) + texto;
        case 1: {
            const int32_t mitad = CLng(relleno / 2.0);
            return Espacios(mitad) + texto + Espacios(mitad);
        }
        case 2:
            return texto + Espacios(relleno);
        default:
            return texto;
    }
}

}  // namespace

std::string AlinearTexto(const std::string& texto, float ancho, int32_t alineacion, bool cortar) {
    try {
        const int32_t n = CLng(ancho);
        std::string resultado = Trim(SinSaltosDeLinea(texto));
        if (Len(resultado) > n && cortar) {
            if (n < 0) {
                throw RuntimeError::DelRuntime(errores::LlamadaNoValida);
            }
            resultado = Mid(resultado, 1, n);
        }
        const int32_t largo = Len(resultado);
        if (largo < n) {
            resultado = Rellenar(resultado, n - largo, alineacion);
        }
        const int32_t falta = n - Len(resultado);
        return falta > 0 ? resultado + Espacios(falta) : resultado;
    } catch (const RuntimeError&) {
        return Trim(texto);
    }
}

}  // namespace kelvora
