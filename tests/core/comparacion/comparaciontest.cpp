#include "core/comparacion/grillacomparacion.h"
#include "core/economics/modeloeconomico.h"
#include "core/economics/traspasoresultados.h"
#include "core/entry/llamadacalculo.h"
#include "entry/banco.h"

#include <gtest/gtest.h>

#include <map>
#include <memory>

namespace kelvora {
namespace {

// Rows 2 and 16 of the seed table `Tubos`.
class TubosMemoria : public FuenteTubos {
public:
    std::optional<FilaTubos> BuscarTubo(double nominal) override {
        static const std::map<double, FilaTubos> kFilas = {
                {2, {2, 2.375, 2.067, 4.5, 5.563, 6.625, 7.625, 8.625, 9.625, 10.75}}};
        const auto fila = kFilas.find(nominal);
        return fila == kFilas.end() ? std::nullopt : std::optional(fila->second);
    }
};

// The results window that "C&alcular" opens, one at a time.
class DestinoPrueba : public DestinoResultados {
public:
    DestinoPrueba(const classUnidades& unidades, Prompter& prompter)
        : mUnidades(unidades), mPrompter(prompter) {}

    ModeloResultados& NuevaVentanaResultados(TipoResultados tipo) override {
        ventana = std::make_unique<ModeloResultados>(tipo, mUnidades, mPrompter, bomba);
        return *ventana;
    }
    void DescargarVentanaResultados(ModeloResultados&) override { ventana.reset(); }
    FuenteTubos& Tubos() override { return tubos; }

    std::unique_ptr<ModeloResultados> ventana;
    prueba::BombaContada bomba;
    TubosMemoria tubos;

private:
    const classUnidades& mUnidades;
    Prompter& mPrompter;
};

struct Duty {
    TipoEntrada tipo;
    std::vector<std::pair<int, const char*>> datos;
};

std::unique_ptr<prueba::Banco> Abrir(const Duty& duty) {
    auto banco = std::make_unique<prueba::Banco>(duty.tipo);
    banco->Llenar(prueba::DatosValidos(duty.tipo));
    banco->Llenar(duty.datos);
    return banco;
}

// The rows of the comparison grid that belong to a product, first to last.
std::vector<int> FilasDe(const Grilla& grilla, const std::string& producto) {
    std::vector<int> filas;
    for (int r = 0; r < grilla.Rows(); ++r) {
        if (grilla.TextMatrix(r, 0) == producto) {
            filas.push_back(r);
        } else if (!filas.empty() && grilla.TextMatrix(r, 0).empty()) {
            filas.push_back(r);
        } else if (!filas.empty()) {
            break;
        }
    }
    return filas;
}

// Two duties checked by hand for which products serve them: a flat surface at 700 °F, which
// the two products rated for 650 °F (Dorlin, Kandor) cannot take; and a 2 plg pipe at 350 °F,
// which every pipe product takes, Orbelas in its own sections. For each product, the table
// shows what the product's own results window shows: k, ideal and practical thickness,
// practical loss and efficiency of every position.
TEST(CompararProductos, CadaFilaEsElCalculoDelProducto) {
    const Duty duties[] = {{TipoEntrada::SuperficiesPlanas, {{1, "700"}, {2, "130"}}},
                           {TipoEntrada::SuperficiesCilindricas, {}}};
    const std::map<TipoEntrada, std::vector<int16_t>> fuera = {
            {TipoEntrada::SuperficiesPlanas, {4, 5}}, {TipoEntrada::SuperficiesCilindricas, {}}};
    for (const Duty& duty : duties) {
        const auto banco = Abrir(duty);
        DestinoPrueba destino(banco->ventana->Unit(), banco->prompter);
        const Comparacion comparacion =
                CompararProductos(*banco->ventana, destino.tubos, destino.bomba);
        const Grilla grilla = GrillaComparacion(comparacion, *banco->ventana);
        std::vector<int16_t> fueraDeServicio;
        double anterior = 0;
        for (const ProductoComparado& producto : comparacion.productos) {
            const std::vector<int> filas = FilasDe(grilla, producto.nombre);
            ASSERT_FALSE(filas.empty()) << producto.nombre;
            if (producto.estado == EstadoProducto::FueraDeServicio) {
                fueraDeServicio.push_back(producto.codigo);
                EXPECT_EQ(grilla.TextMatrix(filas[0], 2), "fuera de servicio");
                continue;
            }
            ASSERT_EQ(producto.estado, EstadoProducto::Calculado) << producto.mensaje;
            EXPECT_GE(producto.Espesor(), anterior) << producto.nombre;
            anterior = producto.Espesor();
            banco->ventana->SetTipoAnalisis(producto.codigo);
            ASSERT_TRUE(banco->ventana->cmdAceptar_Click(destino)) << producto.nombre;
            const Grilla& msfg = destino.ventana->MSFG();
            const auto celda = [&](int bloque, int desplazamiento) {
                return msfg.TextMatrix(2 + 17 * bloque + desplazamiento, 1);
            };
            ASSERT_EQ(filas.size(), destino.ventana->Ventana().posiciones.size());
            for (size_t p = 0; p < filas.size(); ++p) {
                const int ideal = 2 * static_cast<int>(p);
                const int practico = ideal + 1;
                const std::vector<std::string> esperado = {celda(practico, 9), celda(ideal, 11),
                                                           celda(practico, 11), celda(practico, 14),
                                                           celda(practico, 16)};
                for (int c = 3; c <= 7; ++c) {
                    EXPECT_EQ(grilla.TextMatrix(filas[p], c), esperado[c - 3])
                            << producto.nombre << " posición " << p << " columna " << c;
                }
            }
        }
        EXPECT_EQ(fueraDeServicio, fuera.at(duty.tipo));
        EXPECT_TRUE(banco->prompter.mensajes.empty());
    }
}

// The saving of each product is what its own economic window gives for the same inputs.
TEST(CompararProductos, AhorroComoLaVentanaEconomica) {
    const auto banco = Abrir({TipoEntrada::SuperficiesPlanas, {}});
    DestinoPrueba destino(banco->ventana->Unit(), banco->prompter);
    prueba::RelojFijo reloj({2024, 5, 17});
    ModeloEconomico economia(TipoEconomico::SuperficiesPlanas, banco->contexto, banco->prompter,
                             destino.bomba, reloj);
    for (int caja = 1; caja <= 3; ++caja) {
        economia.SetText(caja, std::to_string(10 * caja));
    }
    economia.SetText(7, "2.5");
    economia.SetText(0, "80");
    ASSERT_TRUE(economia.Comprobar());
    const Comparacion comparacion =
            CompararProductos(*banco->ventana, destino.tubos, destino.bomba, &economia);
    for (const ProductoComparado& producto : comparacion.productos) {
        ASSERT_TRUE(producto.ahorro) << producto.nombre;
        banco->ventana->SetTipoAnalisis(producto.codigo);
        ASSERT_TRUE(banco->ventana->cmdAceptar_Click(destino));
        economia.setVariables(ValoresParaAnalisis(*destino.ventana));
        economia.cmdAceptar_Click();
        EXPECT_DOUBLE_EQ(producto.ahorro->total, economia.Montos().total) << producto.nombre;
    }
    const Grilla grilla = GrillaComparacion(comparacion, *banco->ventana, &economia);
    EXPECT_EQ(grilla.Cols(), 10);
    EXPECT_EQ(grilla.TextMatrix(4, 9).substr(0, 1), "$");
}

// No product serves: the table says so. A product whose routine fails carries its message:
// from 14 plg on only Orbelas looks its diameter up, and 16 plg is not in the table.
TEST(CompararProductos, FueraDeServicioYFallos) {
    const auto caliente = Abrir({TipoEntrada::SuperficiesPlanas, {{1, "1500"}}});
    DestinoPrueba destino(caliente->ventana->Unit(), caliente->prompter);
    const Comparacion todos = CompararProductos(*caliente->ventana, destino.tubos, destino.bomba);
    EXPECT_TRUE(todos.TodosFueraDeServicio());
    const Grilla grilla = GrillaComparacion(todos, *caliente->ventana);
    EXPECT_EQ(grilla.TextMatrix(grilla.Rows() - 1, 0),
              "Ningún producto de la familia sirve a una Temperatura Interior de 1500 °F.");

    const auto tuberia = Abrir({TipoEntrada::SuperficiesCilindricas, {{5, "16"}}});
    const Comparacion comparacion =
            CompararProductos(*tuberia->ventana, destino.tubos, destino.bomba);
    const ProductoComparado& ultimo = comparacion.productos.back();
    EXPECT_EQ(ultimo.codigo, 12);
    EXPECT_EQ(ultimo.estado, EstadoProducto::Fallido);
    const std::string mensaje =
            "Error inesperado: No se encontró un diámetro de 16 plg en la Base de Datos.";
    EXPECT_EQ(ultimo.mensaje, mensaje);
    const Grilla fallos = GrillaComparacion(comparacion, *tuberia->ventana);
    const int fila = FilasDe(fallos, "Orbelas").at(0);
    EXPECT_EQ(fallos.TextMatrix(fila, 2), mensaje);
    EXPECT_EQ(fallos.RowData(fila) * fallos.ColData(2), 1);
    EXPECT_EQ(fallos.Tag, ".;" + mensaje + ";");
    EXPECT_FALSE(PuedeCompararse(Analisis::SPFrio));
}

}  // namespace
}  // namespace kelvora
