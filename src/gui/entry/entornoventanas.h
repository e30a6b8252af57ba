#pragma once

#include <functional>
#include <string>
#include <vector>

class QWidget;

namespace kelvora {

class FuenteTubos;
class Prompter;
struct ContextoAplicacion;

/// What the data entry and results windows take from the program.
struct EntornoVentanas {
    ContextoAplicacion& contexto;
    Prompter& prompter;
    /// Pipe rows of the pipe calculations.
    FuenteTubos& tubos;
    /// Places a new window in the frame, shows it and brings it to the top.
    std::function<void(QWidget* ventana)> AgregarHija;
    /// The captions of every loaded window, to number a new one.
    std::function<std::vector<std::string>()> Captions;
    /// Offers to save a window before it closes; false stops the closing.
    std::function<bool(QWidget* ventana)> PreguntarGuardar;
    /// Shows the material query window in selection mode, to fill a code box of `llamador`.
    std::function<void(QWidget* llamador, int cajaCodigo)> ConsultarMateriales = {};
};

/// The caption of a new window: its design caption trimmed, " [", the lowest free number, "]".
std::string CaptionNumerado(const std::string& caption, const EntornoVentanas& entorno);

}  // namespace kelvora
