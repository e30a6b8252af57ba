#include "core/app/arranque.h"

#include "core/app/opciones.h"
#include "core/materials/sondabd.h"
#include "core/runtime/texto.h"

#include <filesystem>
#include <system_error>

namespace kelvora {

std::string ArchivoDeLineaComandos(const std::string& lineaComandos) {
    return LimpiarTexto(lineaComandos, "\"");
}

bool IniciarContexto(ContextoAplicacion& contexto, const std::string& carpetaEjecutable,
                     SettingsStore& ajustes, const ColoresSistema& sistema, Prompter& prompter) {
    DerivarRutas(contexto, carpetaEjecutable);
    std::error_code ignorado;
    std::filesystem::create_directories(contexto.RutaDatos, ignorado);
    if (!ProbarBaseDatos(contexto, prompter)) {
        return false;
    }
    LeerOpciones(contexto, ajustes);
    contexto.Colores = LlenarColores(sistema);
    return true;
}

}  // namespace kelvora
