#include "core/economics/traspasoresultados.h"

#include "core/runtime/numeros.h"
#include "core/thermal/modeloresultados.h"

#include <string>

namespace kelvora {

// The economic window works on the practical (recommended) thickness: for each orientation
// QSD is the bare loss Qdt and QSA the insulated total Qt of its practical block, read back from
// column 1 of the results grid (block b = 2 · orientation + 1, rows 2 + 17 · b + 15 and + 14).
// Flat windows list them per pie² of surface, pipe windows per pie of pipe, which is what the
// areas and the lengths multiply. The report's further values come from the same blocks (QT, QD
// and Ef per orientation, the thickness), from the input rows of block 0 (TI and TA with their
// display units, speed, emissivities, nominal diameter) and from the public values (TS and its
// unit, material names, real diameter DM).
namespace {

struct LecturaEconomica {
    TipoResultados origen;
    TipoEconomico destino;
    std::vector<const char*> QT;
    std::vector<const char*> QD;
    std::vector<const char*> E;
    /// The practical thickness: one for the flat surface, one per run of pipe.
    std::vector<const char*> espesor;
    /// Grid offsets of the emissivities ("EM", "EM1") and of the nominal diameter (0: none).
    std::vector<int> emisividades;
    int diametroNominal;
    /// Public values copied under their own name.
    std::vector<const char*> publicos;
};

constexpr int kFilaTI = 1;
constexpr int kFilaTA = 3;
constexpr int kFilaV = 4;
constexpr int kFilaQt = 14;
constexpr int kFilaQdt = 15;
constexpr int kFilaEf = 16;

// clang-format off
const std::vector<LecturaEconomica> kLecturas = {
    {TipoResultados::SuperficiesPlanas, TipoEconomico::SuperficiesPlanas,
     {"QT1D", "QT2D", "QT3D"}, {"QD1D", "QD2D", "QD3D"}, {"E1D", "E2D", "E3D"}, {"LD"},
     {6, 7}, 0, {"TS", "unitTS", "MaterialSA", "MaterialSD"}},
    {TipoResultados::SuperficiesCilindricas, TipoEconomico::SuperficiesCilindricas,
     {"QTDL1", "QTDL2"}, {"QDDL1", "QDDL2"}, {"ED1", "ED2"}, {"ESPD1", "ESPD2"},
     {7}, 5, {"TS", "unitTS", "MaterialSA", "DM"}},
};
// clang-format on

const LecturaEconomica* LecturaDe(const ModeloResultados& resultados) {
    for (const LecturaEconomica& lectura : kLecturas) {
        if (&resultados.Ventana() == &DescripcionResultados(lectura.origen)) {
            return &lectura;
        }
    }
    return nullptr;
}

int Fila(int bloque, int desplazamiento) {
    return kFilasEncabezado + kFilasPorBloque * bloque + desplazamiento;
}

int BloquePractico(size_t orientacion) {
    return 2 * static_cast<int>(orientacion) + 1;
}

double Numero(const Grilla& grilla, int fila) {
    return Val(grilla.TextMatrix(fila, 1));
}

void LeerOrientaciones(const LecturaEconomica& l, const Grilla& g, ValoresAnalisis& v) {
    for (size_t o = 0; o < l.QT.size(); ++o) {
        const int bloque = BloquePractico(o);
        v.QSD.push_back(Numero(g, Fila(bloque, kFilaQdt)));
        v.QSA.push_back(Numero(g, Fila(bloque, kFilaQt)));
        v.informe.Establecer(l.QT[o], v.QSA.back());
        v.informe.Establecer(l.QD[o], v.QSD.back());
        v.informe.Establecer(l.E[o], Numero(g, Fila(bloque, kFilaEf)));
    }
    for (size_t o = 0; o < l.espesor.size(); ++o) {
        v.informe.Establecer(l.espesor[o], Numero(g, Fila(BloquePractico(o), kFilaEspesor)));
    }
}

void LeerEntradas(const LecturaEconomica& l, const Grilla& g, ValoresAnalisis& v) {
    v.informe.Establecer("TI", Numero(g, Fila(0, kFilaTI)));
    v.informe.Establecer("unitTI", g.TextMatrix(Fila(0, kFilaTI), 2));
    v.informe.Establecer("TA", Numero(g, Fila(0, kFilaTA)));
    v.informe.Establecer("unitTA", g.TextMatrix(Fila(0, kFilaTA), 2));
    v.informe.Establecer("VelocidadAire", Numero(g, Fila(0, kFilaV)));
    const char* nombres[] = {"EM", "EM1"};
    for (size_t i = 0; i < l.emisividades.size(); ++i) {
        v.informe.Establecer(nombres[i], Numero(g, Fila(0, l.emisividades[i])));
    }
    if (l.diametroNominal > 0) {
        v.informe.Establecer("DiametroTuberia", Numero(g, Fila(0, l.diametroNominal)));
    }
}

}  // namespace

std::optional<TipoEconomico> AnalisisEconomicoDe(const ModeloResultados& resultados) {
    const LecturaEconomica* lectura = LecturaDe(resultados);
    return lectura != nullptr ? std::optional(lectura->destino) : std::nullopt;
}

ValoresAnalisis ValoresParaAnalisis(const ModeloResultados& resultados) {
    ValoresAnalisis valores;
    const LecturaEconomica* lectura = LecturaDe(resultados);
    if (lectura == nullptr) {
        return valores;
    }
    valores.TipoAnalisis = resultados.TipoAnalisis();
    LeerOrientaciones(*lectura, resultados.MSFG(), valores);
    LeerEntradas(*lectura, resultados.MSFG(), valores);
    for (const char* nombre : lectura->publicos) {
        for (const auto& [clave, valor] : resultados.Valores().Todos()) {
            if (clave == nombre) {
                valores.informe.Establecer(clave, valor);
            }
        }
    }
    return valores;
}

}  // namespace kelvora
