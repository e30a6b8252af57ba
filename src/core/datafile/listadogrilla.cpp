#include "core/datafile/listadogrilla.h"

#include "core/datafile/alineartexto.h"
#include "core/reports/medircolumnas.h"
#include "core/reports/textolargo.h"
#include "core/runtime/texto.h"

#include <vector>

namespace kelvora {

namespace {

constexpr const char* kFinDeLinea = "\r\n";
// The same margin as the printed report's columns.
constexpr int16_t kBlancosColumna = 2;
constexpr int32_t kAlineacionIzquierda = 2;

struct FormaListado {
    /// Results windows and economic reports set their headings apart with an empty line.
    bool dosFinesEnTitulos;
    bool textosLargos;
    bool titulo;
};

FormaListado FormaDeTag(int tag) {
    switch (tag) {
        case 2:
        case 3:
        case 6:
        case 7:
        case 10:
        case 13:
            return {true, false, false};
        case 16:
            return {false, true, true};
        default:
            return {false, true, false};
    }
}

// The window's caption before its "[", in capitals; the whole caption when it has none.
std::string TituloListado(const std::string& caption) {
    const size_t corchete = caption.find('[');
    return UCase(RTrim(caption.substr(0, corchete))) + kFinDeLinea;
}

double AnchoEnCaracteres(const std::string& texto) {
    return Len(texto);
}

std::string Celda(const Grilla& grilla, int fila, int columna, float ancho, bool textosLargos) {
    if (textosLargos && grilla.ColData(columna) > 0 && grilla.RowData(fila) > 0) {
        return TextoLargo(grilla, grilla.RowData(fila));
    }
    return AlinearTexto(grilla.TextMatrix(fila, columna), ancho, kAlineacionIzquierda,
                        !grilla.MergeRow(fila));
}

std::string Fila(const Grilla& grilla, int fila, const std::vector<double>& anchos,
                 const FormaListado& forma) {
    const bool titulo = grilla.MergeRow(fila);
    std::string texto;
    for (int columna = 0; columna < grilla.Cols(); ++columna) {
        if (titulo) {
            texto += forma.dosFinesEnTitulos ? "\r\n\r\n" : kFinDeLinea;
        }
        texto += Celda(grilla, fila, columna, static_cast<float>(anchos[columna]),
                       forma.textosLargos);
        if (titulo) {
            break;
        }
    }
    texto += kFinDeLinea;
    return titulo ? texto + kFinDeLinea : texto;
}

}  // namespace

std::string ListadoGrilla(const Grilla& grilla, int tag) {
    const FormaListado forma = FormaDeTag(tag);
    const std::vector<double> anchos = MedirColumnas(AnchoEnCaracteres, grilla, kBlancosColumna);
    std::string texto = forma.titulo ? TituloListado(grilla.Caption) : std::string();
    for (int fila = 0; fila < grilla.Rows(); ++fila) {
        texto += Fila(grilla, fila, anchos, forma);
    }
    return texto;
}

}  // namespace kelvora
