#pragma once

#include "core/platform/eventpump.h"
#include "core/platform/prompter.h"
#include "core/reports/grilla.h"
#include "core/runtime/runtimeerror.h"
#include "core/thermal/valorespublicos.h"
#include "core/thermal/ventanaresultados.h"

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

namespace kelvora {

class classUnidades;

/// The display unit names of a calculation, entry 1 first.
using NombresUnidades = std::vector<std::string>;

/// Entry i (from 1) of the display unit names; error 9 when there is none.
const std::string& UnidadVisual(const NombresUnidades& unidades, int i);

/// The company line of the results grid.
inline constexpr const char* kEmpresa = "FORNALIS S.A.";

/// The model of a results window, shared by the four of them: the product code, the slots of
/// the last calculation, the public values and the grid `MSFG`.
class ModeloResultados {
public:
    ModeloResultados(TipoResultados tipo, const classUnidades& unidades, Prompter& prompter,
                     EventPump& bomba);

    const VentanaResultados& Ventana() const { return mVentana; }

    /// The product code, set by the caller before a calculation.
    int32_t TipoAnalisis() const { return mTipoAnalisis; }
    void SetTipoAnalisis(int32_t tipo) { mTipoAnalisis = tipo; }

    /// Slots 1 to 102 (flat) or 68 (pipes), as a list from slot 1.
    const std::vector<double>& ResultadosCalculo() const { return mResultadosCalculo; }
    /// Slot 1 to Ranuras().
    double Resultado(int ranura) const;

    const ValoresPublicos& Valores() const { return mValores; }
    ValoresPublicos& Valores() { return mValores; }

    const Grilla& MSFG() const { return mMSFG; }

    /// Keeps the slots and fills the grid from them: two heading rows, then per block a heading
    /// and sixteen data rows; grid row r shows slot r − 2.
    void MostrarResultados(const std::vector<double>& resultados, const NombresUnidades& unidades);

    /// Runs a calculation under the window's error trap: a run-time error gives the box
    /// "Error inesperado: " and False; a window closed while events ran gives False silently.
    bool ConTrampa(const std::function<bool()>& calculo);

    /// An exclamation box with the application's title.
    void Avisar(const std::string& texto);

    /// A temperature in °F in the given display unit.
    double DesdeFahrenheit(double valor, const std::string& unidad) const;

    EventPump& Bomba() { return mBomba; }

private:
    void LimpiarGrilla();
    void EscribirEncabezado(int fila, const std::string& texto);
    void EscribirBloque(int bloque, const NombresUnidades& unidades);
    void EscribirDato(int fila, const FilaResultado& dato, const NombresUnidades& unidades);
    std::string TextoValor(double valor, const FilaResultado& dato,
                           const NombresUnidades& unidades) const;
    std::string TituloProducto() const;

    const VentanaResultados& mVentana;
    const classUnidades& mUnidades;
    Prompter& mPrompter;
    EventPump& mBomba;
    int32_t mTipoAnalisis = 0;
    std::vector<double> mResultadosCalculo;
    ValoresPublicos mValores;
    Grilla mMSFG;
};

}  // namespace kelvora
