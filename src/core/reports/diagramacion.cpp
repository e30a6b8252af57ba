#include "core/reports/diagramacion.h"

#include "core/app/acercade.h"
#include "core/reports/medircolumnas.h"
#include "core/reports/textolargo.h"
#include "core/runtime/runtimeerror.h"
#include "core/runtime/texto.h"

#include <algorithm>
#include <cmath>
#include <vector>

namespace kelvora {

namespace {

constexpr int16_t kBlancosColumna = 2;
constexpr const char* kSinLugar =
        "Los márgenes y el tamaño de la fuente no dejan lugar en la página para una línea del "
        "informe.";
constexpr const char* kTituloNoCabe =
        "Un título del informe no cabe en ninguna página: reduzca los márgenes o el tamaño de la "
        "fuente.";
constexpr const char* kFuenteSinTamano = "El tamaño de la fuente del informe debe ser mayor que 0.";

std::vector<std::string> Partir(const std::string& texto, const std::string& separador) {
    std::vector<std::string> partes;
    size_t inicio = 0;
    for (size_t fin; (fin = texto.find(separador, inicio)) != std::string::npos;
         inicio = fin + separador.size()) {
        partes.push_back(texto.substr(inicio, fin - inicio));
    }
    partes.push_back(texto.substr(inicio));
    return partes;
}

bool EsMarcaNegrita(const std::string& texto) {
    return IgualTexto(texto, "RECOMENDADO") || IgualTexto(texto, "EXACTO");
}

// The characters of `texto` while the part taken so far is not wider than `disponible`: the
// first character that passes the margin is still taken, the rest dropped.
std::string Cortar(const Surface& superficie, const std::string& texto, double disponible) {
    std::u32string salida;
    for (const char32_t caracter : Caracteres(texto)) {
        if (superficie.TextWidth(Utf8(salida)) > disponible) {
            break;
        }
        salida += caracter;
    }
    return Utf8(salida);
}

class Diagramador {
public:
    Diagramador(Surface& superficie, const DocumentoImpresion& documento,
                const ConfiguracionPagina& pagina, const ModoDiagramacion& modo)
        : s(superficie), mDocumento(documento), mGrilla(documento.grilla), mModo(modo) {
        Preparar(pagina);
    }

    int Ejecutar();

private:
    bool EsImpresion() const { return mModo.destino == Destino::Impresora; }
    void Preparar(const ConfiguracionPagina& pagina);
    void ComprobarLugar() const;
    double Limite() const;
    bool FinDePagina() const;
    void Membrete();
    void NuevaPagina();
    void Negrita(bool negrita);
    int FinBanda(int primera) const;
    void Banda(int primera, int ultima);
    void Fila(int fila, int primera, int ultima);
    bool Encabezado(int fila, int primera);
    void Celdas(int fila, int primera, int ultima);
    void Celda(int fila, int columna);
    void Justificada(const std::string& texto, double ancho);
    void PaginaGrafica();
    void Centrada(const std::string& texto);

    Surface& s;
    const DocumentoImpresion& mDocumento;
    const Grilla& mGrilla;
    ModoDiagramacion mModo;
    EntornoImpresion e;
    /// The page height of the page-end test: the paper's in the preview, the printer's in print.
    double mAlto = 0;
    int mPagina = 1;
    std::vector<double> mAnchos;
};

void Diagramador::Preparar(const ConfiguracionPagina& pagina) {
    if (!(pagina.FuenteTamano > 0)) {
        throw RuntimeError(errores::LlamadaNoValida, kFuenteSinTamano);
    }
    const Tamano papel = TamanoPagina(pagina);
    if (EsImpresion()) {
        s.SetPageSize(std::trunc(papel.ancho), std::trunc(papel.alto));
    } else {
        s.SetPageSize(papel.ancho, papel.alto);
    }
    s.SetFont(FuenteInforme(pagina));
    e = EntornoImpresion::Para(pagina, s);
    mAlto = EsImpresion() ? s.ScaleHeight() : e.H;
    s.SetCurrentX(pagina.MargenIzquierdo);
    s.SetCurrentY(e.YInicial());
}

// Top margin counted twice: y runs from the paper's edge, yet the limit subtracts it again.
double Diagramador::Limite() const {
    return mAlto - e.pagina.MargenInferior - e.pagina.MargenSuperior - e.AltoPie;
}

bool Diagramador::FinDePagina() const {
    return EsImpresion() ? Limite() <= s.CurrentY() : Limite() < s.CurrentY();
}

// A page without room for one line would take a page for every row.
void Diagramador::ComprobarLugar() const {
    if (e.YInicial() + s.TextHeight("A") > Limite() || e.AnchoUtil() <= 0) {
        throw RuntimeError(errores::LlamadaNoValida, kSinLugar);
    }
}

void Diagramador::Membrete() {
    DibujarMembrete(s, e, e.pagina.MargenIzquierdo, e.pagina.MargenSuperior, e.AnchoUtil(),
                    e.H - e.pagina.MargenSuperior - e.pagina.MargenInferior);
    if (EsImpresion()) {
        ImprimirNumeroPagina(s, e, TextoNumeroPagina(mPagina, mModo.totalPaginas));
    }
}

void Diagramador::NuevaPagina() {
    ++mPagina;
    s.NewPage();
    s.SetCurrentY(e.YInicial());
}

void Diagramador::Negrita(bool negrita) {
    Fuente fuente = s.Font();
    fuente.negrita = negrita;
    s.SetFont(fuente);
}

int Diagramador::Ejecutar() {
    ComprobarLugar();
    if (mDocumento.grafica) {
        PaginaGrafica();
        return mPagina;
    }
    mAnchos = MedirColumnas(s, mGrilla, kBlancosColumna);
    int primera = 0;
    do {
        const int ultima = FinBanda(primera);
        if (primera > 0) {
            NuevaPagina();
        }
        Banda(primera, ultima);
        primera = ultima + 1;
    } while (primera <= mGrilla.Cols() - 1);
    return mPagina;
}

// A column takes half its width against the page when that half is within the right margin.
int Diagramador::FinBanda(int primera) const {
    const int ultima = mGrilla.Cols() - 1;
    double usado = 0;
    for (int c = primera; c <= ultima; ++c) {
        if (mGrilla.ColWidth(c) <= 0) {
            continue;
        }
        const double w = mAnchos[static_cast<size_t>(c)];
        const double cuenta = w / 2 > e.pagina.MargenDerecho ? w : w / 2;
        if (usado + cuenta > e.AnchoUtil()) {
            return std::max(c - 1, primera);
        }
        usado += w;
    }
    return std::max(ultima, primera);
}

void Diagramador::Banda(int primera, int ultima) {
    Membrete();
    s.SetCurrentX(e.pagina.MargenIzquierdo);
    Negrita(e.pagina.FuenteNegrita);
    for (int fila = 0; fila < mGrilla.Rows(); ++fila) {
        Fila(fila, primera, ultima);
    }
}

// A heading that does not fit is tried again after one more empty line, until the page ends;
// a heading that does not fit at the top of a new page never will.
void Diagramador::Fila(int fila, int primera, int ultima) {
    const bool encabezado = mGrilla.RowData(fila) == 0 && mGrilla.MergeRow(fila);
    bool paginaNueva = false;
    double yAnterior = -1;
    for (;;) {
        if (FinDePagina()) {
            NuevaPagina();
            Membrete();
            paginaNueva = true;
        }
        if (encabezado && fila > 0) {
            s.Print("", true);
        }
        s.SetCurrentX(e.pagina.MargenIzquierdo);
        if (!encabezado) {
            Celdas(fila, primera, ultima);
            break;
        }
        if (Encabezado(fila, primera)) {
            break;
        }
        if (paginaNueva || s.CurrentY() <= yAnterior) {
            throw RuntimeError(errores::LlamadaNoValida, kTituloNoCabe);
        }
        yAnterior = s.CurrentY();
    }
    if (EsImpresion()) {
        s.SetCurrentY(s.CurrentY() + mModo.correccion);
    }
}

bool Diagramador::Encabezado(int fila, int primera) {
    const std::vector<std::string> lineas =
            Partir(mGrilla.TextMatrix(fila, primera), kSaltoDeLinea);
    const double alto = s.TextHeight(lineas.front());
    if (s.CurrentY() + alto * static_cast<double>(lineas.size() + 1) > Limite()) {
        return false;
    }
    Negrita(true);
    for (const std::string& linea : lineas) {
        Centrada(linea);
    }
    Negrita(e.pagina.FuenteNegrita);
    return true;
}

void Diagramador::Centrada(const std::string& texto) {
    s.SetCurrentX(e.pagina.MargenIzquierdo + (e.AnchoUtil() - s.TextWidth(texto)) / 2);
    s.Print(texto, true);
}

void Diagramador::Celdas(int fila, int primera, int ultima) {
    for (int c = primera; c <= ultima; ++c) {
        if (mGrilla.ColWidth(c) > 0) {
            Celda(fila, c);
        }
    }
    s.Print("", true);
}

// A bold-label row has its first column bold and the others plain: the row kinds of the report
// model say so, and only column 0 holds a label.
void Diagramador::Celda(int fila, int columna) {
    const bool larga = EsCeldaLarga(mGrilla, fila, columna);
    const std::string texto =
            larga ? TextoLargo(mGrilla, mGrilla.RowData(fila)) : mGrilla.TextMatrix(fila, columna);
    if ((!larga && mGrilla.RowData(fila) < 0 && columna == 0) ||
        (columna > 1 && EsMarcaNegrita(texto))) {
        Negrita(true);
    }
    if (larga) {
        ImprimirCeldaLarga(s, e, texto);
    } else {
        Justificada(texto, mAnchos[static_cast<size_t>(columna)]);
    }
    Negrita(e.pagina.FuenteNegrita);
}

// Justificar: 0 right, 1 centred, 2 left; any other value prints nothing.
void Diagramador::Justificada(const std::string& texto, double ancho) {
    const double relleno = ancho - s.TextWidth(texto);
    switch (e.pagina.Justificar) {
        case 0:
            s.SetCurrentX(s.CurrentX() + relleno);
            s.Print(texto, false);
            break;
        case 1:
            s.SetCurrentX(s.CurrentX() + relleno / 2);
            s.Print(texto, false);
            s.SetCurrentX(s.CurrentX() + relleno / 2);
            break;
        case 2:
            s.Print(texto, false);
            s.SetCurrentX(s.CurrentX() + relleno);
            break;
        default:
            break;
    }
}

void Diagramador::PaginaGrafica() {
    const ImagenGrafica& grafica = *mDocumento.grafica;
    Membrete();
    Negrita(true);
    const std::string empresa = kLineasFabricante[0];
    s.SetCurrentX(s.CurrentX() + ((e.W - s.TextWidth(empresa)) / 2 - e.pagina.MargenIzquierdo));
    s.Print(empresa, true);
    s.Print("", true);
    s.SetCurrentX(e.pagina.MargenIzquierdo);
    for (const std::string& pieza : Partir(TituloInforme(mGrilla.Caption), "-")) {
        s.SetCurrentX(e.pagina.MargenIzquierdo + (e.W - s.TextWidth(pieza)) / 2 -
                      e.pagina.MargenIzquierdo);
        s.Print(pieza, true);
    }
    s.Print("", true);
    const Tamano pixeles = s.PictureSize(grafica.imagen);
    const double corte = s.ScaleX(grafica.anchoIzquierdo) / 3;
    const double ancho = s.ScaleX(pixeles.ancho) - corte;
    const double x = e.W - ancho - e.pagina.MargenIzquierdo < 0 ? e.pagina.MargenIzquierdo
                                                                : (e.W - ancho) / 2;
    s.PaintPictureFrom(grafica.imagen, x, s.CurrentY(), ancho, s.ScaleY(pixeles.alto), corte, 0);
}

}  // namespace

int Diagramar(Surface& superficie, const DocumentoImpresion& documento,
              const ConfiguracionPagina& pagina, const ModoDiagramacion& modo) {
    return Diagramador(superficie, documento, pagina, modo).Ejecutar();
}

void ImprimirCeldaLarga(Surface& superficie, const EntornoImpresion& entorno,
                        const std::string& texto) {
    const double x0 = superficie.CurrentX();
    const double disponible = entorno.W - entorno.pagina.MargenDerecho - x0;
    if (disponible < 0) {
        return;
    }
    const std::vector<std::string> partes = Partir(texto, kSaltoDeLinea);
    for (size_t i = 0; i < partes.size(); ++i) {
        superficie.Print(Cortar(superficie, partes[i], disponible), i + 1 < partes.size());
        superficie.SetCurrentX(x0);
    }
}

std::string TituloInforme(const std::string& caption) {
    const int corchete = InStr(caption, "[");
    return corchete == 0 ? caption : Mid(caption, 1, std::max(corchete - 2, 0));
}

}  // namespace kelvora
