#pragma once

#include "core/platform/settingsstore.h"

#include <map>
#include <string>
#include <tuple>

namespace kelvora {

/// Settings kept in memory for one run: the command line, screenshots and benchmarks read and
/// write no user file.
class SettingsEnMemoria : public SettingsStore {
public:
    std::string GetSetting(const std::string& aplicacion, const std::string& seccion,
                           const std::string& clave, const std::string& predeterminado) override;
    void SaveSetting(const std::string& aplicacion, const std::string& seccion,
                     const std::string& clave, const std::string& valor) override;

private:
    std::map<std::tuple<std::string, std::string, std::string>, std::string> mValores;
};

}  // namespace kelvora
