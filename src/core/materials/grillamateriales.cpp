#include "core/materials/grillamateriales.h"

#include "core/runtime/formato.h"
#include "core/runtime/numeros.h"
#include "core/runtime/texto.h"

namespace kelvora {

namespace {

const char* const kEncabezados[] = {" Código ", " Descripción ", " Emisividad ",
                                    " Temperatura (°F) "};

std::string Numero(const ValorCampo& valor, const char* patron) {
    if (valor.EsNulo()) {
        return {};
    }
    std::string texto =
            patron != nullptr ? Format(valor.Numero(), patron) : TextoNumero(valor.Numero());
    return NormalizarDecimal(texto);
}

std::string Descripcion(const ValorCampo& valor) {
    return UCase(Trim(valor.Texto()));
}

void Centrar(Grilla& grilla, int fila) {
    for (int c = 0; c < grilla.Cols(); ++c) {
        grilla.Estilo(fila, c).alineacion = Alineacion::Centro;
    }
}

}  // namespace

Grilla GrillaMateriales() {
    Grilla grilla;
    grilla.SetRows(1);
    grilla.SetCols(4);
    for (int c = 0; c < grilla.Cols(); ++c) {
        grilla.SetTextMatrix(0, c, kEncabezados[c]);
    }
    Centrar(grilla, 0);
    return grilla;
}

void AgregarFilaMaterial(Grilla& grilla, const Recordset& recordset) {
    const CeldasMaterial celdas = {Numero(recordset.Fields("Codigo"), nullptr),
                                   Descripcion(recordset.Fields("Descripcion")),
                                   Numero(recordset.Fields("Emisividad"), "0.0#"),
                                   Numero(recordset.Fields("Temperatura"), "0.0##")};
    const int fila = grilla.Rows();
    grilla.SetRows(fila + 1);
    for (int c = 0; c < grilla.Cols(); ++c) {
        grilla.SetTextMatrix(fila, c, celdas[static_cast<size_t>(c)]);
    }
    Centrar(grilla, fila);
}

CeldasMaterial CeldasDe(const Grilla& grilla, int fila) {
    CeldasMaterial celdas;
    for (int c = 0; c < grilla.Cols() && c < 4; ++c) {
        celdas[static_cast<size_t>(c)] = grilla.TextMatrix(fila, c);
    }
    return celdas;
}

}  // namespace kelvora
