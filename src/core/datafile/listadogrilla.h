#pragma once

#include "core/reports/grilla.h"

#include <string>

namespace kelvora {

/// The text listing of a grid as the window of kind `tag` saves it (2 to 4, 6 to 8, 10, 11,
/// 13, 14, 16): UTF-8 with CR LF line ends. Columns are as wide as their widest measured cell
/// in characters, plus two. A heading row prints its first cell, uncut, between line ends;
/// technical reports and chart tables print long texts from the grid's Tag; a chart table
/// (16) begins with the caption before its "[" in capitals. Error 9 when a row's long text is
/// not in the list.
std::string ListadoGrilla(const Grilla& grilla, int tag);

}  // namespace kelvora
