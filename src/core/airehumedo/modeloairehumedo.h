#pragma once

#include "core/airehumedo/aire.h"

#include <array>
#include <optional>
#include <string>
#include <vector>

namespace kelvora {

class classUnidades;
class Prompter;

/// A box of the moist-air window with its unit list. A box the user does not give is a result:
/// read-only, filled by the calculation.
struct CajaAire {
    std::string Text;
    std::vector<std::string> unidades;
    int ListIndex = 0;
    bool dato = false;

    const std::string& Unidad() const { return unidades.at(static_cast<size_t>(ListIndex)); }
};

/// The moist-air window: the dry bulb, one chosen moisture value and the altitude or the
/// pressure are typed; every other box shows the calculation, anew at each change.
class ModeloAireHumedo {
public:
    ModeloAireHumedo(const classUnidades& unidades, Prompter& prompter);

    const CajaAire& Caja(CampoAire campo) const { return mCajas.at(Indice(campo)); }
    CampoAire DatoHumedad() const { return mHumedad; }
    CampoAire DatoPresion() const { return mPresion; }
    /// The empty box or the message of the box at fault; empty while the results stand.
    const std::string& lblEstado() const { return mEstado; }
    /// The box at fault, while a message stands.
    const std::optional<CampoAire>& CampoError() const { return mCampoError; }
    const std::optional<EstadoAire>& Estado() const { return mEstadoAire; }

    /// Which moisture value (relative humidity, wet bulb or dew point), and which of altitude or
    /// pressure, the user gives; the chosen box keeps the value it showed.
    void ElegirHumedad(CampoAire campo);
    void ElegirPresion(CampoAire campo);
    /// The text of a given box changed.
    void SetTexto(CampoAire campo, const std::string& texto);
    /// Entry `indice` of a box's unit list: a given box converts its number into the new unit.
    void SeleccionarUnidad(CampoAire campo, int indice);

    /// What goes into a cold entry window: dry bulb, wet bulb and dew point in the units of
    /// its lists, and the relative humidity; nothing while there are no results.
    std::optional<std::array<std::string, 4>> TextosVentanaFria(
            const std::array<std::string, 3>& unidades) const;

private:
    static size_t Indice(CampoAire campo) { return static_cast<size_t>(campo); }
    CajaAire& CajaMutable(CampoAire campo) { return mCajas.at(Indice(campo)); }
    void Elegir(CampoAire& actual, CampoAire nuevo);
    void Recalcular();
    bool Faltante();
    void MostrarResultados();
    std::string Texto(CampoAire campo, const std::string& unidad) const;

    const classUnidades& mUnidades;
    Prompter& mPrompter;
    std::array<CajaAire, 8> mCajas;
    CampoAire mHumedad = CampoAire::Humedad;
    CampoAire mPresion = CampoAire::Altitud;
    std::string mEstado;
    std::optional<CampoAire> mCampoError;
    std::optional<EstadoAire> mEstadoAire;
};

}  // namespace kelvora
