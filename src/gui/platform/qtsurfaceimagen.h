#pragma once

#include "core/platform/surface.h"

#include <functional>
#include <string>
#include <vector>

class QImage;
class QPainter;

namespace kelvora {

/// White pages of a given size in millimetres that record what is drawn on them: the first page
/// written as a PNG or an SVG file, every page as a PDF file. Needs no window: it starts a
/// windowless Qt application when there is none.
class QtSurfaceImagen : public Surface {
public:
    QtSurfaceImagen(double anchoMm, double altoMm, double pixelesPorMm);

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

    /// The first page as an image of its size in pixels.
    QImage Imagen() const;
    /// Writes the file; an existing one is replaced only when the whole file was written.
    bool GuardarPng(const std::string& archivo) const;
    bool GuardarSvg(const std::string& archivo) const;
    bool GuardarPdf(const std::string& archivo) const;

private:
    double Pixeles(double mm) const { return mm * mPixelesPorMm; }
    using Trazo = std::function<void(QPainter&)>;

    void Reproducir(QPainter& pintor, const std::vector<Trazo>& pagina) const;
    void Agregar(Trazo trazo) { mPaginas.back().push_back(std::move(trazo)); }

    double mAnchoMm;
    double mAltoMm;
    double mPixelesPorMm;
    double mX = 0;
    double mY = 0;
    int mAnchoLinea = 1;
    Fuente mFuente;
    std::vector<std::vector<Trazo>> mPaginas{1};
};

}  // namespace kelvora
