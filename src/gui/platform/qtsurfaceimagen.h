#pragma once

#include "core/platform/surface.h"

#include <functional>
#include <string>
#include <vector>

class QImage;
class QPainter;

namespace kelvora {

/// A white picture of a given size in millimetres that records what is drawn on it and writes
/// it as a PNG or an SVG file. Needs no window: it starts a windowless Qt application when
/// there is none.
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

    /// The picture as an image of its size in pixels.
    QImage Imagen() const;
    /// Writes the picture; the file is replaced only when the whole picture was written.
    bool GuardarPng(const std::string& archivo) const;
    bool GuardarSvg(const std::string& archivo) const;

private:
    double Pixeles(double mm) const { return mm * mPixelesPorMm; }
    void Reproducir(QPainter& pintor) const;

    double mAnchoMm;
    double mAltoMm;
    double mPixelesPorMm;
    double mX = 0;
    double mY = 0;
    int mAnchoLinea = 1;
    Fuente mFuente;
    std::vector<std::function<void(QPainter&)>> mTrazos;
};

}  // namespace kelvora
