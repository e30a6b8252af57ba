#include "core/units/unidades.h"
#include "core/verificacion/validacion.h"

#include <gtest/gtest.h>

#include <cmath>
#include <fstream>

namespace kelvora {
namespace {

// The tests run in their source folder.
const char* const kCarpeta = "../../../docs/validacion/";

// Every published case with both methods: the modern method within 3 % of each source that
// already uses modern correlations, and every difference over 5 % explained, no explanation
// left over. The page is written afresh each run.
TEST(Validacion, CasosPublicadosYPagina) {
    std::ifstream referencias(std::string(kCarpeta) + "referencias.csv");
    std::ifstream textos(std::string(kCarpeta) + "explicaciones.csv");
    ASSERT_TRUE(referencias && textos);
    const classUnidades unidades;
    std::vector<CasoValidado> casos;
    for (const CasoReferencia& caso : LeerCasosReferencia(referencias, unidades)) {
        casos.push_back(ValidarCaso(caso));
    }
    ASSERT_EQ(casos.size(), 18u);
    const std::vector<Explicacion> explicaciones = LeerExplicaciones(textos);
    for (const CasoValidado& v : casos) {
        if (v.fuenteModerna) {
            EXPECT_LT(std::fabs(Diferencia(v.moderno, v.caso.valor)), 3) << v.caso.id;
        }
        for (const auto& [metodo, valor] :
             {std::pair{"programa", v.programa}, std::pair{"moderno", v.moderno}}) {
            const bool explicada = std::any_of(
                    explicaciones.begin(), explicaciones.end(),
                    [&](const Explicacion& e) { return e.id == v.caso.id && e.metodo == metodo; });
            const double diferencia = Diferencia(valor, v.caso.valor);
            EXPECT_EQ(std::fabs(diferencia) > kDiferenciaExplicada, explicada)
                    << v.caso.id << ", " << metodo << ": " << diferencia << " %";
        }
    }
    std::ofstream("../../../docs/validacion.md") << PaginaValidacion(casos, explicaciones);
}

}  // namespace
}  // namespace kelvora
