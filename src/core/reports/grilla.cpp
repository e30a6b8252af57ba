#include "core/reports/grilla.h"

#include <algorithm>
#include <stdexcept>

namespace kelvora {

size_t Grilla::Indice(int fila, int columna) const {
    if (fila < 0 || fila >= mFilas || columna < 0 || columna >= mColumnas) {
        throw std::out_of_range("celda fuera de la grilla");
    }
    return static_cast<size_t>(fila) * static_cast<size_t>(mColumnas) +
           static_cast<size_t>(columna);
}

void Grilla::Redimensionar(int filas, int columnas) {
    // Rows lie one after another: with the same columns the cells stay where they are, and a
    // grid that grows a row at a time copies nothing but now and then its whole block.
    if (columnas == mColumnas) {
        mCeldas.resize(static_cast<size_t>(filas) * static_cast<size_t>(columnas));
        mFilas = filas;
        mFilasInfo.resize(static_cast<size_t>(filas));
        return;
    }
    std::vector<Celda> celdas(static_cast<size_t>(filas) * static_cast<size_t>(columnas));
    for (int f = 0; f < std::min(filas, mFilas); ++f) {
        for (int c = 0; c < std::min(columnas, mColumnas); ++c) {
            celdas[static_cast<size_t>(f) * columnas + c] = std::move(mCeldas[Indice(f, c)]);
        }
    }
    mCeldas = std::move(celdas);
    mFilas = filas;
    mColumnas = columnas;
    mFilasInfo.resize(static_cast<size_t>(filas));
    mColumnasInfo.resize(static_cast<size_t>(columnas));
}

void Grilla::SetRows(int filas) {
    Redimensionar(filas, mColumnas);
}

void Grilla::SetCols(int columnas) {
    Redimensionar(mFilas, columnas);
}

const std::string& Grilla::TextMatrix(int fila, int columna) const {
    return mCeldas[Indice(fila, columna)].texto;
}

void Grilla::SetTextMatrix(int fila, int columna, std::string texto) {
    mCeldas[Indice(fila, columna)].texto = std::move(texto);
}

const EstiloCelda& Grilla::Estilo(int fila, int columna) const {
    return mCeldas[Indice(fila, columna)].estilo;
}

EstiloCelda& Grilla::Estilo(int fila, int columna) {
    return mCeldas[Indice(fila, columna)].estilo;
}

}  // namespace kelvora
