#pragma once

#include "core/datafile/dialogosarchivo.h"
#include "core/datafile/entornoarchivos.h"
#include "core/datafile/ventanaarchivo.h"

#include <cstdint>
#include <functional>
#include <optional>
#include <string>

namespace kelvora {

/// The data entry windows.
enum class VentanaEntrada {
    SuperficiesPlanas,
    SuperficiesCilindricas,
    SuperficiesPlanasFrio,
    SuperficiesCilindricasFrio
};

/// The entry window of a product code: 1 to 7 flat hot, 8 to 12 pipes hot, 13 flat cold, 14
/// pipes cold; nullopt for any other code.
std::optional<VentanaEntrada> VentanaEntradaDeTipo(int16_t Tipo);

/// Creates and shows a new entry window of that kind for the product code, and returns it
/// (the caller keeps it); nullptr when none was made.
using CrearVentanaDatos = std::function<VentanaArchivo*(VentanaEntrada ventana, int16_t Tipo)>;

/// Reads a data file into the context's Unidades, checks it, and hands it to a new entry window
/// of its Tipo, which gets a copy of the list, shows it and belongs to the file from then on
/// (FileState 1); Unidades is emptied and the file heads the recent files. After a failure,
/// shown with "Error: " and its description, or a check that stops the load, Unidades keeps
/// what was read. True when a window took the file.
bool LeerArchivo(const std::string& nombre, EntornoArchivos& entorno,
                 const CrearVentanaDatos& crear);

/// The Open command: asks for a data file, starting in the program's folder, and reads it.
void AbrirArchivo(EntornoArchivos& entorno, DialogosArchivo& dialogos,
                  const CrearVentanaDatos& crear);

/// The filter of the data files in the Open and Save dialogs.
inline constexpr const char* kFiltroDatos =
        "Archivo de datos Kelvora (*.adk)|*.adk|Archivos de Texto (*.txt)|*.txt|Todos los "
        "Archivos (*.*)|*.*";

}  // namespace kelvora
