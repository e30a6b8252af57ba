#include "core/datafile/leerarchivo.h"

#include "core/app/recientes.h"
#include "core/datafile/archivobytes.h"
#include "core/datafile/lecturadatos.h"
#include "core/datafile/validarvariables.h"
#include "core/runtime/runtimeerror.h"
#include "core/runtime/texto.h"

namespace kelvora {

namespace {

constexpr int16_t kLeidoDeArchivo = 1;

void MostrarError(Prompter& prompter, const std::string& texto, const std::string& titulo) {
    Mensaje mensaje;
    mensaje.texto = texto;
    mensaje.icono = Icono::Critico;
    mensaje.titulo = titulo;
    prompter.MsgBox(mensaje);
}

void Reciente(EntornoArchivos& entorno, const std::string& nombre) {
    if (entorno.AgregarReciente) {
        entorno.AgregarReciente(nombre);
    } else {
        AgregarArchivoReciente(entorno.ajustes, nombre);
    }
}

bool EntregarAVentana(const std::string& nombre, int16_t Tipo, EntornoArchivos& entorno,
                      const CrearVentanaDatos& crear) {
    const std::optional<VentanaEntrada> clase = VentanaEntradaDeTipo(Tipo);
    VentanaArchivo* ventana = clase ? crear(*clase, Tipo) : nullptr;
    if (ventana == nullptr || ventana->Unit() == nullptr) {
        return false;
    }
    classUnidades& Unidades = entorno.contexto.Unidades;
    ventana->Unit()->setVariables(Unidades);
    Unidades.ResetVariables();
    ventana->ShowVariables();
    ventana->SetFileState(kLeidoDeArchivo);
    ventana->SetFileName(nombre);
    Reciente(entorno, nombre);
    return true;
}

}  // namespace

std::optional<VentanaEntrada> VentanaEntradaDeTipo(int16_t Tipo) {
    if (Tipo >= 1 && Tipo <= 7) {
        return VentanaEntrada::SuperficiesPlanas;
    }
    if (Tipo >= 8 && Tipo <= 12) {
        return VentanaEntrada::SuperficiesCilindricas;
    }
    if (Tipo == 13) {
        return VentanaEntrada::SuperficiesPlanasFrio;
    }
    if (Tipo == 14) {
        return VentanaEntrada::SuperficiesCilindricasFrio;
    }
    return std::nullopt;
}

bool LeerArchivo(const std::string& nombre, EntornoArchivos& entorno,
                 const CrearVentanaDatos& crear) {
    classUnidades& Unidades = entorno.contexto.Unidades;
    try {
        const int16_t Tipo = LeerDatosArchivo(LeerBytesArchivo(nombre), Unidades, entorno.prompter);
        return ValidarVariablesArchivo(Tipo, Unidades, entorno.prompter) &&
               EntregarAVentana(nombre, Tipo, entorno, crear);
    } catch (const RuntimeError& error) {
        MostrarError(entorno.prompter, "Error: " + error.description, kTituloAplicacion);
        Reciente(entorno, "");
        return false;
    }
}

void AbrirArchivo(EntornoArchivos& entorno, DialogosArchivo& dialogos,
                  const CrearVentanaDatos& crear) {
    try {
        const std::optional<std::string> nombre =
                dialogos.Abrir({kFiltroDatos, "", entorno.contexto.RutaAplicacion});
        if (nombre && !nombre->empty()) {
            LeerArchivo(Trim(*nombre), entorno, crear);
        }
    } catch (const RuntimeError& error) {
        MostrarError(entorno.prompter, "Error inesperado: " + error.description, kTituloAplicacion);
    }
}

}  // namespace kelvora
