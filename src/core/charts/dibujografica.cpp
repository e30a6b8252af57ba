#include "core/charts/dibujografica.h"

#include "core/app/colores.h"
#include "core/platform/surface.h"
#include "core/runtime/formato.h"
#include "core/runtime/texto.h"

#include <cmath>

namespace kelvora {

namespace {

constexpr Color kColorCurva = RGB(0, 0, 192);
constexpr Color kColorMarco = RGB(0, 0, 0);
constexpr int kAnchoCurva = 2;
constexpr int kAnchoMarco = 1;
constexpr int kNumerosPorEje = 5;
constexpr double kDivisionesEje = 4;

std::string Numero(double valor) {
    std::string texto = Format(valor, "##0");
    return NormalizarDecimal(texto);
}

// Drawing in plot units. Text sizes are measured in plot units as the picture's user scale
// gives them, so a height is negative where the scale grows upward.
class Dibujo {
public:
    Dibujo(Surface& superficie, const EscalaGrafica& escala)
        : mSuperficie(superficie), mEscala(escala) {}

    void Linea(double x1, double y1, double x2, double y2, Color color) {
        mSuperficie.Line(mEscala.XSuperficie(x1), mEscala.YSuperficie(y1), mEscala.XSuperficie(x2),
                         mEscala.YSuperficie(y2), color);
    }

    void Texto(double x, double y, const std::string& texto) {
        mSuperficie.SetCurrentX(mEscala.XSuperficie(x));
        mSuperficie.SetCurrentY(mEscala.YSuperficie(y));
        mSuperficie.Print(texto, false);
    }

    double AnchoTexto(const std::string& texto) const {
        return mSuperficie.TextWidth(texto) * mEscala.ScaleWidth / mEscala.ancho;
    }

    double AltoTexto(const std::string& texto) const {
        return mSuperficie.TextHeight(texto) * mEscala.ScaleHeight / mEscala.alto;
    }

    Surface& Superficie() { return mSuperficie; }
    const EscalaGrafica& Escala() const { return mEscala; }

private:
    Surface& mSuperficie;
    const EscalaGrafica& mEscala;
};

// Each segment joins a point to the one before it; the point that ends the curve is reached.
void Curva(Dibujo& d, const SerieGrafica& s, const EjesGrafica& ejes, int16_t tipoGrafica) {
    d.Superficie().SetDrawWidth(kAnchoCurva);
    for (int i = 1; i <= s.N; ++i) {
        const auto previo = static_cast<size_t>(i - 1);
        const auto punto = static_cast<size_t>(i);
        d.Linea(s.X[previo], s.Y[previo], s.X[punto], s.Y[punto], kColorCurva);
        if (FinDeCurva(s, ejes, tipoGrafica, i)) {
            break;
        }
    }
}

void Marco(Dibujo& d, const EjesGrafica& e) {
    d.Superficie().SetDrawWidth(kAnchoMarco);
    d.Linea(e.Xlow, e.Ylow - e.mY / 2, e.Xlow, e.Yhigh + e.mY / 2, kColorMarco);
    d.Linea(e.Xlow, e.Ylow, e.Xhigh + e.mX, e.Ylow, kColorMarco);
    d.Linea(e.Xlow, e.Yhigh, e.Xhigh + e.mX, e.Yhigh, kColorMarco);
}

void NumerosX(Dibujo& d, const EjesGrafica& e) {
    const double paso = std::nearbyint((e.Xhigh - e.Xlow) / kDivisionesEje);
    for (int i = 1; i <= kNumerosPorEje; ++i) {
        const double valor = (i - 1) * paso + e.Xlow;
        const std::string texto = Numero(valor);
        d.Texto(valor - d.AnchoTexto(texto) / 2, e.Ylow, texto);
    }
}

// The last number is Yhigh itself, so the rounded step need not reach it evenly.
void NumerosY(Dibujo& d, const EjesGrafica& e) {
    const double paso = std::nearbyint((e.Yhigh - e.Ylow) / kDivisionesEje);
    const double x = e.Xlow - d.AnchoTexto(Numero(e.Yhigh) + " ");
    for (int i = 1; i <= kNumerosPorEje; ++i) {
        double valor = (i - 1) * paso + e.Ylow;
        if (i == kNumerosPorEje) {
            valor = e.Yhigh;
        }
        const std::string texto = Numero(valor);
        d.Texto(x, valor + d.AltoTexto(texto) / 2, texto);
    }
}

double Centrado(const Dibujo& d, const std::string& texto) {
    const EscalaGrafica& escala = d.Escala();
    return escala.ScaleLeft + (escala.ScaleWidth - d.AnchoTexto(texto)) / 2;
}

void Rotulos(Dibujo& d, const EjesGrafica& e, const TextosGrafica& t) {
    const EscalaGrafica& escala = d.Escala();
    d.Texto(Centrado(d, t.titulo), e.Yhigh + (e.mY * 1.5) / 2, t.titulo);
    const double pie = escala.ScaleTop + escala.ScaleHeight - 1.5 * d.AltoTexto(t.etiquetaX);
    d.Texto(Centrado(d, t.etiquetaX), pie, t.etiquetaX);
    d.Texto(e.Xlow - d.AnchoTexto(Numero(e.Yhigh) + " "), e.Yhigh + e.mY / 2, t.letrasY);
}

}  // namespace

EscalaGrafica EscalaGrafica::De(const EjesGrafica& ejes, double ancho, double alto) {
    EscalaGrafica escala;
    escala.ScaleLeft = ejes.Xlow - ejes.mX;
    escala.ScaleWidth = 2 * ejes.mX + ejes.Xhigh;
    escala.ScaleTop = ejes.Yhigh + ejes.mY;
    escala.ScaleHeight = (ejes.Ylow - ejes.mY) - escala.ScaleTop;
    escala.ancho = ancho;
    escala.alto = alto;
    return escala;
}

bool EscalaGrafica::Valida() const {
    return ScaleWidth != 0 && ScaleHeight != 0 && ancho > 0 && alto > 0 &&
           std::isfinite(ScaleWidth) && std::isfinite(ScaleHeight);
}

double EscalaGrafica::XSuperficie(double x) const {
    return (x - ScaleLeft) / ScaleWidth * ancho;
}

double EscalaGrafica::YSuperficie(double y) const {
    return (y - ScaleTop) / ScaleHeight * alto;
}

double EscalaGrafica::XGrafica(double xSuperficie) const {
    return ScaleLeft + xSuperficie / ancho * ScaleWidth;
}

double EscalaGrafica::YGrafica(double ySuperficie) const {
    return ScaleTop + ySuperficie / alto * ScaleHeight;
}

void DibujarGrafica(Surface& superficie, const EscalaGrafica& escala, const SerieGrafica& serie,
                    const EjesGrafica& ejes, int16_t tipoGrafica, const TextosGrafica& textos) {
    if (serie.Vacia() || !escala.Valida()) {
        return;
    }
    superficie.SetFont(Fuente{});
    Dibujo dibujo(superficie, escala);
    Curva(dibujo, serie, ejes, tipoGrafica);
    Marco(dibujo, ejes);
    NumerosX(dibujo, ejes);
    NumerosY(dibujo, ejes);
    Rotulos(dibujo, ejes, textos);
}

}  // namespace kelvora
