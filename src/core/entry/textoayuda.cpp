#include "core/entry/textoayuda.h"

#include "core/entry/descripcionentrada.h"
#include "core/runtime/texto.h"

namespace kelvora {

std::string TextoAyudaCampo(const std::string& ventana, int indice) {
    for (const TipoEntrada tipo :
         {TipoEntrada::SuperficiesPlanas, TipoEntrada::SuperficiesCilindricas,
          TipoEntrada::PlanasFrio, TipoEntrada::CilindricasFrio}) {
        const DescripcionEntrada& descripcion = DescripcionVentanaDatos(tipo);
        if (IgualTexto(descripcion.nombre, ventana) && indice >= 1 &&
            indice <= descripcion.Cajas()) {
            return descripcion.Campo(indice).ayuda;
        }
    }
    return "";
}

}  // namespace kelvora
