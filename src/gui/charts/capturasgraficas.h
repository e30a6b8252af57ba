#pragma once

#include <QWidget>

#include <functional>

namespace kelvora {

/// Opens an example data file in a frame of MarcoCapturas, asks for chart `tipo` with the
/// window's "&Graficar" menu and shows tab `pestana` (0 the chart, 1 the table); gives the
/// framed chart window, to be pictured.
std::function<QWidget*(QWidget&)> GraficaEjemplo(const char* archivo, int tipo, int pestana);

}  // namespace kelvora
