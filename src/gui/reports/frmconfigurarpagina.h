#pragma once

#include <QDialog>

#include <memory>

class QLineEdit;

namespace Ui {
class frmConfigurarPagina;
}

namespace kelvora {

class ArribaAbajo;
class SettingsStore;
struct ConfiguracionPagina;
struct ContextoAplicacion;

/// Page setup: margins in centimetres with their up-down controls, alignment, paper,
/// orientation and the report font, with a sample of the sheet. An up-down control puts its
/// margin in force at once, so Cancelar restores nothing; Aceptar takes every control and saves
/// the options.
class frmConfigurarPagina : public QDialog {
    Q_OBJECT

public:
    frmConfigurarPagina(ContextoAplicacion& contexto, SettingsStore& ajustes,
                        QWidget* padre = nullptr);
    ~frmConfigurarPagina() override;

protected:
    bool eventFilter(QObject* objeto, QEvent* evento) override;

private:
    struct Margen {
        QLineEdit* txt;
        ArribaAbajo* upd;
        float ConfiguracionPagina::*valor;
    };

    void Cargar();
    void ConectarMargen(const Margen& margen);
    ConfiguracionPagina DeLosControles() const;
    void DibujarMuestra();
    void cmdAceptar_Click();
    void cmdFormatoFuente_Click();

    std::unique_ptr<Ui::frmConfigurarPagina> mUi;
    ContextoAplicacion& mContexto;
    SettingsStore& mAjustes;
    std::vector<Margen> mMargenes;
};

}  // namespace kelvora
