#include "core/datafile/escrituradatos.h"

#include "core/runtime/codificacion.h"
#include "core/runtime/numeros.h"
#include "core/runtime/texto.h"
#include "core/thermal/productos.h"

#include <array>

namespace kelvora {

namespace {

enum Clase : unsigned { H = 1, P = 2, F = 4, T = 8, Todas = H | P | F | T };

enum class Valor { Numero, Unidad, Codigo, Porcentaje, Coeficiente };

struct Clave {
    const char* nombre;
    unsigned clases;
    Valor valor;
};

// clang-format off
constexpr std::array<Clave, 20> kClaves = {{
    {"TemperaturaInterior",                    Todas, Valor::Numero},
    {"UnidadTemperaturaInterior",              Todas, Valor::Unidad},
    {"TemperaturaSuperficieAislamiento",       H | P, Valor::Numero},
    {"UnidadTemperaturaSuperficieAislamiento", H | P, Valor::Unidad},
    {"TemperaturaAmbiente",                    Todas, Valor::Numero},
    {"UnidadTemperaturaAmbiente",              Todas, Valor::Unidad},
    {"TemperaturaBulboHumedo",                 F | T, Valor::Numero},
    {"UnidadTemperaturaBulboHumedo",           F | T, Valor::Unidad},
    {"TemperaturaPuntoRocio",                  F | T, Valor::Numero},
    {"UnidadTemperaturaPuntoRocio",            F | T, Valor::Unidad},
    {"HumedadRelativa",                        F | T, Valor::Porcentaje},
    {"CoeficienteTransmisionCalor",            F | T, Valor::Coeficiente},
    {"VelocidadAire",                          Todas, Valor::Numero},
    {"UnidadVelocidadAire",                    Todas, Valor::Unidad},
    {"DiametroTuberia",                        P | T, Valor::Numero},
    {"UnidadDiametroTuberia",                  P | T, Valor::Unidad},
    {"CodigoMaterialSuperficieAislamiento",    Todas, Valor::Codigo},
    {"EmisividadSuperficieAislamiento",        Todas, Valor::Numero},
    {"CodigoMaterialSuperficieDesnuda",        H | F, Valor::Codigo},
    {"EmisividadSuperficieDesnuda",            H | F, Valor::Numero},
}};
// clang-format on

constexpr size_t kLargoPrefijoUnidad = 6;

// 9 and 12 are the cold windows, 5 and 12 the pipes.
unsigned ClaseDeTag(int tag) {
    const bool frio = tag == 9 || tag == 12;
    const bool tuberia = tag == 5 || tag == 12;
    if (frio) {
        return tuberia ? T : F;
    }
    return tuberia ? P : H;
}

std::string Numero(double valor) {
    std::string texto = TextoNumero(valor);
    return NormalizarDecimal(texto);
}

std::string TextoValor(const Clave& clave, const classUnidades& Unit) {
    const std::string nombre = clave.nombre;
    switch (clave.valor) {
        case Valor::Unidad:
            return Unit.getUnitVariable(nombre.substr(kLargoPrefijoUnidad));
        case Valor::Codigo:
            return TextoNumero(Unit.getValueVariable(nombre));
        case Valor::Porcentaje:
            return Numero(Unit.getValueVariable(nombre)) + "  '%";
        case Valor::Coeficiente:
            return Numero(Unit.getValueVariable(nombre)) + "  'BTU plg/pie² h °F";
        case Valor::Numero:
            break;
    }
    return Numero(Unit.getValueVariable(nombre));
}

}  // namespace

std::vector<std::string> LineasDatosArchivo(int tag, int16_t TipoAnalisis,
                                            const classUnidades& Unit) {
    std::vector<std::string> lineas = {"Tipo = " + std::to_string(TipoAnalisis) + "  '" +
                                       NombreProducto(TipoAnalisis, true)};
    const unsigned clase = ClaseDeTag(tag);
    for (const Clave& clave : kClaves) {
        if ((clave.clases & clase) != 0) {
            lineas.push_back(std::string(clave.nombre) + " = " + TextoValor(clave, Unit));
        }
    }
    return lineas;
}

std::string BytesArchivoTexto(const std::vector<std::string>& lineas) {
    std::string texto;
    for (const std::string& linea : lineas) {
        texto += linea + "\r\n";
    }
    return AWindows1252(texto);
}

}  // namespace kelvora
