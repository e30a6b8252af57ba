#include "core/platform/disco.h"

#include <fcntl.h>
#include <unistd.h>

namespace kelvora {

bool SincronizarConDisco(const std::filesystem::path& ruta) {
    const int descriptor = ::open(ruta.c_str(), O_RDONLY | O_CLOEXEC);
    if (descriptor < 0) {
        return false;
    }
    const bool bien = ::fsync(descriptor) == 0;
    return ::close(descriptor) == 0 && bien;
}

}  // namespace kelvora
