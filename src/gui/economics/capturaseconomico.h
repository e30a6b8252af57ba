#pragma once

#include <QWidget>

#include <functional>

namespace kelvora {

/// Opens an example data file in a frame of MarcoCapturas, computes it, opens its economic
/// window from the results, fills it with a typical case and computes it; gives the framed
/// economic window, to be pictured.
std::function<QWidget*(QWidget&)> AnalisisEconomicoEjemplo(const char* archivo);

}  // namespace kelvora
