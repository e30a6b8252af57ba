#pragma once

#include "core/app/contexto.h"
#include "core/platform/settingsstore.h"

namespace kelvora {

/// Reads the three options and the page settings from the settings store.
void LeerOpciones(ContextoAplicacion& contexto, SettingsStore& ajustes);
/// Writes the same fourteen keys, in the same order.
void GuardarOpciones(const ContextoAplicacion& contexto, SettingsStore& ajustes);

}  // namespace kelvora
