#pragma once

#include "core/platform/clock.h"
#include "core/platform/eventpump.h"
#include "core/platform/prompter.h"
#include "core/platform/settingsstore.h"
#include "core/platform/surface.h"
#include "core/runtime/localechars.h"

#include <deque>
#include <map>
#include <string>
#include <tuple>
#include <vector>

namespace kelvora::prueba {

/// Answers boxes from a script (the button that goes on once the script is used up) and
/// records every box and input box it was shown.
class PrompterGuion : public Prompter {
public:
    Respuesta MsgBox(const Mensaje& mensaje) override;
    std::optional<std::string> InputBox(const Entrada& entrada) override;

    std::deque<Respuesta> respuestas;
    std::deque<std::optional<std::string>> entradas;
    std::vector<Mensaje> mensajes;
    std::vector<Entrada> preguntas;
};

/// Settings in memory, with the order in which keys were written.
class SettingsMemoria : public SettingsStore {
public:
    std::string GetSetting(const std::string& aplicacion, const std::string& seccion,
                           const std::string& clave, const std::string& predeterminado) override;
    void SaveSetting(const std::string& aplicacion, const std::string& seccion,
                     const std::string& clave, const std::string& valor) override;

    using Ruta = std::tuple<std::string, std::string, std::string>;
    std::map<Ruta, std::string> valores;
    std::vector<Ruta> escrituras;
    int lecturas = 0;
};

/// Counts its calls; reports the window gone after `cerrarTras` calls when that is set.
class BombaContada : public EventPump {
public:
    bool DoEvents() override;

    int llamadas = 0;
    int cerrarTras = -1;
};

/// A fixed date.
class RelojFijo : public Clock {
public:
    explicit RelojFijo(Fecha fecha) : mFecha(fecha) {}
    Fecha Hoy() override { return mFecha; }

private:
    Fecha mFecha;
};

/// Records every drawing call; characters are 2 mm wide and lines 4 mm high, a picture's
/// pixel is 0.25 mm. Its page is 216 × 279 mm until SetPageSize changes it.
class SurfaceGrabadora : public Surface {
public:
    struct Llamada {
        std::string que;
        double x = 0;
        double y = 0;
        double x2 = 0;
        double y2 = 0;
        std::string texto;
        /// Print: the font was bold. PaintPictureFrom: the source's x offset.
        bool negrita = false;
        double origen = 0;
    };

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
    Fuente Font() const override { return fuente; }
    void SetPageSize(double ancho, double alto) override;
    double ScaleWidth() const override { return pagina.ancho; }
    double ScaleHeight() const override { return pagina.alto; }
    Tamano PictureSize(const std::string& imagen) const override;
    double ScaleX(double pixeles) const override { return pixeles / 4; }
    double ScaleY(double pixeles) const override { return pixeles / 4; }
    void PaintPictureFrom(const std::string& imagen, double x, double y, double ancho, double alto,
                          double xOrigen, double yOrigen) override;
    void EndDoc() override;

    /// The texts printed, in order, with nothing else.
    std::vector<Llamada> Impresos() const;

    std::vector<Llamada> llamadas;
    Fuente fuente;
    Tamano pagina{216, 279};
    /// Natural sizes of the pictures in pixels; the others have none.
    std::map<std::string, Tamano> imagenes;

private:
    double mX = 0;
    double mY = 0;
};

/// Sets the locale's separators for the life of the object.
class LocaleTemporal {
public:
    explicit LocaleTemporal(const LocaleChars& locale);
    ~LocaleTemporal();
    LocaleTemporal(const LocaleTemporal&) = delete;
    LocaleTemporal& operator=(const LocaleTemporal&) = delete;

private:
    LocaleChars mAnterior;
};

}  // namespace kelvora::prueba
