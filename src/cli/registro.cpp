#include "cli/registro.h"

#include "core/reports/paginaimpresion.h"
#include "core/runtime/texto.h"

namespace kelvora::cli {

namespace {

constexpr double kAnchoCaracter = 2;
constexpr double kAltoLinea = 4;

}  // namespace

double SurfaceRegistro::TextWidth(const std::string& texto) const {
    return kAnchoCaracter * Len(texto);
}

double SurfaceRegistro::TextHeight(const std::string&) const {
    return kAltoLinea;
}

void SurfaceRegistro::Anotar(Json llamada) {
    if (mCopiaTerminada) {
        mCopiaTerminada = false;
        ++mNumero;
    }
    llamada["p"] = mNumero;
    mLlamadas.push_back(std::move(llamada));
}

void SurfaceRegistro::Print(const std::string& texto, bool finDeLinea) {
    Anotar({{"op", "Print"},
            {"x", mX},
            {"y", mY},
            {"texto", texto},
            {"fin", finDeLinea},
            {"negrita", mFuente.negrita}});
    if (finDeLinea) {
        mX = 0;
        mY += TextHeight(texto);
    } else {
        mX += TextWidth(texto);
    }
}

void SurfaceRegistro::Line(double x1, double y1, double x2, double y2, unsigned) {
    Anotar({{"op", "Line"}, {"x", x1}, {"y", y1}, {"x2", x2}, {"y2", y2}});
}

void SurfaceRegistro::PaintPicture(const std::string& imagen, double x, double y, double ancho,
                                   double alto) {
    Anotar({{"op", "PaintPicture"},
            {"x", x},
            {"y", y},
            {"ancho", ancho},
            {"alto", alto},
            {"texto", imagen}});
}

void SurfaceRegistro::PaintPictureFrom(const std::string& imagen, double x, double y, double ancho,
                                       double alto, double xOrigen, double) {
    Anotar({{"op", "PaintPictureFrom"},
            {"x", x},
            {"y", y},
            {"ancho", ancho},
            {"alto", alto},
            {"origen", xOrigen},
            {"texto", imagen}});
}

void SurfaceRegistro::NewPage() {
    Anotar({{"op", "NewPage"}, {"x", mX}, {"y", mY}});
    ++mNumero;
    mX = 0;
    mY = 0;
}

void SurfaceRegistro::EndDoc() {
    Anotar({{"op", "EndDoc"}, {"x", mX}, {"y", mY}});
    mCopiaTerminada = true;
    mX = 0;
    mY = 0;
}

// Sizes in millimetres: ScaleX and ScaleY take them as they are.
Tamano SurfaceRegistro::PictureSize(const std::string& imagen) const {
    if (imagen == kImagenEncabezado) {
        return {40, 15};
    }
    if (imagen == kImagenPie) {
        return {20, 10};
    }
    return {100, 100};
}

Json SurfaceRegistro::ComoJson(int paginas) const {
    return {{"paginas", paginas}, {"llamadas", mLlamadas}};
}

}  // namespace kelvora::cli
