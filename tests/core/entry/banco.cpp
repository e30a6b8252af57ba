#include "banco.h"

#include "core/runtime/numeros.h"

namespace kelvora::prueba {

std::string MaterialesMemoria::LeerMaterial(int32_t codigo, std::string& caja) {
    consultas.push_back(codigo);
    const auto fila = filas.find(codigo);
    if (fila == filas.end()) {
        caja.clear();
        return "No existe un material con código " + std::to_string(codigo);
    }
    caja = fila->second.first;
    return fila->second.second;
}

Banco::Banco(TipoEntrada tipo, bool conBD) {
    materiales.existe = conBD;
    contexto.LeerEmisividadBD = true;
    contexto.ConversionAutomatica = false;
    EntornoEntrada entorno{prompter,
                           contexto,
                           materiales,
                           bomba,
                           [this] { ++actualizaciones; },
                           [this](int caja) { consultasVentana.push_back(caja); }};
    ventana = std::make_unique<ModeloEntrada>(DescripcionVentanaDatos(tipo), entorno);
    const DescripcionEntrada& descripcion = ventana->Ventana();
    ventana->SetTipoAnalisis(static_cast<int32_t>(Val(descripcion.productos.front().clave)));
    ventana->Activar();
}

void Banco::Llenar(const std::vector<std::pair<int, const char*>>& valores) {
    for (const auto& [caja, texto] : valores) {
        ventana->EstablecerFoco({TipoControl::Caja, caja});
        ventana->Teclear(caja, texto);
    }
}

std::vector<std::pair<int, const char*>> DatosValidos(TipoEntrada tipo) {
    switch (tipo) {
        case TipoEntrada::SuperficiesPlanas:
            return {{1, "350"}, {2, "120"}, {3, "80"}, {4, "5"}, {5, "3"}, {7, "7"}};
        case TipoEntrada::SuperficiesCilindricas:
            return {{1, "350"}, {2, "120"}, {3, "80"}, {4, "5"}, {5, "2"}, {6, "3"}};
        case TipoEntrada::PlanasFrio:
            return {{1, "20"},  {2, "90"}, {3, "75"}, {4, "70"}, {5, "50"},
                    {6, "0.2"}, {7, "3"},  {8, "3"},  {10, "7"}};
        case TipoEntrada::CilindricasFrio:
            break;
    }
    return {{1, "20"},  {2, "90"}, {3, "75"}, {4, "70"}, {5, "50"},
            {6, "0.2"}, {7, "3"},  {8, "2"},  {9, "3"}};
}

}  // namespace kelvora::prueba
