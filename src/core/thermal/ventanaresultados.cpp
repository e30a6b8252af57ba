#include "core/thermal/ventanaresultados.h"

#include <stdexcept>

namespace kelvora {

namespace {

using Valores = std::vector<std::pair<const char*, ValorPublico>>;

const std::vector<const char*> kPosicionesPlanas = {"SUPERFICIE PLANA HORIZONTAL CARA HACIA ARRIBA",
                                                    "SUPERFICIE PLANA VERTICAL",
                                                    "SUPERFICIE PLANA HORIZONTAL CARA HACIA ABAJO"};
const std::vector<const char*> kPosicionesTuberia = {"TUBERIA VERTICAL", "TUBERIA HORIZONTAL"};

const std::string kSinTexto;

// clang-format off
const VentanaResultados kPlanas = {
    "frmResultadosSuperficiesPlanas",
    "Resultados - Transferencia de Calor para Superficies Planas (Calor)",
    "Transferencia de Calor para Superficies Planas (Calor)",
    "2", 104, kPosicionesPlanas,
    {{
        {"Temperatura Interior (TI)",                 "",                  1, "0.0#",  false},
        {"Temperatura Superficie Aislamiento (TS)",   "",                  2, "0.0#",  false},
        {"Temperatura Ambiente (TA)",                 "",                  3, "0.0#",  false},
        {"Velocidad del Aire (V)",                    "mi/h",              0, "0.0#",  false},
        {"Material Superficie Aislamiento",           "",                  0, "0.0#",  true },
        {"Emisividad Superficie Aislamiento (Es)",    "",                  0, "0.0##", false},
        {"Emisividad Superficie Desnuda (Ed)",        "",                  0, "0.0##", false},
        {"Temperatura Media (TM)",                    "°F",                0, "0.0#",  false},
        {"Coeficiente de Conductividad Térmica (k)",  "BTU plg/pie² h °F", 0, "0.0#",  false},
        {"Conductancia de la película de aire (f)",   "BTU/pie² h °F",     0, "0.0#",  false},
        {"Espesor del Aislamiento recomendado (E)",   "plg",               0, "0.0#",  false},
        {"Pérdida de Calor por Radiación (Qr)",       "BTU/pie² h",        0, "0.0#",  false},
        {"Pérdida de Calor por Convección (Qc)",      "BTU/pie² h",        0, "0.0#",  false},
        {"Pérdida de Calor Total (Qt)",               "BTU/pie² h",        0, "0.0#",  false},
        {"Pérdida de Calor Superficie Desnuda (Qdt)", "BTU/pie² h",        0, "0.0#",  false},
        {"Eficiencia del aislamiento (Ef)",           "%",                 0, "0.0#",  false},
    }},
    Valores{{"MaterialSA", kSinTexto}, {"MaterialSD", kSinTexto}, {"unitTS", kSinTexto},
            {"TS", 0.0}},
    "Cerrar", true,
};

const VentanaResultados kCilindricas = {
    "frmResultadosSuperficiesCilindricas",
    "Resultados - Transferencia de Calor para Superficies Cilíndricas (Calor)",
    "Transferencia de Calor para Superficies Cilíndricas (Calor)",
    "6", 70, kPosicionesTuberia,
    {{
        {"Temperatura Interior (TI)",                 "",                  1, "0.0#",  false},
        {"Temperatura Superficie Aislamiento (TS)",   "",                  2, "0.0#",  false},
        {"Temperatura Ambiente (TA)",                 "",                  3, "0.0#",  false},
        {"Velocidad del Aire (V)",                    "mi/h",              0, "0.0#",  false},
        {"Diámetro de la tubería a aislar (D)",       "plg",               0, "0.0#",  false},
        {"Material Superficie Aislamiento",           "",                  0, "0.0#",  true },
        {"Emisividad Superficie Aislamiento (Es)",    "",                  0, "0.0##", false},
        {"Temperatura Media (TM)",                    "°F",                0, "0.0#",  false},
        {"Coeficiente de Conductividad Térmica (k)",  "BTU plg/pie² h °F", 0, "0.0#",  false},
        {"Conductancia de la película de aire (f)",   "BTU/pie² h °F",     0, "0.0#",  false},
        {"Espesor del Aislamiento recomendado (E)",   "plg",               0, "0.0#",  false},
        {"Pérdida de Calor por Radiación (Qr)",       "BTU/pie h",         0, "0.0#",  false},
        {"Pérdida de Calor por Convección (Qc)",      "BTU/pie h",         0, "0.0#",  false},
        {"Pérdida de Calor Total (Qt)",               "BTU/pie h",         0, "0.0#",  false},
        {"Pérdida de Calor Superficie Desnuda (Qdt)", "BTU/pie h",         0, "0.0#",  false},
        {"Eficiencia del aislamiento (Ef)",           "%",                 0, "0.0#",  false},
    }},
    Valores{{"MaterialSA", kSinTexto}, {"unitTS", kSinTexto}, {"TS", 0.0}, {"DM", 0.0},
            {"QDRL1", 0.0}, {"QDRL2", 0.0}, {"QDRDL1", 0.0}, {"QDRDL2", 0.0},
            {"QDCL1", 0.0}, {"QDCL2", 0.0}, {"QDCDL1", 0.0}, {"QDCDL2", 0.0}},
    "Cerrar", true,
};

// The flat cold window's close button is not captioned apart from the hot ones'.
const VentanaResultados kPlanasFrio = {
    "frmResultadosSuperficiesPlanasFrio",
    "Resultados - Transferencia de Calor para Superficies Planas (Frío)",
    "Transferencia de Calor para Superficies Planas (Frío)",
    "10", 104, kPosicionesPlanas,
    {{
        {"Temperatura Interior (TI)",                  "",                  1, "0.0#",  false},
        {"Temperatura Superficie Aislamiento (TS)",    "",                  2, "0.0#",  false},
        {"Temperatura Ambiente (Bulbo Seco) (TA)",     "",                  3, "0.0#",  false},
        {"Velocidad del Aire (V)",                     "mi/h",              0, "0.0#",  false},
        {"Material Superficie Aislamiento",            "",                  0, "0.0#",  true },
        {"Emisividad Superficie Aislamiento (Es)",     "",                  0, "0.0##", false},
        {"Emisividad Superficie Fría (Ed)",            "",                  0, "0.0##", false},
        {"Temperatura Media (TM)",                     "°F",                0, "0.0#",  false},
        {"Coeficiente de Conductividad Térmica (k)",   "BTU plg/pie² h °F", 0, "0.0#",  false},
        {"Conductancia de la película de aire (f)",    "BTU/pie² h °F",     0, "0.0#",  false},
        {"Espesor del Aislamiento recomendado (E)",    "plg",               0, "0.0#",  false},
        {"Ganancia de Calor por Radiación (Qr)",       "BTU/pie² h",        0, "0.0#",  false},
        {"Ganancia de Calor por Convección (Qc)",      "BTU/pie² h",        0, "0.0#",  false},
        {"Ganancia de Calor Total (Qt)",               "BTU/pie² h",        0, "0.0#",  false},
        {"Ganancia de Calor Superficie Desnuda (Qdt)", "BTU/pie² h",        0, "0.0#",  false},
        {"Eficiencia del aislamiento (Ef)",            "%",                 0, "0.0#",  false},
    }},
    Valores{{"MaterialSA", kSinTexto}, {"MaterialSD", kSinTexto}, {"unitTS", kSinTexto},
            {"TS", 0.0}, {"unitTPR", kSinTexto}, {"TPR", 0.0}, {"hayTBH", false},
            {"unitTBH", kSinTexto}, {"TBH", 0.0}, {"hayHR", false}, {"HR", 0.0}},
    "Cerrar", false,
};

const VentanaResultados kCilindricasFrio = {
    "frmResultadosSuperficiesCilindricasFrio",
    "Resultados - Transferencia de Calor para Superficies Cilíndricas (Frío)",
    "Transferencia de Calor para Superficies Cilíndricas (Frío)",
    "13", 70, kPosicionesTuberia,
    {{
        {"Temperatura Interior (TI)",                  "",                  1, "0.0#",  false},
        {"Temperatura Superficie Aislamiento (TS)",    "",                  2, "0.0#",  false},
        {"Temperatura Ambiente (TA)",                  "",                  3, "0.0#",  false},
        {"Velocidad del Aire (V)",                     "mi/h",              0, "0.0#",  false},
        {"Diámetro de la tubería a aislar (D)",        "plg",               0, "0.0#",  false},
        {"Material Superficie Aislamiento",            "",                  0, "0.0#",  true },
        {"Emisividad Superficie Aislamiento (Es)",     "",                  0, "0.0##", false},
        {"Temperatura Media (TM)",                     "°F",                0, "0.0#",  false},
        {"Coeficiente de Conductividad Térmica (k)",   "BTU plg/pie² h °F", 0, "0.0#",  false},
        {"Conductancia de la película de aire (f)",    "BTU/pie² h °F",     0, "0.0#",  false},
        {"Espesor Exacto del Aislamiento (E)",         "plg",               0, "0.0#",  false},
        {"Ganancia de Calor por Radiación (Qv)",       "BTU/pie h",         0, "0.0#",  false},
        {"Ganancia de Calor por Convección (Qc)",      "BTU/pie h",         0, "0.0#",  false},
        {"Ganancia de Calor Total (Qt)",               "BTU/pie h",         0, "0.0#",  false},
        {"Ganancia de Calor Superficie Desnuda (Qdt)", "BTU/pie h",         0, "0.0#",  false},
        {"Eficiencia del aislamiento (Ef)",            "%",                 0, "0.0#",  false},
    }},
    Valores{{"MaterialSA", kSinTexto}, {"unitTS", kSinTexto}, {"TS", 0.0}, {"DM", 0.0},
            {"unitTPR", kSinTexto}, {"TPR", 0.0}, {"hayTBH", false}, {"unitTBH", kSinTexto},
            {"TBH", 0.0}, {"hayHR", false}, {"HR", 0.0},
            {"QDRL1", 0.0}, {"QDRL2", 0.0}, {"QDRDL1", 0.0}, {"QDRDL2", 0.0},
            {"QDCL1", 0.0}, {"QDCL2", 0.0}, {"QDCDL1", 0.0}, {"QDCDL2", 0.0}},
    "&Cerrar", false,
};
// clang-format on

}  // namespace

const VentanaResultados& DescripcionResultados(TipoResultados tipo) {
    switch (tipo) {
        case TipoResultados::SuperficiesPlanas:
            return kPlanas;
        case TipoResultados::SuperficiesCilindricas:
            return kCilindricas;
        case TipoResultados::SuperficiesPlanasFrio:
            return kPlanasFrio;
        case TipoResultados::SuperficiesCilindricasFrio:
            return kCilindricasFrio;
    }
    throw std::invalid_argument("ventana de resultados desconocida");
}

const char* CasoBloque(int bloque) {
    return bloque % 2 == 0 ? "CALCULOS PARA ESPESOR IDEAL" : "CALCULOS PARA ESPESOR PRACTICO";
}

}  // namespace kelvora
