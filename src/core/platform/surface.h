#pragma once

#include <string>

namespace kelvora {

/// A font as the drawing code asks for it.
struct Fuente {
    std::string nombre = "Courier New";
    double tamano = 10;
    bool negrita = false;
    bool cursiva = false;
};

/// A width and a height.
struct Tamano {
    double ancho = 0;
    double alto = 0;
};

/// A page to draw on, in millimetres from the top-left corner, with a current position that
/// printing text advances, as the runtime's printer object has it.
class Surface {
public:
    virtual ~Surface() = default;

    virtual double CurrentX() const = 0;
    virtual double CurrentY() const = 0;
    virtual void SetCurrentX(double x) = 0;
    virtual void SetCurrentY(double y) = 0;
    virtual double TextWidth(const std::string& texto) const = 0;
    virtual double TextHeight(const std::string& texto) const = 0;
    /// Prints at the current position; with a line end, moves to the next line at x = 0.
    virtual void Print(const std::string& texto, bool finDeLinea) = 0;
    virtual void Line(double x1, double y1, double x2, double y2, unsigned color) = 0;
    virtual void PaintPicture(const std::string& imagen, double x, double y, double ancho,
                              double alto) = 0;
    virtual void SetFont(const Fuente& fuente) = 0;
    virtual void NewPage() = 0;
    /// Width of the lines drawn from now on, in pixels of the device: 1 is the thinnest.
    virtual void SetDrawWidth(int /*ancho*/) {}

    /// The font that Print and TextWidth use now.
    virtual Fuente Font() const { return {}; }
    /// Sets the size of the pages drawn from now on (the printer's Width and Height).
    virtual void SetPageSize(double /*ancho*/, double /*alto*/) {}
    /// The size of the page, as the printer object's ScaleWidth and ScaleHeight.
    virtual double ScaleWidth() const { return 0; }
    virtual double ScaleHeight() const { return 0; }
    /// The natural size of a picture in its own pixels (96 to the inch); 0 × 0 when the
    /// surface has no such picture.
    virtual Tamano PictureSize(const std::string& /*imagen*/) const { return {}; }
    /// Pixels of a picture to millimetres of this surface.
    virtual double ScaleX(double pixeles) const { return pixeles * 25.4 / 96; }
    virtual double ScaleY(double pixeles) const { return pixeles * 25.4 / 96; }
    /// Paints the part of a picture that starts (xOrigen, yOrigen) millimetres from its
    /// top-left corner, at its natural scale, into the rectangle (x, y, ancho, alto).
    virtual void PaintPictureFrom(const std::string& /*imagen*/, double /*x*/, double /*y*/,
                                  double /*ancho*/, double /*alto*/, double /*xOrigen*/,
                                  double /*yOrigen*/) {}
    /// The end of one copy of a document: what follows starts on a new page.
    virtual void EndDoc() {}
};

}  // namespace kelvora
