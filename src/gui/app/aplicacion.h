#pragma once

namespace kelvora {

/// The program's start-up and event loop; returns the process's exit code.
int EjecutarAplicacion(int argc, char** argv);

}  // namespace kelvora
