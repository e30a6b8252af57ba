#include "core/materials/codigolibre.h"

#include "core/materials/recordset.h"
#include "core/materials/sentencias.h"
#include "core/runtime/numeros.h"

namespace kelvora {

int16_t SiguienteCodigoLibre(Conexion& conexion) {
    Recordset codigos;
    codigos.Open(kSqlCodigosMateriales, conexion, TipoCursor::SoloAdelante);
    int16_t candidato = 1;
    while (!codigos.Eof() && candidato - codigos.Fields("Codigo").Numero() == 0) {
        candidato = CInt(candidato + 1.0);
        codigos.MoveNext();
    }
    codigos.Close();
    return candidato;
}

}  // namespace kelvora
