#include "ejemplos.h"

#include "core/datafile/escrituradatos.h"
#include "core/entry/descripcionentrada.h"
#include "core/runtime/numeros.h"
#include "core/units/unidades.h"

namespace kelvora::prueba {

namespace {

struct Ejemplo {
    const char* nombre;
    int16_t tipo;
    /// Values and units in box order; the emissivities are the database's for their codes.
    std::vector<Variable> valores;
};

// clang-format off
// Hot equipment and lines at typical plant conditions, each within its product's service limit;
// cold ones at a humid summer site. Material codes: 1 carbon steel oxidized (0.79), 3 cast iron
// oxidized (0.64), 6 commercial aluminium sheet (0.09), 7 aluminium oxidized (0.20), 8 galvanized
// steel (0.23), 13 aluminium paint (0.50), 14 PVC jacket (0.90).
const std::vector<Ejemplo> kEjemplos = {
    {"velmar80.adk", 1, {
        {"TemperaturaInterior", 600, "°F"}, {"TemperaturaSuperficieAislamiento", 130, "°F"},
        {"TemperaturaAmbiente", 80, "°F"}, {"VelocidadAire", 5, "mi/h"},
        {"CodigoMaterialSuperficieAislamiento", 6, ""}, {"EmisividadSuperficieAislamiento", 0.09, ""},
        {"CodigoMaterialSuperficieDesnuda", 1, ""}, {"EmisividadSuperficieDesnuda", 0.79, ""}}},
    {"velmar100.adk", 2, {
        {"TemperaturaInterior", 800, "°F"}, {"TemperaturaSuperficieAislamiento", 140, "°F"},
        {"TemperaturaAmbiente", 85, "°F"}, {"VelocidadAire", 3, "mi/h"},
        {"CodigoMaterialSuperficieAislamiento", 7, ""}, {"EmisividadSuperficieAislamiento", 0.2, ""},
        {"CodigoMaterialSuperficieDesnuda", 1, ""}, {"EmisividadSuperficieDesnuda", 0.79, ""}}},
    {"velmar140.adk", 3, {
        {"TemperaturaInterior", 540, "°C"}, {"TemperaturaSuperficieAislamiento", 60, "°C"},
        {"TemperaturaAmbiente", 30, "°C"}, {"VelocidadAire", 12, "km/h"},
        {"CodigoMaterialSuperficieAislamiento", 6, ""}, {"EmisividadSuperficieAislamiento", 0.09, ""},
        {"CodigoMaterialSuperficieDesnuda", 3, ""}, {"EmisividadSuperficieDesnuda", 0.64, ""}}},
    {"dorlin-equipos.adk", 4, {
        {"TemperaturaInterior", 230, "°C"}, {"TemperaturaSuperficieAislamiento", 50, "°C"},
        {"TemperaturaAmbiente", 25, "°C"}, {"VelocidadAire", 0, "m/s"},
        {"CodigoMaterialSuperficieAislamiento", 14, ""}, {"EmisividadSuperficieAislamiento", 0.9, ""},
        {"CodigoMaterialSuperficieDesnuda", 1, ""}, {"EmisividadSuperficieDesnuda", 0.79, ""}}},
    {"kandor-equipos.adk", 5, {
        {"TemperaturaInterior", 500, "°F"}, {"TemperaturaSuperficieAislamiento", 125, "°F"},
        {"TemperaturaAmbiente", 77, "°F"}, {"VelocidadAire", 10, "km/h"},
        {"CodigoMaterialSuperficieAislamiento", 13, ""}, {"EmisividadSuperficieAislamiento", 0.5, ""},
        {"CodigoMaterialSuperficieDesnuda", 8, ""}, {"EmisividadSuperficieDesnuda", 0.23, ""}}},
    {"sarvel-equipos.adk", 6, {
        {"TemperaturaInterior", 700, "°F"}, {"TemperaturaSuperficieAislamiento", 130, "°F"},
        {"TemperaturaAmbiente", 80, "°F"}, {"VelocidadAire", 5.5, "mi/h"},
        {"CodigoMaterialSuperficieAislamiento", 6, ""}, {"EmisividadSuperficieAislamiento", 0.09, ""},
        {"CodigoMaterialSuperficieDesnuda", 1, ""}, {"EmisividadSuperficieDesnuda", 0.79, ""}}},
    {"lorvan.adk", 7, {
        {"TemperaturaInterior", 400, "°C"}, {"TemperaturaSuperficieAislamiento", 55, "°C"},
        {"TemperaturaAmbiente", 30, "°C"}, {"VelocidadAire", 1.5, "m/s"},
        {"CodigoMaterialSuperficieAislamiento", 7, ""}, {"EmisividadSuperficieAislamiento", 0.2, ""},
        {"CodigoMaterialSuperficieDesnuda", 3, ""}, {"EmisividadSuperficieDesnuda", 0.64, ""}}},
    {"nivara.adk", 8, {
        {"TemperaturaInterior", 750, "°F"}, {"TemperaturaSuperficieAislamiento", 140, "°F"},
        {"TemperaturaAmbiente", 80, "°F"}, {"VelocidadAire", 5, "mi/h"},
        {"DiametroTuberia", 6, "plg"},
        {"CodigoMaterialSuperficieAislamiento", 6, ""}, {"EmisividadSuperficieAislamiento", 0.09, ""}}},
    {"dorlin-tuberias.adk", 9, {
        {"TemperaturaInterior", 300, "°C"}, {"TemperaturaSuperficieAislamiento", 55, "°C"},
        {"TemperaturaAmbiente", 25, "°C"}, {"VelocidadAire", 1, "m/s"},
        {"DiametroTuberia", 4, "plg"},
        {"CodigoMaterialSuperficieAislamiento", 7, ""}, {"EmisividadSuperficieAislamiento", 0.2, ""}}},
    {"kandor-tuberias.adk", 10, {
        {"TemperaturaInterior", 450, "°F"}, {"TemperaturaSuperficieAislamiento", 120, "°F"},
        {"TemperaturaAmbiente", 80, "°F"}, {"VelocidadAire", 0, "mi/h"},
        {"DiametroTuberia", 2, "plg"},
        {"CodigoMaterialSuperficieAislamiento", 14, ""}, {"EmisividadSuperficieAislamiento", 0.9, ""}}},
    {"sarvel-tuberias.adk", 11, {
        {"TemperaturaInterior", 650, "°F"}, {"TemperaturaSuperficieAislamiento", 130, "°F"},
        {"TemperaturaAmbiente", 85, "°F"}, {"VelocidadAire", 5, "mi/h"},
        {"DiametroTuberia", 3, "plg"},
        {"CodigoMaterialSuperficieAislamiento", 6, ""}, {"EmisividadSuperficieAislamiento", 0.09, ""}}},
    {"orbelas.adk", 12, {
        {"TemperaturaInterior", 366, "°F"}, {"TemperaturaSuperficieAislamiento", 120, "°F"},
        {"TemperaturaAmbiente", 80, "°F"}, {"VelocidadAire", 5, "mi/h"},
        {"DiametroTuberia", 2, "plg"},
        {"CodigoMaterialSuperficieAislamiento", 6, ""}, {"EmisividadSuperficieAislamiento", 0.09, ""}}},
    {"tavelas-poliuretano.adk", 13, {
        {"TemperaturaInterior", 0, "°F"}, {"TemperaturaAmbiente", 90, "°F"},
        {"TemperaturaBulboHumedo", 78, "°F"}, {"TemperaturaPuntoRocio", 75, "°F"},
        {"HumedadRelativa", 62, "%"}, {"CoeficienteTransmisionCalor", 0.16, "BTU plg/pie² h °F"},
        {"VelocidadAire", 3, "mi/h"},
        {"CodigoMaterialSuperficieAislamiento", 6, ""}, {"EmisividadSuperficieAislamiento", 0.09, ""},
        {"CodigoMaterialSuperficieDesnuda", 8, ""}, {"EmisividadSuperficieDesnuda", 0.23, ""}}},
    {"orbelas-poliuretano.adk", 14, {
        {"TemperaturaInterior", 40, "°F"}, {"TemperaturaAmbiente", 95, "°F"},
        {"TemperaturaBulboHumedo", 80, "°F"}, {"TemperaturaPuntoRocio", 76, "°F"},
        {"HumedadRelativa", 55, "%"}, {"CoeficienteTransmisionCalor", 0.17, "BTU plg/pie² h °F"},
        {"VelocidadAire", 2, "mi/h"}, {"DiametroTuberia", 4, "plg"},
        {"CodigoMaterialSuperficieAislamiento", 14, ""}, {"EmisividadSuperficieAislamiento", 0.9, ""}}},
};
// clang-format on

}  // namespace

std::vector<ArchivoEjemplo> ArchivosEjemplo() {
    std::vector<ArchivoEjemplo> archivos;
    for (const Ejemplo& ejemplo : kEjemplos) {
        classUnidades Unit;
        for (const Variable& variable : ejemplo.valores) {
            Unit.AddVariable(variable.Name, variable.Value, variable.Unit);
        }
        const int tag = static_cast<int>(Val(DescripcionParaProducto(ejemplo.tipo)->tag));
        archivos.push_back(
                {ejemplo.nombre, BytesArchivoTexto(LineasDatosArchivo(tag, ejemplo.tipo, Unit))});
    }
    return archivos;
}

}  // namespace kelvora::prueba
