#pragma once

#include "core/app/contexto.h"
#include "core/materials/formularioconsulta.h"
#include "core/materials/grillamateriales.h"
#include "core/platform/prompter.h"
#include "core/reports/grilla.h"

#include <cstdint>
#include <functional>
#include <optional>
#include <string>

namespace kelvora {

class RuntimeError;

/// The data entry window that waits for a material code.
class LlamadorConsulta {
public:
    virtual ~LlamadorConsulta() = default;

    /// Box `caja` of the caller takes the text, as a change of the box, so that the caller
    /// looks the material up.
    virtual void PonerTexto(int caja, const std::string& texto) = 0;
};

/// What the material query window takes from outside.
struct EntornoConsulta {
    Prompter& prompter;
    /// Its connection string.
    const ContextoAplicacion& contexto;
    /// Shows the insert window modally: to modify the row of these cells, or to insert.
    std::function<void(const std::optional<CeldasMaterial>& fila)> MostrarInsertarMaterial;
    /// Closes the window.
    std::function<void()> Cerrar;
};

/// The material query window, `frmConsultarMateriales`: the query form, the results grid and
/// the choice of a code for a caller, or the maintenance of the list (modify, new, delete).
/// One lives for the whole program, like the window's public values; `Form_Load` resets the
/// controls each time the window is made again.
class ModeloConsultaMateriales {
public:
    /// The first code that may be deleted; the delivered rows lie below it.
    static constexpr int32_t kPrimerCodigoEliminable = 18;

    explicit ModeloConsultaMateriales(EntornoConsulta entorno);

    /// The controls as the window is loaded: the form as new, the grid empty, "Mostrar
    /// to&dos" shown, no row selected.
    void Form_Load();

    /// The data entry hook: this caller waits for a code for its box `caja`; the list loads
    /// its default at the next activation if nothing said otherwise yet.
    void AbrirParaSeleccion(LlamadorConsulta* llamador, int16_t caja);
    /// The menu command: the list loads its default at the next activation if nothing said
    /// otherwise yet.
    void AbrirMantenimiento();
    /// The caller is gone.
    void OlvidarLlamador(const LlamadorConsulta* llamador);

    int16_t Modo() const { return mModo; }
    const LlamadorConsulta* Llamador() const { return mLlamador; }
    std::optional<bool> Reiniciar() const { return mReiniciar; }
    /// The statement of the last `ExecuteSQL`, kept for re-runs.
    const std::string& UltimaSentencia() const { return mSentencia; }

    FormularioConsulta& Formulario() { return mFormulario; }
    const FormularioConsulta& Formulario() const { return mFormulario; }
    const Grilla& MSFGResultados() const { return mGrilla; }
    bool cmdMostrarTodoVisible() const { return mMostrarTodoVisible; }
    bool cmdConsultarEnabled() const { return mFormulario.ConsultarHabilitado(); }
    const std::string& cmdAceptarCaption() const { return mAceptarCaption; }
    const std::string& cmdAceptarToolTipText() const { return mAceptarToolTip; }
    bool cmdAceptarEnabled() const { return mBotonesHabilitados; }
    bool cmdNuevoEnabled() const { return mBotonesHabilitados; }

    /// The selected rows: `Row` where the selection began, `RowSel` where it ends.
    int Row() const { return mRow; }
    int RowSel() const { return mRowSel; }
    void SetSeleccion(int row, int rowSel);

    /// Fills the grid with the rows of a statement; an empty statement does nothing.
    void ExecuteSQL(const std::string& sql);
    void cmdConsultar_Click();
    void cmdMostrarTodo_Click();
    /// The activation: re-runs the query, or loads the default list or the last statement;
    /// sets the buttons by the mode and selects row 1. The window then puts the focus on the
    /// grid and sends one {TAB}.
    void Activar();
    /// Double click, Enter in the grid, `cmdAceptar`: the code to the caller, or modify.
    void Aceptar();
    /// Ctrl+M: the insert window on the selected row, then the activation.
    void Modificar();
    void cmdNuevo_Click();
    /// The Delete key in the grid: the selected rows after a question, but never one with a
    /// code below 18.
    void Eliminar();

private:
    bool UnaFilaSeleccionada() const;
    std::string SentenciaPredeterminada() const;
    void LlenarGrilla(const std::string& sql);
    void EliminarFilas(int desde, int hasta);
    bool Preguntar(const std::string& texto);
    void Avisar(const std::string& texto, Icono icono);
    void AvisarError(const RuntimeError& error);

    EntornoConsulta mEntorno;
    int16_t mModo = 0;
    LlamadorConsulta* mLlamador = nullptr;
    std::optional<bool> mReiniciar;
    std::string mSentencia;
    FormularioConsulta mFormulario;
    Grilla mGrilla;
    bool mMostrarTodoVisible = true;
    std::string mAceptarCaption = "&Aceptar";
    std::string mAceptarToolTip = "Aceptar material seleccionado";
    bool mBotonesHabilitados = true;
    int mRow = 0;
    int mRowSel = 0;
};

}  // namespace kelvora
