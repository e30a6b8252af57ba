#pragma once

#include "core/app/contexto.h"
#include "core/entry/accesomateriales.h"
#include "core/entry/modeloentrada.h"
#include "support/dobles.h"

#include <map>
#include <memory>
#include <string>
#include <utility>
#include <vector>

namespace kelvora::prueba {

/// A materials table in memory: code to emissivity text and description.
class MaterialesMemoria : public AccesoMateriales {
public:
    bool ExisteBaseDatos() override { return existe; }
    void AbrirConexion() override { ++aperturas; }
    std::string LeerMaterial(int32_t codigo, std::string& caja) override;
    void CerrarConexion() override { ++cierres; }

    bool existe = true;
    std::map<int32_t, std::pair<std::string, std::string>> filas = {
            {3, {"0.9", "PINTURA NEGRA"}},
            {7, {"0.8", "ACERO OXIDADO"}},
            {12, {"0.1", "ALUMINIO PULIDO"}},
    };
    std::vector<int32_t> consultas;
    int aperturas = 0;
    int cierres = 0;
};

/// Everything a data entry window takes from outside, with doubles, and one window.
struct Banco {
    explicit Banco(TipoEntrada tipo, bool conBD = true);

    /// Types each (box, text) into the window, giving each box the focus first.
    void Llenar(const std::vector<std::pair<int, const char*>>& valores);

    PrompterGuion prompter;
    ContextoAplicacion contexto;
    MaterialesMemoria materiales;
    BombaContada bomba;
    int actualizaciones = 0;
    std::vector<int> consultasVentana;
    std::unique_ptr<ModeloEntrada> ventana;
};

/// Data that pass every check, by window: (box, text) in box order.
std::vector<std::pair<int, const char*>> DatosValidos(TipoEntrada tipo);

}  // namespace kelvora::prueba
