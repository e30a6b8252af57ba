#pragma once

#include "core/datafile/ventanaarchivo.h"
#include "core/entry/modeloentrada.h"

namespace kelvora {

/// A data entry window as opening and saving files see it.
class VentanaDatosArchivo : public VentanaArchivo {
public:
    explicit VentanaDatosArchivo(ModeloEntrada& modelo) : mModelo(modelo) {}

    std::string Tag() const override { return mModelo.Tag(); }
    std::string Caption() const override { return mModelo.Caption(); }
    std::string FileName() const override { return mModelo.FileName(); }
    void SetFileName(const std::string& nombre) override { mModelo.SetFileName(nombre); }
    int16_t FileState() const override;
    void SetFileState(int16_t estado) override { mModelo.SetFileState(estado); }
    int16_t TipoAnalisis() const override;
    classUnidades* Unit() override { return &mModelo.Unit(); }
    void ShowVariables() override { mModelo.ShowVariables(); }

private:
    ModeloEntrada& mModelo;
};

}  // namespace kelvora
