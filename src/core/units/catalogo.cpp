#include "core/units/catalogo.h"

#include "core/runtime/texto.h"

#include <map>

namespace kelvora {

namespace {

// The existence lists differ from the catalogue in two places: the list of all units has
// "ac" for "acre", and the list of "Longitud" has "pies" for "pie".
std::vector<FamiliaCatalogo> Catalogo() {
    // clang-format off
    return {
    {"Longitud", {
        {"mm",     "",       "Milímetros",  "",   ""},
        {"cm",     "",       "Centímetros", "",   ""},
        {"m",      "",       "Metros",      "",   ""},
        {"km",     "",       "Kilometros",  "",   ""},
        {"pie",    "",       "Pies",        "",   "pies"},
        {"plg",    "",       "Pulgadas",    "",   ""},
        {"mi",     "",       "Millas",      "",   ""},
        {"yd",     "",       "Yardas",      "",   ""}}},
    {"Energía", {
        {"BTU",    "",       "Unidad Térmica Británica (British Thermal Unit)", "", ""},
        {"cal",    "",       "Calorías",                  "", ""},
        {"kJ",     "",       "Kilo-Julios (Kilo-Joule)",  "", ""},
        {"erg",    "",       "Ergio",                     "", ""}}},
    {"Potencia", {
        {"kW",     "",       "Kilo-Vatios (Kilo-Watts)",          "", ""},
        {"BTU/h",  "",       "BTU por hora",                      "", ""},
        {"hp",     "",       "Caballos de Fuerza (Horse-Power)",  "", ""}}},
    {"Presión", {
        {"psi",    "",       "Libra-Fuerza por pulgada cuadrada (Pounds per Square Inch)", "", ""},
        {"atm",    "",       "Atmósfera",   "",   ""},
        {"bar",    "",       "Bar",         "",   ""},
        {"kPa",    "",       "Kilo-Pascal", "",   ""}}},
    {"Temperatura", {
        {"°R",     "",       "Grados Rankine",                "", ""},
        {"°F",     "",       "Grados Fahrenheit",             "", ""},
        {"°C",     "",       "Grados Centígrados ó Celsius",  "", ""},
        {"K",      "",       "Grados Kelvin",                 "", ""}}},
    {"Volumen", {
        {"L",      "",       "Litros",          "", ""},
        {"gal",    "",       "Galones",         "", ""},
        {"pie³",   "pie3",   "Pies cúbicos",    "", ""},
        {"m³",     "m3",     "Metros cúbicos",  "", ""}}},
    {"Tiempo", {
        {"seg",    "",       "Segundos",    "",   ""},
        {"min",    "",       "Minutos",     "",   ""},
        {"h",      "",       "Horas",       "",   ""},
        {"días",   "",       "Días",        "",   ""}}},
    {"Caudal", {
        {"m³/h",   "m3/h",   "Metros cúbicos por hora", "", ""},
        {"pie³/h", "pie3/h", "Pies cúbicos por hora",   "", ""}}},
    {"Velocidad", {
        {"mi/h",   "",       "Millas por hora",      "", ""},
        {"km/h",   "",       "Kilometros por hora",  "", ""},
        {"yd/h",   "",       "Yardas por hora",      "", ""},
        {"m/s",    "",       "Metros por segundo",   "", ""}}},
    {"Area", {
        {"cm²",    "cm2",    "Centímetros cuadrados",  "",   ""},
        {"m²",     "m2",     "Metros cuadrados",       "",   ""},
        {"pulg²",  "pulg2",  "Pulgadas cuadradas",     "",   ""},
        {"pie²",   "pie2",   "Pies cuadrados",         "",   ""},
        {"ha",     "",       "Hectáreas",              "",   ""},
        {"acre",   "",       "Acres",                  "ac", ""}}},
    {"Fuerza", {
        {"N",      "",       "Newton",            "", ""},
        {"dina",   "",       "Dinas",             "", ""},
        {"lbf",    "",       "Libra-fuerza",      "", ""},
        {"kgf",    "",       "Kilogramo-fuerza",  "", ""}}},
    {"Peso", {
        {"oz",     "",       "Onzas",       "",   ""},
        {"g",      "",       "Gramos",      "",   ""},
        {"kg",     "",       "Kilogramos",  "",   ""},
        {"lb",     "",       "Libras",      "",   ""},
        {"ton",    "",       "Toneladas",   "",   ""}}},
    {"Moneda", {
        {"$",      "",       "Pesos",       "",   ""},
        {"US$",    "",       "Dolares",     "",   ""},
        {"€",      "",       "Euros",       "",   ""}}},
    };
    // clang-format on
}

// Both spellings of every unit, upper-cased, to where the unit stands.
std::map<std::string, UbicacionUnidad> IndicePorGrafia() {
    std::map<std::string, UbicacionUnidad> indice;
    for (const FamiliaCatalogo& familia : CatalogoUnidades()) {
        for (size_t i = 0; i < familia.unidades.size(); ++i) {
            const UnidadCatalogo& unidad = familia.unidades[i];
            const UbicacionUnidad ubicacion{&familia, static_cast<int>(i)};
            indice.emplace(UCase(unidad.simbolo), ubicacion);
            if (*unidad.segundaGrafia != '\0') {
                indice.emplace(UCase(unidad.segundaGrafia), ubicacion);
            }
        }
    }
    return indice;
}

}  // namespace

const std::vector<FamiliaCatalogo>& CatalogoUnidades() {
    static const std::vector<FamiliaCatalogo> catalogo = Catalogo();
    return catalogo;
}

const FamiliaCatalogo* BuscarFamilia(const std::string& nombre) {
    for (const FamiliaCatalogo& familia : CatalogoUnidades()) {
        if (IgualTexto(familia.nombre, nombre)) {
            return &familia;
        }
    }
    return nullptr;
}

UbicacionUnidad BuscarUnidad(const std::string& simbolo) {
    static const std::map<std::string, UbicacionUnidad> indice = IndicePorGrafia();
    const auto encontrada = indice.find(UCase(simbolo));
    return encontrada == indice.end() ? UbicacionUnidad{} : encontrada->second;
}

}  // namespace kelvora
