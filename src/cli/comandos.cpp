#include "cli/comandos.h"

#include "cli/calcular.h"
#include "cli/convertir.h"
#include "cli/economia.h"
#include "cli/graficar.h"
#include "cli/materiales.h"

#include <iostream>

namespace kelvora::cli {

namespace {

int Version(const Argumentos&) {
    std::cout << "Kelvora " << KELVORA_VERSION_MAJOR << '.' << KELVORA_VERSION_MINOR << '\n';
    return kSalidaBien;
}

int Uso() {
    std::cerr << "Uso: kelvora-cli COMANDO [ARGUMENTOS]\n";
    for (const Comando& comando : Comandos()) {
        std::cerr << "  " << comando.uso << '\n';
    }
    return kSalidaUso;
}

}  // namespace

const std::vector<Comando>& Comandos() {
    static const std::vector<Comando> comandos = {
            {"--version", "--version", Version},
            {"convertir", "convertir VALOR DESDE HASTA", ComandoConvertir},
            {"unidades", "unidades [FAMILIA]", ComandoUnidades},
            {"materiales", "materiales", ComandoMateriales},
            {"tubo", "tubo NOMINAL", ComandoTubo},
            {"calcular", "calcular ARCHIVO.adk... [--json] [--sin-bd]", ComandoCalcular},
            {"economia",
             "economia ARCHIVO.adk [--areas A,B,C | --longitudes A,B] [--unidad U] [--horas H] "
             "[--combustible NOMBRE] [--nombre N] [--poder P] [--valor V] [--moneda M] "
             "[--eficiencia E] [--json] [--sin-bd]",
             ComandoEconomia},
            {"graficar", "graficar ARCHIVO.adk --tipo 1|2 [--json] [--png F] [--svg F] [--sin-bd]",
             ComandoGraficar},
    };
    return comandos;
}

int Despachar(const Argumentos& argumentos) {
    if (argumentos.empty()) {
        return Uso();
    }
    for (const Comando& comando : Comandos()) {
        if (argumentos.front() == comando.nombre) {
            return comando.ejecutar(Argumentos(argumentos.begin() + 1, argumentos.end()));
        }
    }
    std::cerr << "Comando desconocido: " << argumentos.front() << '\n';
    return Uso();
}

}  // namespace kelvora::cli
