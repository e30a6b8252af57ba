#include "core/materials/recordset.h"

#include "core/materials/errorbd.h"
#include "core/runtime/texto.h"

namespace kelvora {

void Recordset::Open(const std::string& sql, Conexion& conexion, TipoCursor, TipoBloqueo) {
    if (mAbierto) {
        throw ErrorObjetoAbierto();
    }
    mResultado = conexion.Consultar(sql);
    mFila = 0;
    mAbierto = true;
}

void Recordset::Close() {
    ComprobarAbierto();
    mResultado = {};
    mAbierto = false;
}

bool Recordset::Bof() const {
    ComprobarAbierto();
    return mResultado.filas.empty();
}

bool Recordset::Eof() const {
    ComprobarAbierto();
    return mFila >= mResultado.filas.size();
}

void Recordset::MoveNext() {
    if (Eof()) {
        throw ErrorSinRegistroActual();
    }
    ++mFila;
}

const ValorCampo& Recordset::Fields(const std::string& nombre) const {
    if (Eof()) {
        throw ErrorSinRegistroActual();
    }
    for (size_t c = 0; c < mResultado.campos.size(); ++c) {
        if (IgualTexto(mResultado.campos[c], nombre)) {
            return mResultado.filas[mFila][c];
        }
    }
    throw ErrorCampoNoEncontrado(nombre);
}

void Recordset::ComprobarAbierto() const {
    if (!mAbierto) {
        throw ErrorObjetoCerrado();
    }
}

}  // namespace kelvora
