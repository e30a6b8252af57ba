#pragma once

#include "core/app/contexto.h"
#include "core/entry/accesomateriales.h"
#include "core/entry/descripcionentrada.h"
#include "core/platform/eventpump.h"
#include "core/platform/prompter.h"
#include "core/units/unidades.h"

#include <cstdint>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace kelvora {

class DestinoResultados;

/// What a data entry window takes from outside.
struct EntornoEntrada {
    Prompter& prompter;
    /// The options ConversionAutomatica and LeerEmisividadBD, and the flag BDDisponible that
    /// each activation refreshes.
    ContextoAplicacion& contexto;
    AccesoMateriales& materiales;
    EventPump& bomba;
    /// `Actualizar` of the main window, after every change of state.
    std::function<void()> Actualizar;
    /// Shows the material query window in selection mode, to fill this code box.
    std::function<void(int cajaCodigo)> ConsultarMateriales;
};

enum class TipoControl { Ninguno, Caja, Lista, Consultar, Aceptar, Cancelar, Graficar };

/// A control of the window: box i, list i, query button i, or one of the three buttons.
struct Control {
    TipoControl tipo = TipoControl::Ninguno;
    int indice = 0;

    bool operator==(const Control&) const = default;
};

/// A text box as the window holds it.
struct CajaTexto {
    std::string Text;
    int SelStart = 0;
    int SelLength = 0;
    std::string ToolTipText;
    std::string Tag;
};

/// A closed unit list; its `Tag` holds the unit in force for its box.
struct ListaUnidades {
    std::vector<std::string> entradas;
    int ListIndex = -1;
    std::string Tag;

    /// The entry shown; empty when nothing is selected.
    std::string Text() const;
};

/// A query button beside a code box.
struct BotonConsultar {
    std::string Caption = "C&onsultar";
    std::string ToolTipText = "Consultar Emisividad";
};

/// The model shared by the four data entry windows; what tells them apart is their
/// `DescripcionEntrada`. Boxes and lists are numbered from 1.
class ModeloEntrada {
public:
    /// A new window as `Form_Load` leaves it: lists filled, boxes empty, default units.
    ModeloEntrada(const DescripcionEntrada& ventana, EntornoEntrada entorno);

    const DescripcionEntrada& Ventana() const { return mVentana; }
    EntornoEntrada& Entorno() { return mEntorno; }
    /// The window's caption: its design caption until the main window numbers it.
    const std::string& Caption() const { return mCaption; }
    void SetCaption(std::string caption) { mCaption = std::move(caption); }

    const std::string& NombreMaterialAislamiento() const { return mNombreMaterialAislamiento; }
    const std::string& NombreMaterialDesnuda() const { return mNombreMaterialDesnuda; }
    const std::string& FileName() const { return mFileName; }
    void SetFileName(std::string nombre) { mFileName = std::move(nombre); }
    int32_t FileState() const { return mFileState; }
    void SetFileState(int32_t estado) { mFileState = estado; }
    int32_t TipoAnalisis() const { return mTipoAnalisis; }
    void SetTipoAnalisis(int32_t tipo) { mTipoAnalisis = tipo; }
    classUnidades& Unit() { return mUnit; }
    const classUnidades& Unit() const { return mUnit; }
    /// "0" while the data are incomplete, else the window's kind.
    const std::string& Tag() const { return mTag; }

    const CajaTexto& Caja(int i) const;
    const std::string& Texto(int i) const { return Caja(i).Text; }
    /// Sets a box's text as code does; `txtValor_Change` runs when the text changes.
    void SetTexto(int i, std::string texto);
    void SetSeleccion(int i, int inicio, int largo = 0);
    bool TieneLista(int i) const;
    const ListaUnidades& Lista(int i) const;
    /// The user picks entry `indice` (from 0) of list i: `cboUnidad_Click` follows.
    void SeleccionarUnidad(int i, int indice);
    void SeleccionarUnidad(int i, const std::string& unidad);

    const std::string& lblEstado() const { return mEstado; }
    const std::string& lblProducto() const { return mProducto; }
    void SetLblProducto(std::string texto) { mProducto = std::move(texto); }
    bool cmdAceptarEnabled() const { return mCompleto; }
    bool cmdGraficarEnabled() const { return mCompleto; }
    /// Query button k, from 1.
    const BotonConsultar& cmdConsultarMaterial(int k) const;
    /// The controls in tab order.
    const std::vector<Control>& OrdenTabulacion() const { return mOrdenTabulacion; }
    Control ControlActivo() const { return mActivo; }

    /// A key typed into box i; the {TAB}s it sends move the focus on.
    void txtValor_KeyPress(int i, int KeyAscii);
    /// Types each character of a text into box i, as `txtValor_KeyPress` does.
    void Teclear(int i, std::string_view texto);
    void cboUnidad_KeyPress(int i, int KeyAscii);
    /// Moves the focus, with the GotFocus of the control that receives it.
    void EstablecerFoco(Control control);
    /// One {TAB}: the next enabled control in tab order takes the focus.
    void EnviarTab();

    void txtValor_Change(int i);
    void ActualizarEstadoDatos();
    void LimpiarDatos();
    void ShowVariables();
    void Activar();
    bool ValidarDatos();
    void tbrProducto_ButtonMenuClick(const std::string& clave);
    void cmdConsultarMaterial_Click(int k);
    /// "C&alcular": true when a results window with its results stands.
    bool cmdAceptar_Click(DestinoResultados& destino);
    /// The window closes: connection released, `Unit` emptied.
    void Form_Unload();

private:
    CajaTexto& CajaMutable(int i);
    ListaUnidades& ListaMutable(int i);
    void CrearControles();
    void FijarUnidad(int i, int indice);
    void cboUnidad_Click(int i);
    void txtValor_GotFocus(int i);
    void CambioCodigo(const BotonMaterial& boton);
    void MostrarMaterial(const BotonMaterial& boton, const std::string& nombre);
    void OcultarMaterial(const BotonMaterial& boton);
    std::string& NombreMaterial(const BotonMaterial& boton);
    bool DatosCompletos() const;
    void GuardarVariables();
    void MostrarValor(int i, const char* patron);
    void CaptionsConsultar();
    bool Habilitado(Control control) const;

    const DescripcionEntrada& mVentana;
    EntornoEntrada mEntorno;
    std::string mCaption;
    std::string mNombreMaterialAislamiento;
    std::string mNombreMaterialDesnuda;
    std::string mFileName;
    int32_t mFileState = 0;
    int32_t mTipoAnalisis = 0;
    classUnidades mUnit;
    std::string mTag = "0";
    std::vector<CajaTexto> mCajas;
    std::vector<ListaUnidades> mListas;
    std::vector<BotonConsultar> mConsultar;
    std::vector<Control> mOrdenTabulacion;
    std::string mEstado;
    std::string mProducto;
    bool mCompleto = false;
    Control mActivo;
};

}  // namespace kelvora
