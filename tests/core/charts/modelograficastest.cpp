#include "core/app/contexto.h"
#include "core/charts/modelograficas.h"
#include "core/entry/accesomateriales.h"
#include "core/entry/modeloentrada.h"
#include "core/materials/tubos.h"
#include "core/runtime/formato.h"
#include "core/runtime/texto.h"
#include "core/thermal/productos.h"
#include "core/thermal/realizarcalculossp.h"
#include "support/dobles.h"

#include <gtest/gtest.h>

#include <functional>
#include <utility>
#include <vector>

namespace kelvora {
namespace {

using prueba::LocaleTemporal;
using prueba::PrompterGuion;
using prueba::SurfaceGrabadora;

class SinBaseDatos : public AccesoMateriales {
public:
    bool ExisteBaseDatos() override { return false; }
    void AbrirConexion() override {}
    std::string LeerMaterial(int32_t, std::string&) override { return ""; }
    void CerrarConexion() override {}
};

class TubosVacios : public FuenteTubos {
public:
    std::optional<FilaTubos> BuscarTubo(double) override { return std::nullopt; }
};

// Counts its calls; at call `reentrarEn` it asks the chart to draw and reads the pointer, as an
// event let through inside the series would; from call `cerrarEn` on it reports the window gone.
class BombaPrueba : public EventPump {
public:
    bool DoEvents() override {
        ++llamadas;
        if (grafica != nullptr && llamadas == reentrarEn) {
            reentro = grafica->Graficar(superficie, 100, 100);
            lectura = grafica->picGrafica_MouseMove(0, 0);
        }
        if (llamadas == cambiarEn) {
            cambio();
        }
        return cerrarEn < 0 || llamadas < cerrarEn;
    }

    int llamadas = 0;
    int reentrarEn = -1;
    int cerrarEn = -1;
    int cambiarEn = -1;
    std::function<void()> cambio;
    ModeloGraficas* grafica = nullptr;
    bool reentro = true;
    LecturaRaton lectura;
    SurfaceGrabadora superficie;
};

using Cajas = std::vector<std::pair<int, const char*>>;

// Flat hot, product 1: TI 105, TS 103, TA 100 °F, still air, Es 0.9, Ed 0.8: N = 6.
const Cajas kPlana = {{1, "105"}, {2, "103"}, {3, "100"}, {4, "0"},
                      {5, "1"},   {6, "0.9"}, {7, "2"},   {8, "0.8"}};

struct Proyecto {
    Proyecto(TipoEntrada tipo, int32_t producto, const Cajas& cajas)
        : ventana(DescripcionVentanaDatos(tipo), {prompter, contexto, materiales, bomba, {}, {}}),
          grafica(contexto.Unidades, prompter, bomba, tubos) {
        ventana.SetTipoAnalisis(producto);
        for (const auto& [caja, texto] : cajas) {
            ventana.SetTexto(caja, texto);
        }
    }

    PrompterGuion prompter;
    ContextoAplicacion contexto;
    SinBaseDatos materiales;
    BombaPrueba bomba;
    TubosVacios tubos;
    ModeloEntrada ventana;
    ModeloGraficas grafica;
};

// The temperature chart's value is the swept TS itself: the user's 103 first, then TA = 100
// upward to TA + N − 1 = 105.
TEST(ModeloGraficas, BarridoEnOrdenYUnEventoPorPunto) {
    Proyecto p(TipoEntrada::SuperficiesPlanas, 1, kPlana);
    p.grafica.setTipoGrafica(kGraficaTemperatura, p.ventana, 2);
    ASSERT_TRUE(p.grafica.CalcularSerie());
    const SerieGrafica& serie = p.grafica.Serie();
    ASSERT_EQ(serie.N, 6);
    EXPECT_EQ(serie.Y, (std::vector<double>{103, 100, 101, 102, 103, 104, 105}));
    EXPECT_TRUE(p.prompter.mensajes.empty());
    EXPECT_EQ(p.grafica.Caption(), "Gráfica Temperatura Superficie (°F) vs Espesor (plg) - " +
                                           NombreProducto(1, false) + " [2]");

    // The same calculations made directly: same thicknesses, and the series' pump calls are
    // theirs plus one per point and one for setTipoGrafica.
    PrompterGuion prompter;
    prueba::BombaContada bomba;
    ModeloResultados resultados(TipoResultados::SuperficiesPlanas, p.contexto.Unidades, prompter,
                                bomba);
    resultados.SetTipoAnalisis(1);
    for (size_t i = 0; i < serie.Y.size(); ++i) {
        ArgumentosSP a;
        a.TemperaturaInterior = 105;
        a.TemperaturaSuperficieAislamiento = serie.Y[i];
        a.TemperaturaAmbiente = 100;
        a.EmisividadSuperficieAislamiento = 0.9;
        a.EmisividadSuperficieDesnuda = 0.8;
        a.modoGrafica = true;
        a.tipoGrafica = kGraficaTemperatura;
        ASSERT_TRUE(RealizarCalculosSP(resultados, a));
        EXPECT_EQ(serie.X[i], a.espesorGrafica) << i;
    }
    EXPECT_EQ(p.bomba.llamadas, bomba.llamadas + serie.N + 1 + 1);
}

TEST(ModeloGraficas, CambioDeTipoCalculaDeNuevo) {
    Proyecto p(TipoEntrada::SuperficiesPlanas, 1, kPlana);
    p.grafica.setTipoGrafica(kGraficaTemperatura, p.ventana, 1);
    ASSERT_TRUE(p.grafica.CalcularSerie());
    const int llamadas = p.bomba.llamadas;
    ASSERT_TRUE(p.grafica.CalcularSerie());
    EXPECT_EQ(p.bomba.llamadas, llamadas);
    p.grafica.setTipoGrafica(kGraficaCalor, p.ventana, 1);
    EXPECT_FALSE(p.grafica.SerieLista());
    ASSERT_TRUE(p.grafica.CalcularSerie());
    EXPECT_GT(p.bomba.llamadas, llamadas + 7);
    EXPECT_NE(p.grafica.Serie().Y[1], 100);
    EXPECT_EQ(p.grafica.FormatoEncabezado(),
              "^ Pérdida de Calor (BTU/pie² h) |^ Espesor Recomendado (plg)");
    EXPECT_EQ(p.grafica.Textos().letrasY, "Qv");
}

TEST(ModeloGraficas, ReentradaYRatonDuranteLaSerie) {
    Proyecto p(TipoEntrada::SuperficiesPlanas, 1, kPlana);
    p.grafica.setTipoGrafica(kGraficaTemperatura, p.ventana, 1);
    p.bomba.grafica = &p.grafica;
    p.bomba.reentrarEn = p.bomba.llamadas + 3;
    SurfaceGrabadora superficie;
    ASSERT_TRUE(p.grafica.Graficar(superficie, 100, 100));
    EXPECT_FALSE(p.bomba.reentro);
    EXPECT_TRUE(p.bomba.superficie.llamadas.empty());
    EXPECT_FALSE(p.bomba.lectura.toolTip.has_value());
    EXPECT_EQ(p.bomba.lectura.panel, p.grafica.Caption());
    EXPECT_FALSE(superficie.llamadas.empty());
    EXPECT_FALSE(p.grafica.Ocupado());
}

// An emissivity typed while the series runs counts from the next point on: the series follows
// the one of the old value up to some point and the one of the new value from there.
TEST(ModeloGraficas, CambioDeLaVentanaDuranteLaSerie) {
    const auto serieCon = [](const char* emisividad, int cambiarEn) {
        Proyecto p(TipoEntrada::SuperficiesPlanas, 1, kPlana);
        p.grafica.setTipoGrafica(kGraficaCalor, p.ventana, 1);
        p.ventana.SetTexto(6, emisividad);
        p.bomba.cambiarEn = cambiarEn;
        p.bomba.cambio = [&p] { p.ventana.SetTexto(6, "0.5"); };
        EXPECT_TRUE(p.grafica.CalcularSerie());
        return p.grafica.Serie().Y;
    };
    const std::vector<double> antes = serieCon("0.9", -1);
    const std::vector<double> despues = serieCon("0.5", -1);
    const std::vector<double> mixta = serieCon("0.9", 200);
    size_t j = 0;
    while (j < mixta.size() && mixta[j] == antes[j]) {
        ++j;
    }
    ASSERT_GT(j, 0U);
    ASSERT_LT(j, mixta.size());
    for (size_t i = j; i < mixta.size(); ++i) {
        EXPECT_EQ(mixta[i], despues[i]) << i;
    }
}

// A run that stops (window closed, or the pipe routine's False) draws nothing and keeps the
// series that was ready before.
TEST(ModeloGraficas, SerieQueSeDetiene) {
    Proyecto p(TipoEntrada::SuperficiesPlanas, 1, kPlana);
    p.grafica.setTipoGrafica(kGraficaTemperatura, p.ventana, 1);
    ASSERT_TRUE(p.grafica.CalcularSerie());
    p.grafica.setTipoGrafica(kGraficaCalor, p.ventana, 1);
    p.bomba.cerrarEn = p.bomba.llamadas + 20;
    SurfaceGrabadora superficie;
    EXPECT_FALSE(p.grafica.Graficar(superficie, 100, 100));
    EXPECT_TRUE(superficie.llamadas.empty());
    EXPECT_FALSE(p.grafica.SerieLista());
    EXPECT_EQ(p.grafica.Serie().Y[1], 100);

    // Nominal 3 plg is not in the (empty) pipe table: the first point gives the message.
    const Cajas tuberia = {{1, "110"}, {2, "105"}, {3, "100"}, {4, "0"},
                           {5, "3"},   {6, "1"},   {7, "0.9"}};
    Proyecto q(TipoEntrada::SuperficiesCilindricas, 9, tuberia);
    q.grafica.setTipoGrafica(kGraficaCalor, q.ventana, 1);
    EXPECT_FALSE(q.grafica.Graficar(superficie, 100, 100));
    ASSERT_EQ(q.prompter.mensajes.size(), 1U);
    EXPECT_EQ(q.prompter.mensajes[0].texto,
              "Error inesperado: No se encontró un diámetro de 3 plg en la Base de Datos.");
    EXPECT_TRUE(superficie.llamadas.empty());
}

TEST(ModeloGraficas, TuberiaYProductoFrio) {
    const Cajas tuberia = {{1, "110"}, {2, "105"}, {3, "100"}, {4, "0"},
                           {5, "14"},  {6, "1"},   {7, "0.9"}};
    Proyecto p(TipoEntrada::SuperficiesCilindricas, 9, tuberia);
    p.grafica.setTipoGrafica(kGraficaCalor, p.ventana, 1);
    ASSERT_TRUE(p.grafica.CalcularSerie());
    EXPECT_EQ(p.grafica.Serie().N, 11);
    EXPECT_EQ(p.grafica.MSFG().TextMatrix(0, 0), "Pérdida de Calor (BTU/pie h)");
    EXPECT_TRUE(p.prompter.mensajes.empty());

    const Cajas frio = {{1, "20"}, {2, "80"}, {4, "60"},  {5, "50"}, {6, "0.3"},
                        {7, "0"},  {8, "1"},  {9, "0.9"}, {10, "2"}, {11, "0.8"}};
    Proyecto f(TipoEntrada::PlanasFrio, 13, frio);
    f.grafica.setTipoGrafica(kGraficaTemperatura, f.ventana, 1);
    SurfaceGrabadora superficie;
    EXPECT_TRUE(f.grafica.Graficar(superficie, 100, 100));
    EXPECT_TRUE(f.grafica.Serie().Vacia());
    EXPECT_TRUE(superficie.llamadas.empty());
    EXPECT_EQ(f.grafica.MSFG().Rows(), 1);
}

TEST(ModeloGraficas, TablaLecturaDelRatonYPestanas) {
    const LocaleTemporal locale(LocaleChars::Espanol());
    Proyecto p(TipoEntrada::SuperficiesPlanas, 1, kPlana);
    p.grafica.setTipoGrafica(kGraficaTemperatura, p.ventana, 1);
    SurfaceGrabadora superficie;
    ASSERT_TRUE(p.grafica.Graficar(superficie, 200, 100));
    const Grilla& tabla = p.grafica.MSFG();
    EXPECT_EQ(tabla.TextMatrix(0, 0), "Temperatura Superficie (°F)");
    EXPECT_EQ(tabla.TextMatrix(0, 1), "Espesor Recomendado (plg)");
    ASSERT_GT(tabla.Rows(), 1);
    for (int r = 1; r < tabla.Rows(); ++r) {
        EXPECT_EQ(tabla.TextMatrix(r, 1).find(','), std::string::npos) << r;
    }

    const EjesGrafica& e = p.grafica.Ejes();
    const double x = (e.Xlow + e.Xhigh) / 2;
    const LecturaRaton dentro = p.grafica.picGrafica_MouseMove(x, 102.25);
    std::string textoX = Format(x, "0.0");
    NormalizarDecimal(textoX);
    EXPECT_EQ(dentro.toolTip, "(" + textoX + ", 102.3)");
    EXPECT_EQ(dentro.panel, "Espesor (plg) = " + textoX + ",  Temperatura Superficie (°F) = 102.3");
    const LecturaRaton fuera = p.grafica.picGrafica_MouseMove(x, e.Yhigh + 1);
    EXPECT_EQ(fuera.toolTip, "");
    EXPECT_EQ(fuera.panel, "");

    EXPECT_EQ(p.grafica.Tag(), "15");
    p.grafica.tbs_Click(1);
    EXPECT_EQ(p.grafica.Tag(), "16");
    p.grafica.tbs_Click(0);
    EXPECT_EQ(p.grafica.Tag(), "15");
}

}  // namespace
}  // namespace kelvora
