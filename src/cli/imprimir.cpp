#include "cli/imprimir.h"

#include "cli/calcular.h"
#include "cli/dibujo.h"
#include "cli/registro.h"
#include "core/app/contexto.h"
#include "core/charts/modelograficas.h"
#include "core/reports/imprimirdocumento.h"
#include "core/runtime/numeros.h"
#include "core/runtime/runtimeerror.h"
#include "core/thermal/modeloresultados.h"

#include <CLI/CLI.hpp>
#include <iostream>

namespace kelvora::cli {

namespace {

// The chart page's picture, as the program prints it.
constexpr double kAnchoGraficaMm = 180;
constexpr double kAltoGraficaMm = 115;
constexpr char kImagenGrafica[] = "picGrafica";

struct OpcionesImprimir {
    std::string archivo;
    std::string tipo;
    std::string grafica = "1";
    std::string pdf;
    bool registro = false;
    bool sinBD = false;
    std::vector<double> margenes;
    int justificar = 2;
    int orientacion = 1;
    int papel = 1;
};

ConfiguracionPagina Pagina(const OpcionesImprimir& o) {
    ConfiguracionPagina p;
    if (o.margenes.size() == 4) {
        p.MargenSuperior = static_cast<float>(o.margenes[0]);
        p.MargenInferior = static_cast<float>(o.margenes[1]);
        p.MargenDerecho = static_cast<float>(o.margenes[2]);
        p.MargenIzquierdo = static_cast<float>(o.margenes[3]);
    }
    p.Justificar = o.justificar;
    p.Orientacion = o.orientacion;
    p.TamanoPapel = o.papel;
    return p;
}

// The chart of the project's entry window with its table; false after a message.
bool CalcularGrafica(ModeloGraficas& grafica, ArchivoAbierto& a, const OpcionesImprimir& o) {
    grafica.setTipoGrafica(static_cast<int16_t>(o.grafica == "1" ? 1 : 2), a.ventana, 1);
    if (!grafica.CalcularSerie() || grafica.Serie().Vacia()) {
        std::cerr << o.archivo << ": el proyecto no tiene gráfica.\n";
        return false;
    }
    return true;
}

// The width left of the value axis, in the picture's own units on `superficie`.
double AnchoIzquierdo(const ModeloGraficas& grafica, const Surface& superficie) {
    const EscalaGrafica escala = EscalaGrafica::De(grafica.Ejes(), kAnchoGraficaMm, kAltoGraficaMm);
    return escala.XSuperficie(grafica.Ejes().Xlow) / superficie.ScaleX(1);
}

int Registrar(const DocumentoImpresion& documento, const ConfiguracionPagina& pagina) {
    SurfaceRegistro registro;
    SurfaceRegistro cuenta;
    const int paginas = ImprimirDocumento(registro, cuenta, documento, pagina, 1);
    std::cout << TextoJson(registro.ComoJson(paginas)) << '\n';
    return kSalidaBien;
}

int EscribirPdf(DocumentoImpresion documento, const ConfiguracionPagina& pagina,
                ModeloGraficas* grafica, const std::string& archivo) {
    const Tamano papel = TamanoPagina(pagina);
    PedidoDibujo pedido{FormatoDibujo::Informe, archivo, papel.ancho, papel.alto, 1};
    const std::unique_ptr<ArchivoDibujo> pdf = AbrirArchivoDibujo(pedido);
    pedido.archivo.clear();
    const std::unique_ptr<ArchivoDibujo> cuenta = AbrirArchivoDibujo(pedido);
    if (!pdf || !cuenta) {
        return kSalidaDetenido;
    }
    pdf->PonerTitulo(TituloInforme(documento.grilla.Caption));
    if (grafica != nullptr) {
        const auto dibujar = [grafica](Surface& s) {
            grafica->Graficar(s, kAnchoGraficaMm, kAltoGraficaMm);
        };
        for (ArchivoDibujo* destino : {pdf.get(), cuenta.get()}) {
            destino->AgregarDibujo(kImagenGrafica, kAnchoGraficaMm, kAltoGraficaMm, dibujar);
        }
        documento.grafica->anchoIzquierdo = AnchoIzquierdo(*grafica, pdf->Superficie());
    }
    ImprimirDocumento(pdf->Superficie(), cuenta->Superficie(), documento, pagina, 1);
    return pdf->Guardar() ? kSalidaBien : kSalidaDetenido;
}

int Imprimir(ArchivoAbierto& a, const OpcionesImprimir& o) {
    DocumentoImpresion documento;
    std::optional<ModeloGraficas> grafica;
    if (o.tipo == "resultados") {
        documento.grilla = a.resultados->MSFG();
        // The only results window of its kind: number 1.
        documento.grilla.Caption = std::string(a.resultados->Ventana().caption) + " [1]";
    } else {
        grafica.emplace(a.contexto.Unidades, a.prompter, a.bomba, a.tubos);
        if (!CalcularGrafica(*grafica, a, o)) {
            return kSalidaDetenido;
        }
        documento.grilla = grafica->MSFG();
        documento.grilla.Caption = grafica->Caption();
        documento.grafica = ImagenGrafica{kImagenGrafica, 0};
    }
    const ConfiguracionPagina pagina = Pagina(o);
    try {
        if (o.registro) {
            if (grafica) {
                documento.grafica->anchoIzquierdo = AnchoIzquierdo(*grafica, SurfaceRegistro());
            }
            return Registrar(documento, pagina);
        }
        return EscribirPdf(documento, pagina, grafica ? &*grafica : nullptr, o.pdf);
    } catch (const std::exception& error) {
        std::cerr << "No se pudo imprimir el documento debido al siguiente error: " << error.what()
                  << '\n';
        return kSalidaDetenido;
    }
}

}  // namespace

Ejecucion DeclararImprimir(CLI::App& comando) {
    auto o = std::make_shared<OpcionesImprimir>();
    comando.add_option("ARCHIVO", o->archivo, "Proyecto .adk; «-» lo lee de la entrada estándar.")
            ->required();
    comando.add_option("--tipo", o->tipo,
                       "resultados: la tabla de resultados; grafica: la página de la gráfica.")
            ->required()
            ->check(CLI::IsMember({"resultados", "grafica"}));
    comando.add_option("--grafica", o->grafica,
                       "1: temperatura de superficie; 2: pérdida de calor (1 si se omite).")
            ->check(CLI::IsMember({"1", "2"}));
    auto* pdf = comando.add_option("--pdf", o->pdf, "Escribe el documento en este archivo PDF.")
                        ->type_name("ARCHIVO");
    auto* registro = comando.add_flag(
            "--registro", o->registro,
            "En vez del PDF, cada llamada de dibujo en un objeto JSON, con medidas fijas.");
    pdf->excludes(registro);
    comando.add_option("--margenes", o->margenes, "Superior, inferior, derecho, izquierdo en mm.")
            ->delimiter(',')
            ->expected(4)
            ->type_name("S,I,D,Z");
    comando.add_option("--justificar", o->justificar, "0 derecha, 1 centrada, 2 izquierda.");
    comando.add_option("--orientacion", o->orientacion, "1 vertical, 2 horizontal.");
    comando.add_option("--papel", o->papel, "1 carta, 2 oficio.");
    comando.add_flag("--sin-bd", o->sinBD, "Calcula sin la base de datos de materiales.");
    return [o] {
        if (o->pdf.empty() && !o->registro) {
            std::cerr << "Falta --pdf o --registro.\n";
            return kSalidaUso;
        }
        return ConArchivo(o->archivo, o->sinBD, o->tipo == "resultados",
                          [&](ArchivoAbierto& a) { return Imprimir(a, *o); });
    };
}

}  // namespace kelvora::cli
