#include "core/entry/consultaemisividad.h"

#include "core/entry/modeloentrada.h"
#include "core/runtime/formato.h"
#include "core/runtime/numeros.h"
#include "core/runtime/texto.h"

namespace kelvora {

namespace {

constexpr const char* kTitulo = "Emisividad";

void Avisar(Prompter& prompter, const char* texto) {
    Mensaje mensaje;
    mensaje.texto = texto;
    mensaje.icono = Icono::Exclamacion;
    mensaje.titulo = kTitulo;
    prompter.MsgBox(mensaje);
}

// The typed value, asked again until it is a number from 0 to 1; nothing when left empty.
std::optional<double> PedirEmisividad(Prompter& prompter, const BotonMaterial& boton) {
    Entrada entrada;
    entrada.mensaje =
            std::string("Ingrese el valor de la Emisividad de la ") + boton.palabras + ":";
    entrada.titulo = kTitulo;
    while (true) {
        const std::string respuesta = Trim(prompter.InputBox(entrada).value_or(""));
        if (respuesta.empty()) {
            return std::nullopt;
        }
        if (!IsNumeric(respuesta)) {
            Avisar(prompter, "Por favor ingrese un valor numérico.");
        } else if (Val(respuesta) < 0 || Val(respuesta) > 1) {
            Avisar(prompter, "El valor de la Emisividad debe estar entre 0 y 1.");
        } else {
            return Val(respuesta);
        }
    }
}

}  // namespace

void ConsultarEmisividad(ModeloEntrada& ventana, int boton) {
    const BotonMaterial& material = ventana.Ventana().materiales.at(static_cast<size_t>(boton - 1));
    EntornoEntrada& entorno = ventana.Entorno();
    if (entorno.contexto.BDDisponible && entorno.contexto.LeerEmisividadBD) {
        if (entorno.ConsultarMateriales) {
            entorno.ConsultarMateriales(material.cajaCodigo);
        }
        return;
    }
    const std::optional<double> valor = PedirEmisividad(entorno.prompter, material);
    if (!valor) {
        return;
    }
    // The code first: its change empties the emissivity box when LeerEmisividadBD is on.
    ventana.SetTexto(material.cajaCodigo, "0");
    std::string texto = Format(*valor, "0.0##");
    ventana.SetTexto(material.cajaEmisividad, NormalizarDecimal(texto));
}

}  // namespace kelvora
