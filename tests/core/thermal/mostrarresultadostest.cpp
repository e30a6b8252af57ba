#include "core/runtime/localechars.h"
#include "core/thermal/modeloresultados.h"
#include "core/units/unidades.h"
#include "support/dobles.h"

#include <gtest/gtest.h>

namespace kelvora {
namespace {

using prueba::BombaContada;
using prueba::LocaleTemporal;
using prueba::PrompterGuion;

struct Ventana {
    Ventana(TipoResultados tipo, int32_t producto) : modelo(tipo, unidades, prompter, bomba) {
        modelo.SetTipoAnalisis(producto);
    }

    // Slot s holds s + 0.125, except the material code, 7.
    void Mostrar(int ranuraMaterial, const NombresUnidades& nombres) {
        std::vector<double> ranuras(static_cast<size_t>(modelo.Ventana().Ranuras()));
        for (size_t i = 0; i < ranuras.size(); ++i) {
            const int ranura = static_cast<int>(i) + 1;
            ranuras[i] = ranura % kFilasPorBloque == ranuraMaterial ? 7 : ranura + 0.125;
        }
        modelo.MostrarResultados(ranuras, nombres);
    }

    const std::string& Celda(int fila, int columna) const {
        return modelo.MSFG().TextMatrix(fila, columna);
    }

    classUnidades unidades;
    PrompterGuion prompter;
    BombaContada bomba;
    ModeloResultados modelo;
};

// Expected texts by hand: "0.0#" rounds half away from zero on the decimal digits, so slot
// 8.125 shows "8.13"; 1.125 °F is −17.152… °C and 3.125 °F is 257.11 K; "0.0##" keeps 6.125.
TEST(MostrarResultados, FilasDeCadaVentana) {
    struct Caso {
        TipoResultados tipo;
        int32_t producto;
        int filas;
        int ranuraMaterial;
        const char* titulo;
        const char* posicionFinal;
        const char* etiquetaTA;
        const char* etiquetaQr;
        const char* unidadQr;
        const char* etiquetaE;
    };
    // clang-format off
    const std::vector<Caso> casos = {
        {TipoResultados::SuperficiesPlanas, 1, 104, 5,
         "TRANSFERENCIA DE CALOR PARA SUPERFICIES PLANAS (CALOR)\r\nVELMAR DE 80 kg/m³",
         "SUPERFICIE PLANA HORIZONTAL CARA HACIA ABAJO\r\nCALCULOS PARA ESPESOR PRACTICO",
         "Temperatura Ambiente (TA)", "Pérdida de Calor por Radiación (Qr)", "BTU/pie² h",
         "Espesor del Aislamiento recomendado (E)"},
        {TipoResultados::SuperficiesCilindricas, 12, 70, 6,
         "TRANSFERENCIA DE CALOR PARA SUPERFICIES CILÍNDRICAS (CALOR)\r\nORBELAS",
         "TUBERIA HORIZONTAL\r\nCALCULOS PARA ESPESOR PRACTICO",
         "Temperatura Ambiente (TA)", "Pérdida de Calor por Radiación (Qr)", "BTU/pie h",
         "Espesor del Aislamiento recomendado (E)"},
        {TipoResultados::SuperficiesPlanasFrio, 13, 104, 5,
         "TRANSFERENCIA DE CALOR PARA SUPERFICIES PLANAS (FRÍO)\r\nTAVELAS DE POLIURETANO",
         "SUPERFICIE PLANA HORIZONTAL CARA HACIA ABAJO\r\nCALCULOS PARA ESPESOR PRACTICO",
         "Temperatura Ambiente (Bulbo Seco) (TA)", "Ganancia de Calor por Radiación (Qr)",
         "BTU/pie² h", "Espesor del Aislamiento recomendado (E)"},
        {TipoResultados::SuperficiesCilindricasFrio, 14, 70, 6,
         "TRANSFERENCIA DE CALOR PARA SUPERFICIES CILÍNDRICAS (FRÍO)\r\nORBELAS DE POLIURETANO",
         "TUBERIA HORIZONTAL\r\nCALCULOS PARA ESPESOR PRACTICO",
         "Temperatura Ambiente (TA)", "Ganancia de Calor por Radiación (Qv)", "BTU/pie h",
         "Espesor Exacto del Aislamiento (E)"},
    };
    // clang-format on
    for (const Caso& caso : casos) {
        SCOPED_TRACE(caso.titulo);
        Ventana v(caso.tipo, caso.producto);
        v.Mostrar(caso.ranuraMaterial, {"°C", "°F", "K"});
        const Grilla& g = v.modelo.MSFG();
        ASSERT_EQ(g.Rows(), caso.filas);
        ASSERT_EQ(g.Cols(), 3);
        for (int c = 0; c < 3; ++c) {
            EXPECT_EQ(v.Celda(0, c), "FORNALIS S.A.");
            EXPECT_EQ(v.Celda(1, c), caso.titulo);
            EXPECT_EQ(v.Celda(caso.filas - 17, c), caso.posicionFinal);
        }
        EXPECT_EQ(v.Celda(2, 0), v.Celda(2, 0).substr(0, v.Celda(2, 0).find('\r')) +
                                         "\r\nCALCULOS PARA ESPESOR IDEAL");
        // clang-format off
        const std::vector<std::array<std::string, 3>> filas = {
            {"Temperatura Interior (TI)",               "-17.15", "°C"},
            {"Temperatura Superficie Aislamiento (TS)", "2.13",   "°F"},
            {caso.etiquetaTA,                           "257.11", "K"},
            {"Velocidad del Aire (V)",                  "4.13",   "mi/h"},
        };
        // clang-format on
        for (size_t i = 0; i < filas.size(); ++i) {
            for (int c = 0; c < 3; ++c) {
                EXPECT_EQ(v.Celda(3 + static_cast<int>(i), c), filas[i][c]);
            }
        }
        const int material = 2 + caso.ranuraMaterial;
        EXPECT_EQ(v.Celda(material, 0), "Material Superficie Aislamiento");
        EXPECT_EQ(v.Celda(material, 1), "7");
        EXPECT_EQ(g.RowData(material), material);
        EXPECT_EQ(v.Celda(9, 1), "7.125");
        EXPECT_EQ(v.Celda(10, 1), "8.13");
        EXPECT_EQ(v.Celda(10, 2), "°F");
        EXPECT_EQ(v.Celda(13, 0), caso.etiquetaE);
        EXPECT_EQ(g.RowData(13), -13);
        EXPECT_EQ(g.RowData(30), -30);
        EXPECT_EQ(v.Celda(14, 0), caso.etiquetaQr);
        EXPECT_EQ(v.Celda(14, 2), caso.unidadQr);
        EXPECT_EQ(v.Celda(18, 2), "%");
        EXPECT_EQ(v.Celda(caso.filas - 1, 1), std::to_string(caso.filas - 3) + ".13");
    }
}

TEST(MostrarResultados, PlanaYTuberiaEnLasFilasCincoASiete) {
    Ventana plana(TipoResultados::SuperficiesPlanas, 4);
    plana.Mostrar(5, {"°F", "°F", "°F"});
    EXPECT_EQ(plana.Celda(8, 0), "Emisividad Superficie Aislamiento (Es)");
    EXPECT_EQ(plana.Celda(8, 1), "6.125");
    EXPECT_EQ(plana.Celda(9, 0), "Emisividad Superficie Desnuda (Ed)");
    EXPECT_EQ(plana.Celda(1, 0),
              "TRANSFERENCIA DE CALOR PARA SUPERFICIES PLANAS (CALOR)\r\nDORLIN");

    Ventana tubo(TipoResultados::SuperficiesCilindricas, 9);
    tubo.Mostrar(6, {"°F", "°F", "°F"});
    EXPECT_EQ(tubo.Celda(7, 0), "Diámetro de la tubería a aislar (D)");
    EXPECT_EQ(tubo.Celda(7, 1), "5.13");
    EXPECT_EQ(tubo.Celda(7, 2), "plg");
    EXPECT_EQ(tubo.modelo.MSFG().RowData(7), 0);
    EXPECT_EQ(tubo.Celda(8, 1), "7");
    EXPECT_EQ(tubo.Celda(9, 0), "Emisividad Superficie Aislamiento (Es)");
}

TEST(MostrarResultados, EstilosDeLaGrilla) {
    Ventana v(TipoResultados::SuperficiesPlanasFrio, 13);
    v.Mostrar(5, {"°F", "°F", "°F", "°F", "°F"});
    const Grilla& g = v.modelo.MSFG();
    for (const int encabezado : {0, 1, 2, 19, 87}) {
        EXPECT_TRUE(g.MergeRow(encabezado));
        EXPECT_EQ(g.RowHeight(encabezado), 2.5);
        EXPECT_EQ(g.RowData(encabezado), 0);
        for (int c = 0; c < 3; ++c) {
            const EstiloCelda& e = g.Estilo(encabezado, c);
            EXPECT_TRUE(e.negrita);
            EXPECT_EQ(e.colorFondo, 5);
            EXPECT_EQ(e.colorTexto, 4);
            EXPECT_EQ(e.alineacion, Alineacion::Centro);
        }
    }
    EXPECT_FALSE(g.MergeRow(3));
    EXPECT_EQ(g.RowHeight(3), 1);
    const EstiloCelda& etiqueta = g.Estilo(3, 0);
    EXPECT_TRUE(etiqueta.negrita);
    EXPECT_EQ(etiqueta.colorFondo, 1);
    EXPECT_EQ(etiqueta.alineacion, Alineacion::Izquierda);
    EXPECT_FALSE(g.Estilo(3, 1).negrita);
    EXPECT_EQ(g.Estilo(3, 1).colorFondo, 2);
    EXPECT_EQ(g.Estilo(3, 1).alineacion, Alineacion::Centro);
    EXPECT_EQ(g.Estilo(3, 2).colorFondo, 0);
    EXPECT_EQ(g.Estilo(3, 2).alineacion, Alineacion::Centro);

    // A second listing replaces the first and does not grow the heading rows again.
    v.Mostrar(5, {"°F", "°F", "°F", "°F", "°F"});
    EXPECT_EQ(g.RowHeight(0), 2.5);
}

TEST(MostrarResultados, PuntoDecimalConLocaleDeComa) {
    LocaleTemporal coma(LocaleChars::Espanol());
    Ventana v(TipoResultados::SuperficiesPlanas, 1);
    v.Mostrar(5, {"°C", "°F", "°F"});
    EXPECT_EQ(v.Celda(3, 1), "-17.15");
    EXPECT_EQ(v.Celda(8, 1), "6.125");
    EXPECT_EQ(v.Celda(103, 1), "101.13");
}

TEST(MostrarResultados, ErrorDeConversionLlegaAlLlamador) {
    Ventana v(TipoResultados::SuperficiesPlanas, 1);
    EXPECT_THROW(v.Mostrar(5, {"°F", "°F"}), RuntimeError);
}

// The public values every window lists by name, in a fixed order, before and after a
// calculation.
TEST(ValoresPublicos, NombresPorVentana) {
    struct Caso {
        TipoResultados tipo;
        std::vector<std::string> nombres;
    };
    const std::vector<std::string> desnudos = {"QDRL1", "QDRL2", "QDRDL1", "QDRDL2",
                                               "QDCL1", "QDCL2", "QDCDL1", "QDCDL2"};
    const std::vector<std::string> frio = {"unitTPR", "TPR",   "hayTBH", "unitTBH",
                                           "TBH",     "hayHR", "HR"};
    std::vector<std::string> tuboFrio = {"MaterialSA", "unitTS", "TS", "DM"};
    tuboFrio.insert(tuboFrio.end(), frio.begin(), frio.end());
    tuboFrio.insert(tuboFrio.end(), desnudos.begin(), desnudos.end());
    std::vector<std::string> tubo = {"MaterialSA", "unitTS", "TS", "DM"};
    tubo.insert(tubo.end(), desnudos.begin(), desnudos.end());
    std::vector<std::string> planaFrio = {"MaterialSA", "MaterialSD", "unitTS", "TS"};
    planaFrio.insert(planaFrio.end(), frio.begin(), frio.end());
    const std::vector<Caso> casos = {
            {TipoResultados::SuperficiesPlanas, {"MaterialSA", "MaterialSD", "unitTS", "TS"}},
            {TipoResultados::SuperficiesCilindricas, tubo},
            {TipoResultados::SuperficiesPlanasFrio, planaFrio},
            {TipoResultados::SuperficiesCilindricasFrio, tuboFrio},
    };
    for (const Caso& caso : casos) {
        Ventana v(caso.tipo, 1);
        std::vector<std::string> nombres;
        for (const auto& [nombre, valor] : v.modelo.Valores().Todos()) {
            nombres.push_back(nombre);
        }
        EXPECT_EQ(nombres, caso.nombres);
    }
}

}  // namespace
}  // namespace kelvora
