#include "gui/app/aplicacion.h"

int main(int argc, char** argv) {
    return kelvora::EjecutarAplicacion(argc, argv);
}
