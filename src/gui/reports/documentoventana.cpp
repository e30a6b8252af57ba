#include "gui/reports/documentoventana.h"

#include "core/charts/dibujografica.h"
#include "core/datafile/ventanaarchivo.h"
#include "gui/app/ventanahija.h"
#include "gui/charts/frmgraficas.h"
#include "gui/platform/qtsurfaceimagen.h"

#include <algorithm>
#include <functional>
#include <vector>

namespace kelvora {

namespace {

// The chart is drawn again for paper, at this size, as a picture of 150 dots to the inch: its
// lines, a pixel or two wide, stay visible on paper.
constexpr double kAnchoGraficaMm = 180;
constexpr double kAltoGraficaMm = 115;
constexpr double kPixelesPorMm = 150 / 25.4;
constexpr double kPixelesNaturalesPorMm = 96 / 25.4;
constexpr char kImagenGrafica[] = "picGrafica";

using Documentar = std::function<std::optional<DocumentoVentana>(QWidget& ventana)>;

// A results window, a technical report window, a comparison or a verification: the window's
// own grid, captioned with the window's title.
std::optional<DocumentoVentana> GrillaPropia(QWidget& ventana) {
    const auto* archivo = dynamic_cast<const VentanaArchivo*>(&ventana);
    if (archivo == nullptr) {
        return std::nullopt;
    }
    return DocumentoVentana{{archivo->GrillaListado(), std::nullopt}, {}, 0};
}

// The chart tab: the chart's table and its picture; the part left of the value axis is the
// picture's tagged width, of which the page leaves out a third.
std::optional<DocumentoVentana> Grafica(QWidget& ventana) {
    const auto* graficas = qobject_cast<const frmGraficas*>(&ventana);
    if (graficas == nullptr || !graficas->Modelo().SerieLista()) {
        return std::nullopt;
    }
    const ModeloGraficas& modelo = graficas->Modelo();
    const EscalaGrafica escala = EscalaGrafica::De(modelo.Ejes(), kAnchoGraficaMm, kAltoGraficaMm);
    QtSurfaceImagen dibujo(kAnchoGraficaMm, kAltoGraficaMm, kPixelesPorMm);
    DibujarGrafica(dibujo, escala, modelo.Serie(), modelo.Ejes(), modelo.tipoGrafica(),
                   modelo.Textos());
    const double izquierdo = escala.XSuperficie(modelo.Ejes().Xlow) * kPixelesNaturalesPorMm;
    return DocumentoVentana{{graficas->GrillaListado(), ImagenGrafica{kImagenGrafica, izquierdo}},
                            dibujo.Imagen(),
                            kAnchoGraficaMm};
}

struct FilaDespacho {
    std::vector<int> clases;
    Documentar documento;
};

// One row per group of window kinds. A new kind of window adds a row here.
const std::vector<FilaDespacho>& Despacho() {
    static const std::vector<FilaDespacho> filas = {
            {{2, 6, 10, 13, 4, 8, 11, 14, 17, 18}, GrillaPropia},
            {{15}, Grafica},
    };
    return filas;
}

}  // namespace

std::optional<DocumentoVentana> DocumentoDeVentana(QWidget& ventana) {
    const int clase = NumeroTag(TagDe(&ventana).toStdString());
    for (const FilaDespacho& fila : Despacho()) {
        if (std::ranges::find(fila.clases, clase) != fila.clases.end()) {
            return fila.documento(ventana);
        }
    }
    return std::nullopt;
}

}  // namespace kelvora
