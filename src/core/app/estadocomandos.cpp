#include "core/app/estadocomandos.h"

#include "core/runtime/numeros.h"

#include <cmath>

namespace kelvora {

namespace {

// A kind is a whole number; a Tag that is not a number reads as 0, no kind.
bool ClaseEntre(std::string_view tag, int desde, int hasta) {
    const double clase = Val(tag);
    return clase == std::floor(clase) && clase >= desde && clase <= hasta;
}

}  // namespace

bool PuedeGuardar(std::string_view tag) {
    return ClaseEntre(tag, 1, 16);
}

bool PuedeImprimir(std::string_view tag) {
    return ClaseEntre(tag, 1, 16);
}

bool PuedeGraficar(std::string_view tag) {
    return ClaseEntre(tag, 1, 1) || ClaseEntre(tag, 5, 5);
}

EstadoComandos CalcularEstadoComandos(const std::optional<std::string>& tagActiva,
                                      const std::string& impresora) {
    EstadoComandos estado;
    if (!tagActiva) {
        return estado;
    }
    estado.imprimir = PuedeImprimir(*tagActiva) && !impresora.empty();
    estado.guardar = PuedeGuardar(*tagActiva);
    estado.cerrar = true;
    return estado;
}

std::string TooltipImprimir(const std::string& impresora) {
    return "Imprimir (" + impresora + ")";
}

bool EsVentanaDatosEntrada(std::string_view nombre) {
    return nombre.starts_with("frmDatosEntrada");
}

std::string TituloListaVentanas(int numero, std::string_view titulo) {
    std::string texto = "&" + std::to_string(numero) + " ";
    for (const char c : titulo) {
        texto += c == '&' ? std::string("&&") : std::string(1, c);
    }
    return texto;
}

}  // namespace kelvora
