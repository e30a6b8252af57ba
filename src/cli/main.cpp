#include "cli/comandos.h"
#include "core/runtime/localechars.h"
#include "core/runtime/runtimeerror.h"

#include <exception>
#include <iostream>
#include <new>

int main(int argc, char** argv) {
    kelvora::EstablecerLocale(kelvora::LeerLocaleSistema());
    try {
        return kelvora::cli::Despachar(std::vector<std::string>(argv + 1, argv + argc));
    } catch (const kelvora::RuntimeError& error) {
        std::cerr << "Error " << error.number << ": " << error.description << '\n';
    } catch (const std::bad_alloc&) {
        std::cerr << "Error 7: Memoria insuficiente\n";
    } catch (const std::exception& error) {
        std::cerr << "Error inesperado: " << error.what() << '\n';
    } catch (...) {
        std::cerr << "Error inesperado\n";
    }
    return kelvora::cli::kSalidaDetenido;
}
