#pragma once

#include "core/reports/grilla.h"

#include <functional>
#include <string>

namespace kelvora {

/// The tool tip of a results grid over cell (fila, columna): the cell's text when that text
/// and four blanks are wider than the column, on a row that is not merged. Otherwise the
/// row's label, ": " and the jacket material when the row carries a RowData and the label's
/// first nine characters read "Material" (a word of eight, so it holds only for a label of
/// exactly that word), else the empty text.
std::string ToolTipResultados(const Grilla& grilla, int fila, int columna, double anchoColumna,
                              const std::function<double(const std::string&)>& anchoTexto,
                              const std::string& materialAislamiento);

}  // namespace kelvora
