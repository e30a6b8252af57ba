#include "core/datafile/archivobytes.h"
#include "core/runtime/runtimeerror.h"
#include "ejemplos.h"

#include <iostream>

// Writes the example projects into the folder given as the only argument.
int main(int argc, char** argv) {
    if (argc != 2) {
        std::cerr << "Uso: generar_ejemplos CARPETA\n";
        return 2;
    }
    try {
        for (const kelvora::prueba::ArchivoEjemplo& ejemplo : kelvora::prueba::ArchivosEjemplo()) {
            kelvora::EscribirBytesArchivo(std::string(argv[1]) + "/" + ejemplo.nombre,
                                          ejemplo.bytes);
        }
    } catch (const kelvora::RuntimeError& error) {
        std::cerr << "Error " << error.number << ": " << error.description << '\n';
        return 1;
    }
    return 0;
}
