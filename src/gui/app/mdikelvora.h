#pragma once

#include "gui/app/fabricaventanas.h"

#include <QMainWindow>
#include <QPointer>

#include <memory>
#include <string>

class QMdiArea;
class QMdiSubWindow;

namespace Ui {
class mdiKelvora;
}

namespace kelvora {

class BarraEstado;
class Clock;
class SettingsStore;
struct ContextoAplicacion;

/// The main window: a multiple-document frame with the menus, the toolbar and the status bar,
/// owner of every child window. What the commands do is given by a FabricaVentanas; what a
/// child allows is read from its properties (ventanahija.h).
class mdiKelvora : public QMainWindow {
    Q_OBJECT

public:
    mdiKelvora(ContextoAplicacion& contexto, SettingsStore& ajustes, Clock& reloj,
               QWidget* padre = nullptr);
    ~mdiKelvora() override;

    /// Plugs in the windows of the other subsystems and enables the commands they provide.
    void PonerFabrica(FabricaVentanas fabrica);
    /// The splash window, kept out of the way while a file from outside is opened.
    void PonerSplash(QWidget* splash);

    /// Places a window in the frame as a child and shows it. The child is deleted when it
    /// closes, and a child that closes itself (`close()`) takes its sub-window with it.
    QMdiSubWindow* AgregarHija(QWidget* ventana);
    /// The active child, or nullptr.
    QWidget* VentanaActiva() const;
    /// Every child, in the order they were placed.
    QList<QWidget*> VentanasHijas() const;

    /// The one door for files that come from outside the File menu: the command line, a
    /// second instance, a drop on the frame.
    void AbrirArchivoInicio(const std::string& archivo);
    /// Puts a file at the head of the recent list and rebuilds its menu entries.
    void AgregarArchivoReciente(const std::string& archivo);
    /// Brings menus and toolbar into line with the active child.
    void Actualizar();
    /// The closing for a system reason (end of session): no child is asked to save.
    void CerrarSinPreguntas();

protected:
    void closeEvent(QCloseEvent* evento) override;
    void changeEvent(QEvent* evento) override;
    void dragEnterEvent(QDragEnterEvent* evento) override;
    void dropEvent(QDropEvent* evento) override;
    bool eventFilter(QObject* objeto, QEvent* evento) override;

private:
    void ConectarArchivo();
    void ConectarProductos();
    void ConectarHerramientas();
    void ConectarVentana();
    void ConectarAyuda();
    void ConectarOpcion(QAction* accion, bool ContextoAplicacion::*opcion);
    void HabilitarComandosFijos();
    void ConectarReciente(QAction* accion);
    void ActualizarRecientes();
    void ActualizarGraficar();
    void ActualizarHerramientas();
    void ActualizarListaVentanas();
    void OrganizarMosaico(bool horizontal);
    void AbrirArchivo();
    void GuardarActiva(bool comoNuevo);
    void ImprimirActiva(bool directa);
    void GraficarActiva(int tipo);
    void MostrarAcercaDe();
    bool PreguntarAHijas();

    std::unique_ptr<Ui::mdiKelvora> mUi;
    ContextoAplicacion& mContexto;
    SettingsStore& mAjustes;
    BarraEstado* mBarra;
    FabricaVentanas mFabrica;
    QPointer<QWidget> mSplash;
    QList<QAction*> mRecientes;
    QList<QAction*> mListaVentanas;
    bool mCierreSistema = false;
};

}  // namespace kelvora
