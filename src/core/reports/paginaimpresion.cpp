#include "core/reports/paginaimpresion.h"

#include "core/app/acercade.h"

#include <utility>

namespace kelvora {

namespace {

constexpr double kAnchoCarta = 216;
constexpr double kAltoCarta = 279;
constexpr double kAltoOficio = 356;
constexpr double kSeparacionPie = 2;
constexpr double kSaltoCuartaLinea = 0.5;

const Fuente kFuenteMembrete{"Arial", 8, false, false};
const Fuente kFuenteNumero{"Courier New", 8, false, false};

Tamano TamanoImagenMm(const Surface& superficie, const char* imagen) {
    const Tamano pixeles = superficie.PictureSize(imagen);
    return {superficie.ScaleX(pixeles.ancho), superficie.ScaleY(pixeles.alto)};
}

void PintarNatural(Surface& superficie, const char* imagen, double x, double y) {
    const Tamano tamano = TamanoImagenMm(superficie, imagen);
    superficie.PaintPicture(imagen, x, y, tamano.ancho, tamano.alto);
}

Fuente ConNombreYTamano(Fuente fuente, const ConfiguracionPagina& pagina) {
    fuente.nombre = pagina.FuenteNombre;
    fuente.tamano = pagina.FuenteTamano;
    return fuente;
}

void LineasFabricante(Surface& superficie, double x0) {
    Fuente fuente = kFuenteMembrete;
    fuente.negrita = true;
    superficie.SetFont(fuente);
    superficie.Print(kLineasFabricante[0], false);
    fuente.negrita = false;
    superficie.SetFont(fuente);
    superficie.SetCurrentX(superficie.CurrentX() + kSeparacionPie);
    superficie.Print(kLineasFabricante[1], false);
    superficie.SetCurrentX(superficie.CurrentX() + kSeparacionPie);
    superficie.Print(kLineasFabricante[2], true);
    superficie.SetCurrentX(x0);
    superficie.SetCurrentY(superficie.CurrentY() + kSaltoCuartaLinea);
    superficie.Print(kLineasFabricante[3], true);
}

}  // namespace

Tamano TamanoPagina(const ConfiguracionPagina& pagina) {
    Tamano tamano{kAnchoCarta, pagina.TamanoPapel == 1 ? kAltoCarta : kAltoOficio};
    if (pagina.Orientacion == 2) {
        std::swap(tamano.ancho, tamano.alto);
    }
    return tamano;
}

Fuente FuenteInforme(const ConfiguracionPagina& pagina) {
    return {pagina.FuenteNombre, pagina.FuenteTamano, pagina.FuenteNegrita, pagina.FuenteCursiva};
}

EntornoImpresion EntornoImpresion::Para(const ConfiguracionPagina& pagina,
                                        const Surface& superficie) {
    const Tamano papel = TamanoPagina(pagina);
    const Tamano encabezado = TamanoImagenMm(superficie, kImagenEncabezado);
    const Tamano pie = TamanoImagenMm(superficie, kImagenPie);
    return {pagina,          papel.ancho, papel.alto, encabezado.ancho,
            encabezado.alto, pie.ancho,   pie.alto};
}

// The given height is not used: the page's own height less both margins is.
void DibujarMembrete(Surface& superficie, const EntornoImpresion& e, double x0, double y0, double w,
                     double /*h*/) {
    const ConfiguracionPagina& p = e.pagina;
    const double alto = superficie.ScaleHeight() - p.MargenSuperior - p.MargenInferior;
    const double x = superficie.CurrentX();
    const double y = superficie.CurrentY();
    superficie.SetDrawWidth(2);
    PintarNatural(superficie, kImagenEncabezado, (x0 + w - e.AnchoEncabezado) / 2, y0);
    superficie.PaintPicture(kImagenFondo, x0, y0 + e.AltoEncabezado,
                            superficie.ScaleWidth() - p.MargenDerecho - x0,
                            alto - e.AltoEncabezado - e.AltoPie);
    const Fuente anterior = superficie.Font();
    const double yPie = y0 + alto - e.AltoPie;
    PintarNatural(superficie, kImagenPie, x0, yPie);
    superficie.SetCurrentX(x0 + e.AnchoPie + kSeparacionPie);
    superficie.SetCurrentY(yPie);
    LineasFabricante(superficie, x0);
    superficie.SetFont(ConNombreYTamano(anterior, p));
    superficie.Line(x0, yPie - 1, superficie.ScaleWidth() - p.MargenDerecho, yPie - 1, 0);
    superficie.SetCurrentX(x);
    superficie.SetCurrentY(y);
}

void ImprimirNumeroPagina(Surface& superficie, const EntornoImpresion& e,
                          const std::string& texto) {
    const Fuente anterior = superficie.Font();
    const double x = superficie.CurrentX();
    const double y = superficie.CurrentY();
    superficie.SetFont(kFuenteNumero);
    superficie.SetCurrentX(superficie.ScaleWidth() - superficie.TextWidth(texto) -
                           e.pagina.MargenDerecho);
    superficie.SetCurrentY(superficie.ScaleHeight() - e.pagina.MargenInferior - e.AltoPie);
    superficie.Print(texto, false);
    superficie.SetFont(anterior);
    superficie.SetCurrentX(x);
    superficie.SetCurrentY(y);
}

std::string TextoNumeroPagina(int pagina, int total) {
    return "Página " + std::to_string(pagina) + " de " + std::to_string(total);
}

}  // namespace kelvora
