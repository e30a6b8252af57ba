#include "core/verificacion/modeloverificacion.h"

#include "core/app/contexto.h"
#include "core/platform/prompter.h"
#include "core/runtime/runtimeerror.h"
#include "core/runtime/texto.h"
#include "core/thermal/productos.h"
#include "core/verificacion/informeverificacion.h"

#include <charconv>
#include <cmath>
#include <optional>
#include <utility>

namespace kelvora {

namespace {

// The whole text, decimal comma or point, as a number; nullopt when it is not one.
std::optional<double> Numero(std::string texto) {
    NormalizarDecimal(texto);
    double valor = 0;
    const char* fin = texto.data() + texto.size();
    const auto [resto, error] = std::from_chars(texto.data(), fin, valor);
    if (texto.empty() || error != std::errc() || resto != fin) {
        return std::nullopt;
    }
    return valor;
}

// The file or number in brackets at the end of a window's caption, brackets included.
std::string Corchetes(const std::string& caption) {
    const size_t inicio = caption.rfind('[');
    return inicio == std::string::npos ? std::string() : " " + caption.substr(inicio);
}

}  // namespace

ModeloVerificacion::ModeloVerificacion(DatosVerificacion datos, const std::string& origen,
                                       Prompter& prompter)
    : mDatos(std::move(datos)),
      mPrompter(prompter),
      mCaption("Verificación - " + NombreProducto(mDatos.producto, false) + Corchetes(origen)) {
}

bool ModeloVerificacion::Calcular(const std::string& longitud) {
    const std::optional<double> L = Numero(longitud);
    if (!L || !(*L > 0) || !std::isfinite(*L)) {
        Avisar("La longitud característica debe ser un número mayor que 0, en metros.");
        return false;
    }
    try {
        Verificacion verificacion = Verificar(mDatos, *L);
        mInforme = InformeVerificacion(verificacion);
        mResultado = std::move(verificacion);
    } catch (const RuntimeError& error) {
        Avisar(error.description);
        return false;
    }
    mInforme.Caption = mCaption;
    return true;
}

void ModeloVerificacion::Avisar(const std::string& texto) {
    Mensaje mensaje;
    mensaje.texto = texto;
    mensaje.icono = Icono::Exclamacion;
    mensaje.titulo = kTituloAplicacion;
    mPrompter.MsgBox(mensaje);
}

}  // namespace kelvora
