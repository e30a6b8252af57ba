#include "gui/platform/escribirpdf.h"

#include "core/runtime/runtimeerror.h"
#include "gui/platform/qtsurfacepaginas.h"

#include <QPageLayout>
#include <QPageSize>
#include <QPainter>
#include <QPdfWriter>
#include <QSaveFile>

#include <algorithm>

namespace kelvora {

namespace {

constexpr int kErrorDeRuta = 75;

QPageLayout DisposicionDe(const Tamano& tamano) {
    const auto orientacion =
            tamano.ancho > tamano.alto ? QPageLayout::Landscape : QPageLayout::Portrait;
    return {PapelDe(tamano), orientacion, QMarginsF(0, 0, 0, 0), QPageLayout::Millimeter};
}

RuntimeError ErrorArchivo(const std::string& archivo, const QString& causa) {
    return RuntimeError(kErrorDeRuta, "No se pudo escribir el archivo \"" + archivo +
                                              "\": " + causa.toStdString());
}

}  // namespace

QPageSize PapelDe(const Tamano& tamano) {
    const QSizeF vertical(std::min(tamano.ancho, tamano.alto), std::max(tamano.ancho, tamano.alto));
    return QPageSize(vertical, QPageSize::Millimeter, QString(), QPageSize::FuzzyMatch);
}

void EscribirPdf(const QtSurfacePaginas& paginas, const std::string& archivo,
                 const std::string& titulo) {
    QSaveFile salida(QString::fromStdString(archivo));
    if (!salida.open(QIODevice::WriteOnly)) {
        throw ErrorArchivo(archivo, salida.errorString());
    }
    {
        QPdfWriter pdf(&salida);
        pdf.setTitle(QString::fromStdString(titulo));
        pdf.setCreator(QStringLiteral("Kelvora"));
        pdf.setPageLayout(DisposicionDe(paginas.TamanoDe(0)));
        QPainter pintor;
        if (!pintor.begin(&pdf)) {
            throw ErrorArchivo(archivo, salida.errorString());
        }
        const double puntosPorMm = pdf.resolution() / 25.4;
        for (int i = 0; i < paginas.Paginas(); ++i) {
            if (i > 0) {
                pdf.setPageLayout(DisposicionDe(paginas.TamanoDe(i)));
                pdf.newPage();
            }
            pintor.save();
            pintor.scale(puntosPorMm, puntosPorMm);
            paginas.Pintar(pintor, i);
            pintor.restore();
        }
    }
    if (!salida.commit()) {
        throw ErrorArchivo(archivo, salida.errorString());
    }
}

}  // namespace kelvora
