#include "core/reports/imprimirdocumento.h"
#include "core/runtime/runtimeerror.h"
#include "support/dobles.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

namespace kelvora {
namespace {

using Llamada = prueba::SurfaceGrabadora::Llamada;

// Pictures of the letterhead: top logo 60 × 15 mm, foot logo 10 × 10 mm. With margins of 15 on
// letter paper the first line is at 15 + 15 + 4 = 34 and a line is 4 mm, so the page-end limit
// is 279 − 15 − 15 − 10 = 239: rows at y = 34 + 4k, 52 of them on a page.
class Superficie : public prueba::SurfaceGrabadora {
public:
    explicit Superficie(double altoPiePx = 40) {
        imagenes[kImagenEncabezado] = {240, 60};
        imagenes[kImagenPie] = {40, altoPiePx};
    }

    std::vector<Llamada> De(const std::string& que) const {
        std::vector<Llamada> elegidas;
        std::copy_if(llamadas.begin(), llamadas.end(), std::back_inserter(elegidas),
                     [&que](const Llamada& l) { return l.que == que; });
        return elegidas;
    }

    const Llamada* Impreso(const std::string& texto) const {
        for (const Llamada& l : llamadas) {
            if (l.que == "Print" && l.texto == texto) {
                return &l;
            }
        }
        return nullptr;
    }
};

Grilla Filas(const std::vector<std::vector<std::string>>& filas) {
    Grilla g;
    g.SetRows(static_cast<int>(filas.size()));
    g.SetCols(filas.empty() ? 2 : static_cast<int>(filas.front().size()));
    for (size_t f = 0; f < filas.size(); ++f) {
        for (size_t c = 0; c < filas[f].size(); ++c) {
            g.SetTextMatrix(static_cast<int>(f), static_cast<int>(c), filas[f][c]);
        }
    }
    return g;
}

Grilla Numeradas(int filas) {
    std::vector<std::vector<std::string>> texto;
    for (int i = 0; i < filas; ++i) {
        texto.push_back({"fila" + std::to_string(i), "x"});
    }
    return Filas(texto);
}

int Vista(Superficie& s, const Grilla& g, const ConfiguracionPagina& p = {}) {
    return VistaPreliminar(s, {g, std::nullopt}, p);
}

// Column widths: "abcd" and "x" make 4 · 2 + 2 blanks = 12 mm, "ab" and "abcdef" 16 mm.
TEST(Diagramacion, JustificarDerechaCentradaIzquierda) {
    struct Caso {
        int32_t justificar;
        double x0;
        double x1;
    };
    // clang-format off
    const Caso casos[] = {
        {0, 19, 39},  // right: the pad of 4 and 12 mm before the text
        {1, 17, 33},  // centred: half the pad before
        {2, 15, 27},  // left
    };
    // clang-format on
    for (const Caso& caso : casos) {
        Superficie s;
        ConfiguracionPagina p;
        p.Justificar = caso.justificar;
        Vista(s, Filas({{"abcd", "ab"}, {"x", "abcdef"}}), p);
        EXPECT_EQ(s.Impreso("abcd")->x, caso.x0) << caso.justificar;
        EXPECT_EQ(s.Impreso("ab")->x, caso.x1) << caso.justificar;
    }
    Superficie ninguna;
    ConfiguracionPagina p;
    p.Justificar = 3;
    Vista(ninguna, Filas({{"abcd", "ab"}}), p);
    EXPECT_EQ(ninguna.Impreso("abcd"), nullptr);
}

// Two columns of 48 characters are 100 mm each against 216 − 15 − derecho of page. One whose
// half is within the right margin counts by its half.
TEST(Diagramacion, BandasPorMitadDeAncho) {
    struct Caso {
        float derecho;
        int paginas;
    };
    // clang-format off
    const Caso casos[] = {
        {50, 1},  // 50 + 50 ≤ 151: one band
        {49, 2},  // 100 + 100 > 152: the second column goes to a page of its own
        {15, 2},
    };
    // clang-format on
    const std::string ancha(48, 'a');
    for (const Caso& caso : casos) {
        Grilla g = Filas({{ancha, ancha, std::string(500, 'h')}});
        g.SetColWidth(2, 0);
        ConfiguracionPagina p;
        p.MargenDerecho = caso.derecho;
        Superficie s;
        EXPECT_EQ(Vista(s, g, p), caso.paginas) << caso.derecho;
        EXPECT_EQ(s.Impreso(std::string(500, 'h')), nullptr);
        const std::vector<Llamada> anchas = s.Impresos();
        EXPECT_EQ(std::count_if(anchas.begin(), anchas.end(),
                                [&](const Llamada& l) { return l.texto == ancha && l.x == 15; }),
                  caso.paginas)
                << "each band starts at the margin";
    }
}

// 48 rows end at y = 226; a heading of two lines needs 3 · 4 mm below it, so it takes empty
// lines at 226, 230, 234 and 238 until the page ends, then one more on the new page.
TEST(Diagramacion, EncabezadoAlPieBajaConSusLineasVacias) {
    Grilla g = Numeradas(49);
    g.SetMergeRow(48, true);
    g.SetTextMatrix(48, 0, "TITULO\r\nSEGUNDA");
    Superficie s;
    EXPECT_EQ(Vista(s, g), 2);
    std::vector<double> vacias;
    for (const Llamada& l : s.Impresos()) {
        if (l.texto.empty()) {
            vacias.push_back(l.y);
        }
    }
    const std::vector<double> esperadas = {226, 230, 234, 238, 34};
    EXPECT_TRUE(std::search(vacias.begin(), vacias.end(), esperadas.begin(), esperadas.end()) !=
                vacias.end());
    EXPECT_EQ(s.Impreso("TITULO")->y, 38);
    EXPECT_TRUE(s.Impreso("TITULO")->negrita);
    EXPECT_EQ(s.Impreso("SEGUNDA")->x, (216 - 15 - 15 - 14) / 2.0 + 15);
}

std::vector<std::string> NumerosDePagina(const Superficie& s) {
    std::vector<std::string> numeros;
    for (const Llamada& l : s.llamadas) {
        if (l.que == "EndDoc" || (l.que == "Print" && l.texto.starts_with("Página"))) {
            numeros.push_back(l.que == "EndDoc" ? "|" : l.texto);
        }
    }
    return numeros;
}

TEST(Diagramacion, DosCopiasNumeradasDesdeUno) {
    Superficie impresora;
    Superficie vista;
    EXPECT_EQ(ImprimirDocumento(impresora, vista, {Numeradas(120), std::nullopt}, {}, 2), 3);
    const std::vector<std::string> esperados = {
            "Página 1 de 3", "Página 2 de 3", "Página 3 de 3", "|",
            "Página 1 de 3", "Página 2 de 3", "Página 3 de 3", "|"};
    EXPECT_EQ(NumerosDePagina(impresora), esperados);
    EXPECT_TRUE(NumerosDePagina(vista).empty()) << "the preview numbers its pages itself";
}

// A foot logo of 11 mm puts the limit at 238, where the 52nd row stands: the preview breaks
// only past it, print on it; the printed pages are numbered "de" the preview's count.
TEST(Diagramacion, VistaRompeConMenorImpresionConMenorOIgual) {
    Superficie vista(44);
    EXPECT_EQ(Vista(vista, Numeradas(52)), 1);
    Superficie impresora(44);
    Superficie cuenta(44);
    ImprimirDocumento(impresora, cuenta, {Numeradas(52), std::nullopt}, {}, 1);
    const std::vector<std::string> esperados = {"Página 1 de 1", "Página 2 de 1", "|"};
    EXPECT_EQ(NumerosDePagina(impresora), esperados);
    EXPECT_EQ(impresora.Impreso("fila51")->y, 34);
}

// The maker's lines start 2 mm right of the 10 mm foot logo, at the foot: 279 − 15 − 10.
TEST(Diagramacion, MembreteYNumeroEnSuSitio) {
    Superficie impresora;
    Superficie vista;
    ImprimirDocumento(impresora, vista, {Grilla{}, std::nullopt}, {}, 1);
    const std::vector<Llamada> imagenes = impresora.De("PaintPicture");
    ASSERT_EQ(imagenes.size(), 3U);
    EXPECT_EQ(imagenes[0].texto, kImagenEncabezado);
    EXPECT_EQ(imagenes[0].x, (15 + 186 - 60) / 2.0);
    EXPECT_EQ(imagenes[0].y, 15);
    EXPECT_EQ(imagenes[1].texto, kImagenFondo);
    EXPECT_EQ(imagenes[1].x2, 201);
    EXPECT_EQ(imagenes[1].y2, 30 + 249 - 15 - 10);
    EXPECT_EQ(imagenes[2].x, 15);
    EXPECT_EQ(imagenes[2].y, 254);
    const Llamada& empresa = impresora.Impresos().at(0);
    EXPECT_EQ(empresa.x, 27);
    EXPECT_EQ(empresa.y, 254);
    EXPECT_TRUE(empresa.negrita);
    EXPECT_EQ(impresora.Impresos().at(3).x, 15) << "the fourth line under the first";
    EXPECT_EQ(impresora.Impresos().at(3).y, 258.5);
    EXPECT_EQ(impresora.De("Line").at(0).y, 253);
    const Llamada* numero = impresora.Impreso("Página 1 de 1");
    EXPECT_EQ(numero->x, 216 - 26 - 15);
    EXPECT_EQ(numero->y, 254);
    EXPECT_EQ(impresora.fuente.nombre, "Courier New") << "the report font is back";
}

// A long text from the Tag in column 1, which starts at 15 + 6: 180 mm are left, and the
// character that passes them is still drawn. Each line is cut, none wrapped.
TEST(Diagramacion, TextoLargoCortadoSinAjustar) {
    Grilla g = Filas({{"a", "propio"}});
    g.SetRowData(0, 1);
    g.SetColData(1, 1);
    g.Tag = ".;" + std::string(200, 'x') + "\r\nyy;";
    Superficie s;
    Vista(s, g);
    EXPECT_EQ(s.Impreso("a")->x, 15) << "ColData 0: the cell's own text";
    EXPECT_EQ(s.Impreso(std::string(91, 'x'))->x, 21);
    EXPECT_EQ(s.Impreso("yy")->x, 21);
    EXPECT_EQ(s.Impreso("yy")->y, 38);
    EXPECT_EQ(s.Impreso("propio"), nullptr);
}

TEST(Diagramacion, NegritaDeEtiquetasYMarcas) {
    Grilla g = Filas({{"Etiqueta", "valor", "exacto", "RECOMENDADO"}, {"a", "EXACTO", "b", "c"}});
    g.SetRowData(0, -1);
    Superficie s;
    Vista(s, g);
    // clang-format off
    const std::vector<std::pair<std::string, bool>> casos = {
        {"Etiqueta", true}, {"valor", false}, {"exacto", true}, {"RECOMENDADO", true},
        {"EXACTO", false},  // column 1 is not marked
        {"b", false},
    };
    // clang-format on
    for (const auto& [texto, negrita] : casos) {
        EXPECT_EQ(s.Impreso(texto)->negrita, negrita) << texto;
    }
}

TEST(Diagramacion, EntradaQueNoCabeTerminaConMensajeOPagina) {
    struct Caso {
        const char* que;
        float margen;
        float tamano;
        Grilla grilla;
        int paginas;  // 0: a clear error
    };
    Grilla titulo = Filas({{std::string(), std::string()}});
    titulo.SetMergeRow(0, true);
    std::string lineas;
    for (int i = 0; i < 60; ++i) {
        lineas += "linea\r\n";
    }
    titulo.SetTextMatrix(0, 0, lineas);
    // clang-format off
    const Caso casos[] = {
        {"margins wider than the page", 200, 10, Numeradas(3),                         0},
        {"font of size 0",              15,  0,  Numeradas(3),                         0},
        {"a heading taller than a page",15,  10, titulo,                               0},
        {"no rows",                     15,  10, Grilla{},                             1},
        {"a cell 50,000 wide",          15,  10, Filas({{std::string(50000, 'w')}}),   1},
    };
    // clang-format on
    for (const Caso& caso : casos) {
        ConfiguracionPagina p;
        p.MargenSuperior = caso.margen;
        p.MargenIzquierdo = caso.margen;
        p.FuenteTamano = caso.tamano;
        Superficie s;
        if (caso.paginas == 0) {
            EXPECT_THROW(Vista(s, caso.grilla, p), RuntimeError) << caso.que;
        } else {
            EXPECT_EQ(Vista(s, caso.grilla, p), caso.paginas) << caso.que;
        }
    }
}

// A picture of 200 × 100 mm whose left 30 mm are tagged: 10 mm are cut, and the 190 mm left
// are centred under the company and the two pieces of the title.
TEST(Diagramacion, PaginaDeGrafica) {
    Superficie s;
    s.imagenes["grafica"] = {800, 400};
    Grilla g;
    g.Caption = "Gráfica A - Producto B [1]";
    EXPECT_EQ(VistaPreliminar(s, {g, ImagenGrafica{"grafica", 120}}, {}), 1);
    const std::vector<Llamada> impresos = s.Impresos();
    EXPECT_TRUE(std::any_of(impresos.begin(), impresos.end(), [](const Llamada& l) {
        return l.texto == "Fornalis S.A." && l.x == (216 - 26) / 2.0 && l.y == 34 && l.negrita;
    }));
    EXPECT_EQ(s.Impreso("Gráfica A ")->y, 42);
    EXPECT_EQ(s.Impreso(" Producto B")->y, 46);
    const Llamada imagen = s.De("PaintPictureFrom").at(0);
    EXPECT_EQ(imagen.x, 13);
    EXPECT_EQ(imagen.y, 54);
    EXPECT_EQ(imagen.x2 - imagen.x, 190);
    EXPECT_EQ(imagen.y2 - imagen.y, 100);
    EXPECT_EQ(imagen.origen, 10);
}

}  // namespace
}  // namespace kelvora
