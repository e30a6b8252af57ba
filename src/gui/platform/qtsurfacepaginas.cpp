#include "gui/platform/qtsurfacepaginas.h"

#include "core/app/colores.h"
#include "gui/platform/aplicaciongui.h"
#include "gui/platform/fuentesimpresion.h"

#include <QFile>
#include <QPainter>
#include <QPen>
#include <QSvgRenderer>

#include <memory>

namespace kelvora {

namespace {

constexpr double kPixelesPorMm = 96 / 25.4;
// A line width of 1 is a tenth of a millimetre on paper.
constexpr double kMmPorAnchoLinea = 0.1;

QString Texto(const std::string& texto) {
    return QString::fromStdString(texto);
}

double U(double mm) {
    return mm * kUnidadesPorMm;
}

// The letterhead's pictures, drawn as vectors; one renderer a picture for the whole run.
QSvgRenderer* Membrete(const std::string& nombre) {
    static std::map<std::string, std::unique_ptr<QSvgRenderer>> dibujos;
    auto& dibujo = dibujos[nombre];
    if (!dibujo) {
        const QString ruta = QStringLiteral(":/impresion/%1.svg").arg(Texto(nombre));
        dibujo = std::make_unique<QSvgRenderer>(QFile::exists(ruta) ? ruta : QString());
    }
    return dibujo->isValid() ? dibujo.get() : nullptr;
}

}  // namespace

QtSurfacePaginas::QtSurfacePaginas(bool grabar)
    : mGrabar(grabar),
      mQFuente((AsegurarAplicacionGui(), FuenteImpresion(mFuente))),
      mMetricas(mQFuente) {
    mPaginas.push_back({mTamano, {}});
}

double QtSurfacePaginas::TextWidth(const std::string& texto) const {
    return mMetricas.horizontalAdvance(Texto(texto)) / kUnidadesPorMm;
}

double QtSurfacePaginas::TextHeight(const std::string&) const {
    return mMetricas.height() / kUnidadesPorMm;
}

void QtSurfacePaginas::Print(const std::string& texto, bool finDeLinea) {
    if (!texto.empty()) {
        const QPointF base(U(mX), U(mY) + mMetricas.ascent());
        Agregar([fuente = mQFuente, base, qtexto = Texto(texto)](QPainter& pintor) {
            pintor.setFont(fuente);
            pintor.setPen(Qt::black);
            pintor.drawText(base, qtexto);
        });
    }
    if (finDeLinea) {
        mX = 0;
        mY += TextHeight(texto);
    } else {
        mX += TextWidth(texto);
    }
}

void QtSurfacePaginas::Line(double x1, double y1, double x2, double y2, unsigned color) {
    QPen pluma(QColor(Rojo(color), Verde(color), Azul(color)));
    pluma.setWidthF(U(mAnchoLinea * kMmPorAnchoLinea));
    const QLineF linea(U(x1), U(y1), U(x2), U(y2));
    Agregar([pluma, linea](QPainter& pintor) {
        pintor.setPen(pluma);
        pintor.drawLine(linea);
    });
}

void QtSurfacePaginas::PaintPicture(const std::string& imagen, double x, double y, double ancho,
                                    double alto) {
    PaintPictureFrom(imagen, x, y, ancho, alto, 0, 0);
}

// The source starts (xOrigen, yOrigen) mm into the picture at its natural size: the picture is
// placed that far up and left, and clipped to the rectangle.
void QtSurfacePaginas::PaintPictureFrom(const std::string& imagen, double x, double y, double ancho,
                                        double alto, double xOrigen, double yOrigen) {
    const QRectF destino(U(x), U(y), U(ancho), U(alto));
    if (const QImage* agregada = ImagenAgregada(imagen)) {
        const double escala = agregada->width() / mImagenes.at(imagen).anchoMm;
        const QRectF origen(xOrigen * escala, yOrigen * escala, ancho * escala, alto * escala);
        Agregar([dibujo = *agregada, destino, origen](QPainter& pintor) {
            pintor.drawImage(destino, dibujo, origen);
        });
        return;
    }
    QSvgRenderer* dibujo = Membrete(imagen);
    if (dibujo == nullptr) {
        return;
    }
    const bool recorte = xOrigen != 0 || yOrigen != 0;
    const Tamano natural = PictureSize(imagen);
    const QRectF todo = recorte ? QRectF(U(x - xOrigen), U(y - yOrigen), U(ScaleX(natural.ancho)),
                                         U(ScaleY(natural.alto)))
                                : destino;
    Agregar([dibujo, destino, todo, recorte](QPainter& pintor) {
        pintor.save();
        if (recorte) {
            pintor.setClipRect(destino);
        }
        dibujo->render(&pintor, todo);
        pintor.restore();
    });
}

void QtSurfacePaginas::SetFont(const Fuente& fuente) {
    mQFuente = FuenteImpresion(fuente);
    mMetricas = QFontMetricsF(mQFuente);
    mFuente = fuente;
}

void QtSurfacePaginas::NewPage() {
    EmpezarPagina();
    mX = 0;
    mY = 0;
}

void QtSurfacePaginas::SetPageSize(double ancho, double alto) {
    mTamano = {ancho, alto};
    if (mPaginas[mActual].trazos.empty() && !mCopiaTerminada) {
        mPaginas[mActual].tamano = mTamano;
    }
}

Tamano QtSurfacePaginas::PictureSize(const std::string& imagen) const {
    if (const auto it = mImagenes.find(imagen); it != mImagenes.end()) {
        const QImage& dibujo = it->second.imagen;
        const double pixeles = it->second.anchoMm * kPixelesPorMm;
        return {pixeles, pixeles * dibujo.height() / std::max(1, dibujo.width())};
    }
    const QSvgRenderer* dibujo = Membrete(imagen);
    if (dibujo == nullptr) {
        return {};
    }
    return {static_cast<double>(dibujo->defaultSize().width()),
            static_cast<double>(dibujo->defaultSize().height())};
}

// The next copy begins on a page of its own, but no empty page is left after the last one.
void QtSurfacePaginas::EndDoc() {
    mCopiaTerminada = true;
    mX = 0;
    mY = 0;
}

void QtSurfacePaginas::AgregarImagen(const std::string& nombre, const QImage& imagen,
                                     double anchoMm) {
    mImagenes[nombre] = {imagen, anchoMm};
}

void QtSurfacePaginas::IrAPagina(int pagina) {
    mActual = static_cast<size_t>(pagina);
    mCopiaTerminada = false;
}

void QtSurfacePaginas::Pintar(QPainter& pintor, int pagina) const {
    pintor.save();
    pintor.scale(1 / kUnidadesPorMm, 1 / kUnidadesPorMm);
    for (const Trazo& trazo : mPaginas.at(static_cast<size_t>(pagina)).trazos) {
        trazo(pintor);
    }
    pintor.restore();
}

void QtSurfacePaginas::Agregar(Trazo trazo) {
    if (mCopiaTerminada) {
        mCopiaTerminada = false;
        EmpezarPagina();
    }
    if (mGrabar) {
        mPaginas[mActual].trazos.push_back(std::move(trazo));
    }
}

void QtSurfacePaginas::EmpezarPagina() {
    mPaginas.push_back({mTamano, {}});
    mActual = mPaginas.size() - 1;
}

const QImage* QtSurfacePaginas::ImagenAgregada(const std::string& nombre) const {
    const auto it = mImagenes.find(nombre);
    return it == mImagenes.end() ? nullptr : &it->second.imagen;
}

}  // namespace kelvora
