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
};

}  // namespace kelvora
