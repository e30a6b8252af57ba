#include "core/units/convertircampo.h"

#include "core/app/contexto.h"
#include "core/runtime/formato.h"
#include "core/runtime/numeros.h"
#include "core/runtime/runtimeerror.h"
#include "core/runtime/texto.h"
#include "core/units/unidades.h"

namespace kelvora {

namespace {

void AvisarError(const RuntimeError& error, Prompter& prompter) {
    Mensaje mensaje;
    mensaje.texto = "Error de Conversión de Unidades: " + error.description;
    mensaje.icono = Icono::Critico;
    mensaje.titulo = kTituloAplicacion;
    prompter.MsgBox(mensaje);
}

std::string Formateado(double valor, const char* patron) {
    std::string texto = Format(valor, patron);
    return NormalizarDecimal(texto);
}

// Two decimals, unless they would show a non-zero value as 0.
std::string TextoConvertido(double valor) {
    const std::string fijo = Formateado(valor, "0.0#");
    if (valor != 0 && Val(fijo) == 0) {
        return Formateado(valor, "Scientific");
    }
    return fijo;
}

}  // namespace

std::string ConvertirCampo(const std::string& origen, const std::string& desde,
                           const std::string& hasta, Prompter& prompter) {
    if (!IsNumeric(origen)) {
        return "";
    }
    try {
        return TextoConvertido(classUnidades().Convert(Val(origen), desde, hasta));
    } catch (const RuntimeError& error) {
        AvisarError(error, prompter);
        return "Error";
    }
}

}  // namespace kelvora
