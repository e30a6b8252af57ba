#pragma once

#include <QObject>
#include <QString>

#include <memory>
#include <optional>
#include <string>

class QPrinter;
class QWidget;

namespace kelvora {

class DialogosArchivo;
class Prompter;
class SettingsStore;
class QtSurfacePaginas;
class mdiKelvora;
struct ContextoAplicacion;
struct DocumentoVentana;

/// The frame's print, preview and PDF commands for the active window, and its page setup. It
/// lives as long as the frame.
class ImpresionVentanas : public QObject {
    Q_OBJECT

public:
    /// With the program's Save dialog.
    ImpresionVentanas(mdiKelvora& principal, ContextoAplicacion& contexto, SettingsStore& ajustes,
                      Prompter& prompter);
    ImpresionVentanas(mdiKelvora& principal, ContextoAplicacion& contexto, SettingsStore& ajustes,
                      Prompter& prompter, std::unique_ptr<DialogosArchivo> dialogos);
    ~ImpresionVentanas() override;

    /// VistaPreliminarVentana: the window's document on the pages of the preview, shown modally.
    void VistaPreliminar(QWidget* ventana);
    /// ImprimirVentana: through the print dialog, or straight to the current printer when
    /// `directa`; with no printer installed, into a PDF file that the user names.
    void Imprimir(QWidget* ventana, bool directa);
    /// The window's document as a PDF file that the user names, one copy of the print layout.
    void ExportarPdf(QWidget* ventana);
    void ConfigurarPagina();

    /// The printer that printing uses: the default printer, or, on a machine without printers,
    /// the PDF file printer, which always exists.
    static std::string NombreImpresora();

private:
    std::optional<DocumentoVentana> Documento(QWidget* ventana);
    bool ImprimirEnPdf(const DocumentoVentana& documento, int copias);
    void ImprimirEnImpresora(const DocumentoVentana& documento, QPrinter& impresora);
    void PonerPanel(const QString& texto);
    void Avisar(const std::string& texto, bool critico);

    mdiKelvora& mPrincipal;
    ContextoAplicacion& mContexto;
    SettingsStore& mAjustes;
    Prompter& mPrompter;
    std::unique_ptr<DialogosArchivo> mDialogos;
    /// The printer and copies of the last print dialog, which the toolbar's button prints to.
    QString mImpresoraActual;
    int mCopias = 1;
};

/// The pages of a window's document laid out as printed (one count run, then `copias`).
void DiagramarImpresion(QtSurfacePaginas& paginas, const DocumentoVentana& documento,
                        const ContextoAplicacion& contexto, int copias);

}  // namespace kelvora
