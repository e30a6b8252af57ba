#include "core/materials/creacionbd.h"
#include "core/runtime/runtimeerror.h"

#include <iostream>

// Build step: creates the delivered database from the seed folder unless the file exists,
// so a rebuild keeps the materials the user added or changed.
int main(int argc, char** argv) {
    if (argc != 3) {
        std::cerr << "Uso: kelvora-crear-bd ARCHIVO.mdb CARPETA_SEMILLA\n";
        return 2;
    }
    try {
        if (kelvora::CrearBaseDatosSiFalta(argv[1], argv[2])) {
            std::cout << "Base de datos creada: " << argv[1] << '\n';
        }
        return 0;
    } catch (const kelvora::RuntimeError& error) {
        std::cerr << "No se pudo crear " << argv[1] << ": " << error.description << '\n';
        return 1;
    }
}
