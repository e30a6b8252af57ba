#include "core/datafile/archivobytes.h"
#include "ejemplos.h"

#include <gtest/gtest.h>

namespace kelvora {
namespace {

// The delivered examples are exactly what the data file writer gives for them.
TEST(Ejemplos, SonLosDelEscritor) {
    const std::vector<prueba::ArchivoEjemplo> ejemplos = prueba::ArchivosEjemplo();
    EXPECT_EQ(ejemplos.size(), 14u);
    for (const prueba::ArchivoEjemplo& ejemplo : ejemplos) {
        EXPECT_EQ(LeerBytesArchivo(std::string(KELVORA_EJEMPLOS) + "/" + ejemplo.nombre),
                  ejemplo.bytes)
                << ejemplo.nombre << ": tests/core/entry/generar_ejemplos los vuelve a escribir";
    }
}

}  // namespace
}  // namespace kelvora
