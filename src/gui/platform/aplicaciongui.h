#pragma once

namespace kelvora {

/// Fonts and painting need a Qt application: starts a windowless one, on the offscreen platform
/// when no other is asked for, if the program has none.
void AsegurarAplicacionGui();

}  // namespace kelvora
