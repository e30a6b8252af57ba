#include "core/thermal/realizarcalculosspfrio.h"

#include "core/runtime/aritmetica.h"
#include "core/thermal/biseccion.h"
#include "core/thermal/bloque.h"
#include "core/thermal/pelicula.h"
#include "core/thermal/redondeo.h"

#include <array>
#include <optional>

namespace kelvora {

namespace {

struct PosicionFrio {
    double C = 0;
    /// The vertical position writes f' with both differences reversed, to the same value.
    bool invertida = false;
    double Qdc = 0;
    BloqueCalculo ideal;
    double q = 0;
    double QdcPractico = 0;
    BloqueCalculo practico;
};

class CalculoSPFrio {
public:
    CalculoSPFrio(ModeloResultados& ventana, const ArgumentosSPFrio& a)
        : mVentana(ventana),
          mA(a),
          mTI(a.TemperaturaInterior),
          mTS(a.TemperaturaSuperficie),
          mTA(a.TemperaturaAmbiente),
          mEs(a.EmisividadSuperficieAislamiento),
          mK(a.CoeficienteTransmisionCalor) {
        mPosiciones[0].C = kCaraArriba;
        mPosiciones[1].C = kVertical;
        mPosiciones[1].invertida = true;
        mPosiciones[2].C = kCaraAbajo;
    }

    bool Calcular();

private:
    void Preparar();
    void Ideal(PosicionFrio& p);
    void DesnudaIdeal();
    void Practico(PosicionFrio& p);
    double PeliculaPractica(const PosicionFrio& p, double T) const;
    void DesnudaPractica();
    void Mostrar();

    ModeloResultados& mVentana;
    const ArgumentosSPFrio& mA;
    const double mTI;
    const double mTS;
    const double mTA;
    const double mEs;
    const double mK;
    std::optional<Pelicula> mPelicula;
    double mFlujoRequerido = 0;
    std::array<PosicionFrio, 3> mPosiciones;
};

bool CalculoSPFrio::Calcular() {
    Preparar();
    for (PosicionFrio& p : mPosiciones) {
        Ideal(p);
    }
    DesnudaIdeal();
    for (PosicionFrio& p : mPosiciones) {
        Practico(p);
    }
    DesnudaPractica();
    Mostrar();
    return true;
}

// The required flux, without wind, serves only the ideal efficiencies.
void CalculoSPFrio::Preparar() {
    mPelicula.emplace(mTA, FactorViento(mA.VelocidadAire), Sentido::Frio);
    const double conveccion = mPelicula->Qconv0(mTS, kCaraArriba);
    mFlujoRequerido = Comprobar(conveccion + mPelicula->Qrad(mTS, mEs));
}

// The surface is at TS, so the thickness follows with no bisection.
void CalculoSPFrio::Ideal(PosicionFrio& p) {
    const Pelicula& pelicula = *mPelicula;
    BloqueCalculo& b = p.ideal;
    p.Qdc = pelicula.Qconv(mTI, p.C);
    const double T = mTS;
    b.TS = T;
    b.TM = Comprobar(T + mTI) / 2;
    b.k = mK;
    b.Qr = pelicula.Qrad(T, mEs);
    b.Qc = pelicula.Qconv(T, p.C);
    b.Qt = Comprobar(b.Qr + b.Qc);
    const double conduccion = Comprobar(Comprobar(T - mTI) * mK);
    b.E = Dividir(conduccion, b.Qt);
    b.f = Dividir(conduccion, Comprobar(Comprobar(mTA - T) * b.E));
}

void CalculoSPFrio::DesnudaIdeal() {
    const double Qrd = mPelicula->Qrad(mTI, mA.EmisividadSuperficieDesnuda);
    for (PosicionFrio& p : mPosiciones) {
        BloqueCalculo& b = p.ideal;
        b.Qdt = Comprobar(p.Qdc + Qrd);
        b.Ef = Comprobar(Dividir(Comprobar(b.Qdt - mFlujoRequerido), b.Qdt) * 100);
    }
}

void CalculoSPFrio::Practico(PosicionFrio& p) {
    const Pelicula& pelicula = *mPelicula;
    BloqueCalculo& b = p.practico;
    const double Ep = RedondeoPracticoFrio(p.ideal.E);
    b.E = Ep;
    b.k = mK;
    const double salto = Comprobar(mTS - mTI);
    p.q = Dividir(salto, Dividir(Ep, mK));
    const double T = BiseccionSuperficieFrio(p.q, p.C, pelicula, mEs, mTI, mVentana.Bomba());
    b.TS = T;
    p.QdcPractico = pelicula.Qconv(mTI, p.C);
    b.TM = Comprobar(T + mTI) / 2;
    b.Qr = pelicula.Qrad(T, mEs);
    b.Qc = pelicula.Qconv(T, p.C);
    b.Qt = Comprobar(b.Qr + b.Qc);
    b.f = PeliculaPractica(p, T);
}

double CalculoSPFrio::PeliculaPractica(const PosicionFrio& p, double T) const {
    const double Ep = p.practico.E;
    if (p.invertida) {
        const double conduccion = Comprobar(Comprobar(mTI - T) * mK);
        return Dividir(conduccion, Comprobar(Comprobar(T - mTA) * Ep));
    }
    const double conduccion = Comprobar(Comprobar(T - mTI) * mK);
    return Dividir(conduccion, Comprobar(Comprobar(mTA - T) * Ep));
}

// Ef of the practical blocks is measured against each position's target flux.
void CalculoSPFrio::DesnudaPractica() {
    const double Qrd = mPelicula->Qrad(mTI, mA.EmisividadSuperficieDesnuda);
    for (PosicionFrio& p : mPosiciones) {
        BloqueCalculo& b = p.practico;
        b.Qdt = Comprobar(p.QdcPractico + Qrd);
        b.Ef = Comprobar(Dividir(Comprobar(b.Qdt - p.q), b.Qdt) * 100);
    }
}

void CalculoSPFrio::Mostrar() {
    GuardarValoresFrio(mVentana, mA);
    mVentana.Valores().Establecer("MaterialSD", mA.NombreMaterialDesnuda);
    std::vector<double> resultados(static_cast<size_t>(mVentana.Ventana().Ranuras()), 0.0);
    const EntradasBloque entradas{mTI,
                                  mTA,
                                  mA.VelocidadAire,
                                  {static_cast<double>(mA.CodigoMaterialSuperficieAislamiento), mEs,
                                   mA.EmisividadSuperficieDesnuda}};
    for (size_t i = 0; i < mPosiciones.size(); ++i) {
        EscribirPosicion(resultados, i, entradas, mPosiciones[i].ideal, mPosiciones[i].practico);
    }
    mVentana.MostrarResultados(resultados, mA.unidades);
}

}  // namespace

bool RealizarCalculosSPFrio(ModeloResultados& ventana, const ArgumentosSPFrio& argumentos) {
    return ventana.ConTrampa([&] { return CalculoSPFrio(ventana, argumentos).Calcular(); });
}

}  // namespace kelvora
