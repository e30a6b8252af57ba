// The drawing library that kelvora-cli loads only when it draws a file: Qt's painting and font
// metrics behind the core's drawing interface, so the command line itself links no Qt.
#include "core/platform/archivodibujo.h"
#include "gui/platform/qtsurfaceimagen.h"

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
                break;
        }
        return mImagen.GuardarPdf(mPedido.archivo);
    }

private:
    PedidoDibujo mPedido;
    QtSurfaceImagen mImagen;
};

}  // namespace

}  // namespace kelvora

extern "C" __attribute__((visibility("default"))) kelvora::ArchivoDibujo* kelvora_archivo_dibujo(
        const kelvora::PedidoDibujo& pedido) {
    return new kelvora::ArchivoDibujoQt(pedido);
}
