#include "support/dobles.h"

#include "core/runtime/texto.h"

namespace kelvora::prueba {

Respuesta PrompterGuion::MsgBox(const Mensaje& mensaje) {
    mensajes.push_back(mensaje);
    if (respuestas.empty()) {
        return RespuestaQueSigue(mensaje.botones);
    }
    const Respuesta r = respuestas.front();
    respuestas.pop_front();
    return r;
}

std::optional<std::string> PrompterGuion::InputBox(const Entrada& entrada) {
    preguntas.push_back(entrada);
    if (entradas.empty()) {
        return std::nullopt;
    }
    auto r = entradas.front();
    entradas.pop_front();
    return r;
}

std::string SettingsMemoria::GetSetting(const std::string& aplicacion, const std::string& seccion,
                                        const std::string& clave,
                                        const std::string& predeterminado) {
    ++lecturas;
    const auto it = valores.find({aplicacion, seccion, clave});
    return it == valores.end() ? predeterminado : it->second;
}

void SettingsMemoria::SaveSetting(const std::string& aplicacion, const std::string& seccion,
                                  const std::string& clave, const std::string& valor) {
    valores[{aplicacion, seccion, clave}] = valor;
    escrituras.emplace_back(aplicacion, seccion, clave);
}

bool BombaContada::DoEvents() {
    ++llamadas;
    return cerrarTras < 0 || llamadas < cerrarTras;
}

double SurfaceGrabadora::TextWidth(const std::string& texto) const {
    return 2.0 * Len(texto);
}

double SurfaceGrabadora::TextHeight(const std::string&) const {
    return 4.0;
}

void SurfaceGrabadora::Print(const std::string& texto, bool finDeLinea) {
    llamadas.push_back({"Print", mX, mY, 0, 0, texto, fuente.negrita});
    if (finDeLinea) {
        mX = 0;
        mY += TextHeight(texto);
    } else {
        mX += TextWidth(texto);
    }
}

void SurfaceGrabadora::Line(double x1, double y1, double x2, double y2, unsigned) {
    llamadas.push_back({"Line", x1, y1, x2, y2, {}});
}

void SurfaceGrabadora::PaintPicture(const std::string& imagen, double x, double y, double ancho,
                                    double alto) {
    llamadas.push_back({"PaintPicture", x, y, x + ancho, y + alto, imagen});
}

void SurfaceGrabadora::SetFont(const Fuente& f) {
    fuente = f;
    llamadas.push_back({"SetFont", 0, 0, 0, 0, f.nombre});
}

void SurfaceGrabadora::SetPageSize(double ancho, double alto) {
    pagina = {ancho, alto};
    llamadas.push_back({"SetPageSize", 0, 0, ancho, alto, {}});
}

Tamano SurfaceGrabadora::PictureSize(const std::string& imagen) const {
    const auto it = imagenes.find(imagen);
    return it == imagenes.end() ? Tamano{} : it->second;
}

void SurfaceGrabadora::PaintPictureFrom(const std::string& imagen, double x, double y, double ancho,
                                        double alto, double xOrigen, double) {
    llamadas.push_back({"PaintPictureFrom", x, y, x + ancho, y + alto, imagen, false, xOrigen});
}

void SurfaceGrabadora::EndDoc() {
    llamadas.push_back({"EndDoc", 0, 0, 0, 0, {}});
}

std::vector<SurfaceGrabadora::Llamada> SurfaceGrabadora::Impresos() const {
    std::vector<Llamada> impresos;
    for (const Llamada& llamada : llamadas) {
        if (llamada.que == "Print") {
            impresos.push_back(llamada);
        }
    }
    return impresos;
}

void SurfaceGrabadora::NewPage() {
    llamadas.push_back({"NewPage", 0, 0, 0, 0, {}});
    mX = 0;
    mY = 0;
}

LocaleTemporal::LocaleTemporal(const LocaleChars& locale) : mAnterior(LocaleActual()) {
    EstablecerLocale(locale);
}

LocaleTemporal::~LocaleTemporal() {
    EstablecerLocale(mAnterior);
}

}  // namespace kelvora::prueba
