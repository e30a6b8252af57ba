#pragma once

#include "core/economics/ahorro.h"
#include "core/economics/combustibles.h"
#include "core/economics/traspasoresultados.h"
#include "core/economics/ventanaeconomica.h"
#include "core/runtime/fecha.h"
#include "core/thermal/valorespublicos.h"

#include <cstdint>
#include <functional>
#include <map>
#include <optional>
#include <string>
#include <vector>

namespace kelvora {

struct ContextoAplicacion;
class Prompter;
class EventPump;
class Clock;

/// A text box or label as the model keeps it.
struct CajaAnalisis {
    std::string Text;
    bool Enabled = true;
    std::string ToolTipText;
};

struct EtiquetaAnalisis {
    std::string Caption;
    bool Enabled = true;
};

/// A list: its entries, the selected one (-1 for none) and its text; `Tag` holds the unit in
/// force for a unit list.
struct ListaAnalisis {
    std::vector<std::string> entradas;
    int ListIndex = -1;
    std::string Text;
    std::string Tag;
    std::string ToolTipText;
};

/// What a key press in a box comes to: the key to insert (0: discarded), the box's text before
/// it goes in, the caret, and whether a {TAB} is sent.
struct TeclaEconomica {
    char32_t tecla = 0;
    std::string texto;
    int cursor = 0;
    bool tabulador = false;
};

/// The model of the two economic windows: boxes, lists, key filters, checks, the calculation
/// of the yearly saving and the published state. The window only shows it and forwards events.
class ModeloEconomico {
public:
    ModeloEconomico(TipoEconomico tipo, const ContextoAplicacion& contexto, Prompter& prompter,
                    EventPump& bomba, Clock& reloj);

    const VentanaEconomica& Ventana() const { return mVentana; }

    /// Called by the main window after every change of state.
    void SetActualizar(std::function<void()> actualizar) { mActualizar = std::move(actualizar); }

    /// The values of the results window: losses per orientation and the report's values.
    void setVariables(const ValoresAnalisis& valores);
    int32_t TipoAnalisis() const { return mTipoAnalisis; }
    double QSD(int orientacion) const;
    double QSA(int orientacion) const;

    /// Boxes, labels and lists by their index (`txtValor`, `lblEtiqueta`, `cboUnidad`).
    const CajaAnalisis& txtValor(int indice) const { return mCajas.at(indice); }
    const EtiquetaAnalisis& lblEtiqueta(int indice) const { return mEtiquetas.at(indice); }
    const ListaAnalisis& cboUnidad(int indice) const { return mUnidades.at(indice); }
    const ListaAnalisis& cboHorasTrabajadas() const { return mHoras; }
    const ListaAnalisis& cboCombustibleUtilizado() const { return mCombustible; }
    const std::string& lblEstado() const { return mEstado; }
    bool cmdAceptarEnabled() const { return mAceptarHabilitado; }
    bool fraResultadosEnabled() const { return mResultadosHabilitados; }
    const std::string& Tag() const { return mTag; }
    /// objectName of the control that last took the focus ("txtValor_1", "cboUnidad_1",
    /// "cboHorasTrabajadas", "cboCombustibleUtilizado", "cmdAceptar").
    const std::string& Foco() const { return mFoco; }

    /// The text of a box changed (typed, pasted or written by the program).
    void SetText(int indice, const std::string& texto);
    void txtValor_GotFocus(int indice);
    TeclaEconomica txtValor_KeyPress(int indice, char32_t tecla, int cursor);

    /// An entry of a unit list chosen.
    void SeleccionarUnidad(int indice, int entrada);
    /// The editable text of the hours list changed, or one of its entries was chosen.
    void SetHoras(const std::string& texto);
    void SeleccionarHoras(int entrada);
    TeclaEconomica cboHorasTrabajadas_KeyPress(char32_t tecla);
    void SeleccionarCombustible(int entrada);
    void cboCombustibleUtilizado_GotFocus();
    /// Any list or button taking the focus empties the status label.
    void OtroControl_GotFocus();

    void Activar();
    void cmdAceptar_Click();
    void ActualizarEstadoAnalisis();
    /// Tool tips of what keeps "C&alcular" disabled: a box that is not a number (the fuel's
    /// name: an empty one), an hours text that is not a number, no fuel.
    std::vector<std::string> DatosFaltantes() const;

    /// The saving for the given areas (pie²) or lengths (pie), hours per year, price, fuel
    /// (counted from 1), calorific value, currency name and efficiency; fills the result boxes.
    void CalcularAhorro(const std::vector<double>& dimensiones, double horas, double valor,
                        int16_t indiceCombustible, double poder, const std::string& moneda,
                        float eficiencia);

    /// The checks of "C&alcular", in order; the first that fails gives its message and takes the
    /// focus. True when the data pass.
    bool Comprobar();
    /// The saving's inputs as "C&alcular" reads them from the boxes, for the losses given.
    DatosAhorro DatosEntrada(const std::vector<double>& QSD, const std::vector<double>& QSA) const;

    /// The inputs and the values of the last calculation.
    const DatosAhorro& DatosCalculo() const { return mDatos; }
    const Ahorro& Montos() const { return mMontos; }
    const std::string& Moneda() const { return mMoneda; }
    float Eficiencia() const { return mEficiencia; }
    double CostoTotalSD() const { return mMontos.CostoTotalSD; }
    double CostoTotalSA() const { return mMontos.CostoTotalSA; }
    const std::optional<Fecha>& FechaCalculo() const { return mFecha; }
    /// The report's values handed over by the results window, and any the reports add.
    ValoresPublicos& Valores() { return mValores; }
    const ValoresPublicos& Valores() const { return mValores; }

private:
    void Form_Load();
    void CrearControles();
    void LimpiarDatosAnalisis();
    void LimpiarResultados(bool habilitar);
    void cboCombustibleUtilizado_Click();
    void cboHorasTrabajadas_Change();
    void cboUnidad_Click(int indice);
    void Escribir(int indice, const std::string& texto);
    void Habilitar(int indice, bool habilitar);
    void Seleccionar(ListaAnalisis& lista, int entrada);
    bool EsNombre(int indice) const;
    bool EsResultado(int indice) const;
    bool ComprobarDimensiones();
    bool Rechazar(const std::string& texto, const std::string& foco);
    std::string UnidadCalculo() const;
    void Calcular();
    void Avisar(const std::string& texto);
    const Combustible* CombustibleActual() const;
    std::string TextoMonto(double monto, const std::string& simbolo) const;

    const VentanaEconomica& mVentana;
    const ContextoAplicacion& mContexto;
    Prompter& mPrompter;
    EventPump& mBomba;
    Clock& mReloj;
    std::function<void()> mActualizar;

    std::map<int, CajaAnalisis> mCajas;
    std::map<int, EtiquetaAnalisis> mEtiquetas;
    std::map<int, ListaAnalisis> mUnidades;
    ListaAnalisis mHoras;
    ListaAnalisis mCombustible;
    std::string mEstado;
    bool mAceptarHabilitado = false;
    bool mResultadosHabilitados = false;
    std::string mTag = "0";
    std::string mFoco;
    bool mGuarda = false;

    int32_t mTipoAnalisis = 0;
    std::vector<double> mQSD;
    std::vector<double> mQSA;
    ValoresPublicos mValores;
    DatosAhorro mDatos;
    Ahorro mMontos;
    std::string mMoneda;
    float mEficiencia = 0;
    std::optional<Fecha> mFecha;
};

}  // namespace kelvora
