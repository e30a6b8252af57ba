#pragma once

#include "core/reports/paginaimpresion.h"

#include <QDialog>

#include <memory>
#include <string>
#include <vector>

class QScrollBar;
class QToolBar;

namespace kelvora {

class QtSurfacePaginas;

/// The preview: the laid-out pages one under the other in `picContenedor`, moved by the scroll
/// bars `hsb` and `vsb`, with the toolbar `tbr` ("Imprimir", "Cerrar", and a "Zoom" menu whose
/// entries do nothing). Each page gets its number when the pages are first placed.
class frmVistaPreliminar : public QDialog {
    Q_OBJECT

public:
    frmVistaPreliminar(std::unique_ptr<QtSurfacePaginas> paginas, const EntornoImpresion& entorno,
                       const std::string& caption, QWidget* padre = nullptr);
    ~frmVistaPreliminar() override;

    int Paginas() const;
    /// The print button takes the frame's tool tip.
    void CopiarImprimir(const QString& toolTip);
    /// The wheel: a positive amount moves the bar up a SmallChange, a negative one down; the
    /// horizontal bar with `horizontal`. An invisible bar does nothing.
    void MouseWheel(int cantidad, bool horizontal);

signals:
    /// "Imprimir" was pressed; the preview has closed.
    void Imprimir();

protected:
    void keyPressEvent(QKeyEvent* evento) override;
    void resizeEvent(QResizeEvent* evento) override;
    void wheelEvent(QWheelEvent* evento) override;

private:
    void CrearBarra();
    void CrearHojas();
    void ColocarHojas();
    void Mover();

    std::unique_ptr<QtSurfacePaginas> mPaginas;
    EntornoImpresion mEntorno;
    QToolBar* mTbr = nullptr;
    QWidget* mPicContainer = nullptr;
    QWidget* mPicContenedor = nullptr;
    std::vector<QWidget*> mPicHoja;
    QScrollBar* mHsb = nullptr;
    QScrollBar* mVsb = nullptr;
    bool mNumeradas = false;
};

}  // namespace kelvora
