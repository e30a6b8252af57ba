#include "core/thermal/realizarcalculossc.h"
#include "core/thermal/realizarcalculosscfrio.h"
#include "core/thermal/realizarcalculossp.h"
#include "core/thermal/realizarcalculosspfrio.h"
#include "core/units/unidades.h"
#include "support/dobles.h"

#include <gtest/gtest.h>

#include <array>
#include <cmath>
#include <functional>
#include <map>

namespace kelvora {
namespace {

using prueba::BombaContada;
using prueba::PrompterGuion;
using Bloques = std::vector<std::array<double, kFilasDatos>>;

// Rows 2, 3 and 4 of the seed table `Tubos`.
class TubosMemoria : public FuenteTubos {
public:
    std::optional<FilaTubos> BuscarTubo(double nominal) override {
        // clang-format off
        static const std::map<double, FilaTubos> kFilas = {
            {2, {2, 2.375, 2.067, 4.500, 5.563, 6.625, 7.625,  8.625,  9.625, 10.750}},
            {3, {3, 3.500, 3.068, 5.563, 6.625, 7.625, 8.625,  9.625, 10.750, 11.750}},
            {4, {4, 4.500, 4.026, 6.625, 7.625, 8.625, 9.625, 10.750, 11.750, 12.750}},
        };
        // clang-format on
        ++consultas;
        const auto fila = kFilas.find(nominal);
        return fila == kFilas.end() ? std::nullopt : std::optional<FilaTubos>(fila->second);
    }

    int consultas = 0;
};

struct Entorno {
    Entorno(TipoResultados tipo, int32_t producto) : ventana(tipo, unidades, prompter, bomba) {
        ventana.SetTipoAnalisis(producto);
    }

    classUnidades unidades;
    PrompterGuion prompter;
    BombaContada bomba;
    TubosMemoria tubos;
    ModeloResultados ventana;
};

// Every slot within 1e-9 relative (absolute below 1e-12); the seventeenth slot of each block 0.
void EsperarBloques(const ModeloResultados& ventana, const Bloques& esperados) {
    ASSERT_EQ(ventana.ResultadosCalculo().size(), esperados.size() * kFilasPorBloque);
    for (size_t b = 0; b < esperados.size(); ++b) {
        for (size_t i = 0; i < kFilasDatos; ++i) {
            const double real = ventana.ResultadosCalculo()[b * kFilasPorBloque + i];
            const double esperado = esperados[b][i];
            EXPECT_NEAR(real, esperado, std::max(1e-12, std::fabs(esperado) * 1e-9))
                    << "bloque " << b << ", desplazamiento " << i + 1;
        }
        EXPECT_EQ(ventana.ResultadosCalculo()[b * kFilasPorBloque + kFilasDatos], 0.0);
    }
}

void EsperarValores(const ModeloResultados& ventana, const std::map<std::string, double>& valores) {
    for (const auto& [nombre, valor] : valores) {
        EXPECT_NEAR(ventana.Valores().Numero(nombre), valor, std::fabs(valor) * 1e-9) << nombre;
    }
}

ArgumentosSP Sp(double TI, double TS, double TA, double V, double Es, double Ed, int16_t codigo) {
    ArgumentosSP a;
    a.TemperaturaInterior = TI;
    a.TemperaturaSuperficieAislamiento = TS;
    a.TemperaturaAmbiente = TA;
    a.unidades = {"°F", "°C", "°F"};
    a.VelocidadAire = V;
    a.EmisividadSuperficieAislamiento = Es;
    a.EmisividadSuperficieDesnuda = Ed;
    a.CodigoMaterialSuperficieAislamiento = codigo;
    a.CodigoMaterialSuperficieDesnuda = 2;
    a.NombreMaterialAislamiento = "Aluminio";
    a.NombreMaterialDesnuda = "Acero";
    return a;
}

ArgumentosSC Sc(double TI, double TS, double TA, double V, double nominal, int16_t codigo,
                double Es) {
    ArgumentosSC a;
    a.TemperaturaInterior = TI;
    a.TemperaturaSuperficieAislamiento = TS;
    a.TemperaturaAmbiente = TA;
    a.unidades = {"°F", "°F", "°F"};
    a.VelocidadAire = V;
    a.DiametroTuberia = nominal;
    a.CodigoMaterialSuperficieAislamiento = codigo;
    a.EmisividadSuperficieAislamiento = Es;
    a.NombreMaterialAislamiento = "Aluminio";
    return a;
}

template <class Argumentos>
Argumentos Frio(double TI, double TS, double TA, double V, double k, int16_t codigo, double Es) {
    Argumentos a;
    a.TemperaturaInterior = TI;
    a.TemperaturaSuperficie = TS;
    a.TemperaturaAmbiente = TA;
    a.TemperaturaBulboHumedo = 68;
    a.hayTBH = true;
    a.TemperaturaPuntoRocio = TS - 1;
    a.unidades = {"°F", "°C", "°F", "°C", "°C"};
    a.VelocidadAire = V;
    a.HumedadRelativa = 60;
    a.CoeficienteTransmisionCalor = k;
    a.CodigoMaterialSuperficieAislamiento = codigo;
    a.EmisividadSuperficieAislamiento = Es;
    a.NombreMaterialAislamiento = "Aluminio";
    return a;
}

ArgumentosSPFrio SpFrio(double TI, double TS, double TA, double V, double k, double Es, double Ed) {
    auto a = Frio<ArgumentosSPFrio>(TI, TS, TA, V, k, 6, Es);
    a.CodigoMaterialSuperficieDesnuda = 2;
    a.EmisividadSuperficieDesnuda = Ed;
    a.NombreMaterialDesnuda = "Acero";
    return a;
}

ArgumentosSCFrio ScFrio(double TI, double TS, double TA, double V, double k, double nominal) {
    auto a = Frio<ArgumentosSCFrio>(TI, TS, TA, V, k, 6, 0.9);
    a.DiametroTuberia = nominal;
    return a;
}

// Expected slots: referencia.py beside this file, an independent evaluation of the formulas in
// double precision (printed to 12 significant digits). Events are counted as in that script:
// once on entry of the hot routines, then once per bisection pass that goes on.
// clang-format off
const Bloques kSP1 = {
        {600, 139.997558594, 80, 0, 7, 0.9,
         0.8, 369.998779297, 0.438296242374, 2.04759042783, 1.64116110148,
         69.6458813852, 53.2045452846, 122.85042667, 2406.95133722, 94.8957653743},
        {600, 144.636230469, 80, 0, 7, 0.9,
         0.8, 372.318115234, 0.440231961174, 2.06762970607, 1.5,
         75.9825566269, 58.4217871901, 134.404343817, 2406.95133722, 94.4156926251},
        {600, 145.087890625, 80, 0, 7, 0.9,
         0.8, 372.543945312, 0.440420895179, 1.88740436006, 1.63091099941,
         76.6073993724, 46.2397691802, 122.847168553, 2241.03314485, 94.5178658397},
        {600, 149.750976562, 80, 0, 7, 0.9,
         0.8, 374.875488281, 0.442376257501, 1.90371984975, 1.5,
         83.1408010675, 50.4358560571, 133.576657125, 2241.03314485, 94.0398680582},
        {600, 153.486328125, 80, 0, 7, 0.9,
         0.8, 376.743164062, 0.443948855401, 1.67194527634, 1.61338901444,
         88.4837015354, 34.3814176488, 122.865119184, 2022.56464192, 93.9257099115},
        {600, 158.015136719, 80, 0, 7, 0.9,
         0.8, 379.007568359, 0.445863001551, 1.68398686094, 1.5,
         95.0938278939, 37.0592399964, 132.15306789, 2022.56464192, 93.4660767014},
};
const Bloques kSP2 = {
        {500, 92.7700805664, 70, 8, 3, 0.3,
         0.85, 296.385040283, 0.449155073764, 2.64756347654, 3.03406611173,
         7.53083500162, 52.7543986639, 60.2852336655, 3192.1885973, 98.111324342},
        {500, 92.9776000977, 70, 8, 3, 0.3,
         0.85, 296.488800049, 0.449257614763, 2.6526981605, 3,
         7.60390256826, 53.3619593407, 60.965861909, 3192.1885973, 98.0900315575},
        {500, 96.9775390625, 70, 8, 3, 0.3,
         0.85, 298.488769531, 0.451238673171, 2.23495550667, 3.01622928615,
         9.0284483378, 51.2651511464, 60.2935994842, 2749.64222261, 97.8073478615},
        {500, 97.096862793, 70, 8, 3, 0.3,
         0.85, 298.548431396, 0.451297904888, 2.23678220715, 3,
         9.07141919373, 51.5513599616, 60.6227791553, 2749.64222261, 97.7953577737},
        {500, 106.409301758, 70, 8, 3, 0.3,
         0.85, 303.204650879, 0.45594461659, 1.65562380345, 2.97702791111,
         12.5112109185, 47.7688957388, 60.2801066572, 2166.93069127, 97.2177195497},
        {500, 106.181030273, 70, 8, 3, 0.3,
         0.85, 303.090515137, 0.455830143893, 1.65385522267, 3,
         12.4248355074, 47.3918435089, 59.8166790163, 2166.93069127, 97.2394816206},
};
// clang-format on

TEST(RealizarCalculosSP, CasosCalculadosIndependientemente) {
    struct Caso {
        int32_t producto;
        ArgumentosSP argumentos;
        const Bloques& esperados;
        int eventos;
    };
    // clang-format off
    const std::vector<Caso> casos = {
        {1, Sp(600, 140, 80, 0, 0.9, 0.8, 7),  kSP1, 74},
        {5, Sp(500, 120, 70, 8, 0.3, 0.85, 3), kSP2, 79},
    };
    // clang-format on
    for (const Caso& caso : casos) {
        Entorno e(TipoResultados::SuperficiesPlanas, caso.producto);
        ArgumentosSP a = caso.argumentos;
        ASSERT_TRUE(RealizarCalculosSP(e.ventana, a));
        EsperarBloques(e.ventana, caso.esperados);
        EXPECT_EQ(e.bomba.llamadas, caso.eventos);
        EXPECT_TRUE(e.prompter.mensajes.empty());
        EXPECT_EQ(e.ventana.Valores().Texto("MaterialSA"), "Aluminio");
        EXPECT_EQ(e.ventana.Valores().Texto("MaterialSD"), "Acero");
        EXPECT_EQ(e.ventana.Valores().Texto("unitTS"), "°C");
        EXPECT_NEAR(e.ventana.Valores().Numero("TS"),
                    (a.TemperaturaSuperficieAislamiento - 32) / 1.8, 1e-9);
    }
}

// clang-format off
const Bloques kSC1 = {
        {450, 114.07989502, 75, 3, 3, 2,
         0.85, 282.03994751, 0.390565393122, 2.58551725981, 1.03851523464,
         56.7166942813, 88.7729713678, 145.489665649, 2028.40428666, 95.4356075219},
        {450, 114.68963623, 75, 3, 3, 2,
         0.85, 282.344818115, 0.390827439188, 2.6473873671, 1,
         57.6989085756, 93.5965620937, 151.295470669, 2028.40428666, 95.2534641879},
        {450, 117.331848145, 75, 3, 3, 2,
         0.85, 283.665924072, 0.391965005325, 2.38707932424, 1.03206817149,
         61.9914657304, 83.5093395035, 145.500805234, 1839.15601188, 94.9655482779},
        {450, 118.517456055, 75, 3, 3, 2,
         0.85, 284.258728027, 0.3924765273, 2.40025514501, 1,
         63.9368822918, 86.4646375263, 150.401519818, 1839.15601188, 94.7959793814},
};
const Bloques kSC2 = {
        {600, 139.997558594, 80, 0, 4, 5,
         0.9, 369.998779297, 0.431913195915, 1.93863395225, 1.36118582763,
         136.74936832, 91.6312703097, 228.38063863, 3291.79421227, 95.8372737072},
        {600, 126.6796875, 80, 0, 4, 5,
         0.9, 363.33984375, 0.426767150153, 1.84853262514, 1.5,
         102.598603205, 66.8293053761, 169.427908582, 3291.79421227, 96.9118134794},
        {600, 143.806152344, 80, 0, 4, 5,
         0.9, 371.903076172, 0.433396219878, 1.82295550744, 1.35535215287,
         146.943765652, 81.4417280763, 228.385493729, 3135.47116534, 95.6296425956},
        {600, 129.560546875, 80, 0, 4, 5,
         0.9, 364.780273438, 0.42787509639, 1.73743618984, 1.5,
         109.791734322, 59.2814932672, 169.073227589, 3135.47116534, 96.7646350037},
};
const Bloques kSC3 = {
        {400, 109.413146973, 70, 2, 14, 4,
         0.9, 254.706573486, 0.367771562883, 2.16028951946, 1.16323454556,
         171.626543303, 185.023007045, 356.649550348, 5357.21052279, 94.1747975887},
        {400, 114.118652344, 70, 2, 14, 4,
         0.9, 257.059326172, 0.369680104151, 2.22134779302, 1,
         194.656702882, 215.856763266, 410.513466147, 5357.21052279, 93.2950314095},
        {400, 112.557067871, 70, 2, 14, 4,
         0.9, 256.278533936, 0.369045633854, 2.00072192651, 1.15583788398,
         186.950699204, 169.703251399, 356.653950604, 4935.7231148, 93.6772748487},
        {400, 117.573852539, 70, 2, 14, 4,
         0.9, 258.78692627, 0.371087828284, 2.0433262764, 1,
         211.932249051, 195.255451497, 407.187700548, 4935.7231148, 92.7814176425},
};
const Bloques kSC4 = {
        {300, 9.9951171875, -100, 0, 3, 2,
         0.05, 154.997558594, 0.295332594318, 1.02132821117, 0.653691014,
         3.99705306841, 157.762541991, 161.759595059, 1055.87039724, 90.2508940114},
        {300, -20.7373046875, -100, 0, 3, 2,
         0.05, 139.631347656, 0.285515550599, 0.972802864532, 1,
         2.55218437492, 108.473892253, 111.026076628, 1055.87039724, 93.3085577511},
        {300, 0, -100, 0, 3, 2,
         0.05, 0, 0, 0, 0,
         0, 0, 0, 958.032015397, 0},
        {300, 0, -100, 0, 3, 2,
         0.05, 0, 0, 0, 0,
         0, 0, 0, 0, 0},
};
// clang-format on

TEST(RealizarCalculosSC, CasosCalculadosIndependientemente) {
    struct Caso {
        const char* nombre;
        int32_t producto;
        ArgumentosSC argumentos;
        const Bloques& esperados;
        int eventos;
        double nominalFinal;
        int consultas;
        std::map<std::string, double> valores;
    };
    // clang-format off
    const std::vector<Caso> casos = {
        {"producto 9, nominal 3", 9, Sc(450, 130, 75, 3, 3, 2, 0.85), kSC1, 70, 3, 1,
         {{"DM", 3.5}, {"QDRL1", 961.1822804694043}, {"QDRL2", 961.1822804694043},
          {"QDRDL1", 961.1822804694043}, {"QDRDL2", 961.1822804694043},
          {"QDCL1", 1067.2220061894432}, {"QDCL2", 877.9737314076715},
          {"QDCDL1", 1067.2220061894432}, {"QDCDL2", 877.9737314076715}}},
        {"producto 12, secciones", 12, Sc(600, 140, 80, 0, 4, 5, 0.9), kSC2, 62, 4, 1,
         {{"DM", 4.5}, {"QDRL1", 2410.246436225854}, {"QDCL2", 725.2247291159243},
          {"QDCDL1", 881.5477760415029}}},
        {"nominal 14.7 sin tabla", 9, Sc(400, 120, 70, 2, 14.7, 4, 0.9), kSC3, 70, 14, 0,
         {{"DM", 14}, {"QDRDL2", 2980.329477744554}, {"QDCL1", 2376.881045045416}}},
        {"horizontal se rinde", 9, Sc(300, 10, -100, 0, 3, 2, 0.05), kSC4, 73, 3, 1,
         {{"QDRL2", 504.1334037642079}, {"QDRDL1", 504.1334037642079}, {"QDRDL2", 0},
          {"QDCL1", 551.7369934715157}, {"QDCL2", 453.89861163324684}, {"QDCDL2", 0}}},
    };
    // clang-format on
    for (const Caso& caso : casos) {
        SCOPED_TRACE(caso.nombre);
        Entorno e(TipoResultados::SuperficiesCilindricas, caso.producto);
        ArgumentosSC a = caso.argumentos;
        ASSERT_TRUE(RealizarCalculosSC(e.ventana, a, e.tubos));
        EsperarBloques(e.ventana, caso.esperados);
        EXPECT_EQ(e.bomba.llamadas, caso.eventos);
        EXPECT_EQ(a.DiametroTuberia, caso.nominalFinal);
        EXPECT_EQ(e.tubos.consultas, caso.consultas);
        EsperarValores(e.ventana, caso.valores);
        EXPECT_EQ(e.ventana.Valores().Texto("unitTS"), "°F");
    }
}

// clang-format off
const Bloques kSPFrio = {
        {0, 51, 90, 4, 6, 0.9,
         0.3, 25.5, 0.15, 2.91444142643, 0.0673040962069,
         36.4398891734, 77.2233264574, 113.663215631, 248.934924232, 72.8105507858},
        {0, 83.2214355469, 90, 4, 6, 0.9,
         0.3, 41.6107177734, 0.15, 3.68314424635, 0.5,
         6.91969341766, 8.38161372245, 15.3013071401, 248.934924232, 93.8538153908},
        {0, 51, 90, 4, 6, 0.9,
         0.3, 25.5, 0.15, 2.48791295773, 0.0788427286189,
         36.4398891734, 60.588716178, 97.0286053515, 200.554333593, 66.2515221747},
        {0, 82.4194335938, 90, 4, 6, 0.9,
         0.3, 41.2097167969, 0.15, 3.26173913043, 0.5,
         7.72143708683, 7.57723137602, 15.2986684628, 200.554333593, 92.371144654},
        {0, 51, 90, 4, 6, 0.9,
         0.3, 25.5, 0.15, 1.92629259119, 0.101829725687,
         36.4398891734, 38.6855218831, 75.1254110566, 136.850437976, 50.541601619},
        {0, 80.9143066406, 90, 4, 6, 0.9,
         0.3, 40.4571533203, 0.15, 2.67170495768, 0.5,
         9.21650203079, 6.08631945506, 15.3028214858, 136.850437976, 88.8199115573},
};
const Bloques kSCFrio = {
        {-20, 56, 95, 2, 3, 6,
         0.9, 18, 0.16, 2.32198171154, 0.130083402703,
         63.7794206525, 90.32191421, 154.101334862, 310.607556451, 73.2853756692},
        {-20, 89.1461181641, 95, 2, 3, 6,
         0.9, 34.573059082, 0.16, 1.86901069805, 1,
         10.4769832992, 8.14126156606, 18.6182448652, 310.607556451, 96.7723873533},
        {-20, 89.1461181641, 95, 2, 3, 6,
         0.9, 34.573059082, 0.16, 1.72408616329, 1.32308322866,
         10.4769832992, 6.69758846244, 17.1745717616, 271.717361617, 96.5965198992},
        {-20, 90.7183837891, 95, 2, 3, 6,
         0.9, 35.3591918945, 0.16, 1.67474152108, 1.5,
         7.69572635742, 4.50648442116, 12.2022107786, 271.717361617, 97.5818912898},
};
// clang-format on

TEST(RealizarCalculosFrio, CasosCalculadosIndependientemente) {
    Entorno plana(TipoResultados::SuperficiesPlanasFrio, 13);
    ASSERT_TRUE(RealizarCalculosSPFrio(plana.ventana, SpFrio(0, 51, 90, 4, 0.15, 0.9, 0.3)));
    EsperarBloques(plana.ventana, kSPFrio);
    EXPECT_EQ(plana.bomba.llamadas, 35);
    EXPECT_EQ(plana.ventana.Valores().Texto("MaterialSD"), "Acero");

    Entorno tubo(TipoResultados::SuperficiesCilindricasFrio, 14);
    ASSERT_TRUE(RealizarCalculosSCFrio(tubo.ventana, ScFrio(-20, 56, 95, 2, 0.16, 3), tubo.tubos));
    EsperarBloques(tubo.ventana, kSCFrio);
    EXPECT_EQ(tubo.bomba.llamadas, 24);
    EsperarValores(tubo.ventana, {{"DM", 3.5},
                                  {"QDRL1", 91.29527051518365},
                                  {"QDRDL2", 91.29527051518365},
                                  {"QDCL1", 219.31228593627444},
                                  {"QDCDL1", 219.31228593627444},
                                  {"QDCL2", 180.4220911022306},
                                  {"QDCDL2", 180.4220911022306}});

    // Wet bulb, dew point and TS in their display units; the flags and the humidity as given.
    for (const ModeloResultados* ventana : {&plana.ventana, &tubo.ventana}) {
        const ValoresPublicos& v = ventana->Valores();
        EXPECT_NEAR(v.Numero("TBH"), 20, 1e-9);
        EXPECT_EQ(v.Texto("unitTBH"), "°C");
        EXPECT_EQ(v.Texto("unitTPR"), "°C");
        EXPECT_EQ(v.Texto("unitTS"), "°C");
        EXPECT_NEAR(v.Numero("TS") - v.Numero("TPR"), 1 / 1.8, 1e-9);
        EXPECT_TRUE(v.Booleano("hayTBH"));
        EXPECT_FALSE(v.Booleano("hayHR"));
        EXPECT_EQ(v.Numero("HR"), 60);
    }
}

using Calculo = std::function<bool(Entorno&)>;

Calculo CalcularSP(ArgumentosSP a) {
    return [a](Entorno& e) mutable { return RealizarCalculosSP(e.ventana, a); };
}

Calculo CalcularSC(ArgumentosSC a) {
    return [a](Entorno& e) mutable { return RealizarCalculosSC(e.ventana, a, e.tubos); };
}

Calculo CalcularSPFrio(ArgumentosSPFrio a) {
    return [a](Entorno& e) { return RealizarCalculosSPFrio(e.ventana, a); };
}

Calculo CalcularSCFrio(ArgumentosSCFrio a) {
    return [a](Entorno& e) { return RealizarCalculosSCFrio(e.ventana, a, e.tubos); };
}

ArgumentosSP SinUnidadVisual(ArgumentosSP a) {
    a.unidades = {"°F"};
    return a;
}

ArgumentosSC EnModoGrafica(ArgumentosSC a) {
    a.modoGrafica = true;
    a.tipoGrafica = 1;
    return a;
}

struct CasoError {
    const char* nombre;
    TipoResultados tipo;
    int32_t producto;
    Calculo calcular;
    const char* mensaje;
};

const auto kPlana = TipoResultados::SuperficiesPlanas;
const auto kTubo = TipoResultados::SuperficiesCilindricas;
const auto kPlanaFrio = TipoResultados::SuperficiesPlanasFrio;
const auto kTuboFrio = TipoResultados::SuperficiesCilindricasFrio;

// Every failure ends with one exclamation box under the application's title, False, and an
// empty grid.
TEST(ErroresDeCalculo, MensajeYResultadoFalso) {
    // clang-format off
    const std::vector<CasoError> casos = {
        {"espesor practico 0",                kPlana,     1,  CalcularSP(Sp(150, 148, 80, 0, 0.9, 0.9, 7)),
         "Error inesperado: División por cero"},
        {"sin unidad visual",                 kPlana,     1,  CalcularSP(SinUnidadVisual(Sp(600, 140, 80, 0, 0.9, 0.8, 7))),
         "Error inesperado: El subíndice está fuera del intervalo"},
        {"nominal ausente",                   kTubo,      9,  CalcularSC(Sc(450, 130, 75, 3, 5, 2, 0.85)),
         "Error inesperado: No se encontró un diámetro de 5 plg en la Base de Datos."},
        {"producto 12 lee la tabla sobre 14", kTubo,      12, CalcularSC(Sc(450, 130, 75, 3, 14.7, 2, 0.85)),
         "Error inesperado: No se encontró un diámetro de 14.7 plg en la Base de Datos."},
        {"modo grafica de tuberia",           kTubo,      9,  CalcularSC(EnModoGrafica(Sc(450, 130, 75, 3, 2.5, 2, 0.85))),
         "Error inesperado: No se encontró un diámetro de 2.5 plg en la Base de Datos."},
        {"TS igual a TI",                     kPlanaFrio, 13, CalcularSPFrio(SpFrio(40, 40, 90, 4, 0.15, 0.9, 0.3)),
         "Error inesperado: Desbordamiento"},
        {"seccion mayor que Tres",            kTuboFrio,  14, CalcularSCFrio(ScFrio(-20, 56, 95, 2, 8, 3)),
         "Orbelas de mas de 4 plg de espesor, no prevista en este programa"},
        {"tubo frio ausente",                 kTuboFrio,  14, CalcularSCFrio(ScFrio(-20, 56, 95, 2, 0.16, 16)),
         "Error inesperado: No se encontró un diámetro de 16 plg en la Base de Datos."},
    };
    // clang-format on
    for (const CasoError& caso : casos) {
        SCOPED_TRACE(caso.nombre);
        Entorno e(caso.tipo, caso.producto);
        EXPECT_FALSE(caso.calcular(e));
        ASSERT_EQ(e.prompter.mensajes.size(), 1u);
        const Mensaje& m = e.prompter.mensajes.front();
        EXPECT_EQ(m.texto, caso.mensaje);
        EXPECT_EQ(m.icono, Icono::Exclamacion);
        EXPECT_EQ(m.botones, Botones::Aceptar);
        EXPECT_EQ(m.titulo, "Kelvora");
        EXPECT_EQ(e.ventana.MSFG().Rows(), 0);
    }
}

// A window closed while events run stops its calculation at once, without a message.
TEST(ErroresDeCalculo, VentanaCerradaTerminaSinMensaje) {
    // clang-format off
    const std::vector<CasoError> casos = {
        {"SP",     kPlana,     1,  CalcularSP(Sp(600, 140, 80, 0, 0.9, 0.8, 7)),         ""},
        {"SC",     kTubo,      9,  CalcularSC(Sc(450, 130, 75, 3, 3, 2, 0.85)),          ""},
        {"SPFrio", kPlanaFrio, 13, CalcularSPFrio(SpFrio(0, 51, 90, 4, 0.15, 0.9, 0.3)), ""},
        {"SCFrio", kTuboFrio,  14, CalcularSCFrio(ScFrio(-20, 56, 95, 2, 0.16, 3)),      ""},
    };
    // clang-format on
    for (const CasoError& caso : casos) {
        SCOPED_TRACE(caso.nombre);
        Entorno e(caso.tipo, caso.producto);
        e.bomba.cerrarTras = 3;
        EXPECT_FALSE(caso.calcular(e));
        EXPECT_EQ(e.bomba.llamadas, 3);
        EXPECT_TRUE(e.prompter.mensajes.empty());
        EXPECT_EQ(e.ventana.MSFG().Rows(), 0);
    }
}

TEST(ErroresDeCalculo, BombaSinVentanaCortaElCalculo) {
    classUnidades unidades;
    PrompterGuion prompter;
    BombaSinVentana bomba(10);
    ModeloResultados ventana(TipoResultados::SuperficiesPlanasFrio, unidades, prompter, bomba);
    ventana.SetTipoAnalisis(13);
    EXPECT_FALSE(RealizarCalculosSPFrio(ventana, SpFrio(0, 51, 90, 4, 0.15, 0.9, 0.3)));
    ASSERT_EQ(prompter.mensajes.size(), 1u);
    EXPECT_EQ(prompter.mensajes.front().texto, "Error inesperado: El cálculo no converge");
}

// In chart mode the flat routine goes on past a failed step and reports what it arrived at.
// Case 150/148/80: the least ideal thickness rounds to 0, so every practical target flux fails
// and stays 0; the vertical bisection on 0 settles at 80.006591796875 °F, where
// Qrad + Qconv = 0.006897342950286358 (referencia.py); f' fails and Ef' is then 100.
TEST(ModoGrafica, PlanaReanudaTrasElError) {
    Entorno e(TipoResultados::SuperficiesPlanas, 1);
    auto a = Sp(150, 148, 80, 0, 0.9, 0.9, 7);
    a.modoGrafica = true;
    a.tipoGrafica = 2;
    a.espesorGrafica = -1;
    EXPECT_TRUE(RealizarCalculosSP(e.ventana, a));
    EXPECT_TRUE(e.prompter.mensajes.empty());
    EXPECT_EQ(a.espesorGrafica, 0);
    EXPECT_NEAR(a.valorGrafica, 0.006897342950286358, 1e-15);
    EXPECT_EQ(e.ventana.MSFG().Rows(), 0);
    EXPECT_EQ(e.ventana.Resultado(45), 0);
    EXPECT_EQ(e.ventana.Valores().Texto("MaterialSA"), "");
}

TEST(ModoGrafica, SalidasPorTipo) {
    struct Caso {
        int16_t tipo;
        double espesor;
        double valor;
    };
    // Case SP1: practical thickness 1.5, input TS 140; another type leaves both as they were.
    // clang-format off
    const std::vector<Caso> planas = {
        {1,  1.5, 140},
        {3, -1,   -1},
    };
    // clang-format on
    for (const Caso& caso : planas) {
        Entorno e(TipoResultados::SuperficiesPlanas, 1);
        auto a = Sp(600, 140, 80, 0, 0.9, 0.8, 7);
        a.modoGrafica = true;
        a.tipoGrafica = caso.tipo;
        a.espesorGrafica = -1;
        a.valorGrafica = -1;
        EXPECT_TRUE(RealizarCalculosSP(e.ventana, a));
        EXPECT_EQ(a.espesorGrafica, caso.espesor);
        EXPECT_EQ(a.valorGrafica, caso.valor);
    }
    // Case SC1: the horizontal practical block, thickness 1 and Qt per foot.
    Entorno e(TipoResultados::SuperficiesCilindricas, 9);
    auto a = Sc(450, 130, 75, 3, 3, 2, 0.85);
    a.modoGrafica = true;
    a.tipoGrafica = 2;
    EXPECT_TRUE(RealizarCalculosSC(e.ventana, a, e.tubos));
    EXPECT_EQ(a.espesorGrafica, 1);
    EXPECT_NEAR(a.valorGrafica, 150.401519818077, 1e-9);
    EXPECT_EQ(e.ventana.MSFG().Rows(), 0);
}

}  // namespace
}  // namespace kelvora
