#pragma once

#include <optional>
#include <string>

namespace kelvora {

/// Buttons of a message box, as the runtime's MsgBox knows them.
enum class Botones {
    Aceptar,
    AceptarCancelar,
    AnularReintentarIgnorar,
    SiNoCancelar,
    SiNo,
    ReintentarCancelar
};

enum class Icono { Ninguno, Critico, Pregunta, Exclamacion, Informacion };

enum class Respuesta { Aceptar, Cancelar, Anular, Reintentar, Ignorar, Si, No };

/// A message box as the program asks for it.
struct Mensaje {
    std::string texto;
    Botones botones = Botones::Aceptar;
    Icono icono = Icono::Ninguno;
    std::string titulo;
    /// Help topic of the Ayuda button; 0 means no help button.
    int contextoAyuda = 0;
    /// 1-based default button.
    int botonPredeterminado = 1;
    bool modalSistema = false;
};

/// An input box as the program asks for it.
struct Entrada {
    std::string mensaje;
    std::string titulo;
    std::string valorInicial;
};

/// Message and input boxes.
class Prompter {
public:
    virtual ~Prompter() = default;

    virtual Respuesta MsgBox(const Mensaje& mensaje) = 0;
    /// The typed text, or nullopt when the box was cancelled.
    virtual std::optional<std::string> InputBox(const Entrada& entrada) = 0;
};

/// Button names in the order they stand ("Sí,No,Cancelar"), with ",Ayuda" when there is help.
std::string NombreBotones(const Mensaje& mensaje);
/// The button that goes on: Aceptar, Sí or Reintentar.
Respuesta RespuestaQueSigue(Botones botones);
/// The icon's name in the command line's listings ("exclamacion", "critico", ...).
std::string NombreIcono(Icono icono);

}  // namespace kelvora
