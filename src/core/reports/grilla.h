#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace kelvora {

enum class Alineacion { Izquierda, Centro, Derecha };

/// How a cell is drawn; colours are indices into the application's `Colores` (0: default).
struct EstiloCelda {
    bool negrita = false;
    int colorFondo = 0;
    int colorTexto = 0;
    Alineacion alineacion = Alineacion::Izquierda;
};

/// A grid of text cells with row, column and table attributes: the results table, a report and
/// a chart's data table are all one of these. Rows and columns are counted from 0.
class Grilla {
public:
    int Rows() const { return mFilas; }
    int Cols() const { return mColumnas; }
    /// Resizing keeps the cells that still fit.
    void SetRows(int filas);
    void SetCols(int columnas);

    const std::string& TextMatrix(int fila, int columna) const;
    void SetTextMatrix(int fila, int columna, std::string texto);

    bool MergeRow(int fila) const { return mFilasInfo.at(fila).combinar; }
    void SetMergeRow(int fila, bool combinar) { mFilasInfo.at(fila).combinar = combinar; }
    int32_t RowData(int fila) const { return mFilasInfo.at(fila).dato; }
    void SetRowData(int fila, int32_t dato) { mFilasInfo.at(fila).dato = dato; }
    /// Height of a row as a multiple of the normal height; screen only.
    double RowHeight(int fila) const { return mFilasInfo.at(fila).alto; }
    void SetRowHeight(int fila, double alto) { mFilasInfo.at(fila).alto = alto; }

    int32_t ColData(int columna) const { return mColumnasInfo.at(columna).dato; }
    void SetColData(int columna, int32_t dato) { mColumnasInfo.at(columna).dato = dato; }
    /// Width of a column; 0 hides it, any other value only counts as visible.
    int32_t ColWidth(int columna) const { return mColumnasInfo.at(columna).ancho; }
    void SetColWidth(int columna, int32_t ancho) { mColumnasInfo.at(columna).ancho = ancho; }

    const EstiloCelda& Estilo(int fila, int columna) const;
    EstiloCelda& Estilo(int fila, int columna);

    /// Long-text list of reports, items separated by ';'.
    std::string Tag;
    /// Caption of the window that shows the grid: the report's title line.
    std::string Caption;

private:
    struct Celda {
        std::string texto;
        EstiloCelda estilo;
    };
    struct FilaInfo {
        bool combinar = false;
        int32_t dato = 0;
        double alto = 1.0;
    };
    struct ColumnaInfo {
        int32_t dato = 0;
        int32_t ancho = 1;
    };

    size_t Indice(int fila, int columna) const;
    void Redimensionar(int filas, int columnas);

    int mFilas = 0;
    int mColumnas = 0;
    std::vector<Celda> mCeldas;
    std::vector<FilaInfo> mFilasInfo;
    std::vector<ColumnaInfo> mColumnasInfo;
};

}  // namespace kelvora
