#include "core/entry/descripcionentrada.h"

#include <stdexcept>

namespace kelvora {

namespace {

constexpr FamiliaLista T = FamiliaLista::Temperatura;
constexpr FamiliaLista V = FamiliaLista::Velocidad;
constexpr FamiliaLista L = FamiliaLista::Longitud;
constexpr FamiliaLista N = FamiliaLista::Ninguna;

constexpr TipoArgumento Conv = TipoArgumento::Convertido;
constexpr TipoArgumento Num = TipoArgumento::Valor;
constexpr TipoArgumento Ent = TipoArgumento::Entero;
constexpr TipoArgumento Hay = TipoArgumento::Conocido;
constexpr TipoArgumento Unid = TipoArgumento::Unidades;
constexpr TipoArgumento Nom = TipoArgumento::NombreMaterial;
constexpr TipoArgumento Falso = TipoArgumento::Falso;
constexpr TipoArgumento Cero = TipoArgumento::CeroEntero;
constexpr TipoArgumento CeroD = TipoArgumento::CeroDoble;

constexpr const char* kAyudaInterior =
        "Ingrese la temperatura a la cual opera el equipo que se quiere aislar";
constexpr const char* kAyudaSuperficie =
        "Ingrese la temperatura que se requiere en la superficie del aislamiento";
constexpr const char* kAyudaSuperficieTuberia =
        "Ingrese la temperatura que se requiere en la superficie del aislamiento, es recomendable "
        "para equipos que trabajen en caliente, hasta 140 °F";
constexpr const char* kAyudaAmbiente =
        "Ingrese la temperatura ambiente del sitio donde se hallen los equipos";
constexpr const char* kAyudaBulboSeco =
        "Ingrese la temperatura ambiente (temperatura bulbo seco) del sitio donde se hallen los "
        "equipos";
constexpr const char* kAyudaBulboHumedo = "Ingrese la temperatura del bulbo húmedo";
constexpr const char* kAyudaRocio = "Ingrese la temperatura del punto de rocío";
constexpr const char* kAyudaHumedad =
        "Ingrese el porcentaje de la humedad relativa del sitio donde se hallen los equipos";
constexpr const char* kAyudaCoeficiente =
        "Ingrese el coeficiente de calor (k) para el material que vaya a utilizar como aislante";
constexpr const char* kAyudaVelocidad =
        "Ingrese la velocidad del aire del sitio en donde opera el equipo que se desea aislar. Si "
        "la instalación se encuentra en un recinto cerrado escriba 0.";
constexpr const char* kAyudaDiametro =
        "Ingrese el diámetro nominal de la tubería que desee asilar.";
constexpr const char* kAyudaCodigo =
        "Ingrese el código del material que se utilizará para cubrir exteriormente el "
        "aislamiento.";
constexpr const char* kAyudaDesnuda = "Ingrese el código del material de la superficie desnuda.";

constexpr const char* kTipCodigoAislamiento =
        "Código Material de la Superficie Exterior del Aislamiento";
constexpr const char* kTipEmisividadAislamiento =
        "Emisividad de la Superficie Exterior del Aislamiento";
constexpr const char* kTipCodigoDesnuda = "Código Material de la Superficie Desnuda";
constexpr const char* kTipEmisividadDesnuda = "Emisividad de la Superficie Desnuda";

constexpr const char* kEtiquetaAislamiento = "Superficie &Exterior Aislamiento:";
constexpr const char* kEtiquetaDesnuda = "Superficie &Desnuda:";
constexpr const char* kEtiquetaDiametro = "&Diámetro de la tubería a aislar:";
constexpr const char* kUnidadCoeficiente = "BTU plg/pie² h °F";
constexpr const char* kEtiquetaCoeficiente = "BTU pulg/pie² h °F";

constexpr const char* kCodAislamiento = "CodigoMaterialSuperficieAislamiento";
constexpr const char* kEmiAislamiento = "EmisividadSuperficieAislamiento";
constexpr const char* kCodDesnuda = "CodigoMaterialSuperficieDesnuda";
constexpr const char* kEmiDesnuda = "EmisividadSuperficieDesnuda";

const BotonMaterial kBotonAislamiento = {0,
                                         0,
                                         "Superficie Exterior de Aislamiento",
                                         false,
                                         "Material Superficie Aislamiento: ",
                                         "Nombre Material de la Superficie Exterior del "
                                         "Aislamiento: "};
const BotonMaterial kBotonDesnuda = {0,
                                     0,
                                     " Superficie Desnuda",
                                     true,
                                     "Material Superficie Desnuda: ",
                                     "Nombre Material de la Superficie Desnuda: "};

BotonMaterial Boton(const BotonMaterial& modelo, int codigo, int emisividad) {
    BotonMaterial boton = modelo;
    boton.cajaCodigo = codigo;
    boton.cajaEmisividad = emisividad;
    return boton;
}

// Articles of the messages; the hot flat window says "la" before every word.
constexpr const char* la = "la ";
constexpr const char* el = "el ";

// clang-format off
DescripcionEntrada SuperficiesPlanas() {
    return {
        "frmDatosEntradaSuperficiesPlanas",
        "Cálculo de Espesor Óptimo - Pérdida de Calor - Equipos",
        Analisis::SP, TipoResultados::SuperficiesPlanas, "1",
        {
            // etiqueta                                tool tip                                       lista  unidad  max variable                            fija  etq  ayuda             lect   opc    art menos  cod    pos
            {"&Temperatura Interior:",                 "Temperatura Interior",                         T, "°F",   10, "TemperaturaInterior",              "",  "", kAyudaInterior,   false, false, la, true,  false, false},
            {"Temperat&ura Superficie Aislamiento:",   "Temperatura de la Superficie del Aislamiento", T, "°F",   10, "TemperaturaSuperficieAislamiento", "",  "", kAyudaSuperficie, false, false, la, true,  false, false},
            {"Temperatura Am&biente:",                 "Temperatura Ambiente",                         T, "°F",   10, "TemperaturaAmbiente",              "",  "", kAyudaAmbiente,   false, false, la, true,  false, false},
            {"&Velocidad del Aire:",                   "Velocidad del Aire",                           V, "mi/h", 10, "VelocidadAire",                    "",  "", kAyudaVelocidad,  false, false, la, false, false, false},
            {kEtiquetaAislamiento,                     kTipCodigoAislamiento,                          N, "",     5,  kCodAislamiento,                    "",  "", kAyudaCodigo,     false, false, la, false, true,  false},
            {kColumnaEmisividad,                       kTipEmisividadAislamiento,                      N, "",     10, kEmiAislamiento,                    "",  "", "",               true,  false, la, false, false, false},
            {kEtiquetaDesnuda,                         kTipCodigoDesnuda,                              N, "",     5,  kCodDesnuda,                        "",  "", kAyudaDesnuda,    false, false, la, false, true,  false},
            {kColumnaEmisividad,                       kTipEmisividadDesnuda,                          N, "",     10, kEmiDesnuda,                        "",  "", "",               true,  false, la, false, false, false},
        },
        {Boton(kBotonAislamiento, 5, 6), Boton(kBotonDesnuda, 7, 8)},
        {
            {"1SPC", "Velmar de 80 kg/m³"},
            {"2SPC", "Velmar de 100 kg/m³"},
            {"3SPC", "Velmar de 140 kg/m³"},
            {"4SPC", "Dorlin"},
            {"5SPC", "Kandor"},
            {"6SPC", "Sarvel"},
            {"7SPC", "Lorvanes"},
        },
        "Velmar de 140 kg/m³",
        4,
        {
            {1, 2, true, "La Temperatura de la Superficie del Aislamiento debe ser menor que la Temperatura Interior.", 2},
            {2, 3, true, "La Temperatura Ambiente debe ser menor que la Temperatura Superficial.",                     3},
        },
        {},
        {1, 2, 3},
        {
            {"TemperaturaInterior",                 Conv,  1, "°F",   0},
            {"TemperaturaSuperficieAislamiento",    Conv,  2, "°F",   0},
            {"TemperaturaAmbiente",                 Conv,  3, "°F",   0},
            {"unidades",                            Unid,  0, "",     0},
            {"VelocidadAire",                       Conv,  4, "mi/h", 0},
            {"EmisividadSuperficieAislamiento",     Num,   6, "",     0},
            {"EmisividadSuperficieDesnuda",         Num,   8, "",     0},
            {"CodigoMaterialSuperficieAislamiento", Ent,   5, "",     0},
            {"CodigoMaterialSuperficieDesnuda",     Ent,   7, "",     0},
            {"NombreMaterialAislamiento",           Nom,   1, "",     0},
            {"NombreMaterialDesnuda",               Nom,   2, "",     0},
            {"modoGrafica",                         Falso, 0, "",     0},
            {"tipoGrafica",                         Cero,  0, "",     0},
            {"espesorGrafica",                      CeroD, 0, "",     0},
            {"valorGrafica",                        CeroD, 0, "",     0},
        },
    };
}

DescripcionEntrada SuperficiesCilindricas() {
    return {
        "frmDatosEntradaSuperficiesCilindricas",
        "Cálculo de Espesor Óptimo - Pérdida de Calor - Tuberías",
        Analisis::SC, TipoResultados::SuperficiesCilindricas, "5",
        {
            // etiqueta                                tool tip                                       lista  unidad  max variable                            fija  etq  ayuda                    lect   opc    art menos  cod    pos
            {"&Temperatura Interior:",                 "Temperatura Interior",                         T, "°F",   10, "TemperaturaInterior",              "",  "", kAyudaInterior,          false, false, la, true,  false, false},
            {"Temperat&ura Superficie Aislamiento:",   "Temperatura de la Superficie del Aislamiento", T, "°F",   10, "TemperaturaSuperficieAislamiento", "",  "", kAyudaSuperficieTuberia, false, false, la, true,  false, false},
            {"Temperatura Am&biente:",                 "Temperatura Ambiente",                         T, "°F",   10, "TemperaturaAmbiente",              "",  "", kAyudaAmbiente,          false, false, la, true,  false, false},
            {"&Velocidad del Aire:",                   "Velocidad del Aire",                           V, "mi/h", 10, "VelocidadAire",                    "",  "", kAyudaVelocidad,         false, false, la, false, false, false},
            {kEtiquetaDiametro,                        "Diametro de la tubería a aislar",              L, "plg",  10, "DiametroTuberia",                  "",  "", kAyudaDiametro,          false, false, el, false, false, true },
            {kEtiquetaAislamiento,                     kTipCodigoAislamiento,                          N, "",     5,  kCodAislamiento,                    "",  "", kAyudaCodigo,            false, false, la, false, true,  false},
            {kColumnaEmisividad,                       kTipEmisividadAislamiento,                      N, "",     10, kEmiAislamiento,                    "",  "", "",                      true,  false, la, false, false, false},
        },
        {Boton(kBotonAislamiento, 6, 7)},
        {
            {"8SCC",  "Nivaras"},
            {"9SCC",  "Dorlin"},
            {"10SCC", "Kandor"},
            {"11SCC", "Sarvel"},
            {"12SCC", "Orbelas"},
        },
        "Nivara",
        5,
        {
            {1, 2, true, "La Temperatura de la Superficie del Aislamiento debe ser menor que la Temperatura Interior.", 2},
            {2, 3, true, "La Temperatura Ambiente debe ser menor que la Temperatura Superficial.",                     3},
        },
        {},
        {1, 2, 3},
        {
            {"TemperaturaInterior",                 Conv,  1, "°F",   0},
            {"TemperaturaSuperficieAislamiento",    Conv,  2, "°F",   0},
            {"TemperaturaAmbiente",                 Conv,  3, "°F",   0},
            {"unidades",                            Unid,  0, "",     0},
            {"VelocidadAire",                       Conv,  4, "mi/h", 0},
            {"DiametroTuberia",                     Conv,  5, "plg",  0},
            {"CodigoMaterialSuperficieAislamiento", Ent,   6, "",     0},
            {"EmisividadSuperficieAislamiento",     Num,   7, "",     0},
            {"NombreMaterialAislamiento",           Nom,   1, "",     0},
            {"modoGrafica",                         Falso, 0, "",     0},
            {"tipoGrafica",                         Cero,  0, "",     0},
            {"espesorGrafica",                      CeroD, 0, "",     0},
            {"valorGrafica",                        CeroD, 0, "",     0},
        },
    };
}

std::vector<CampoEntrada> CamposFrio() {
    return {
        // etiqueta                                      tool tip                                         lista  unidad  max variable                   fija                etq                   ayuda              lect   opc    art menos  cod    pos
        {"Temperatura &Interior:",                      "Temperatura Interior",                           T, "°F",   10, "TemperaturaInterior",     "",                 "",                   kAyudaInterior,    false, false, la, true,  false, false},
        {"Temperatura Bulbo &Seco (Temp. Ambiente):",   "Temperatura Bulbo Seco (Temperatura Ambiente)",  T, "°F",   10, "TemperaturaAmbiente",     "",                 "",                   kAyudaBulboSeco,   false, false, la, true,  false, false},
        {"Temperatura &Bulbo Húmedo:",                  "Temperatura Bulbo Húmedo",                       T, "°F",   10, "TemperaturaBulboHumedo",  "",                 "",                   kAyudaBulboHumedo, false, true,  la, true,  false, false},
        {"Temperatura &Punto de Rocío:",                "Temperatura Punto de Rocío",                     T, "°F",   10, "TemperaturaPuntoRocio",   "",                 "",                   kAyudaRocio,       false, false, la, true,  false, false},
        {"&Humedad Relativa:",                          "Humedad Relativa",                               N, "",     10, "HumedadRelativa",         "%",                "%",                  kAyudaHumedad,     false, true,  la, false, false, false},
        {"Coeficiente de &Transmisión de Calor:",       "Coeficiente de Transmisión de Calor",            N, "",     10, "CoeficienteTransmisionCalor", kUnidadCoeficiente, kEtiquetaCoeficiente, kAyudaCoeficiente, false, false, el, false, false, false},
        {"&Velocidad del Aire:",                        "Velocidad del Aire",                             V, "mi/h", 10, "VelocidadAire",           "",                 "",                   kAyudaVelocidad,   false, false, la, false, false, false},
    };
}

// The two cold windows share their temperature comparisons, lower bounds and the head of
// their routine's arguments; only the box numbers of the jacket material differ.
std::vector<ComparacionTemperaturas> ComparacionesFrio() {
    return {
        {1, 2, false, "La Temperatura Ambiente (Temperatura del Bulbo Seco) debe ser mayor que la Temperatura Interior.", 2},
        {2, 4, true,  "La Temperatura del Punto de Rocío debe ser menor que la Temperatura Ambiente.",                    4},
    };
}

std::vector<CotaInferior> CotasFrio() { return {{5, false, "La "}, {6, true, "El "}}; }

std::vector<ArgumentoCalculo> ArgumentosFrio(int cajaCodigo, int cajaEmisividad,
                                             const std::vector<ArgumentoCalculo>& resto) {
    std::vector<ArgumentoCalculo> argumentos = {
        {"TemperaturaInterior",                 Conv, 1, "°F",   0},
        {"TemperaturaSuperficie",               Conv, 4, "°F",   1.0},
        {"TemperaturaAmbiente",                 Conv, 2, "°F",   0},
        {"TemperaturaBulboHumedo",              Conv, 3, "°F",   0},
        {"hayTBH",                              Hay,  3, "",     0},
        {"TemperaturaPuntoRocio",               Conv, 4, "°F",   0},
        {"unidades",                            Unid, 0, "",     0},
        {"VelocidadAire",                       Conv, 7, "mi/h", 0},
        {"HumedadRelativa",                     Num,  5, "",     0},
        {"hayHR",                               Hay,  5, "",     0},
        {"CoeficienteTransmisionCalor",         Num,  6, "",     0},
        {"CodigoMaterialSuperficieAislamiento", Ent,  cajaCodigo, "", 0},
        {"EmisividadSuperficieAislamiento",     Num,  cajaEmisividad, "", 0},
        {"NombreMaterialAislamiento",           Nom,  1, "",     0},
    };
    argumentos.insert(argumentos.end(), resto.begin(), resto.end());
    return argumentos;
}

DescripcionEntrada PlanasFrio() {
    std::vector<CampoEntrada> campos = CamposFrio();
    campos.insert(campos.end(), {
        {kEtiquetaAislamiento, kTipCodigoAislamiento,     N, "", 5,  kCodAislamiento, "", "", kAyudaCodigo,  false, false, la, false, true,  false},
        {kColumnaEmisividad,   kTipEmisividadAislamiento, N, "", 10, kEmiAislamiento, "", "", "",            true,  false, la, false, false, false},
        {kEtiquetaDesnuda,     kTipCodigoDesnuda,         N, "", 5,  kCodDesnuda,     "", "", kAyudaDesnuda, false, false, la, false, true,  false},
        {kColumnaEmisividad,   kTipEmisividadDesnuda,     N, "", 10, kEmiDesnuda,     "", "", "",            true,  false, la, false, false, false},
    });
    return {
        "frmDatosEntradaSuperficiesPlanasFrio",
        "Cálculo de Espesor Óptimo - Ganancia de Calor - Equipos",
        Analisis::SPFrio, TipoResultados::SuperficiesPlanasFrio, "9",
        campos,
        {Boton(kBotonAislamiento, 8, 9), Boton(kBotonDesnuda, 10, 11)},
        {{"13SPF", "Tavelas de Poliuretano"}},
        "Tavelas de Poliuretano",
        7,
        ComparacionesFrio(),
        CotasFrio(),
        {1, 4, 2, 3, 4},
        ArgumentosFrio(8, 9, {
            {"CodigoMaterialSuperficieDesnuda",     Ent,  10, "",     0},
            {"EmisividadSuperficieDesnuda",         Num,  11, "",     0},
            {"NombreMaterialDesnuda",               Nom,   2, "",     0},
        }),
    };
}

DescripcionEntrada CilindricasFrio() {
    std::vector<CampoEntrada> campos = CamposFrio();
    campos.insert(campos.end(), {
        {kEtiquetaDiametro,    "Diámetro de la tubería a aislar", L, "plg", 10, "DiametroTuberia", "", "", kAyudaDiametro, false, false, el, false, false, false},
        {kEtiquetaAislamiento, kTipCodigoAislamiento,             N, "",    5,  kCodAislamiento,   "", "", kAyudaCodigo,   false, false, la, false, true,  false},
        {kColumnaEmisividad,   kTipEmisividadAislamiento,         N, "",    10, kEmiAislamiento,   "", "", "",             true,  false, la, false, false, false},
    });
    return {
        "frmDatosEntradaSuperficiesCilindricasFrio",
        "Cálculo de Espesor Óptimo - Ganancia de Calor - Tuberías",
        Analisis::SCFrio, TipoResultados::SuperficiesCilindricasFrio, "12",
        campos,
        {Boton(kBotonAislamiento, 9, 10)},
        {{"14SCF", "Orbelas de Poliuretano"}},
        "Orbelas de Poliuretano",
        8,
        ComparacionesFrio(),
        CotasFrio(),
        {1, 4, 2, 3, 4},
        ArgumentosFrio(9, 10, {
            // The diameter goes as typed: its list's unit is shown and stored, not converted.
            {"DiametroTuberia",                     Num,   8, "",     0},
        }),
    };
}
// clang-format on

}  // namespace

const char* NombreFamilia(FamiliaLista familia) {
    switch (familia) {
        case FamiliaLista::Temperatura:
            return "Temperatura";
        case FamiliaLista::Velocidad:
            return "Velocidad";
        case FamiliaLista::Longitud:
            return "Longitud";
        case FamiliaLista::Ninguna:
            break;
    }
    return "";
}

const char* ToolTipLista(FamiliaLista familia) {
    switch (familia) {
        case FamiliaLista::Temperatura:
            return "Unidades de Temperatura";
        case FamiliaLista::Velocidad:
            return "Unidades de Velocidad";
        case FamiliaLista::Longitud:
            return "Unidades de Longitud";
        case FamiliaLista::Ninguna:
            break;
    }
    return "";
}

const CampoEntrada& DescripcionEntrada::Campo(int i) const {
    if (i < 1 || i > Cajas()) {
        throw std::out_of_range("caja fuera de la ventana");
    }
    return campos[static_cast<size_t>(i - 1)];
}

const BotonMaterial* DescripcionEntrada::MaterialDeCaja(int i) const {
    for (const BotonMaterial& boton : materiales) {
        if (boton.cajaCodigo == i || boton.cajaEmisividad == i) {
            return &boton;
        }
    }
    return nullptr;
}

const DescripcionEntrada& DescripcionVentanaDatos(TipoEntrada tipo) {
    static const DescripcionEntrada planas = SuperficiesPlanas();
    static const DescripcionEntrada cilindricas = SuperficiesCilindricas();
    static const DescripcionEntrada planasFrio = PlanasFrio();
    static const DescripcionEntrada cilindricasFrio = CilindricasFrio();
    switch (tipo) {
        case TipoEntrada::SuperficiesPlanas:
            return planas;
        case TipoEntrada::SuperficiesCilindricas:
            return cilindricas;
        case TipoEntrada::PlanasFrio:
            return planasFrio;
        case TipoEntrada::CilindricasFrio:
            break;
    }
    return cilindricasFrio;
}

const DescripcionEntrada* DescripcionParaProducto(int codigo) {
    const Producto* producto = BuscarProducto(codigo);
    if (producto == nullptr) {
        return nullptr;
    }
    switch (producto->analisis) {
        case Analisis::SP:
            return &DescripcionVentanaDatos(TipoEntrada::SuperficiesPlanas);
        case Analisis::SC:
            return &DescripcionVentanaDatos(TipoEntrada::SuperficiesCilindricas);
        case Analisis::SPFrio:
            return &DescripcionVentanaDatos(TipoEntrada::PlanasFrio);
        case Analisis::SCFrio:
            break;
    }
    return &DescripcionVentanaDatos(TipoEntrada::CilindricasFrio);
}

}  // namespace kelvora
