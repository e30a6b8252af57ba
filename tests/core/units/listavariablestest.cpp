#include "core/runtime/runtimeerror.h"
#include "core/units/unidades.h"

#include <gtest/gtest.h>

#include <limits>

namespace kelvora {
namespace {

std::vector<std::string> Nombres(const classUnidades& lista) {
    std::vector<std::string> nombres;
    for (int16_t i = 1; i <= lista.Count(); ++i) {
        nombres.push_back(lista.getVariableRec(i).Name);
    }
    return nombres;
}

int NumeroDeError(auto&& accion) {
    try {
        accion();
    } catch (const RuntimeError& e) {
        return e.number;
    }
    return 0;
}

TEST(Variables, LaPrimeraCoincidenciaGanaYQuitarLaDescubre) {
    classUnidades lista;
    lista.AddVariable("Espesor", 1, "plg");
    lista.AddVariable("Tamb", 20, "°C");
    lista.AddVariable("ESPESOR", 2, "mm");
    lista.AddVariable("Viento", 3, "km/h");
    EXPECT_EQ(lista.Count(), 4);
    EXPECT_EQ(lista.getValueVariable("espesor"), 1);
    EXPECT_EQ(lista.getUnitVariable("espesor"), "plg");

    lista.RemoveVariable("espesor");
    EXPECT_EQ(Nombres(lista), (std::vector<std::string>{"Tamb", "ESPESOR", "Viento"}));
    EXPECT_EQ(lista.getValueVariable("Espesor"), 2);
    EXPECT_EQ(lista.getUnitVariable("Espesor"), "mm");

    lista.RemoveVariable("NoEsta");
    EXPECT_EQ(lista.Count(), 3);
    for (const char* nombre : {"Viento", "Tamb", "Espesor"}) {
        lista.RemoveVariable(nombre);
    }
    EXPECT_EQ(lista.Count(), 0);
    lista.AddVariable("Nueva", 7, "");
    EXPECT_EQ(Nombres(lista), std::vector<std::string>{"Nueva"});
}

TEST(Variables, NombreDesconocidoDaCeroYTextoVacio) {
    classUnidades lista;
    lista.AddVariable("Tamb", 20, "°C");
    EXPECT_EQ(lista.getValueVariable("Tint"), 0);
    EXPECT_EQ(lista.getUnitVariable("Tint"), "");
    EXPECT_FALSE(lista.ExistVariable("Tint"));
    EXPECT_TRUE(lista.ExistVariable("TAMB"));
}

TEST(Variables, ModificarYAsignarSinDistinguirMayusculas) {
    classUnidades lista;
    lista.AddVariable("VelocidadAire", 5, "km/h");
    lista.ModifyVariable("velocidadaire", 8, "mi/h");
    lista.ModifyVariable("Emisividad", 0.9, "zzz");
    lista.setValueVariable("Espesor", 2.5);
    lista.setUnitVariable("espesor", "plg");
    lista.setUnitVariable("Tamb", "°F");
    lista.setValueVariable("VELOCIDADAIRE", 9);

    struct Esperado {
        const char* nombre;
        double valor;
        const char* unidad;
    };
    // clang-format off
    const Esperado esperados[] = {
        {"VelocidadAire", 9,   "mi/h"},
        {"Emisividad",    0.9, "zzz"},   // ModifyVariable does not check the unit
        {"Espesor",       2.5, "plg"},   // the unit set later keeps the value
        {"Tamb",          0,   "°F"},    // a new name by its unit starts at 0
    };
    // clang-format on
    ASSERT_EQ(lista.Count(), 4);
    for (int16_t i = 1; i <= 4; ++i) {
        const Variable v = lista.getVariableRec(i);
        EXPECT_EQ(v.Name, esperados[i - 1].nombre);
        EXPECT_EQ(v.Value, esperados[i - 1].valor) << v.Name;
        EXPECT_EQ(v.Unit, esperados[i - 1].unidad) << v.Name;
    }
}

TEST(Variables, AsignarUnaUnidadDesconocidaNoCambiaNada) {
    // clang-format off
    const char* const rechazadas[] = {"acre", "pies", "zzz", "", "m³/s"};
    // clang-format on
    for (const char* unidad : rechazadas) {
        classUnidades lista;
        lista.AddVariable("Area", 3, "ha");
        try {
            lista.setUnitVariable("Area", unidad);
            ADD_FAILURE() << unidad;
        } catch (const RuntimeError& e) {
            EXPECT_EQ(e.number, 1003);
            EXPECT_EQ(e.description, std::string("La Unidad '") + unidad + "' no existe.");
        }
        EXPECT_THROW(lista.setUnitVariable("Otra", unidad), RuntimeError);
        EXPECT_EQ(lista.Count(), 1) << unidad;
        EXPECT_EQ(lista.getUnitVariable("Area"), "ha") << unidad;
    }
    classUnidades lista;
    lista.setUnitVariable("Area", "AC");
    lista.setUnitVariable("Largo", "pie");
    EXPECT_EQ(lista.getUnitVariable("Area"), "AC");
    EXPECT_EQ(lista.getUnitVariable("Largo"), "pie");
}

TEST(Variables, CopiaEnOrdenConDuplicados) {
    classUnidades origen;
    origen.AddVariable("A", 1, "m");
    origen.AddVariable("B", 2, "");
    origen.AddVariable("a", 3, "cm");
    classUnidades copia;
    copia.AddVariable("Vieja", 9, "kg");
    copia.setVariables(origen);
    EXPECT_EQ(Nombres(copia), (std::vector<std::string>{"A", "B", "a"}));
    EXPECT_EQ(copia.getVariableRec(3).Unit, "cm");

    copia.ModifyVariable("A", 5, "km");
    EXPECT_EQ(origen.getValueVariable("A"), 1);

    copia.setVariables(classUnidades());
    EXPECT_EQ(copia.Count(), 0);

    origen.setVariables(origen);
    EXPECT_EQ(origen.Count(), 0);
}

TEST(Variables, IndiceFueraDeLaListaYDesbordamiento) {
    classUnidades lista;
    lista.AddVariable("A", 1, "");
    EXPECT_EQ(NumeroDeError([&] { lista.getVariableRec(0); }), 9);
    EXPECT_EQ(NumeroDeError([&] { lista.getVariableRec(2); }), 9);

    while (lista.Count() < std::numeric_limits<int16_t>::max()) {
        lista.AddVariable("X", 0, "");
    }
    EXPECT_EQ(NumeroDeError([&] { lista.AddVariable("Y", 0, ""); }), 6);
    EXPECT_EQ(lista.Count(), 32767);
}

}  // namespace
}  // namespace kelvora
