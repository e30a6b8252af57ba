#include "core/thermal/realizarcalculossc.h"

#include "core/runtime/aritmetica.h"
#include "core/thermal/biseccion.h"
#include "core/thermal/bloque.h"
#include "core/thermal/pelicula.h"
#include "core/thermal/productos.h"
#include "core/thermal/redondeo.h"
#include "core/thermal/secciones.h"
#include "core/thermal/tuberia.h"

#include <array>
#include <cmath>
#include <optional>

namespace kelvora {

namespace {

constexpr int kOrbelas = 12;
constexpr double kNominalSinTabla = 14;
constexpr double kHolguraDiametro = 3;

// One run of pipe. Its blocks hold flows per area until they are turned into flows per foot.
struct Tramo {
    double C0 = 0;
    bool idealConvergio = false;
    BloqueCalculo ideal;
    double Eq = 0;
    double Qrd = 0;
    double Qdc = 0;
    BloqueCalculo practico;
    double QrdPractico = 0;
    double QdcPractico = 0;
    double QDRL = 0;
    double QDCL = 0;
    double QDRDL = 0;
    double QDCDL = 0;
};

class CalculoSC {
public:
    CalculoSC(ModeloResultados& ventana, ArgumentosSC& a, FuenteTubos& tubos)
        : mVentana(ventana),
          mA(a),
          mTubos(tubos),
          mTI(a.TemperaturaInterior),
          mTS(a.TemperaturaSuperficieAislamiento),
          mTA(a.TemperaturaAmbiente),
          mEs(a.EmisividadSuperficieAislamiento),
          mTipo(ventana.TipoAnalisis()) {
        mTramos[0].C0 = kTuberiaVertical;
        mTramos[1].C0 = kTuberiaHorizontal;
    }

    bool Calcular();

private:
    void LeerDiametros();
    void Preparar();
    void Ideal(Tramo& tramo);
    void Practico(Tramo& tramo);
    double EspesorPractico(Tramo& tramo);
    void ResultadosPracticos(Tramo& tramo, double T);
    void DesnudaPorArea(double C0, BloqueCalculo& b, double& Qrd, double& Qdc) const;
    static double Eficiencia(const BloqueCalculo& b);
    void IdealPorPie(Tramo& tramo, double QrdVertical);
    void PracticoPorPie(Tramo& tramo);
    void Mostrar();

    ModeloResultados& mVentana;
    ArgumentosSC& mA;
    FuenteTubos& mTubos;
    const double mTI;
    const double mTS;
    const double mTA;
    const double mEs;
    const int32_t mTipo;
    std::optional<FilaTubos> mFila;
    double mD = 0;
    double mDe = 0;
    double mDint = 0;
    double mR1 = 0;
    std::optional<Pelicula> mPelicula;
    double mFlujoRequerido = 0;
    std::array<Tramo, 2> mTramos;
};

bool CalculoSC::Calcular() {
    DejarPasarEventos(mVentana.Bomba());
    Preparar();
    Tramo& vertical = mTramos[0];
    Tramo& horizontal = mTramos[1];
    Ideal(vertical);
    Practico(vertical);
    PracticoPorPie(vertical);
    Ideal(horizontal);
    // Both ideal blocks go per foot only now, with the De of this moment (the vertical run's
    // practical diameter), and with the bare radiation of the vertical ideal step.
    IdealPorPie(vertical, vertical.Qrd);
    IdealPorPie(horizontal, vertical.Qrd);
    Practico(horizontal);
    PracticoPorPie(horizontal);
    if (mA.modoGrafica) {
        mA.espesorGrafica = horizontal.practico.E;
        if (mA.tipoGrafica == 1) {
            mA.valorGrafica = mTS;
        } else if (mA.tipoGrafica == 2) {
            mA.valorGrafica = horizontal.practico.Qt;
        }
        return true;
    }
    Mostrar();
    return true;
}

void CalculoSC::LeerDiametros() {
    double& nominal = mA.DiametroTuberia;
    if (mTipo == kOrbelas || nominal < kNominalSinTabla) {
        mFila = LeerTubo(mTubos, nominal);
        mD = mFila->Real;
        mDe = Comprobar(mFila->Real + kHolguraDiametro);
        mDint = mFila->Interior;
        return;
    }
    nominal = std::floor(nominal);
    mD = nominal;
    mDint = nominal;
    mDe = Comprobar(nominal + kHolguraDiametro);
}

void CalculoSC::Preparar() {
    LeerDiametros();
    mPelicula.emplace(mTA, FactorViento(mA.VelocidadAire), Sentido::Calor);
    mR1 = mD / 2;
    // The target of both ideal steps: vertical coefficient at the starting De, without wind.
    const double radiacion = mPelicula->Qrad(mTS, mEs);
    const double C = CoeficienteTuberia(kTuberiaVertical, mDe);
    mFlujoRequerido = Comprobar(radiacion + mPelicula->Qconv0(mTS, C));
}

void CalculoSC::Ideal(Tramo& tramo) {
    const Pelicula& pelicula = *mPelicula;
    const double C = CoeficienteTuberia(tramo.C0, mDe);
    const Biseccion biseccion =
            BiseccionSuperficie(mFlujoRequerido, C, pelicula, mEs, mTS, mVentana.Bomba());
    tramo.idealConvergio = biseccion.convergio;
    BloqueCalculo& b = tramo.ideal;
    if (!biseccion.convergio) {
        // The bare pipe does not depend on the surface temperature, so it stands when the
        // bisection gives up; only what needs T (Ef through Qt) stays 0.
        DesnudaPorArea(tramo.C0, b, tramo.Qrd, tramo.Qdc);
        return;
    }
    const double T = biseccion.valor;
    b.TS = T;
    b.Qr = pelicula.Qrad(T, mEs);
    b.Qc = pelicula.Qconv(T, C);
    b.Qt = Comprobar(b.Qr + b.Qc);
    b.TM = Comprobar(T + mTI) / 2;
    b.k = ConductividadTermica(mTipo, b.TM);
    const double conduccion = Comprobar(Comprobar(mTI - T) * b.k);
    tramo.Eq = Dividir(conduccion, b.Qt);
    b.f = Dividir(conduccion, Comprobar(Comprobar(T - mTA) * tramo.Eq));
    DesnudaPorArea(tramo.C0, b, tramo.Qrd, tramo.Qdc);
    b.Ef = Eficiencia(b);
    const double r2 = BiseccionRadio(tramo.Eq, mR1, mVentana.Bomba());
    b.E = Comprobar(r2 - mR1);
}

// Bare pipe with emissivity 1 and the coefficient of the pipe's own diameter D.
void CalculoSC::DesnudaPorArea(double C0, BloqueCalculo& b, double& Qrd, double& Qdc) const {
    Qrd = mPelicula->Qrad(mTI, 1);
    Qdc = mPelicula->Qconv(mTI, CoeficienteTuberia(C0, mD));
    b.Qdt = Comprobar(Qrd + Qdc);
}

// Unlike the flat calculation, Ef compares with the block's own Qt.
double CalculoSC::Eficiencia(const BloqueCalculo& b) {
    return Comprobar(Dividir(Comprobar(b.Qdt - b.Qt), b.Qdt) * 100);
}

// The target flux of the practical step takes k and f of the ideal one.
void CalculoSC::Practico(Tramo& tramo) {
    if (!tramo.idealConvergio) {
        return;
    }
    const double r2p = EspesorPractico(tramo);
    const double Eqp = EspesorEquivalente(r2p, mR1);
    const BloqueCalculo& ideal = tramo.ideal;
    const double salto = Comprobar(mTI - mTA);
    const double resistenciaAislamiento = Dividir(Eqp, ideal.k);
    const double resistenciaPelicula = Dividir(1, ideal.f);
    const double q = Dividir(salto, Comprobar(resistenciaAislamiento + resistenciaPelicula));
    const double C = CoeficienteTuberia(tramo.C0, mDe);
    const Biseccion biseccion = BiseccionSuperficie(q, C, *mPelicula, mEs, mTS, mVentana.Bomba());
    if (biseccion.convergio) {
        ResultadosPracticos(tramo, biseccion.valor);
    }
}

// Product 12 takes the nearest section of its row, and De stays; the others round the ideal
// thickness, and De becomes the practical outer diameter for all that follows.
double CalculoSC::EspesorPractico(Tramo& tramo) {
    const double E = tramo.ideal.E;
    if (mTipo == kOrbelas) {
        if (!mFila) {
            throw ErrorTuboNoEncontrado(mA.DiametroTuberia);
        }
        const double Dreq = Comprobar(Comprobar(2 * E) + mD);
        const Seccion seccion = SeccionMasCercana(*mFila, Dreq);
        tramo.practico.E = seccion.espesor;
        return Comprobar(Comprobar(seccion.diametro - mDint) / 2 + mR1);
    }
    const double Ep = RedondeoPracticoTuberia(E);
    tramo.practico.E = Ep;
    const double Dop = Comprobar(2 * Ep + mD);
    mDe = Dop;
    return Dop / 2;
}

void CalculoSC::ResultadosPracticos(Tramo& tramo, double T) {
    const Pelicula& pelicula = *mPelicula;
    const double C = CoeficienteTuberia(tramo.C0, mDe);
    BloqueCalculo& b = tramo.practico;
    b.TS = T;
    b.Qr = pelicula.Qrad(T, mEs);
    b.Qc = pelicula.Qconv(T, C);
    b.Qt = Comprobar(b.Qr + b.Qc);
    b.TM = Comprobar(T + mTI) / 2;
    b.k = ConductividadTermica(mTipo, b.TM);
    const double conduccion = Comprobar(Comprobar(mTI - T) * b.k);
    const double Eq = Dividir(conduccion, b.Qt);
    b.f = Dividir(conduccion, Comprobar(Comprobar(T - mTA) * Eq));
    DesnudaPorArea(tramo.C0, b, tramo.QrdPractico, tramo.QdcPractico);
    b.Ef = Eficiencia(b);
}

void CalculoSC::IdealPorPie(Tramo& tramo, double QrdVertical) {
    BloqueCalculo& b = tramo.ideal;
    b.Qr = PorPie(b.Qr, kPiTuberia, mDe);
    b.Qc = PorPie(b.Qc, kPiTuberia, mDe);
    b.Qt = PorPie(b.Qt, kPiTuberia, mDe);
    b.Qdt = PorPie(b.Qdt, kPiTuberia, mD);
    tramo.QDRL = PorPie(QrdVertical, kPiTuberia, mD);
    tramo.QDCL = PorPie(tramo.Qdc, kPiTuberia, mD);
}

void CalculoSC::PracticoPorPie(Tramo& tramo) {
    BloqueCalculo& b = tramo.practico;
    b.Qr = PorPie(b.Qr, kPiTuberia, mDe);
    b.Qc = PorPie(b.Qc, kPiTuberia, mDe);
    b.Qt = PorPie(b.Qt, kPiTuberia, mDe);
    b.Qdt = PorPie(b.Qdt, kPiTuberia, mD);
    tramo.QDRDL = PorPie(tramo.QrdPractico, kPiTuberia, mD);
    tramo.QDCDL = PorPie(tramo.QdcPractico, kPiTuberia, mD);
}

void CalculoSC::Mostrar() {
    ValoresPublicos& valores = mVentana.Valores();
    valores.Establecer("MaterialSA", mA.NombreMaterialAislamiento);
    const std::string& unidadTS = UnidadVisual(mA.unidades, 2);
    valores.Establecer("TS", mVentana.DesdeFahrenheit(mTS, unidadTS));
    valores.Establecer("unitTS", unidadTS);
    valores.Establecer("DM", mD);
    const Tramo& vertical = mTramos[0];
    const Tramo& horizontal = mTramos[1];
    valores.Establecer("QDRL1", vertical.QDRL);
    valores.Establecer("QDRL2", horizontal.QDRL);
    valores.Establecer("QDRDL1", vertical.QDRDL);
    valores.Establecer("QDRDL2", horizontal.QDRDL);
    valores.Establecer("QDCL1", vertical.QDCL);
    valores.Establecer("QDCL2", horizontal.QDCL);
    valores.Establecer("QDCDL1", vertical.QDCDL);
    valores.Establecer("QDCDL2", horizontal.QDCDL);
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

bool RealizarCalculosSC(ModeloResultados& ventana, ArgumentosSC& argumentos, FuenteTubos& tubos) {
    return ventana.ConTrampa([&] { return CalculoSC(ventana, argumentos, tubos).Calcular(); });
}

}  // namespace kelvora
