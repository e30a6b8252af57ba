#pragma once

#include "core/platform/archivodibujo.h"

#include <functional>
#include <memory>

namespace kelvora::cli {

/// A drawing into the file of the request, through the drawing library beside the executable,
/// loaded on the first call; nullptr, after a message on standard error, when it cannot be had.
std::unique_ptr<ArchivoDibujo> AbrirArchivoDibujo(const PedidoDibujo& pedido);

/// Draws with `dibujar` into the file and saves it; false after a message on standard error.
bool DibujarArchivo(const PedidoDibujo& pedido, const std::function<void(Surface&)>& dibujar);

}  // namespace kelvora::cli
