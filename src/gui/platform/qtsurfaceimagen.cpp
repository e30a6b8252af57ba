#include "gui/platform/qtsurfaceimagen.h"

#include "core/app/colores.h"
#include "gui/platform/aplicaciongui.h"

#include <QFont>
#include <QFontMetricsF>
#include <QImage>
#include <QPageLayout>
#include <QPageSize>
#include <QPainter>
#include <QPdfWriter>
#include <QPen>
#include <QSaveFile>
#include <QSvgGenerator>

#include <algorithm>
#include <cmath>

namespace kelvora {

namespace {

constexpr double kMmPorPulgada = 25.4;
constexpr double kMmPorPunto = kMmPorPulgada / 72.0;

QString Texto(const std::string& texto) {
    return QString::fromStdString(texto);
}

QColor ColorDe(unsigned color) {
    return {Rojo(color), Verde(color), Azul(color)};
}

QFont FuenteQt(const Fuente& fuente, double pixelesPorMm) {
    QFont qfuente(Texto(fuente.nombre));
    qfuente.setStyleHint(QFont::TypeWriter);
    qfuente.setPixelSize(
            std::max(1, static_cast<int>(std::lround(fuente.tamano * kMmPorPunto * pixelesPorMm))));
    qfuente.setBold(fuente.negrita);
    qfuente.setItalic(fuente.cursiva);
    return qfuente;
}

}  // namespace

QtSurfaceImagen::QtSurfaceImagen(double anchoMm, double altoMm, double pixelesPorMm)
    : mAnchoMm(anchoMm), mAltoMm(altoMm), mPixelesPorMm(pixelesPorMm) {
    AsegurarAplicacionGui();
}

double QtSurfaceImagen::TextWidth(const std::string& texto) const {
    return QFontMetricsF(FuenteQt(mFuente, mPixelesPorMm)).horizontalAdvance(Texto(texto)) /
           mPixelesPorMm;
}

double QtSurfaceImagen::TextHeight(const std::string&) const {
    return QFontMetricsF(FuenteQt(mFuente, mPixelesPorMm)).height() / mPixelesPorMm;
}

void QtSurfaceImagen::Print(const std::string& texto, bool finDeLinea) {
    const QFont fuente = FuenteQt(mFuente, mPixelesPorMm);
    const QPointF base(Pixeles(mX), Pixeles(mY) + QFontMetricsF(fuente).ascent());
    const QString qtexto = Texto(texto);
    Agregar([fuente, base, qtexto](QPainter& pintor) {
        pintor.setFont(fuente);
        pintor.setPen(Qt::black);
        pintor.drawText(base, qtexto);
    });
    if (finDeLinea) {
        mX = 0;
        mY += TextHeight(texto);
    } else {
        mX += TextWidth(texto);
    }
}

void QtSurfaceImagen::Line(double x1, double y1, double x2, double y2, unsigned color) {
    QPen pluma(ColorDe(color));
    pluma.setWidth(mAnchoLinea);
    pluma.setCapStyle(Qt::RoundCap);
    const QLineF linea(Pixeles(x1), Pixeles(y1), Pixeles(x2), Pixeles(y2));
    Agregar([pluma, linea](QPainter& pintor) {
        pintor.setPen(pluma);
        pintor.drawLine(linea);
    });
}

void QtSurfaceImagen::PaintPicture(const std::string& imagen, double x, double y, double ancho,
                                   double alto) {
    const QImage dibujo(Texto(imagen));
    const QRectF destino(Pixeles(x), Pixeles(y), Pixeles(ancho), Pixeles(alto));
    Agregar([dibujo, destino](QPainter& pintor) { pintor.drawImage(destino, dibujo); });
}

void QtSurfaceImagen::SetFont(const Fuente& fuente) {
    mFuente = fuente;
}

void QtSurfaceImagen::NewPage() {
    mPaginas.emplace_back();
    mX = 0;
    mY = 0;
}

void QtSurfaceImagen::Reproducir(QPainter& pintor, const std::vector<Trazo>& pagina) const {
    pintor.setRenderHint(QPainter::Antialiasing);
    pintor.setRenderHint(QPainter::TextAntialiasing);
    pintor.fillRect(QRectF(0, 0, Pixeles(mAnchoMm), Pixeles(mAltoMm)), Qt::white);
    for (const Trazo& trazo : pagina) {
        trazo(pintor);
    }
}

QImage QtSurfaceImagen::Imagen() const {
    QImage imagen(static_cast<int>(std::lround(Pixeles(mAnchoMm))),
                  static_cast<int>(std::lround(Pixeles(mAltoMm))), QImage::Format_ARGB32);
    {
        QPainter pintor(&imagen);
        Reproducir(pintor, mPaginas.front());
    }
    return imagen;
}

bool QtSurfaceImagen::GuardarPng(const std::string& archivo) const {
    const QImage imagen = Imagen();
    QSaveFile salida(Texto(archivo));
    return salida.open(QIODevice::WriteOnly) && imagen.save(&salida, "PNG") && salida.commit();
}

bool QtSurfaceImagen::GuardarSvg(const std::string& archivo) const {
    QSaveFile salida(Texto(archivo));
    if (!salida.open(QIODevice::WriteOnly)) {
        return false;
    }
    QSvgGenerator generador;
    generador.setOutputDevice(&salida);
    const QSize tamano(static_cast<int>(std::lround(Pixeles(mAnchoMm))),
                       static_cast<int>(std::lround(Pixeles(mAltoMm))));
    generador.setSize(tamano);
    generador.setViewBox(QRect(QPoint(0, 0), tamano));
    generador.setResolution(static_cast<int>(std::lround(mPixelesPorMm * kMmPorPulgada)));
    generador.setTitle("Kelvora");
    {
        QPainter pintor;
        if (!pintor.begin(&generador)) {
            return false;
        }
        Reproducir(pintor, mPaginas.front());
    }
    return salida.commit();
}

bool QtSurfaceImagen::GuardarPdf(const std::string& archivo) const {
    QSaveFile salida(Texto(archivo));
    if (!salida.open(QIODevice::WriteOnly)) {
        return false;
    }
    QPdfWriter pdf(&salida);
    pdf.setCreator("Kelvora");
    pdf.setResolution(static_cast<int>(std::lround(mPixelesPorMm * kMmPorPulgada)));
    // Page sizes are given upright; a wide page is an upright one turned.
    const bool apaisada = mAnchoMm > mAltoMm;
    const QSizeF derecha = apaisada ? QSizeF(mAltoMm, mAnchoMm) : QSizeF(mAnchoMm, mAltoMm);
    pdf.setPageLayout(QPageLayout(QPageSize(derecha, QPageSize::Millimeter),
                                  apaisada ? QPageLayout::Landscape : QPageLayout::Portrait,
                                  QMarginsF()));
    {
        QPainter pintor;
        if (!pintor.begin(&pdf)) {
            return false;
        }
        for (size_t pagina = 0; pagina < mPaginas.size(); ++pagina) {
            if (pagina > 0) {
                pdf.newPage();
            }
            Reproducir(pintor, mPaginas[pagina]);
        }
    }
    return salida.commit();
}

}  // namespace kelvora
