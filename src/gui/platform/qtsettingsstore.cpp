#include "gui/platform/qtsettingsstore.h"

#include "gui/platform/texto.h"

#include <QSettings>

#include <memory>

namespace kelvora {

namespace {

std::unique_ptr<QSettings> Abrir(const QString& archivo, const std::string& aplicacion) {
    if (archivo.isEmpty()) {
        return std::make_unique<QSettings>(QSettings::IniFormat, QSettings::UserScope,
                                           Q(aplicacion), Q(aplicacion));
    }
    return std::make_unique<QSettings>(archivo, QSettings::IniFormat);
}

QString Ruta(const std::string& seccion, const std::string& clave) {
    return Q(seccion) + '/' + Q(clave);
}

}  // namespace

QtSettingsStore::QtSettingsStore(QString archivo) : mArchivo(std::move(archivo)) {
}

std::string QtSettingsStore::GetSetting(const std::string& aplicacion, const std::string& seccion,
                                        const std::string& clave,
                                        const std::string& predeterminado) {
    const auto ajustes = Abrir(mArchivo, aplicacion);
    return S(ajustes->value(Ruta(seccion, clave), Q(predeterminado)).toString());
}

void QtSettingsStore::SaveSetting(const std::string& aplicacion, const std::string& seccion,
                                  const std::string& clave, const std::string& valor) {
    const auto ajustes = Abrir(mArchivo, aplicacion);
    ajustes->setValue(Ruta(seccion, clave), Q(valor));
}

}  // namespace kelvora
