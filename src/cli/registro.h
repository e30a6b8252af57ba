#pragma once

#include "cli/json.h"
#include "core/platform/surface.h"

namespace kelvora::cli {

/// A surface of fixed metrics that records every drawing call: 2 mm a character, 4 mm a line,
/// pictures of fixed sizes (top logo 40 × 15 mm, foot logo 20 × 10 mm, anything else
/// 100 × 100 mm). Each call is kept with its page, position before the call and text.
class SurfaceRegistro : public Surface {
public:
    double CurrentX() const override { return mX; }
    double CurrentY() const override { return mY; }
    void SetCurrentX(double x) override { mX = x; }
    void SetCurrentY(double y) override { mY = y; }
    double TextWidth(const std::string& texto) const override;
    double TextHeight(const std::string& texto) const override;
    void Print(const std::string& texto, bool finDeLinea) override;
    void Line(double x1, double y1, double x2, double y2, unsigned color) override;
    void PaintPicture(const std::string& imagen, double x, double y, double ancho,
                      double alto) override;
    void SetFont(const Fuente& fuente) override { mFuente = fuente; }
    void NewPage() override;
    Fuente Font() const override { return mFuente; }
    void SetPageSize(double ancho, double alto) override { mPagina = {ancho, alto}; }
    double ScaleWidth() const override { return mPagina.ancho; }
    double ScaleHeight() const override { return mPagina.alto; }
    Tamano PictureSize(const std::string& imagen) const override;
    double ScaleX(double pixeles) const override { return pixeles; }
    double ScaleY(double pixeles) const override { return pixeles; }
    void PaintPictureFrom(const std::string& imagen, double x, double y, double ancho, double alto,
                          double xOrigen, double yOrigen) override;
    void EndDoc() override;

    /// {"paginas": total, "llamadas": [...]}.
    Json ComoJson(int paginas) const;

private:
    void Anotar(Json llamada);

    double mX = 0;
    double mY = 0;
    int mNumero = 1;
    bool mCopiaTerminada = false;
    Fuente mFuente;
    Tamano mPagina{216, 279};
    Json mLlamadas = Json::array();
};

}  // namespace kelvora::cli
