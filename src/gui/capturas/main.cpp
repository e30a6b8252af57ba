#include "gui/capturas/capturas.h"
#include "gui/platform/qtprompter.h"

#include <QApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QPixmap>

#include <cstdio>

namespace {

// Lets the window system show and lay out what was just opened.
void Esperar(int milisegundos) {
    QElapsedTimer reloj;
    reloj.start();
    while (reloj.elapsed() < milisegundos) {
        QApplication::processEvents(QEventLoop::AllEvents, 20);
    }
}

bool Capturar(const kelvora::Captura& captura, const QDir& carpeta) {
    kelvora::EntornoCaptura entorno;
    entorno.prompter = std::make_unique<kelvora::QtPrompter>();
    std::unique_ptr<QWidget> ventana = captura.crear(entorno);
    ventana->show();
    Esperar(300);
    QWidget* objetivo = captura.preparar ? captura.preparar(*ventana) : ventana.get();
    Esperar(300);
    const QString archivo = carpeta.filePath(QString::fromLatin1(captura.archivo) + ".png");
    const bool escrita = objetivo->grab().save(archivo);
    std::printf("%s %s\n", escrita ? "Escrita" : "No se pudo escribir", qPrintable(archivo));
    objetivo->close();
    return escrita;
}

}  // namespace

int main(int argc, char** argv) {
    QApplication aplicacion(argc, argv);
    if (argc != 2) {
        std::fprintf(stderr, "Uso: kelvora-capturas CARPETA\n");
        return 2;
    }
    const QDir carpeta(QString::fromLocal8Bit(argv[1]));
    if (!carpeta.exists() && !QDir().mkpath(carpeta.path())) {
        std::fprintf(stderr, "No se puede crear la carpeta %s\n", argv[1]);
        return 1;
    }
    bool todas = true;
    for (const kelvora::Captura& captura : kelvora::Capturas()) {
        todas = Capturar(captura, carpeta) && todas;
    }
    return todas ? 0 : 1;
}
