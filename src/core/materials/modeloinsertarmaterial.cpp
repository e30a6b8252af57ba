#include "core/materials/modeloinsertarmaterial.h"

#include "core/materials/codigolibre.h"
#include "core/materials/conexion.h"
#include "core/runtime/numeros.h"
#include "core/runtime/runtimeerror.h"
#include "core/runtime/texto.h"

#include <utility>

namespace kelvora {

namespace {

constexpr int kCodigo = 1;
constexpr int kDescripcion = 2;
constexpr int kEmisividad = 3;
constexpr int kTemperatura = 4;

bool EnBlanco(const std::string& texto) {
    return Trim(texto).empty();
}

}  // namespace

ModeloInsertarMaterial::ModeloInsertarMaterial(EntornoInsertar entorno)
    : mEntorno(std::move(entorno)) {
}

const std::string& ModeloInsertarMaterial::Texto(int i) const {
    return mTextos[static_cast<size_t>(i - 1)];
}

void ModeloInsertarMaterial::SetTexto(int i, std::string texto) {
    mTextos[static_cast<size_t>(i - 1)] = i == kDescripcion ? UCase(texto) : std::move(texto);
    Activar();
}

ResultadoTeclaNumerica ModeloInsertarMaterial::txtValor_KeyPress(int i, int caret, int seleccion,
                                                                 int KeyAscii) {
    ResultadoTeclaNumerica resultado =
            FiltrarTeclaNumerica(Texto(i), caret, seleccion, KeyAscii, i == kTemperatura);
    if (resultado.texto != Texto(i)) {
        SetTexto(i, resultado.texto);
    }
    return resultado;
}

void ModeloInsertarMaterial::Borrar() {
    if (!PonerCodigoLibre()) {
        mTextos[kCodigo - 1].clear();
    }
    for (int i = kDescripcion; i <= kCajas; ++i) {
        mTextos[static_cast<size_t>(i - 1)].clear();
    }
    mFoco = kDescripcion;
    mModificar = false;
    Activar();
}

void ModeloInsertarMaterial::CargarFila(const CeldasMaterial& celdas) {
    mModificar = true;
    for (int i = 1; i <= kCajas; ++i) {
        SetTexto(i, celdas[static_cast<size_t>(i - 1)]);
    }
    mFoco = kDescripcion;
    Activar();
}

void ModeloInsertarMaterial::Activar() {
    mAceptarHabilitado = IsNumeric(Texto(kCodigo)) && !EnBlanco(Texto(kDescripcion)) &&
                         IsNumeric(Texto(kEmisividad)) &&
                         (IsNumeric(Texto(kTemperatura)) || EnBlanco(Texto(kTemperatura)));
    mAceptarCaption = mModificar ? "&Modificar" : "&Insertar";
    mCaption = mModificar ? "Modificar Acabado Superficial" : "Insertar Acabado Superficial";
}

bool ModeloInsertarMaterial::PonerCodigoLibre() {
    try {
        Conexion conexion;
        conexion.Open(mEntorno.contexto.CadenaConexion);
        mTextos[kCodigo - 1] = TextoNumero(static_cast<double>(SiguienteCodigoLibre(conexion)));
        return true;
    } catch (const RuntimeError& error) {
        AvisarError(error);
        return false;
    }
}

bool ModeloInsertarMaterial::cmdAceptar_Click() {
    if (EnBlanco(Texto(kCodigo)) && !PonerCodigoLibre()) {
        return false;
    }
    if (!Comprobar()) {
        return false;
    }
    try {
        Conexion conexion;
        conexion.Open(mEntorno.contexto.CadenaConexion);
        const FilaMaterial fila = Fila();
        conexion.Execute(mModificar ? SqlActualizarMaterial(fila) : SqlInsertarMaterial(fila));
        conexion.Close();
    } catch (const RuntimeError& error) {
        AvisarError(error);
        return false;
    }
    Avisar(std::string("Los datos se han ") + (mModificar ? "modificado" : "insertado") +
                   " con éxito.",
           Icono::Informacion);
    Borrar();
    return true;
}

bool ModeloInsertarMaterial::Comprobar() {
    if (EnBlanco(Texto(kDescripcion))) {
        return Rechazar("Por favor ingrese la Descripción del material.", kDescripcion);
    }
    if (!IsNumeric(Texto(kEmisividad))) {
        return Rechazar("Por favor ingrese la Emisividad del material.", kEmisividad);
    }
    // Zero is refused too, although the message speaks of a closed range.
    const double emisividad = Val(Texto(kEmisividad));
    if (emisividad <= 0 || emisividad > 1) {
        return Rechazar("La Emisividad del material debe estar en el rango [0, 1].", kEmisividad);
    }
    if (!IsNumeric(Texto(kTemperatura)) && !EnBlanco(Texto(kTemperatura))) {
        return Rechazar("Por favor ingrese la Temperatura del material.", kTemperatura);
    }
    return true;
}

bool ModeloInsertarMaterial::Rechazar(const char* texto, int caja) {
    Avisar(texto, Icono::Exclamacion);
    mFoco = caja;
    return false;
}

FilaMaterial ModeloInsertarMaterial::Fila() const {
    FilaMaterial fila;
    fila.Codigo = CLng(Val(Texto(kCodigo)));
    fila.Descripcion = Texto(kDescripcion);
    fila.Emisividad = Val(Texto(kEmisividad));
    if (!EnBlanco(Texto(kTemperatura))) {
        fila.Temperatura = Val(Texto(kTemperatura));
    }
    return fila;
}

void ModeloInsertarMaterial::Avisar(const std::string& texto, Icono icono) {
    Mensaje mensaje;
    mensaje.texto = texto;
    mensaje.icono = icono;
    mensaje.titulo = kTituloAplicacion;
    mEntorno.prompter.MsgBox(mensaje);
}

void ModeloInsertarMaterial::AvisarError(const RuntimeError& error) {
    Avisar("Error inesperado: " + error.description, Icono::Critico);
}

}  // namespace kelvora
