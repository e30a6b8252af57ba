#pragma once

#include <string>
#include <vector>

namespace kelvora::prueba {

/// An example project: its file name and the bytes the data file writer gives for it.
struct ArchivoEjemplo {
    std::string nombre;
    std::string bytes;
};

/// One example project per product, as the entry windows would save them.
std::vector<ArchivoEjemplo> ArchivosEjemplo();

}  // namespace kelvora::prueba
