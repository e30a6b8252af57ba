#pragma once

#include <string>
#include <vector>

namespace kelvora {

/// The query form of the material list: the field (`cboTipoConsulta`), the relation
/// (`cboRelacion`) and the boxes `txtValor`(1) and (2), numbers, and (3), words.
class FormularioConsulta {
public:
    static constexpr int kCampoDescripcion = 1;
    static constexpr int kRelacionRango = 6;

    /// As loaded: the first field, its relations and their first item, boxes empty.
    FormularioConsulta();

    static const std::vector<std::string>& TiposConsulta();
    int TipoConsulta() const { return mTipoConsulta; }
    /// Choosing a field loads its relation list (words for the description, else numbers).
    void cboTipoConsulta_Click(int indice);

    const std::vector<std::string>& Relaciones() const;
    int Relacion() const { return mRelacion; }
    void cboRelacion_Click(int indice);

    /// Box i, 1 to 3.
    const std::string& Texto(int i) const;
    void SetTexto(int i, std::string texto);
    bool Visible(int i) const;
    bool lblAVisible() const { return Visible(2); }

    /// False while a visible box is wrong: the words blank, or a number box not numeric.
    bool ConsultarHabilitado() const;
    /// The statement of `cmdConsultar`, built word for word from the form. A range typed
    /// backwards has its two boxes swapped first.
    std::string ConstruirSentencia();

private:
    bool Palabras() const { return mTipoConsulta == kCampoDescripcion; }
    void OrdenarRango();
    std::string CondicionPalabras() const;
    std::string CondicionNumero() const;

    int mTipoConsulta = 0;
    int mRelacion = 0;
    std::string mTextos[3];
};

}  // namespace kelvora
