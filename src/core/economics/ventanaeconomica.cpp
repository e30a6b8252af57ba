#include "core/economics/ventanaeconomica.h"

#include <stdexcept>

namespace kelvora {

namespace {

constexpr CajaEconomica kEficiencia = {0,
                                       "Eficiencia del Equip&o (%):", "Eficiencia del Equipo (%)"};
constexpr const char* kEtiquetaNombre = "&Nombre combustible utilizado:";
constexpr const char* kToolTipNombre = "Nombre del Combustible utilizado";
constexpr const char* kEtiquetaValor = "Valor del co&mbustible por Kg:";
constexpr const char* kToolTipValor = "Valor del Combustible utilizado";
constexpr const char* kEtiquetaPoder = "&Poder Calorífico (unidad de volumen/peso):";
constexpr const char* kToolTipPoder = "Poder Calorífico por unidad de volumen/peso";
constexpr const char* kTotal = "Total dinero ahorrado en un año";
constexpr const char* kEtiquetaTotal = "Total dinero ahorrado en un año:";

constexpr const char* kAyudaEficiencia = "Ingrese la eficiencia del equipo";
constexpr const char* kAyudaHoras = "Ingrese el número de horas trabajadas por el equipo en el año";
constexpr const char* kAyudaCombustible = "Seleccione el combustible utilizado";
constexpr const char* kAyudaNombre = "Ingrese el nombre del combustible utilizado";
constexpr const char* kAyudaValor = "Ingrese el valor del combustible utilizado por ";
constexpr const char* kAyudaPoder =
        "Ingrese el Poder Calorífico del combustible utilizado por unidad de volumen/peso";

// The tool tips of two result boxes keep their slips: "superfice", and an access key.
// clang-format off
const VentanaEconomica kPlanas = {
    "frmAnalisisEconomicoSuperficiesPlanas",
    "Análisis Económico en Superficies Planas",
    "3", "Area", "pie2", 4, "el", "El",
    kEficiencia,
    {
        {1, "Area &superficie plana horizontal cara hacia arriba:", "Area superficie plana horizontal cara hacia arriba"},
        {2, "Area superficie plana &vertical:",                     "Area superficie plana vertical"},
        {3, "Area superficie plana &horizontal cara hacia abajo:",  "Area superficie plana horizontal cara hacia abajo"},
    },
    {6, kEtiquetaNombre, kToolTipNombre},
    {7, kEtiquetaValor,  kToolTipValor},
    {8, kEtiquetaPoder,  kToolTipPoder},
    {
        {9,  "Ahorro superficie plana horizontal cara hacia arriba:", "Ahorro superfice plana horizontal cara hacia arriba"},
        {10, "Ahorro superficie plana vertical:",                     "Ahorro superficie plana vertical"},
        {11, "Ahorro superficie plana horizontal cara hacia abajo:",  "Ahorro superficie plana &horizontal cara hacia abajo"},
        {12, kEtiquetaTotal,                                          kTotal},
    },
    {1, 0, 2},
    4, 5,
    {
        kAyudaEficiencia,
        "Ingrese el área de la superficie plana cara hacia arriba",
        "Ingrese el área total de la superficie plana vertical",
        "Ingrese el área de la superficie horizontal cara hacia abajo",
        kAyudaHoras, kAyudaCombustible, kAyudaNombre, kAyudaValor, kAyudaPoder,
    },
};

const VentanaEconomica kCilindricas = {
    "frmAnalisisEconomicoSuperficiesCilindricas",
    "Análisis Económico en Superficies Cilíndricas",
    "7", "Longitud", "pie", 5, "la", "La",
    kEficiencia,
    {
        {1, "Longitud de la tubería &vertical:",   "Longitud de la tubería vertical"},
        {2, "Longitud de la tubería &horizontal:", "Longitud de la tubería horizontal"},
    },
    {5, kEtiquetaNombre, kToolTipNombre},
    {6, kEtiquetaValor,  kToolTipValor},
    {7, kEtiquetaPoder,  kToolTipPoder},
    {
        {8,  "Ahorro tubería vertical:",   "Ahorro tubería vertical"},
        {9,  "Ahorro tubería horizontal:", "Ahorro tubería horizontal"},
        {10, kEtiquetaTotal,               kTotal},
    },
    {1, 0},
    3, 4,
    {
        kAyudaEficiencia,
        "Ingrese la longitud de la tubería vertical",
        "Ingrese la longitud de la tubería horizontal",
        kAyudaHoras, kAyudaCombustible, kAyudaNombre, kAyudaValor, kAyudaPoder,
    },
};
// clang-format on

}  // namespace

std::vector<CajaEconomica> VentanaEconomica::Entradas() const {
    std::vector<CajaEconomica> cajas = {eficiencia};
    cajas.insert(cajas.end(), dimensiones.begin(), dimensiones.end());
    cajas.insert(cajas.end(), {nombreCombustible, valor, poder});
    return cajas;
}

const VentanaEconomica& DescripcionEconomica(TipoEconomico tipo) {
    switch (tipo) {
        case TipoEconomico::SuperficiesPlanas:
            return kPlanas;
        case TipoEconomico::SuperficiesCilindricas:
            return kCilindricas;
    }
    throw std::invalid_argument("ventana económica desconocida");
}

std::string AyudaEconomica(const VentanaEconomica& ventana, int indice,
                           const std::string& palabra) {
    if (indice < 0 || indice >= static_cast<int>(ventana.ayudas.size())) {
        return "";
    }
    std::string ayuda = ventana.ayudas[static_cast<size_t>(indice)];
    return indice == ventana.valor.indice ? ayuda + palabra : ayuda;
}

}  // namespace kelvora
