#pragma once

#include "core/thermal/productos.h"
#include "core/thermal/ventanaresultados.h"

#include <string>
#include <vector>

namespace kelvora {

/// The unit family a box's list offers; Ninguna for a box without a list.
enum class FamiliaLista { Ninguna, Temperatura, Velocidad, Longitud };

/// The catalogue family of a list ("Temperatura", ...); empty for Ninguna.
const char* NombreFamilia(FamiliaLista familia);
/// The tool tip of a list ("Unidades de Temperatura", ...); empty for Ninguna.
const char* ToolTipLista(FamiliaLista familia);

/// One box of a data entry window and what goes with it.
struct CampoEntrada {
    /// Caption of the label, with its access key; the column head for an emissivity box.
    const char* etiqueta;
    /// Plain tool tip: the words the messages use.
    const char* toolTip;
    FamiliaLista lista;
    /// The unit the list shows in a new window.
    const char* unidadInicial;
    int maxLength;
    const char* variable;
    /// Unit stored for a box without a list, and the fixed label beside it.
    const char* unidadFija;
    const char* etiquetaUnidad;
    /// Hint shown in `lblEstado` when the box takes the focus; empty when none.
    const char* ayuda;
    /// Read-only, with the coloured background (emissivities).
    bool soloLectura;
    /// May stay empty: neither incomplete nor refused, stored as 0, shown empty when 0.
    bool opcional;
    /// Article before the tool tip in the messages: "la " or "el ".
    const char* articulo;
    /// The key "-" may pass.
    bool aceptaMenos;
    /// A material code box: no decimal point, and Enter jumps over the query button.
    bool codigo;
    /// Must be above 0, else "El " + tool tip + " no es válido.".
    bool positivo;
};

/// A query button with its code and emissivity boxes.
struct BotonMaterial {
    int cajaCodigo;
    int cajaEmisividad;
    /// Words that end the prompt of the emissivity input box.
    const char* palabras;
    /// True for the bare surface: fills `NombreMaterialDesnuda`.
    bool desnuda;
    const char* prefijoEstado;
    const char* prefijoToolTip;
};

/// An entry of the product menu: key (code first, then the window's letters) and text.
struct ProductoMenu {
    const char* clave;
    const char* texto;
};

/// A check that Val(caja) does not stand below (or above) the other box converted into the
/// unit of caja's list. Equal values pass.
struct ComparacionTemperaturas {
    int caja;
    int otra;
    /// True: refused when caja is below the other; false: when it is above.
    bool fallaSiMenor;
    const char* mensaje;
    int foco;
};

/// A lower bound on Val(Trim(box)): refused below 0, or also at 0 when conCero.
struct CotaInferior {
    int caja;
    bool conCero;
    /// "La " or "El ", before the tool tip of "... debe ser mayor que cero.".
    const char* articulo;
};

/// How "C&alcular" reads one argument of the routine.
enum class TipoArgumento {
    /// The box from its list's unit to `unidad`, plus `suma`.
    Convertido,
    /// Val of the box.
    Valor,
    /// Val of the box as a 16-bit integer.
    Entero,
    /// The box holds something once trimmed.
    Conocido,
    /// The texts of the lists of `listasUnidades`.
    Unidades,
    /// `NombreMaterialAislamiento` (caja 1) or `NombreMaterialDesnuda` (caja 2).
    NombreMaterial,
    /// modoGrafica = False.
    Falso,
    /// tipoGrafica = 0.
    CeroEntero,
    /// The chart outputs, 0.
    CeroDoble
};

/// One argument of the routine, in its place.
struct ArgumentoCalculo {
    const char* nombre;
    TipoArgumento tipo;
    int caja;
    const char* unidad;
    double suma;
};

/// Everything that sets one data entry window apart from its sisters.
struct DescripcionEntrada {
    const char* nombre;
    const char* caption;
    Analisis analisis;
    TipoResultados resultados;
    /// `Tag` while the data are complete.
    const char* tag;
    /// Boxes 1 to n, in order; GuardarVariables stores them in this order.
    std::vector<CampoEntrada> campos;
    std::vector<BotonMaterial> materiales;
    std::vector<ProductoMenu> productos;
    /// The widest product name, which sizes the product button.
    const char* productoReferencia;
    /// ValidarDatos checks boxes 1 to this one.
    int cajasValidadas;
    std::vector<ComparacionTemperaturas> comparaciones;
    std::vector<CotaInferior> cotas;
    /// Lists whose texts form the display unit names, in order.
    std::vector<int> listasUnidades;
    std::vector<ArgumentoCalculo> argumentos;

    int Cajas() const { return static_cast<int>(campos.size()); }
    /// Box i, from 1.
    const CampoEntrada& Campo(int i) const;
    /// The query button whose code or emissivity box is i; nullptr when none.
    const BotonMaterial* MaterialDeCaja(int i) const;
};

/// The four data entry windows.
enum class TipoEntrada { SuperficiesPlanas, SuperficiesCilindricas, PlanasFrio, CilindricasFrio };

const DescripcionEntrada& DescripcionVentanaDatos(TipoEntrada tipo);

/// The window of a product code's analysis; nullptr for a code outside 1 to 14.
const DescripcionEntrada* DescripcionParaProducto(int codigo);

/// Head of the column of the code boxes, and of the emissivity boxes.
inline constexpr const char* kColumnaCodigo = "Código Material :";
inline constexpr const char* kColumnaEmisividad = "Emisividad:";

}  // namespace kelvora
