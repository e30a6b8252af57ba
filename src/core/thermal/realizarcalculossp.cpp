#include "core/thermal/realizarcalculossp.h"

#include "core/runtime/aritmetica.h"
#include "core/thermal/biseccion.h"
#include "core/thermal/bloque.h"
#include "core/thermal/pelicula.h"
#include "core/thermal/productos.h"
#include "core/thermal/redondeo.h"

#include <array>
#include <optional>

namespace kelvora {

namespace {

constexpr std::array<double, 3> kCoeficientes = {kCaraArriba, kVertical, kCaraAbajo};
constexpr int kVerticalIndice = 1;

// In chart mode a step that fails leaves its target as it was, and the next step runs.
class Trampa {
public:
    explicit Trampa(bool reanudar) : mReanudar(reanudar) {}

    template <class Destino, class Paso>
    void operator()(Destino& destino, Paso&& paso) const {
        if (!mReanudar) {
            destino = paso();
            return;
        }
        try {
            destino = paso();
        } catch (const RuntimeError&) {
        }
    }

private:
    bool mReanudar;
};

struct Posicion {
    double C = 0;
    Biseccion ideal;
    double Qdc = 0;
    BloqueCalculo bloqueIdeal;
    double q = 0;
    Biseccion practica;
    double QdcPractico = 0;
    BloqueCalculo bloquePractico;
};

class CalculoSP {
public:
    CalculoSP(ModeloResultados& ventana, ArgumentosSP& a)
        : mVentana(ventana),
          mA(a),
          mPaso(a.modoGrafica),
          mTI(a.TemperaturaInterior),
          mTS(a.TemperaturaSuperficieAislamiento),
          mTA(a.TemperaturaAmbiente),
          mEs(a.EmisividadSuperficieAislamiento),
          mEd(a.EmisividadSuperficieDesnuda) {}

    bool Calcular();

private:
    void Preparar();
    void Ideal(Posicion& p);
    void DesnudaIdeal();
    void Practico(Posicion& p);
    void DesnudaPractica();
    double EspesorMinimo() const;
    void ResultadosGrafica();
    void Mostrar();

    ModeloResultados& mVentana;
    ArgumentosSP& mA;
    Trampa mPaso;
    const double mTI;
    const double mTS;
    const double mTA;
    const double mEs;
    const double mEd;
    double mFactorViento = 0;
    std::optional<Pelicula> mPelicula;
    double mFlujoRequerido = 0;
    double mQrd = 0;
    double mEspesorPractico = 0;
    std::array<Posicion, 3> mPosiciones;
};

bool CalculoSP::Calcular() {
    DejarPasarEventos(mVentana.Bomba());
    Preparar();
    for (Posicion& p : mPosiciones) {
        Ideal(p);
    }
    DesnudaIdeal();
    mEspesorPractico = RedondeoPractico(EspesorMinimo());
    for (Posicion& p : mPosiciones) {
        Practico(p);
    }
    DesnudaPractica();
    if (mA.modoGrafica) {
        ResultadosGrafica();
    } else {
        Mostrar();
    }
    return true;
}

void CalculoSP::Preparar() {
    mPaso(mFactorViento, [&] { return FactorViento(mA.VelocidadAire); });
    mPelicula.emplace(mTA, mFactorViento, Sentido::Calor);
    // The one target of the three positions: face up, and without wind.
    mPaso(mFlujoRequerido, [&] {
        const double radiacion = mPelicula->Qrad(mTS, mEs);
        return Comprobar(radiacion + mPelicula->Qconv0(mTS, kCaraArriba));
    });
    for (size_t i = 0; i < mPosiciones.size(); ++i) {
        mPosiciones[i].C = kCoeficientes[i];
    }
}

void CalculoSP::Ideal(Posicion& p) {
    const Pelicula& pelicula = *mPelicula;
    mPaso(p.ideal, [&] {
        return BiseccionSuperficie(mFlujoRequerido, p.C, pelicula, mEs, mTS, mVentana.Bomba());
    });
    if (!p.ideal.convergio) {
        return;
    }
    const double T = p.ideal.valor;
    BloqueCalculo& b = p.bloqueIdeal;
    mPaso(p.Qdc, [&] { return pelicula.Qconv(mTI, p.C); });
    mPaso(b.TS, [&] { return T; });
    mPaso(b.TM, [&] { return Comprobar(T + mTI) / 2; });
    mPaso(b.k, [&] { return ConductividadTermica(mVentana.TipoAnalisis(), b.TM); });
    mPaso(b.Qr, [&] { return pelicula.Qrad(T, mEs); });
    mPaso(b.Qc, [&] { return pelicula.Qconv(T, p.C); });
    mPaso(b.Qt, [&] { return Comprobar(b.Qr + b.Qc); });
    mPaso(b.E, [&] { return Dividir(Comprobar(Comprobar(mTI - T) * b.k), b.Qt); });
    mPaso(b.f, [&] {
        const double conduccion = Comprobar(Comprobar(mTI - T) * b.k);
        return Dividir(conduccion, Comprobar(Comprobar(T - mTA) * b.E));
    });
}

// Ef of the ideal blocks is measured against the required flux, not against their own Qt.
void CalculoSP::DesnudaIdeal() {
    mPaso(mQrd, [&] { return mPelicula->Qrad(mTI, mEd); });
    for (Posicion& p : mPosiciones) {
        BloqueCalculo& b = p.bloqueIdeal;
        mPaso(b.Qdt, [&] { return Comprobar(mQrd + p.Qdc); });
        mPaso(b.Ef,
              [&] { return Comprobar(Dividir(Comprobar(b.Qdt - mFlujoRequerido), b.Qdt) * 100); });
    }
}

// The least ideal thickness: face up against vertical first, then face down.
double CalculoSP::EspesorMinimo() const {
    const double arriba = mPosiciones[0].bloqueIdeal.E;
    const double vertical = mPosiciones[1].bloqueIdeal.E;
    const double abajo = mPosiciones[2].bloqueIdeal.E;
    const double minimo = arriba < vertical ? arriba : vertical;
    return abajo < minimo ? abajo : minimo;
}

// One fixed-point step: the target uses T and k of the ideal solution, and k is evaluated
// again only at the new surface temperature.
void CalculoSP::Practico(Posicion& p) {
    const Pelicula& pelicula = *mPelicula;
    const BloqueCalculo& ideal = p.bloqueIdeal;
    BloqueCalculo& b = p.bloquePractico;
    const double E = mEspesorPractico;
    b.E = E;
    mPaso(p.q, [&] {
        const double salto = Comprobar(mTI - ideal.TS);
        return Dividir(salto, Dividir(E, ideal.k));
    });
    mPaso(p.practica,
          [&] { return BiseccionSuperficie(p.q, p.C, pelicula, mEs, mTS, mVentana.Bomba()); });
    if (!p.practica.convergio) {
        return;
    }
    const double T = p.practica.valor;
    mPaso(b.TS, [&] { return T; });
    mPaso(p.QdcPractico, [&] { return pelicula.Qconv(mTI, p.C); });
    mPaso(b.TM, [&] { return Comprobar(T + mTI) / 2; });
    mPaso(b.k, [&] { return ConductividadTermica(mVentana.TipoAnalisis(), b.TM); });
    mPaso(b.Qr, [&] { return pelicula.Qrad(T, mEs); });
    mPaso(b.Qc, [&] { return pelicula.Qconv(T, p.C); });
    mPaso(b.Qt, [&] { return Comprobar(b.Qr + b.Qc); });
    mPaso(b.f, [&] {
        const double conduccion = Comprobar(Comprobar(mTI - T) * b.k);
        return Dividir(conduccion, Comprobar(Comprobar(T - mTA) * E));
    });
}

// Ef of the practical blocks is measured against each position's target flux.
void CalculoSP::DesnudaPractica() {
    mPaso(mQrd, [&] { return mPelicula->Qrad(mTI, mEd); });
    for (Posicion& p : mPosiciones) {
        BloqueCalculo& b = p.bloquePractico;
        mPaso(b.Qdt, [&] { return Comprobar(mQrd + p.QdcPractico); });
        mPaso(b.Ef, [&] { return Comprobar(Dividir(Comprobar(b.Qdt - p.q), b.Qdt) * 100); });
    }
}

// Any other chart type leaves both outputs as they were.
void CalculoSP::ResultadosGrafica() {
    if (mA.tipoGrafica == 1) {
        mA.espesorGrafica = mEspesorPractico;
        mA.valorGrafica = mTS;
    } else if (mA.tipoGrafica == 2) {
        mA.espesorGrafica = mEspesorPractico;
        mA.valorGrafica = mPosiciones[kVerticalIndice].bloquePractico.Qt;
    }
}

void CalculoSP::Mostrar() {
    ValoresPublicos& valores = mVentana.Valores();
    valores.Establecer("MaterialSA", mA.NombreMaterialAislamiento);
    valores.Establecer("MaterialSD", mA.NombreMaterialDesnuda);
    const std::string& unidadTS = UnidadVisual(mA.unidades, 2);
    valores.Establecer("TS", mVentana.DesdeFahrenheit(mTS, unidadTS));
    valores.Establecer("unitTS", unidadTS);
    std::vector<double> resultados(static_cast<size_t>(mVentana.Ventana().Ranuras()), 0.0);
    const EntradasBloque entradas{
            mTI,
            mTA,
            mA.VelocidadAire,
            {static_cast<double>(mA.CodigoMaterialSuperficieAislamiento), mEs, mEd}};
    for (size_t i = 0; i < mPosiciones.size(); ++i) {
        EscribirPosicion(resultados, i, entradas, mPosiciones[i].bloqueIdeal,
                         mPosiciones[i].bloquePractico);
    }
    mVentana.MostrarResultados(resultados, mA.unidades);
}

}  // namespace

bool RealizarCalculosSP(ModeloResultados& ventana, ArgumentosSP& argumentos) {
    return ventana.ConTrampa([&] { return CalculoSP(ventana, argumentos).Calcular(); });
}

}  // namespace kelvora
