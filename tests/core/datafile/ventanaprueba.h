#pragma once

#include "core/datafile/dialogosarchivo.h"
#include "core/datafile/ventanaarchivo.h"

#include <deque>
#include <filesystem>
#include <optional>
#include <string>
#include <vector>

namespace kelvora::prueba {

/// A window with public members, as a test sets and reads them.
class VentanaPrueba : public VentanaArchivo {
public:
    std::string Tag() const override { return tag; }
    std::string Caption() const override { return caption; }
    std::string FileName() const override { return fileName; }
    void SetFileName(const std::string& nombre) override { fileName = nombre; }
    int16_t FileState() const override { return fileState; }
    void SetFileState(int16_t estado) override { fileState = estado; }
    int16_t TipoAnalisis() const override { return tipoAnalisis; }
    classUnidades* Unit() override { return &unit; }
    void ShowVariables() override { ++mostradas; }
    Grilla GrillaListado() const override { return grilla; }
    void GuardarImagen(const std::string& archivo) const override;

    std::string tag = "0";
    std::string caption = "Ventana [1]";
    std::string fileName;
    int16_t fileState = 0;
    int16_t tipoAnalisis = 0;
    classUnidades unit;
    int mostradas = 0;
    Grilla grilla;
    std::string imagen;
};

/// Answers the file dialogs from a script (cancel once it is used up) and records them.
class DialogosGuion : public DialogosArchivo {
public:
    std::optional<std::string> Abrir(const OpcionesDialogo& opciones) override;
    std::optional<std::string> Guardar(const OpcionesDialogo& opciones) override;

    std::deque<std::optional<std::string>> nombres;
    std::vector<OpcionesDialogo> abiertos;
    std::vector<OpcionesDialogo> guardados;

private:
    std::optional<std::string> Siguiente();
};

/// A folder of its own, removed at the end.
class CarpetaTemporal {
public:
    CarpetaTemporal();
    ~CarpetaTemporal();
    CarpetaTemporal(const CarpetaTemporal&) = delete;
    CarpetaTemporal& operator=(const CarpetaTemporal&) = delete;

    std::string Ruta(const std::string& nombre) const;
    std::filesystem::path carpeta;
};

/// The bytes of a file; empty when it does not exist.
std::string LeerBytes(const std::string& ruta);
void EscribirBytes(const std::string& ruta, const std::string& bytes);

/// Every record of a list as "Name=Value Unit", in order.
std::vector<std::string> Volcado(const classUnidades& lista);

}  // namespace kelvora::prueba
