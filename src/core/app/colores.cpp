#include "core/app/colores.h"

namespace kelvora {

TablaColores LlenarColores(const ColoresSistema& sistema) {
    return {0,
            sistema.caraBoton,
            sistema.fondoInfo,
            sistema.fondoVentana,
            RGB(0, 0, 255),
            RGB(192, 192, 192),
            RGB(102, 204, 255)};
}

}  // namespace kelvora
