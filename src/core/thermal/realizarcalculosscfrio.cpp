#include "core/thermal/realizarcalculosscfrio.h"

#include "core/runtime/aritmetica.h"
#include "core/thermal/biseccion.h"
#include "core/thermal/bloque.h"
#include "core/thermal/pelicula.h"
#include "core/thermal/secciones.h"
#include "core/thermal/tuberia.h"

#include <array>
#include <optional>

namespace kelvora {

namespace {

constexpr double kHolguraDiametro = 3;
constexpr const char* kSinSeccion =
        "Orbelas de mas de 4 plg de espesor, no prevista en este programa";

// One run of pipe. Its blocks hold flows per area until they are turned into flows per foot.
struct TramoFrio {
    double C0 = 0;
    BloqueCalculo ideal;
    double Qrd = 0;
    double Qdc = 0;
    BloqueCalculo practico;
    double QrdPractico = 0;
    double QdcPractico = 0;
};

class CalculoSCFrio {
public:
    CalculoSCFrio(ModeloResultados& ventana, const ArgumentosSCFrio& a, FuenteTubos& tubos)
        : mVentana(ventana),
          mA(a),
          mTubos(tubos),
          mTI(a.TemperaturaInterior),
          mTA(a.TemperaturaAmbiente),
          mEs(a.EmisividadSuperficieAislamiento),
          mK(a.CoeficienteTransmisionCalor) {
        mTramos[0].C0 = kTuberiaVertical;
        mTramos[1].C0 = kTuberiaHorizontal;
    }

    bool Calcular();

private:
    void Preparar();
    bool Calcular(TramoFrio& tramo, double T);
    void Ideal(TramoFrio& tramo, double T, double C);
    double Superficie(BloqueCalculo& b, double T, double C) const;
    void Desnuda(double C0, BloqueCalculo& b, double& Qrd, double& Qdc) const;
    void PasarAPorPie(BloqueCalculo& b) const;
    void Mostrar();

    ModeloResultados& mVentana;
    const ArgumentosSCFrio& mA;
    FuenteTubos& mTubos;
    const double mTI;
    const double mTA;
    const double mEs;
    const double mK;
    FilaTubos mFila;
    double mD = 0;
    double mDe = 0;
    double mDint = 0;
    double mR1 = 0;
    std::optional<Pelicula> mPelicula;
    std::array<TramoFrio, 2> mTramos;
};

// The horizontal run starts from the surface temperature of the vertical practical result.
bool CalculoSCFrio::Calcular() {
    Preparar();
    if (!Calcular(mTramos[0], mA.TemperaturaSuperficie)) {
        return false;
    }
    if (!Calcular(mTramos[1], mTramos[0].practico.TS)) {
        return false;
    }
    Mostrar();
    return true;
}

// `Tubos` is read whatever the diameter, and De stays D + 3 throughout.
void CalculoSCFrio::Preparar() {
    mFila = LeerTubo(mTubos, mA.DiametroTuberia);
    mD = mFila.Real;
    mDe = Comprobar(mFila.Real + kHolguraDiametro);
    mDint = mFila.Interior;
    mR1 = mD / 2;
    mPelicula.emplace(mTA, FactorViento(mA.VelocidadAire), Sentido::Frio);
}

bool CalculoSCFrio::Calcular(TramoFrio& tramo, double T) {
    const double C = CoeficienteTuberia(tramo.C0, mDe);
    Ideal(tramo, T, C);
    const double E = tramo.ideal.E;
    const double Dreq = Comprobar(Comprobar(2 * E) + mD);
    const std::optional<Seccion> seccion = SeccionSiguiente(mFila, Dreq);
    if (!seccion) {
        mVentana.Avisar(kSinSeccion);
        return false;
    }
    const double r2p = Comprobar(Comprobar(seccion->diametro - mDint) / 2 + mR1);
    const double Eqp = EspesorEquivalente(r2p, mR1);
    const double salto = Comprobar(mTA - mTI);
    const double resistenciaAislamiento = Dividir(Eqp, mK);
    const double resistenciaPelicula = Dividir(1, tramo.ideal.f);
    const double q = Dividir(salto, Comprobar(resistenciaAislamiento + resistenciaPelicula));
    const double Tp = BiseccionSuperficieFrio(q, C, *mPelicula, mEs, mTI, mVentana.Bomba());
    BloqueCalculo& b = tramo.practico;
    b.E = seccion->espesor;
    Superficie(b, Tp, C);
    Desnuda(tramo.C0, b, tramo.QrdPractico, tramo.QdcPractico);
    PasarAPorPie(tramo.ideal);
    PasarAPorPie(b);
    return true;
}

// E is the thickness of the outer radius that meets the equivalent thickness.
void CalculoSCFrio::Ideal(TramoFrio& tramo, double T, double C) {
    BloqueCalculo& b = tramo.ideal;
    const double Eq = Superficie(b, T, C);
    Desnuda(tramo.C0, b, tramo.Qrd, tramo.Qdc);
    b.E = Comprobar(BiseccionRadioFrio(Eq, mR1) - mR1);
}

// Flows, mean temperature, k and film conductance at surface temperature T; returns the
// equivalent thickness.
double CalculoSCFrio::Superficie(BloqueCalculo& b, double T, double C) const {
    b.TS = T;
    b.Qr = mPelicula->Qrad(T, mEs);
    b.Qc = mPelicula->Qconv(T, C);
    b.Qt = Comprobar(b.Qr + b.Qc);
    b.TM = Comprobar(T + mTI) / 2;
    b.k = mK;
    const double conduccion = Comprobar(Comprobar(T - mTI) * mK);
    const double Eq = Dividir(conduccion, b.Qt);
    b.f = Dividir(conduccion, Comprobar(Comprobar(mTA - T) * Eq));
    return Eq;
}

// Bare pipe with emissivity 1 and the coefficient of the pipe's own diameter D; Ef compares
// with the block's own Qt.
void CalculoSCFrio::Desnuda(double C0, BloqueCalculo& b, double& Qrd, double& Qdc) const {
    Qrd = mPelicula->Qrad(mTI, 1);
    Qdc = mPelicula->Qconv(mTI, CoeficienteTuberia(C0, mD));
    b.Qdt = Comprobar(Qrd + Qdc);
    b.Ef = Comprobar(Dividir(Comprobar(b.Qdt - b.Qt), b.Qdt) * 100);
}

void CalculoSCFrio::PasarAPorPie(BloqueCalculo& b) const {
    b.Qr = PorPie(b.Qr, kPiTuberiaFrio, mDe);
    b.Qc = PorPie(b.Qc, kPiTuberiaFrio, mDe);
    b.Qt = PorPie(b.Qt, kPiTuberiaFrio, mDe);
    b.Qdt = PorPie(b.Qdt, kPiTuberiaFrio, mD);
}

void CalculoSCFrio::Mostrar() {
    GuardarValoresFrio(mVentana, mA);
    ValoresPublicos& valores = mVentana.Valores();
    valores.Establecer("DM", mD);
    const TramoFrio& vertical = mTramos[0];
    const TramoFrio& horizontal = mTramos[1];
    const auto porPie = [&](double Q) { return PorPie(Q, kPiTuberiaFrio, mD); };
    valores.Establecer("QDRL1", porPie(vertical.Qrd));
    valores.Establecer("QDRL2", porPie(horizontal.Qrd));
    valores.Establecer("QDRDL1", porPie(vertical.QrdPractico));
    valores.Establecer("QDRDL2", porPie(horizontal.QrdPractico));
    valores.Establecer("QDCL1", porPie(vertical.Qdc));
    valores.Establecer("QDCL2", porPie(horizontal.Qdc));
    valores.Establecer("QDCDL1", porPie(vertical.QdcPractico));
    valores.Establecer("QDCDL2", porPie(horizontal.QdcPractico));
    std::vector<double> resultados(static_cast<size_t>(mVentana.Ventana().Ranuras()), 0.0);
    const EntradasBloque entradas{
            mTI,
            mTA,
            mA.VelocidadAire,
            {mA.DiametroTuberia, static_cast<double>(mA.CodigoMaterialSuperficieAislamiento), mEs}};
    for (size_t i = 0; i < mTramos.size(); ++i) {
        EscribirPosicion(resultados, i, entradas, mTramos[i].ideal, mTramos[i].practico);
    }
    mVentana.MostrarResultados(resultados, mA.unidades);
}

}  // namespace

bool RealizarCalculosSCFrio(ModeloResultados& ventana, const ArgumentosSCFrio& argumentos,
                            FuenteTubos& tubos) {
    return ventana.ConTrampa([&] { return CalculoSCFrio(ventana, argumentos, tubos).Calcular(); });
}

}  // namespace kelvora
