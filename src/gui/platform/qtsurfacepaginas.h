#pragma once

#include "core/platform/surface.h"

#include <QFont>
#include <QFontMetricsF>
#include <QImage>

#include <functional>
#include <map>
#include <string>
#include <vector>

class QPainter;

namespace kelvora {

/// Pages in millimetres that keep what is drawn on them, to be painted later at any scale: on
/// the preview's page images, on a printer or into a PDF file. Text is measured with the fonts
/// of FuenteImpresion, the same on every one of them. Pictures are the letterhead's, known by
/// their names, and the ones added with AgregarImagen. Without `grabar` nothing is kept: the
/// pages are only counted and measured. Needs a Qt application; starts a windowless one when
/// there is none.
class QtSurfacePaginas : public Surface {
public:
    explicit QtSurfacePaginas(bool grabar = true);

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
    void SetFont(const Fuente& fuente) override;
    void NewPage() override;
    void SetDrawWidth(int ancho) override { mAnchoLinea = ancho; }
    Fuente Font() const override { return mFuente; }
    void SetPageSize(double ancho, double alto) override;
    double ScaleWidth() const override { return mTamano.ancho; }
    double ScaleHeight() const override { return mTamano.alto; }
    Tamano PictureSize(const std::string& imagen) const override;
    void PaintPictureFrom(const std::string& imagen, double x, double y, double ancho, double alto,
                          double xOrigen, double yOrigen) override;
    void EndDoc() override;

    /// A picture for PaintPicture, of `anchoMm` millimetres at its natural size.
    void AgregarImagen(const std::string& nombre, const QImage& imagen, double anchoMm);

    int Paginas() const { return static_cast<int>(mPaginas.size()); }
    /// The size in millimetres of a page, from 0.
    Tamano TamanoDe(int pagina) const { return mPaginas.at(static_cast<size_t>(pagina)).tamano; }
    /// Makes a page, from 0, the one drawn on from now on.
    void IrAPagina(int pagina);
    /// Paints a page on a painter whose unit is the millimetre.
    void Pintar(QPainter& pintor, int pagina) const;

private:
    using Trazo = std::function<void(QPainter&)>;
    struct Pagina {
        Tamano tamano;
        std::vector<Trazo> trazos;
    };

    void Agregar(Trazo trazo);
    void EmpezarPagina();
    const QImage* ImagenAgregada(const std::string& nombre) const;

    bool mGrabar;
    std::vector<Pagina> mPaginas;
    size_t mActual = 0;
    bool mCopiaTerminada = false;
    Tamano mTamano{216, 279};
    double mX = 0;
    double mY = 0;
    int mAnchoLinea = 1;
    Fuente mFuente;
    QFont mQFuente;
    QFontMetricsF mMetricas;
    struct ImagenAgregadaMm {
        QImage imagen;
        double anchoMm;
    };
    std::map<std::string, ImagenAgregadaMm> mImagenes;
};

}  // namespace kelvora
