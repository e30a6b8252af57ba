#include "core/datafile/lecturadatos.h"
#include "core/datafile/validarvariables.h"
#include "core/runtime/runtimeerror.h"
#include "support/dobles.h"

#include <gtest/gtest.h>

#include <chrono>
#include <random>

namespace kelvora {
namespace {

const std::string kSemilla =
        "Tipo = 14  'Orbelas de Poliuretano\r\nTemperaturaInterior = 2\r\n"
        "UnidadTemperaturaInterior = \xB0"
        "C\r\nTemperaturaBulboHumedo = 28\r\nUnidadTemperaturaBulboHumedo = K\r\n"
        "HumedadRelativa = 85  '%\r\nCoeficienteTransmisionCalor = 0.2\r\n"
        "VelocidadAire = 1.5e3\r\nUnidadVelocidadAire = yd/h\r\nDiametroTuberia = 6,625\r\n"
        "UnidadDiametroTuberia = plg\r\n' comentario\r\n= 5\r\nCodigoMaterialSuperficieAislamiento "
        "= "
        "&H1F\r\n";

// Pieces that stress the line splitter, the decoder and the number parser.
const std::string kPiezas[] = {"\r\n",
                               "\n",
                               "\r",
                               "=",
                               " = ",
                               std::string(1, '\0'),
                               "\xC3",
                               "\xC3\xA9",
                               "\xFF\xFE",
                               "\x80\x81\x8D",
                               "Tipo",
                               "Unidad",
                               "1e400",
                               "50.5%",
                               "&H",
                               "--",
                               "'",
                               "\t",
                               "UnidadDiametroTuberia = pies",
                               "TIPO = 32767",
                               "VelocidadAire = ",
                               "\xB0"
                               "F"};

class Generador {
public:
    explicit Generador(uint32_t semilla) : mAzar(semilla) {}

    std::string Entrada(int i) {
        if (i % 32 == 31) {
            return LineaLarga();
        }
        switch (i % 3) {
            case 0:
                return BytesAlAzar(Numero(0, 600));
            case 1:
                return Mutada(kSemilla, Numero(1, 12));
            default:
                return Piezas(Numero(1, 80));
        }
    }

private:
    size_t Numero(size_t desde, size_t hasta) {
        return std::uniform_int_distribution<size_t>(desde, hasta)(mAzar);
    }
    char Byte() { return static_cast<char>(Numero(0, 255)); }

    std::string BytesAlAzar(size_t n) {
        std::string bytes;
        for (size_t i = 0; i < n; ++i) {
            bytes += Byte();
        }
        return bytes;
    }
    std::string Mutada(std::string texto, size_t cambios) {
        for (size_t i = 0; i < cambios && !texto.empty(); ++i) {
            const size_t pos = Numero(0, texto.size() - 1);
            switch (Numero(0, 3)) {
                case 0:
                    texto[pos] = Byte();
                    break;
                case 1:
                    texto.erase(pos, Numero(1, 20));
                    break;
                case 2:
                    texto.insert(pos, kPiezas[Numero(0, std::size(kPiezas) - 1)]);
                    break;
                default:
                    texto.insert(pos, texto.substr(Numero(0, texto.size() - 1), 40));
            }
        }
        return texto;
    }
    std::string Piezas(size_t n) {
        std::string texto;
        for (size_t i = 0; i < n; ++i) {
            texto += kPiezas[Numero(0, std::size(kPiezas) - 1)];
        }
        return texto;
    }
    std::string LineaLarga() {
        const std::string relleno(Numero(1, 3000), static_cast<char>(Numero(0, 1) ? ' ' : '9'));
        return "TemperaturaInterior = " + relleno + "\r\nUnidadVelocidadAire = " + relleno;
    }

    std::mt19937 mAzar;
};

// The reader and its checks over random and mutated bytes: every input ends in a result or in
// the program's own error, the list stays small and each box belongs to a line.
TEST(LecturaAlAzar, NingunaEntradaRompeElLector) {
    constexpr int kEntradas = 2000;
    Generador generador(20240305);
    const auto inicio = std::chrono::steady_clock::now();
    for (int i = 0; i < kEntradas; ++i) {
        const std::string bytes = generador.Entrada(i);
        classUnidades unidades;
        prueba::PrompterGuion prompter;
        if (i % 3 == 0) {
            prompter.respuestas = {Respuesta::Aceptar, Respuesta::Cancelar};
        }
        try {
            const int16_t tipo = LeerDatosArchivo(bytes, unidades, prompter);
            // The checks do the same work for any input; a sample of them is enough.
            if (i % 4 == 0) {
                ValidarVariablesArchivo(tipo, unidades, prompter);
            }
        } catch (const RuntimeError& error) {
            EXPECT_FALSE(error.description.empty());
        }
        ASSERT_LE(unidades.Count(), 13) << i;
        ASSERT_LE(prompter.mensajes.size(), bytes.size() + 1) << i;
    }
    const auto ms = std::chrono::duration_cast<std::chrono::milliseconds>(
            std::chrono::steady_clock::now() - inicio);
    RecordProperty("milisegundos", static_cast<int>(ms.count()));
    EXPECT_LT(ms.count(), 10000) << "the reader is far slower than its usual fraction of a second";
}

}  // namespace
}  // namespace kelvora
