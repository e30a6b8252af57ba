#include "core/app/contexto.h"
#include "core/datafile/lecturadatos.h"
#include "core/runtime/codificacion.h"
#include "core/runtime/runtimeerror.h"
#include "support/dobles.h"
#include "ventanaprueba.h"

#include <gtest/gtest.h>

namespace kelvora {
namespace {

using prueba::PrompterGuion;
using prueba::Volcado;
using Textos = std::vector<std::string>;

Textos TextosMostrados(const PrompterGuion& prompter) {
    Textos textos;
    for (const Mensaje& m : prompter.mensajes) {
        textos.push_back(m.texto);
    }
    return textos;
}

TEST(LecturaDatos, LineasClavesYValores) {
    struct Caso {
        const char* nombre;
        std::string texto;
        int16_t tipo;
        Textos registros;
        Textos mensajes;
    };
    // clang-format off
    const Caso casos[] = {
        {"comentarios",       "' a\r\n; b\r\n: c\r\n/ d\r\n* e\r\n! f\r\n# g\r\n   ' x\r\n\r\n   \r\nTipo = 3\r\n",
                              3,  {},                                   {}},
        {"igual primero",     "= 5\r\nTipo = 2\r\n",
                              2,  {},                                   {"Expresión Desconocida: = 5"}},
        {"sin igual",         "  Tipo 4  \r\nTipo=4\r\n",
                              4,  {},                                   {"Expresión Desconocida: Tipo 4"}},
        {"clave sin valor",   "TemperaturaInterior =\r\nUnidadTemperaturaInterior =\r\n",
                              0,  {"TemperaturaInterior=0 "},           {}},
        {"coma decimal",      "TemperaturaAmbiente = 12,5\r\n",
                              0,  {"TemperaturaAmbiente=12 "},          {}},
        {"texto tras numero", "HumedadRelativa = 50  '%\r\nCoeficienteTransmisionCalor = .25  'BTU",
                              0,  {"HumedadRelativa=50 ", "CoeficienteTransmisionCalor=0.25 "}, {}},
        {"mayusculas",        "TIPO = 13\r\nTEMPERATURAINTERIOR = 7\r\nUNIDADTEMPERATURAINTERIOR = °c\r\n",
                              13, {"TEMPERATURAINTERIOR=7 °c"},         {}},
        {"unidad primero",    "UnidadVelocidadAire = km/h\r\nVelocidadAire = 8\r\n",
                              0,  {"VelocidadAire=8 km/h"},             {}},
        {"clave desconocida", "Espesor = 3\r\nUnidadEspesor = mm\r\n",
                              0,  {},                                   {}},
        {"ultimo tipo gana",  "Tipo = 9\r\nTipo = 2.5\r\n",            // 2.5 rounds half to even
                              2,  {},                                   {}},
        {"finales LF y CR",   "Tipo = 5\nVelocidadAire = 1\rDiametroTuberia = 2\r\nUnidadDiametroTuberia = plg",
                              5,  {"VelocidadAire=1 ", "DiametroTuberia=2 plg"}, {}},
        {"tabulador",         "\tTipo = 6\r\nTipo = 1\r\n",             // a tab is no blank: unknown key
                              1,  {},                                   {}},
    };
    // clang-format on
    for (const Caso& caso : casos) {
        SCOPED_TRACE(caso.nombre);
        classUnidades unidades;
        PrompterGuion prompter;
        EXPECT_EQ(LeerDatosArchivo(AWindows1252(caso.texto), unidades, prompter), caso.tipo);
        EXPECT_EQ(Volcado(unidades), caso.registros);
        EXPECT_EQ(TextosMostrados(prompter), caso.mensajes);
    }
}

TEST(LecturaDatos, UnidadesFueraDeSuFamiliaDetienenLaLectura) {
    struct Caso {
        std::string linea;
        int numero;
        const char* descripcion;
    };
    // clang-format off
    const Caso casos[] = {
        {"UnidadTemperaturaAmbiente = mi/h",  1002, "La Unidad 'mi/h' no existe para 'Temperatura'."},
        {"UnidadTemperaturaPuntoRocio = Rx",  1002, "La Unidad 'Rx' no existe para 'Temperatura'."},
        {"UnidadVelocidadAire = °F",          1002, "La Unidad '°F' no existe para 'Velocidad'."},
        {"UnidadDiametroTuberia = pie",       1002, "La Unidad 'pie' no existe para 'Longitud'."},
        {"UnidadDiametroTuberia = pies",      1003, "La Unidad 'pies' no existe."},
        {"Tipo = 40000",                      6,    "Desbordamiento"},
    };
    // clang-format on
    for (const Caso& caso : casos) {
        SCOPED_TRACE(caso.linea);
        classUnidades unidades;
        PrompterGuion prompter;
        const std::string texto = "TemperaturaInterior = 20\r\n" + caso.linea + "\r\nTipo = 1\r\n";
        try {
            LeerDatosArchivo(AWindows1252(texto), unidades, prompter);
            ADD_FAILURE() << "no error";
        } catch (const RuntimeError& error) {
            EXPECT_EQ(error.number, caso.numero);
            EXPECT_EQ(error.description, caso.descripcion);
        }
        EXPECT_EQ(Volcado(unidades), Textos{"TemperaturaInterior=20 "});
    }
}

TEST(LecturaDatos, ExpresionDesconocidaPreguntaYCancelarTerminaLaLectura) {
    classUnidades unidades;
    PrompterGuion prompter;
    prompter.respuestas = {Respuesta::Aceptar, Respuesta::Cancelar};
    const std::string texto = "uno\r\nTipo = 3\r\ndos\r\nTipo = 4\r\nTemperaturaInterior = 1\r\n";
    EXPECT_EQ(LeerDatosArchivo(texto, unidades, prompter), 3);
    EXPECT_EQ(TextosMostrados(prompter),
              (Textos{"Expresión Desconocida: uno", "Expresión Desconocida: dos"}));
    EXPECT_EQ(unidades.Count(), 0);
    const Mensaje& caja = prompter.mensajes.front();
    EXPECT_EQ(caja.botones, Botones::AceptarCancelar);
    EXPECT_EQ(caja.icono, Icono::Exclamacion);
    EXPECT_EQ(caja.titulo, kTituloAplicacion);
}

TEST(LecturaDatos, BytesWindows1252) {
    classUnidades unidades;
    PrompterGuion prompter;
    LeerDatosArchivo(
            "UnidadTemperaturaInterior = \xB0"
            "C\r\n",
            unidades, prompter);
    EXPECT_EQ(unidades.getUnitVariable("TemperaturaInterior"), "°C");
}

TEST(LecturaDatos, EsComentario) {
    for (const char* linea : {"'", ";x", ":", "/", "*", "!", "#"}) {
        EXPECT_TRUE(EsComentario(linea)) << linea;
    }
    for (const char* linea : {"", " '", "a'", "=", "-", "\"", "\t#"}) {
        EXPECT_FALSE(EsComentario(linea)) << linea;
    }
}

}  // namespace
}  // namespace kelvora
