#include "core/materials/modeloconsultamateriales.h"

#include "core/materials/conexion.h"
#include "core/materials/recordset.h"
#include "core/materials/sentencias.h"
#include "core/runtime/numeros.h"
#include "core/runtime/runtimeerror.h"

#include <algorithm>
#include <utility>

namespace kelvora {

namespace {

// The code boxes of a bare surface: the flat windows, hot and cold.
bool CajaDesnuda(int16_t modo) {
    return modo == 7 || modo == 10;
}

}  // namespace

ModeloConsultaMateriales::ModeloConsultaMateriales(EntornoConsulta entorno)
    : mEntorno(std::move(entorno)) {
    Form_Load();
}

void ModeloConsultaMateriales::Form_Load() {
    mFormulario = FormularioConsulta();
    mGrilla = GrillaMateriales();
    mMostrarTodoVisible = true;
    mBotonesHabilitados = false;
    mRow = 0;
    mRowSel = 0;
}

void ModeloConsultaMateriales::AbrirParaSeleccion(LlamadorConsulta* llamador, int16_t caja) {
    mLlamador = llamador;
    mModo = caja;
    AbrirMantenimiento();
}

// The entry windows set Reiniciar on first use; the menu does the same, so that the maintenance
// list opens with every material, the default list of mode 0.
void ModeloConsultaMateriales::AbrirMantenimiento() {
    if (!mReiniciar.has_value()) {
        mReiniciar = true;
    }
}

void ModeloConsultaMateriales::OlvidarLlamador(const LlamadorConsulta* llamador) {
    if (mLlamador == llamador) {
        mLlamador = nullptr;
    }
}

void ModeloConsultaMateriales::SetSeleccion(int row, int rowSel) {
    const int ultima = mGrilla.Rows() - 1;
    mRow = std::clamp(row, 0, ultima);
    mRowSel = std::clamp(rowSel, 0, ultima);
}

void ModeloConsultaMateriales::ExecuteSQL(const std::string& sql) {
    if (sql.empty()) {
        return;
    }
    try {
        LlenarGrilla(sql);
    } catch (const RuntimeError& error) {
        AvisarError(error);
    }
}

void ModeloConsultaMateriales::LlenarGrilla(const std::string& sql) {
    // A copy: the statement may be the remembered one, which this run replaces.
    const std::string sentencia = sql;
    mGrilla = GrillaMateriales();
    SetSeleccion(0, 0);
    Conexion conexion;
    conexion.Open(mEntorno.contexto.CadenaConexion);
    Recordset materiales;
    materiales.Open(sentencia, conexion, TipoCursor::SoloAdelante);
    mSentencia = sentencia;
    if (materiales.Bof() && materiales.Eof()) {
        Avisar("No se encontró ningún registro bajo estos parámetros.", Icono::Informacion);
        mSentencia.clear();
    }
    for (; !materiales.Eof(); materiales.MoveNext()) {
        AgregarFilaMaterial(mGrilla, materiales);
    }
    mReiniciar = mGrilla.Rows() == 1;
    SetSeleccion(1, 1);
    materiales.Close();
    conexion.Close();
}

void ModeloConsultaMateriales::cmdConsultar_Click() {
    mMostrarTodoVisible = false;
    ExecuteSQL(mFormulario.ConstruirSentencia());
}

void ModeloConsultaMateriales::cmdMostrarTodo_Click() {
    mMostrarTodoVisible = false;
    ExecuteSQL(kSqlListarMateriales);
}

std::string ModeloConsultaMateriales::SentenciaPredeterminada() const {
    if (mModo == 0) {
        return kSqlListarMateriales;
    }
    return CajaDesnuda(mModo) ? kSqlListarDesnudas : kSqlListarChaquetas;
}

void ModeloConsultaMateriales::Activar() {
    if (cmdConsultarEnabled() && mGrilla.Rows() > 1) {
        cmdConsultar_Click();
    } else if (mReiniciar.value_or(false)) {
        mMostrarTodoVisible = true;
        ExecuteSQL(SentenciaPredeterminada());
    } else {
        ExecuteSQL(mSentencia);
    }
    mBotonesHabilitados = true;
    if (mLlamador == nullptr) {
        mModo = 0;
    }
    if (mModo != 0) {
        mAceptarCaption = "&Aceptar";
        mAceptarToolTip = "Aceptar material seleccionado";
    } else {
        mAceptarCaption = "&Modificar";
        mAceptarToolTip = "Modificar material seleccionado";
        mLlamador = nullptr;
    }
    SetSeleccion(1, 1);
}

bool ModeloConsultaMateriales::UnaFilaSeleccionada() const {
    return mRow == mRowSel && mRow != 0;
}

void ModeloConsultaMateriales::Aceptar() {
    if (mModo == 0) {
        Modificar();
        return;
    }
    if (!UnaFilaSeleccionada() || mLlamador == nullptr) {
        return;
    }
    LlamadorConsulta* llamador = mLlamador;
    llamador->PonerTexto(mModo, TextoNumero(Val(mGrilla.TextMatrix(mRow, 0))));
    mLlamador = nullptr;
    if (mEntorno.Cerrar) {
        mEntorno.Cerrar();
    }
}

void ModeloConsultaMateriales::Modificar() {
    if (!UnaFilaSeleccionada()) {
        return;
    }
    if (mEntorno.MostrarInsertarMaterial) {
        mEntorno.MostrarInsertarMaterial(CeldasDe(mGrilla, mRow));
    }
    Activar();
}

void ModeloConsultaMateriales::cmdNuevo_Click() {
    if (mEntorno.MostrarInsertarMaterial) {
        mEntorno.MostrarInsertarMaterial(std::nullopt);
    }
}

void ModeloConsultaMateriales::Eliminar() {
    const int desde = std::min(mRow, mRowSel);
    const int hasta = std::max(mRow, mRowSel);
    if (desde == 0) {
        return;
    }
    if (!Preguntar(
                std::string("¿Realmente desea eliminar ") +
                (desde == hasta ? "el material seleccionado?" : "los materiales seleccionados?"))) {
        return;
    }
    try {
        EliminarFilas(desde, hasta);
    } catch (const RuntimeError& error) {
        AvisarError(error);
        return;
    }
    // The query runs again: the form's when it can, else the statement that filled the grid.
    if (cmdConsultarEnabled()) {
        cmdConsultar_Click();
    } else {
        ExecuteSQL(mSentencia);
    }
}

void ModeloConsultaMateriales::EliminarFilas(int desde, int hasta) {
    Conexion conexion;
    conexion.Open(mEntorno.contexto.CadenaConexion);
    for (int fila = desde; fila <= hasta; ++fila) {
        const double codigo = Val(mGrilla.TextMatrix(fila, 0));
        if (codigo < kPrimerCodigoEliminable) {
            Avisar("Acceso denegado para eliminar el registro con código = " + TextoNumero(codigo),
                   Icono::Exclamacion);
            continue;
        }
        conexion.Execute(SqlEliminarMaterial(CLng(codigo)));
    }
    conexion.Close();
}

bool ModeloConsultaMateriales::Preguntar(const std::string& texto) {
    Mensaje mensaje;
    mensaje.texto = texto;
    mensaje.botones = Botones::SiNo;
    mensaje.icono = Icono::Pregunta;
    mensaje.titulo = kTituloAplicacion;
    return mEntorno.prompter.MsgBox(mensaje) == Respuesta::Si;
}

void ModeloConsultaMateriales::Avisar(const std::string& texto, Icono icono) {
    Mensaje mensaje;
    mensaje.texto = texto;
    mensaje.icono = icono;
    mensaje.titulo = kTituloAplicacion;
    mEntorno.prompter.MsgBox(mensaje);
}

void ModeloConsultaMateriales::AvisarError(const RuntimeError& error) {
    Avisar("Error inesperado: " + error.description, Icono::Critico);
}

}  // namespace kelvora
