#include "cli/dibujo.h"

#include <dlfcn.h>
#include <filesystem>
#include <iostream>

namespace kelvora::cli {

namespace {

std::string RutaBiblioteca() {
    std::error_code error;
    const std::filesystem::path ejecutable = std::filesystem::read_symlink("/proc/self/exe", error);
    return (ejecutable.parent_path() / kBibliotecaDibujo).string();
}

// Loaded once and kept until the process ends: its drawings live in its code.
FuncionArchivoDibujo CargarFuncion() {
    static FuncionArchivoDibujo funcion = []() -> FuncionArchivoDibujo {
        const std::string ruta = RutaBiblioteca();
        void* biblioteca = dlopen(ruta.c_str(), RTLD_NOW | RTLD_LOCAL);
        if (biblioteca == nullptr) {
            std::cerr << "No se pudo cargar la biblioteca de dibujo " << ruta << ": " << dlerror()
                      << '\n';
            return nullptr;
        }
        auto* encontrada =
                reinterpret_cast<FuncionArchivoDibujo>(dlsym(biblioteca, kFuncionArchivoDibujo));
        if (encontrada == nullptr) {
            std::cerr << "La biblioteca de dibujo " << ruta << " no sirve: " << dlerror() << '\n';
        }
        return encontrada;
    }();
    return funcion;
}

}  // namespace

std::unique_ptr<ArchivoDibujo> AbrirArchivoDibujo(const PedidoDibujo& pedido) {
    const FuncionArchivoDibujo funcion = CargarFuncion();
    return std::unique_ptr<ArchivoDibujo>(funcion ? funcion(pedido) : nullptr);
}

bool DibujarArchivo(const PedidoDibujo& pedido, const std::function<void(Surface&)>& dibujar) {
    const std::unique_ptr<ArchivoDibujo> archivo = AbrirArchivoDibujo(pedido);
    if (!archivo) {
        return false;
    }
    dibujar(archivo->Superficie());
    if (!archivo->Guardar()) {
        std::cerr << "No se pudo escribir " << pedido.archivo << ".\n";
        return false;
    }
    return true;
}

}  // namespace kelvora::cli
