#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace kelvora::cli {

/// Writes one JSON value into a string, putting the commas itself. Numbers take 17 significant
/// digits with a point whatever the locale; a number that is not finite is written as null.
class EscritorJson {
public:
    EscritorJson& AbrirObjeto();
    EscritorJson& CerrarObjeto();
    EscritorJson& AbrirLista();
    EscritorJson& CerrarLista();
    /// The key of the next member of an object.
    EscritorJson& Clave(std::string_view clave);
    EscritorJson& Texto(std::string_view texto);
    EscritorJson& Numero(double numero);
    EscritorJson& Booleano(bool valor);
    EscritorJson& Nulo();

    const std::string& Resultado() const { return mTexto; }

private:
    void Separar();
    void Abrir(char caracter);
    void Cerrar(char caracter);

    std::string mTexto;
    std::vector<bool> mVacio;
    bool mTrasClave = false;
};

/// A text as a JSON string, quotes included.
std::string TextoJson(std::string_view texto);
/// A number as JSON: 17 significant digits, or null when it is not finite.
std::string NumeroJson(double numero);

}  // namespace kelvora::cli
