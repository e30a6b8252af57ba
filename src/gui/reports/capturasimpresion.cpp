#include "gui/reports/capturasimpresion.h"

#include "core/app/contexto.h"
#include "core/reports/imprimirdocumento.h"
#include "gui/app/mdikelvora.h"
#include "gui/platform/escribirpdf.h"
#include "gui/platform/qtsurfacepaginas.h"
#include "gui/reports/documentoventana.h"
#include "gui/reports/frmconfigurarpagina.h"
#include "gui/reports/frmvistapreliminar.h"
#include "gui/reports/impresionventanas.h"

#include <QDir>

#include <cstdio>

namespace kelvora {

PrepararCaptura ImpresoEjemplo(const char* nombre, PrepararCaptura preparar) {
    return [nombre, preparar](QWidget& marco) -> QWidget* {
        QWidget* ventana = preparar(marco);
        QWidget* activa = static_cast<mdiKelvora&>(marco).VentanaActiva();
        const std::optional<DocumentoVentana> documento =
                activa != nullptr ? DocumentoDeVentana(*activa) : std::nullopt;
        if (documento) {
            QtSurfacePaginas paginas;
            DiagramarImpresion(paginas, *documento, ContextoAplicacion{}, 1);
            const QString archivo =
                    QDir::current().filePath(QStringLiteral("docs/capturas/%1.pdf").arg(nombre));
            EscribirPdf(paginas, archivo.toStdString(),
                        TituloInforme(documento->documento.grilla.Caption));
        } else {
            std::fprintf(stderr, "%s: la ventana no tiene nada que imprimir\n", nombre);
        }
        return ventana;
    };
}

PrepararCaptura VistaPreliminarEjemplo(PrepararCaptura preparar) {
    return [preparar](QWidget& marco) -> QWidget* {
        preparar(marco);
        QWidget* activa = static_cast<mdiKelvora&>(marco).VentanaActiva();
        const std::optional<DocumentoVentana> documento =
                activa != nullptr ? DocumentoDeVentana(*activa) : std::nullopt;
        if (!documento) {
            return &marco;
        }
        auto paginas = std::make_unique<QtSurfacePaginas>();
        VistaPreliminar(*paginas, documento->documento, ConfiguracionPagina{});
        auto* vista = new frmVistaPreliminar(std::move(paginas),
                                             EntornoImpresion::Para({}, QtSurfacePaginas(false)),
                                             documento->documento.grilla.Caption, &marco);
        vista->setAttribute(Qt::WA_DeleteOnClose);
        vista->show();
        return vista;
    };
}

std::unique_ptr<QWidget> ConfigurarPaginaCaptura(ContextoAplicacion& contexto,
                                                 SettingsStore& ajustes) {
    return std::make_unique<frmConfigurarPagina>(contexto, ajustes);
}

}  // namespace kelvora
