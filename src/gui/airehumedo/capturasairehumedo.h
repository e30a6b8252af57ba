#pragma once

#include <QWidget>

#include <functional>

namespace kelvora {

/// Opens the cold flat example in a frame of MarcoCapturas, then the moist-air window, types a
/// dry bulb and a relative humidity into it and gives its framed window, to be pictured.
std::function<QWidget*(QWidget&)> AireHumedoCaptura();

}  // namespace kelvora
