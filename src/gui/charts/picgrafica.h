#pragma once

#include <QImage>
#include <QWidget>

namespace kelvora {

/// The picture control `picGrafica` of the chart window: the last drawing on white, or a
/// sentence centred on it when there is nothing to draw. It measures in millimetres of the
/// screen, the unit of the drawing surface, and tells where the pointer moves.
class PicGrafica : public QWidget {
    Q_OBJECT

public:
    explicit PicGrafica(QWidget* padre = nullptr);

    /// Pixels per millimetre of the screen.
    double PixelesPorMm() const;
    double AnchoMm() const;
    double AltoMm() const;

    void PonerImagen(const QImage& imagen);
    /// The drawing shown when there is no sentence.
    const QImage& Imagen() const { return mImagen; }
    /// A sentence instead of a drawing; empty to show the drawing again.
    void PonerMensaje(const QString& mensaje);
    const QString& Mensaje() const { return mMensaje; }

signals:
    /// The pointer at (x, y) millimetres from the top-left corner.
    void Movido(double xMm, double yMm);
    void Redimensionado();

protected:
    void paintEvent(QPaintEvent* evento) override;
    void mouseMoveEvent(QMouseEvent* evento) override;
    void resizeEvent(QResizeEvent* evento) override;

private:
    QImage mImagen;
    QString mMensaje;
};

}  // namespace kelvora
