#include "core/platform/settingsmemoria.h"

namespace kelvora {

std::string SettingsEnMemoria::GetSetting(const std::string& aplicacion, const std::string& seccion,
                                          const std::string& clave,
                                          const std::string& predeterminado) {
    const auto valor = mValores.find({aplicacion, seccion, clave});
    return valor == mValores.end() ? predeterminado : valor->second;
}

void SettingsEnMemoria::SaveSetting(const std::string& aplicacion, const std::string& seccion,
                                    const std::string& clave, const std::string& valor) {
    mValores[{aplicacion, seccion, clave}] = valor;
}

}  // namespace kelvora
