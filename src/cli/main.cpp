#include "cli/comandos.h"
#include "core/runtime/localechars.h"
#include "core/runtime/runtimeerror.h"

#include <iostream>

int main(int argc, char** argv) {
    kelvora::EstablecerLocale(kelvora::LeerLocaleSistema());
    try {
        return kelvora::cli::Despachar(std::vector<std::string>(argv + 1, argv + argc));
    } catch (const kelvora::RuntimeError& error) {
        std::cerr << "Error " << error.number << ": " << error.description << '\n';
        return kelvora::cli::kSalidaDetenido;
    }
}
