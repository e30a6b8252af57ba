#include "core/reports/imprimirdocumento.h"

#include "core/runtime/texto.h"

#include <algorithm>
#include <cmath>

namespace kelvora {

double CorreccionRenglon(Surface& impresora, Surface& vista, const ConfiguracionPagina& pagina) {
    const Fuente informe = impresora.Font();
    const Fuente patron{"Courier New", 10, false, false};
    impresora.SetFont(patron);
    vista.SetFont(patron);
    const double diferencia = vista.TextHeight("A") - impresora.TextHeight("A");
    impresora.SetFont(informe);
    vista.SetFont(informe);
    return (pagina.FuenteTamano / 10) * (diferencia / 100);
}

int VistaPreliminar(Surface& paginas, const DocumentoImpresion& documento,
                    const ConfiguracionPagina& pagina) {
    return Diagramar(paginas, documento, pagina, {Destino::VistaPreliminar, 0, 0});
}

int ImprimirDocumento(Surface& impresora, Surface& vista, const DocumentoImpresion& documento,
                      const ConfiguracionPagina& pagina, int copias) {
    const Tamano papel = TamanoPagina(pagina);
    impresora.SetPageSize(std::trunc(papel.ancho), std::trunc(papel.alto));
    impresora.SetFont(FuenteInforme(pagina));
    vista.SetPageSize(std::trunc(papel.ancho), std::trunc(papel.alto));
    vista.SetFont(FuenteInforme(pagina));
    const double correccion = CorreccionRenglon(impresora, vista, pagina);
    const int total = VistaPreliminar(vista, documento, pagina);
    for (int copia = 0; copia < std::max(copias, 1); ++copia) {
        Diagramar(impresora, documento, pagina, {Destino::Impresora, correccion, total});
        impresora.EndDoc();
    }
    return total;
}

std::string TituloVistaPreliminar(const std::string& caption) {
    return "Vista Preliminar - [" + caption + "]";
}

std::string MensajeErrorVista(const std::string& descripcion) {
    return "Error inesperado: " + descripcion + kSaltoDeLinea +
           "No se puede mostrar la Vista Preliminar.";
}

std::string MensajeErrorImpresion(const std::string& descripcion) {
    return "No se pudo imprimir el documento debido al siguiente error: " + descripcion;
}

}  // namespace kelvora
