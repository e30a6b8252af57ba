#include "core/entry/modeloentrada.h"

#include "core/entry/consultaemisividad.h"
#include "core/entry/filtroteclas.h"
#include "core/entry/llamadacalculo.h"
#include "core/entry/textoayuda.h"
#include "core/entry/validarentrada.h"
#include "core/runtime/formato.h"
#include "core/runtime/numeros.h"
#include "core/runtime/runtimeerror.h"
#include "core/runtime/texto.h"
#include "core/units/convertircampo.h"

#include <algorithm>

namespace kelvora {

namespace {

constexpr int32_t kEstadoIncompleto = 0;
constexpr int32_t kEstadoLeido = 1;
constexpr int32_t kEstadoCambiado = 2;

// The window's routines go on with their next step when one fails.
template <class Paso>
void Seguir(Paso&& paso) {
    try {
        paso();
    } catch (const RuntimeError&) {
    }
}

std::string Formateado(double valor, const char* patron) {
    std::string texto = Format(valor, patron);
    return NormalizarDecimal(texto);
}

}  // namespace

std::string ListaUnidades::Text() const {
    if (ListIndex < 0 || ListIndex >= static_cast<int>(entradas.size())) {
        return "";
    }
    return entradas[static_cast<size_t>(ListIndex)];
}

ModeloEntrada::ModeloEntrada(const DescripcionEntrada& ventana, EntornoEntrada entorno)
    : mVentana(ventana), mEntorno(std::move(entorno)), mCaption(ventana.caption) {
    CrearControles();
    LimpiarDatos();
    for (int i = 1; i <= mVentana.Cajas(); ++i) {
        if (TieneLista(i)) {
            FijarUnidad(i, mUnit.getIndexUnit(mVentana.Campo(i).unidadInicial) - 1);
        }
    }
}

void ModeloEntrada::CrearControles() {
    mCajas.resize(static_cast<size_t>(mVentana.Cajas()));
    mListas.resize(mCajas.size());
    mConsultar.resize(mVentana.materiales.size());
    for (int i = 1; i <= mVentana.Cajas(); ++i) {
        const CampoEntrada& campo = mVentana.Campo(i);
        CajaMutable(i).ToolTipText = campo.toolTip;
        CajaMutable(i).Tag = campo.codigo ? campo.toolTip : "";
        ListaMutable(i).entradas = mUnit.getUnits(NombreFamilia(campo.lista));
        mOrdenTabulacion.push_back({TipoControl::Caja, i});
        if (TieneLista(i)) {
            mOrdenTabulacion.push_back({TipoControl::Lista, i});
        }
        for (size_t k = 0; k < mVentana.materiales.size(); ++k) {
            if (mVentana.materiales[k].cajaCodigo == i) {
                mOrdenTabulacion.push_back({TipoControl::Consultar, static_cast<int>(k) + 1});
            }
        }
    }
    mOrdenTabulacion.push_back({TipoControl::Aceptar});
    mOrdenTabulacion.push_back({TipoControl::Cancelar});
    mOrdenTabulacion.push_back({TipoControl::Graficar});
}

const CajaTexto& ModeloEntrada::Caja(int i) const {
    mVentana.Campo(i);
    return mCajas[static_cast<size_t>(i - 1)];
}

CajaTexto& ModeloEntrada::CajaMutable(int i) {
    mVentana.Campo(i);
    return mCajas[static_cast<size_t>(i - 1)];
}

bool ModeloEntrada::TieneLista(int i) const {
    return mVentana.Campo(i).lista != FamiliaLista::Ninguna;
}

const ListaUnidades& ModeloEntrada::Lista(int i) const {
    mVentana.Campo(i);
    return mListas[static_cast<size_t>(i - 1)];
}

ListaUnidades& ModeloEntrada::ListaMutable(int i) {
    mVentana.Campo(i);
    return mListas[static_cast<size_t>(i - 1)];
}

const BotonConsultar& ModeloEntrada::cmdConsultarMaterial(int k) const {
    return mConsultar.at(static_cast<size_t>(k - 1));
}

void ModeloEntrada::SetTexto(int i, std::string texto) {
    CajaTexto& caja = CajaMutable(i);
    if (caja.Text == texto) {
        return;
    }
    caja.Text = std::move(texto);
    caja.SelStart = 0;
    caja.SelLength = 0;
    txtValor_Change(i);
}

void ModeloEntrada::SetSeleccion(int i, int inicio, int largo) {
    CajaTexto& caja = CajaMutable(i);
    caja.SelStart = std::clamp(inicio, 0, Len(caja.Text));
    caja.SelLength = std::clamp(largo, 0, Len(caja.Text) - caja.SelStart);
}

// Code sets a list's entry without a user's click: its Tag follows the entry. A click would
// convert the box, but wherever code sets a list its box is empty.
void ModeloEntrada::FijarUnidad(int i, int indice) {
    ListaUnidades& lista = ListaMutable(i);
    lista.ListIndex = indice >= 0 && indice < static_cast<int>(lista.entradas.size()) ? indice : -1;
    lista.Tag = lista.Text();
}

void ModeloEntrada::SeleccionarUnidad(int i, int indice) {
    ListaMutable(i).ListIndex = indice;
    cboUnidad_Click(i);
}

void ModeloEntrada::SeleccionarUnidad(int i, const std::string& unidad) {
    const std::vector<std::string>& entradas = Lista(i).entradas;
    for (size_t k = 0; k < entradas.size(); ++k) {
        if (IgualTexto(entradas[k], unidad)) {
            SeleccionarUnidad(i, static_cast<int>(k));
            return;
        }
    }
}

void ModeloEntrada::cboUnidad_Click(int i) {
    ListaUnidades& lista = ListaMutable(i);
    if (mEntorno.contexto.ConversionAutomatica) {
        SetTexto(i, ConvertirCampo(Texto(i), lista.Tag, lista.Text(), mEntorno.prompter));
    }
    lista.Tag = lista.Text();
}

void ModeloEntrada::txtValor_KeyPress(int i, int KeyAscii) {
    CajaTexto& caja = CajaMutable(i);
    const ResultadoTecla resultado = FiltrarTecla(mVentana, i, KeyAscii, caja.Text, caja.SelStart,
                                                  Lista(i).Text(), caja.SelLength);
    const bool cambio = resultado.texto != caja.Text;
    caja.Text = resultado.texto;
    caja.SelStart = resultado.caret;
    caja.SelLength = 0;
    if (cambio) {
        txtValor_Change(i);
    }
    for (int tab = 0; tab < resultado.tabs; ++tab) {
        EnviarTab();
    }
}

void ModeloEntrada::Teclear(int i, std::string_view texto) {
    for (const char32_t caracter : Caracteres(texto)) {
        txtValor_KeyPress(i, static_cast<int>(caracter));
    }
}

void ModeloEntrada::cboUnidad_KeyPress(int, int KeyAscii) {
    if (KeyAscii == kTeclaEnter) {
        EnviarTab();
    }
}

void ModeloEntrada::EstablecerFoco(Control control) {
    mActivo = control;
    if (control.tipo == TipoControl::Caja) {
        txtValor_GotFocus(control.indice);
    } else {
        mEstado.clear();
    }
}

bool ModeloEntrada::Habilitado(Control control) const {
    const bool calcular =
            control.tipo == TipoControl::Aceptar || control.tipo == TipoControl::Graficar;
    return !calcular || mCompleto;
}

void ModeloEntrada::EnviarTab() {
    const auto actual = std::find(mOrdenTabulacion.begin(), mOrdenTabulacion.end(), mActivo);
    size_t posicion = actual == mOrdenTabulacion.end()
                              ? mOrdenTabulacion.size() - 1
                              : static_cast<size_t>(actual - mOrdenTabulacion.begin());
    for (size_t paso = 0; paso < mOrdenTabulacion.size(); ++paso) {
        posicion = (posicion + 1) % mOrdenTabulacion.size();
        if (Habilitado(mOrdenTabulacion[posicion])) {
            EstablecerFoco(mOrdenTabulacion[posicion]);
            return;
        }
    }
}

// A visit refreshes the material and the enabling, but is no change of the data.
void ModeloEntrada::txtValor_GotFocus(int i) {
    SetSeleccion(i, 0, Len(Texto(i)));
    mEstado = TextoAyudaCampo(mVentana.nombre, i);
    const int32_t estado = mFileState;
    txtValor_Change(i);
    mFileState = estado;
}

void ModeloEntrada::txtValor_Change(int i) {
    for (const BotonMaterial& boton : mVentana.materiales) {
        if (boton.cajaCodigo == i) {
            CambioCodigo(boton);
        }
    }
    ActualizarEstadoDatos();
}

std::string& ModeloEntrada::NombreMaterial(const BotonMaterial& boton) {
    return boton.desnuda ? mNombreMaterialDesnuda : mNombreMaterialAislamiento;
}

// A code is looked up whenever the database is there, whatever LeerEmisividadBD says.
void ModeloEntrada::CambioCodigo(const BotonMaterial& boton) {
    const std::string codigo = Texto(boton.cajaCodigo);
    Seguir([&] {
        if (Trim(codigo).empty()) {
            SetTexto(boton.cajaEmisividad, "");
        }
    });
    Seguir([&] {
        if (Val(codigo) == 0 && mEntorno.contexto.LeerEmisividadBD) {
            SetTexto(boton.cajaEmisividad, "");
        }
    });
    Seguir([&] {
        if (IsNumeric(codigo) && Val(codigo) != 0 && mEntorno.contexto.BDDisponible) {
            std::string emisividad = Texto(boton.cajaEmisividad);
            const std::string nombre =
                    mEntorno.materiales.LeerMaterial(CLng(Val(codigo)), emisividad);
            NombreMaterial(boton) = nombre;
            SetTexto(boton.cajaEmisividad, emisividad);
            MostrarMaterial(boton, nombre);
        } else {
            OcultarMaterial(boton);
        }
    });
}

void ModeloEntrada::MostrarMaterial(const BotonMaterial& boton, const std::string& nombre) {
    mEstado = boton.prefijoEstado + nombre;
    CajaMutable(boton.cajaCodigo).ToolTipText = boton.prefijoToolTip + nombre;
}

void ModeloEntrada::OcultarMaterial(const BotonMaterial& boton) {
    mEstado = TextoAyudaCampo(mVentana.nombre, boton.cajaCodigo);
    CajaTexto& caja = CajaMutable(boton.cajaCodigo);
    caja.ToolTipText = caja.Tag;
    NombreMaterial(boton).clear();
}

bool ModeloEntrada::DatosCompletos() const {
    for (int i = 1; i <= mVentana.Cajas(); ++i) {
        if (!mVentana.Campo(i).opcional && !IsNumeric(Texto(i))) {
            return false;
        }
    }
    return true;
}

void ModeloEntrada::ActualizarEstadoDatos() {
    mCompleto = DatosCompletos();
    mTag = mCompleto ? mVentana.tag : "0";
    mFileState = mCompleto ? kEstadoCambiado : kEstadoIncompleto;
    if (mCompleto) {
        Seguir([&] { GuardarVariables(); });
    }
    if (mEntorno.Actualizar) {
        mEntorno.Actualizar();
    }
}

// The store is rebuilt from the boxes, so that it never keeps a value the boxes no longer hold.
void ModeloEntrada::GuardarVariables() {
    mUnit.ResetVariables();
    for (int i = 1; i <= mVentana.Cajas(); ++i) {
        const CampoEntrada& campo = mVentana.Campo(i);
        mUnit.AddVariable(campo.variable, Val(Texto(i)),
                          TieneLista(i) ? Lista(i).Text() : std::string(campo.unidadFija));
    }
}

void ModeloEntrada::LimpiarDatos() {
    for (int i = 1; i <= mVentana.Cajas(); ++i) {
        SetTexto(i, "");
    }
    for (int i = 1; i <= mVentana.Cajas(); ++i) {
        if (!Lista(i).entradas.empty()) {
            FijarUnidad(i, 1);
        }
    }
    mEstado.clear();
}

void ModeloEntrada::MostrarValor(int i, const char* patron) {
    const CampoEntrada& campo = mVentana.Campo(i);
    const double valor = mUnit.getValueVariable(campo.variable);
    if (!campo.opcional || valor != 0) {
        SetTexto(i, Formateado(valor, patron));
    }
}

void ModeloEntrada::ShowVariables() {
    Seguir([&] { LimpiarDatos(); });
    Seguir([&] { Activar(); });
    for (int i = 1; i <= mVentana.Cajas(); ++i) {
        if (TieneLista(i)) {
            Seguir([&] {
                FijarUnidad(
                        i,
                        mUnit.getIndexUnit(mUnit.getUnitVariable(mVentana.Campo(i).variable)) - 1);
            });
        }
    }
    for (int i = 1; i <= mVentana.Cajas(); ++i) {
        if (mVentana.MaterialDeCaja(i) == nullptr) {
            Seguir([&] { MostrarValor(i, "0.0#"); });
        }
    }
    // The emissivity goes first: writing the code may replace or empty it.
    for (const BotonMaterial& boton : mVentana.materiales) {
        Seguir([&] { MostrarValor(boton.cajaEmisividad, "0.0##"); });
        Seguir([&] {
            std::string codigo =
                    TextoNumero(mUnit.getValueVariable(mVentana.Campo(boton.cajaCodigo).variable));
            SetTexto(boton.cajaCodigo, NormalizarDecimal(codigo));
        });
    }
    mEstado.clear();
    mFileState = kEstadoLeido;
}

void ModeloEntrada::CaptionsConsultar() {
    const bool consultar = mEntorno.contexto.BDDisponible && mEntorno.contexto.LeerEmisividadBD;
    for (BotonConsultar& boton : mConsultar) {
        boton.Caption = consultar ? "C&onsultar" : "&Leer";
        boton.ToolTipText = consultar ? "Consultar Emisividad" : "Leer Emisividad";
    }
}

void ModeloEntrada::Activar() {
    ContextoAplicacion& contexto = mEntorno.contexto;
    Seguir([&] { contexto.BDDisponible = mEntorno.materiales.ExisteBaseDatos(); });
    Seguir([&] {
        if (contexto.BDDisponible) {
            mEntorno.materiales.AbrirConexion();
        }
    });
    Seguir([&] {
        const BotonMaterial* boton = mActivo.tipo == TipoControl::Caja
                                             ? mVentana.MaterialDeCaja(mActivo.indice)
                                             : nullptr;
        if (boton != nullptr) {
            txtValor_Change(boton->cajaCodigo);
        }
    });
    CaptionsConsultar();
    if (mFileState != kEstadoLeido) {
        ActualizarEstadoDatos();
    }
    if (mEntorno.Actualizar) {
        mEntorno.Actualizar();
    }
}

bool ModeloEntrada::ValidarDatos() {
    return ValidarEntrada(*this);
}

void ModeloEntrada::tbrProducto_ButtonMenuClick(const std::string& clave) {
    for (const ProductoMenu& producto : mVentana.productos) {
        if (IgualTexto(producto.clave, clave)) {
            mProducto = producto.texto;
            mTipoAnalisis = CLng(Val(producto.clave));
            ActualizarEstadoDatos();
            return;
        }
    }
}

void ModeloEntrada::cmdConsultarMaterial_Click(int k) {
    ConsultarEmisividad(*this, k);
}

bool ModeloEntrada::cmdAceptar_Click(DestinoResultados& destino) {
    EstablecerFoco({TipoControl::Aceptar});
    mEntorno.bomba.DoEvents();
    if (!ValidarDatos()) {
        return false;
    }
    ModeloResultados& resultados = destino.NuevaVentanaResultados(mVentana.resultados);
    resultados.SetTipoAnalisis(mTipoAnalisis);
    const LlamadaCalculo llamada = PrepararLlamada(*this);
    bool bien = false;
    Seguir([&] { bien = RealizarLlamada(llamada, resultados, destino.Tubos()); });
    if (!bien) {
        destino.DescargarVentanaResultados(resultados);
    }
    return bien;
}

void ModeloEntrada::Form_Unload() {
    Seguir([&] { mEntorno.materiales.CerrarConexion(); });
    mUnit.ResetVariables();
}

}  // namespace kelvora
