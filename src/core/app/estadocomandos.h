#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace kelvora {

/// True when a window's Tag is a kind from 1 to 16: it has something to save.
bool PuedeGuardar(std::string_view tag);
/// True when a window's Tag is a kind from 1 to 16: it has something to print.
bool PuedeImprimir(std::string_view tag);
/// True for the kinds whose entry window can be charted: 1 and 5.
bool PuedeGraficar(std::string_view tag);

/// What the frame's File commands and toolbar allow at a given moment.
struct EstadoComandos {
    /// Imprimir, Vista preliminar and their two toolbar buttons.
    bool imprimir = false;
    /// Guardar, Guardar como and the toolbar's Guardar.
    bool guardar = false;
    /// Cerrar and Cerrar todo.
    bool cerrar = false;
};

/// The state of the commands for the active child's Tag (none when there is no child) and
/// the default printer's name (empty when there is no printer).
EstadoComandos CalcularEstadoComandos(const std::optional<std::string>& tagActiva,
                                      const std::string& impresora);

/// Tool tip of the toolbar's print button: "Imprimir (" + printer + ")".
std::string TooltipImprimir(const std::string& impresora);

/// True for the data entry windows, whose emissivity boxes follow the database option.
bool EsVentanaDatosEntrada(std::string_view nombre);

/// Caption of a child in the window menu: "&1 " + caption, with its own "&" kept as text.
std::string TituloListaVentanas(int numero, std::string_view titulo);

}  // namespace kelvora
