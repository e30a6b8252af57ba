#pragma once

#include "core/materials/conexion.h"
#include "core/materials/valorcampo.h"

#include <string>

namespace kelvora {

enum class TipoCursor { SoloAdelante, Estatico };
enum class TipoBloqueo { SoloLectura };

/// The rows of one read-only statement, walked forward from the first one.
class Recordset {
public:
    /// Runs the statement on the open connection. All rows are read at once, so a
    /// forward-only cursor behaves as a static one.
    void Open(const std::string& sql, Conexion& conexion, TipoCursor cursor,
              TipoBloqueo bloqueo = TipoBloqueo::SoloLectura);
    void Close();
    bool EstaAbierto() const { return mAbierto; }

    /// Before the first row: true only for an empty set, since the cursor never moves back.
    bool Bof() const;
    /// After the last row (EOF is a C macro, hence the name).
    bool Eof() const;
    void MoveNext();
    /// The value of a field of the current row, by name without regard to case.
    const ValorCampo& Fields(const std::string& nombre) const;

private:
    void ComprobarAbierto() const;

    ResultadoConsulta mResultado;
    size_t mFila = 0;
    bool mAbierto = false;
};

}  // namespace kelvora
