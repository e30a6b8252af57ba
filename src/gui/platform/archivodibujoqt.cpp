// The drawing library that kelvora-cli loads only when it draws a file: Qt's painting and font
// metrics behind the core's drawing interface, so the command line itself links no Qt.
#include "core/platform/archivodibujo.h"
#include "gui/platform/escribirpdf.h"
#include "gui/platform/qtsurfaceimagen.h"
#include "gui/platform/qtsurfacepaginas.h"

#include <exception>
#include <iostream>

namespace kelvora {

namespace {

class ArchivoDibujoQt final : public ArchivoDibujo {
public:
    explicit ArchivoDibujoQt(PedidoDibujo pedido)
        : mPedido(std::move(pedido)),
          mImagen(mPedido.anchoMm, mPedido.altoMm, mPedido.pixelesPorMm) {}

    Surface& Superficie() override { return mImagen; }

    bool Guardar() override {
        switch (mPedido.formato) {
            case FormatoDibujo::Png:
                return mImagen.GuardarPng(mPedido.archivo);
            case FormatoDibujo::Svg:
                return mImagen.GuardarSvg(mPedido.archivo);
            case FormatoDibujo::Pdf:
            case FormatoDibujo::Informe:
                break;
        }
        return mImagen.GuardarPdf(mPedido.archivo);
    }

private:
    PedidoDibujo mPedido;
    QtSurfaceImagen mImagen;
};

// A report's pages with the print's own surface, so a PDF from here equals the program's.
class InformeQt final : public ArchivoDibujo {
public:
    explicit InformeQt(PedidoDibujo pedido) : mPedido(std::move(pedido)) {}

    Surface& Superficie() override { return mPaginas; }

    bool Guardar() override {
        try {
            EscribirPdf(mPaginas, mPedido.archivo, mTitulo);
            return true;
        } catch (const std::exception& error) {
            std::cerr << error.what() << '\n';
            return false;
        }
    }

    void PonerTitulo(const std::string& titulo) override { mTitulo = titulo; }

    // The chart page's picture at 150 dots to the inch, as the program prints it.
    void AgregarDibujo(const std::string& nombre, double anchoMm, double altoMm,
                       const std::function<void(Surface&)>& dibujar) override {
        QtSurfaceImagen dibujo(anchoMm, altoMm, 150 / 25.4);
        dibujar(dibujo);
        mPaginas.AgregarImagen(nombre, dibujo.Imagen(), anchoMm);
    }

private:
    PedidoDibujo mPedido;
    std::string mTitulo;
    QtSurfacePaginas mPaginas;
};

}  // namespace

}  // namespace kelvora

extern "C" __attribute__((visibility("default"))) kelvora::ArchivoDibujo* kelvora_archivo_dibujo(
        const kelvora::PedidoDibujo& pedido) {
    if (pedido.formato == kelvora::FormatoDibujo::Informe) {
        return new kelvora::InformeQt(pedido);
    }
    return new kelvora::ArchivoDibujoQt(pedido);
}
