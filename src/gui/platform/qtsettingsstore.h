#pragma once

#include "core/platform/settingsstore.h"

#include <QString>

namespace kelvora {

/// The settings store as a per-user INI file of QSettings.
class QtSettingsStore : public SettingsStore {
public:
    /// With an empty path, the per-user file of the application; otherwise that file.
    explicit QtSettingsStore(QString archivo = {});

    std::string GetSetting(const std::string& aplicacion, const std::string& seccion,
                           const std::string& clave, const std::string& predeterminado) override;
    void SaveSetting(const std::string& aplicacion, const std::string& seccion,
                     const std::string& clave, const std::string& valor) override;

private:
    QString mArchivo;
};

}  // namespace kelvora
