#pragma once

#include <string>

namespace kelvora {

/// Per-user store of string values by application, section and key.
class SettingsStore {
public:
    virtual ~SettingsStore() = default;

    virtual std::string GetSetting(const std::string& aplicacion, const std::string& seccion,
                                   const std::string& clave, const std::string& predeterminado) = 0;
    virtual void SaveSetting(const std::string& aplicacion, const std::string& seccion,
                             const std::string& clave, const std::string& valor) = 0;
};

}  // namespace kelvora
