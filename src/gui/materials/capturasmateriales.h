#pragma once

#include "core/app/contexto.h"
#include "core/platform/prompter.h"

#include <QWidget>

#include <functional>
#include <memory>

namespace kelvora {

/// Opens the material list in a frame of MarcoCapturas, as its menu command does, and gives
/// its framed window, to be pictured.
std::function<QWidget*(QWidget&)> AbrirConsultaMaterialesCaptura();

/// The insert window as the menu opens it, with the database beside the executable, and a row
/// typed in.
std::unique_ptr<QWidget> InsertarMaterialCaptura(ContextoAplicacion& contexto, Prompter& prompter);

/// The same for the environment of a picture, with the members of those names.
template <class Entorno>
std::unique_ptr<QWidget> InsertarMaterialCaptura(Entorno& e) {
    return InsertarMaterialCaptura(e.contexto, *e.prompter);
}

}  // namespace kelvora
