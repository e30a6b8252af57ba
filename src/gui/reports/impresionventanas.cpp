#include "gui/reports/impresionventanas.h"

#include "core/app/contexto.h"
#include "core/app/estadocomandos.h"
#include "core/datafile/dialogosarchivo.h"
#include "core/platform/prompter.h"
#include "core/reports/imprimirdocumento.h"
#include "core/runtime/runtimeerror.h"
#include "gui/app/mdikelvora.h"
#include "gui/datafile/qtdialogosarchivo.h"
#include "gui/platform/escribirpdf.h"
#include "gui/platform/qtsurfacepaginas.h"
#include "gui/platform/texto.h"
#include "gui/reports/documentoventana.h"
#include "gui/reports/frmconfigurarpagina.h"
#include "gui/reports/frmvistapreliminar.h"

#include <QApplication>
#include <QLabel>
#include <QPageLayout>
#include <QPainter>
#include <QPrintDialog>
#include <QPrinter>
#include <QPrinterInfo>

namespace kelvora {

namespace {

constexpr char kImpresoraPdf[] = "Archivo PDF";
constexpr char kFiltroPdf[] = "Documento PDF (*.pdf)|*.pdf";

// The pointer shows the hourglass for the life of the object.
class RelojDeArena {
public:
    RelojDeArena() { QApplication::setOverrideCursor(Qt::WaitCursor); }
    ~RelojDeArena() { QApplication::restoreOverrideCursor(); }
    RelojDeArena(const RelojDeArena&) = delete;
    RelojDeArena& operator=(const RelojDeArena&) = delete;
};

void AgregarGrafica(QtSurfacePaginas& paginas, const DocumentoVentana& documento) {
    if (documento.documento.grafica) {
        paginas.AgregarImagen(documento.documento.grafica->imagen, documento.grafica,
                              documento.anchoGraficaMm);
    }
}

std::string Descripcion(const std::exception& error) {
    const auto* runtime = dynamic_cast<const RuntimeError*>(&error);
    return runtime != nullptr ? runtime->description : error.what();
}

}  // namespace

void DiagramarImpresion(QtSurfacePaginas& paginas, const DocumentoVentana& documento,
                        const ContextoAplicacion& contexto, int copias) {
    QtSurfacePaginas cuenta(false);
    AgregarGrafica(paginas, documento);
    AgregarGrafica(cuenta, documento);
    ImprimirDocumento(paginas, cuenta, documento.documento, contexto.Pagina, copias);
}

ImpresionVentanas::ImpresionVentanas(mdiKelvora& principal, ContextoAplicacion& contexto,
                                     SettingsStore& ajustes, Prompter& prompter)
    : ImpresionVentanas(principal, contexto, ajustes, prompter,
                        std::make_unique<QtDialogosArchivo>(&principal)) {
}

ImpresionVentanas::ImpresionVentanas(mdiKelvora& principal, ContextoAplicacion& contexto,
                                     SettingsStore& ajustes, Prompter& prompter,
                                     std::unique_ptr<DialogosArchivo> dialogos)
    : QObject(&principal),
      mPrincipal(principal),
      mContexto(contexto),
      mAjustes(ajustes),
      mPrompter(prompter),
      mDialogos(std::move(dialogos)) {
}

ImpresionVentanas::~ImpresionVentanas() = default;

// A machine with no printer still prints and previews: into a PDF file, a printer that always
// exists. The print and preview commands are enabled by it where the frame asks for a printer.
std::string ImpresionVentanas::NombreImpresora() {
    const QString predeterminada = QPrinterInfo::defaultPrinterName();
    if (!predeterminada.isEmpty()) {
        return S(predeterminada);
    }
    return QPrinterInfo::availablePrinters().isEmpty()
                   ? kImpresoraPdf
                   : S(QPrinterInfo::availablePrinters().front().printerName());
}

std::optional<DocumentoVentana> ImpresionVentanas::Documento(QWidget* ventana) {
    if (ventana == nullptr) {
        return std::nullopt;
    }
    return DocumentoDeVentana(*ventana);
}

void ImpresionVentanas::VistaPreliminar(QWidget* ventana) {
    try {
        const std::optional<DocumentoVentana> documento = Documento(ventana);
        if (!documento) {
            return;
        }
        auto paginas = std::make_unique<QtSurfacePaginas>();
        {
            RelojDeArena reloj;
            AgregarGrafica(*paginas, *documento);
            kelvora::VistaPreliminar(*paginas, documento->documento, mContexto.Pagina);
        }
        frmVistaPreliminar vista(std::move(paginas),
                                 EntornoImpresion::Para(mContexto.Pagina, QtSurfacePaginas(false)),
                                 documento->documento.grilla.Caption, &mPrincipal);
        vista.CopiarImprimir(Q(TooltipImprimir(NombreImpresora())));
        connect(
                &vista, &frmVistaPreliminar::Imprimir, this,
                [this, ventana] { Imprimir(ventana, false); }, Qt::QueuedConnection);
        vista.exec();
    } catch (const std::exception& error) {
        Avisar(MensajeErrorVista(Descripcion(error)), true);
    }
}

void ImpresionVentanas::Imprimir(QWidget* ventana, bool directa) {
    try {
        const std::optional<DocumentoVentana> documento = Documento(ventana);
        if (!documento) {
            return;
        }
        if (QPrinterInfo::availablePrinters().isEmpty()) {
            ImprimirEnPdf(*documento, 1);
            return;
        }
        QPrinter impresora(QPrinter::HighResolution);
        impresora.setPageOrientation(mContexto.Pagina.Orientacion == 2 ? QPageLayout::Landscape
                                                                       : QPageLayout::Portrait);
        if (!mImpresoraActual.isEmpty()) {
            impresora.setPrinterName(mImpresoraActual);
            impresora.setCopyCount(mCopias);
        }
        if (!directa) {
            QPrintDialog dialogo(&impresora, &mPrincipal);
            dialogo.setOptions(QAbstractPrintDialog::PrintShowPageSize);
            if (dialogo.exec() != QDialog::Accepted) {
                return;
            }
            mImpresoraActual = impresora.printerName();
            mCopias = impresora.copyCount();
        }
        ImprimirEnImpresora(*documento, impresora);
    } catch (const std::exception& error) {
        Avisar(MensajeErrorImpresion(Descripcion(error)), false);
    }
    PonerPanel({});
}

void ImpresionVentanas::ImprimirEnImpresora(const DocumentoVentana& documento,
                                            QPrinter& impresora) {
    RelojDeArena reloj;
    PonerPanel(QStringLiteral("Imprimiendo...."));
    const int copias = impresora.copyCount();
    impresora.setCopyCount(1);
    QtSurfacePaginas paginas;
    DiagramarImpresion(paginas, documento, mContexto, copias);
    impresora.setFullPage(true);
    impresora.setPageSize(PapelDe(paginas.TamanoDe(0)));
    impresora.setDocName(Q(TituloInforme(documento.documento.grilla.Caption)));
    QPainter pintor;
    if (!pintor.begin(&impresora)) {
        throw RuntimeError(482, "La impresora no respondió.");
    }
    const double puntosPorMm = impresora.resolution() / 25.4;
    for (int i = 0; i < paginas.Paginas(); ++i) {
        if (i > 0) {
            impresora.newPage();
        }
        pintor.save();
        pintor.scale(puntosPorMm, puntosPorMm);
        paginas.Pintar(pintor, i);
        pintor.restore();
    }
}

bool ImpresionVentanas::ImprimirEnPdf(const DocumentoVentana& documento, int copias) {
    const std::string titulo = TituloInforme(documento.documento.grilla.Caption);
    const std::optional<std::string> archivo =
            mDialogos->Guardar({kFiltroPdf, "pdf", mContexto.RutaDatos});
    if (!archivo) {
        return false;
    }
    RelojDeArena reloj;
    QtSurfacePaginas paginas;
    DiagramarImpresion(paginas, documento, mContexto, copias);
    EscribirPdf(paginas, *archivo, titulo);
    return true;
}

void ImpresionVentanas::ExportarPdf(QWidget* ventana) {
    try {
        if (const std::optional<DocumentoVentana> documento = Documento(ventana)) {
            ImprimirEnPdf(*documento, 1);
        }
    } catch (const std::exception& error) {
        Avisar("No se pudo exportar el documento a PDF debido al siguiente error: " +
                       Descripcion(error),
               false);
    }
}

void ImpresionVentanas::ConfigurarPagina() {
    frmConfigurarPagina dialogo(mContexto, mAjustes, &mPrincipal);
    dialogo.exec();
}

void ImpresionVentanas::PonerPanel(const QString& texto) {
    if (auto* panel = mPrincipal.findChild<QLabel*>(QStringLiteral("stbStatusBar_2"))) {
        panel->setText(texto);
    }
}

void ImpresionVentanas::Avisar(const std::string& texto, bool critico) {
    Mensaje mensaje;
    mensaje.texto = texto;
    mensaje.icono = critico ? Icono::Critico : Icono::Exclamacion;
    mensaje.titulo = kTituloAplicacion;
    mPrompter.MsgBox(mensaje);
}

}  // namespace kelvora
