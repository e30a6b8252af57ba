#include "core/economics/modeloeconomico.h"

#include "core/app/contexto.h"
#include "core/platform/clock.h"
#include "core/platform/eventpump.h"
#include "core/platform/prompter.h"
#include "core/runtime/formato.h"
#include "core/runtime/numeros.h"
#include "core/runtime/runtimeerror.h"
#include "core/runtime/texto.h"
#include "core/units/convertircampo.h"

namespace kelvora {

namespace {

constexpr char32_t kRetroceso = 8;
constexpr char32_t kIntro = 13;
constexpr double kHorasAnio = 8760;
constexpr double kEficienciaMaxima = 100;
constexpr const char* kEficienciaVacia = "100";
constexpr const char* kFormatoMonto = "0,000.0#";

std::string NombreControl(const char* nombre, int indice) {
    return std::string(nombre) + "_" + std::to_string(indice);
}

bool EsDigito(char32_t tecla) {
    return tecla >= U'0' && tecla <= U'9';
}

// Numbers written into boxes carry the point whatever the locale.
std::string TextoCaja(double valor) {
    std::string texto = TextoNumero(valor);
    return NormalizarDecimal(texto);
}

// Lowers the guard however the writing of the results ends.
class Guarda {
public:
    explicit Guarda(bool& guarda) : mGuarda(guarda) { mGuarda = true; }
    ~Guarda() { mGuarda = false; }
    Guarda(const Guarda&) = delete;
    Guarda& operator=(const Guarda&) = delete;

private:
    bool& mGuarda;
};

}  // namespace

ModeloEconomico::ModeloEconomico(TipoEconomico tipo, const ContextoAplicacion& contexto,
                                 Prompter& prompter, EventPump& bomba, Clock& reloj)
    : mVentana(DescripcionEconomica(tipo)),
      mContexto(contexto),
      mPrompter(prompter),
      mBomba(bomba),
      mReloj(reloj),
      mQSD(static_cast<size_t>(mVentana.Orientaciones()), 0.0),
      mQSA(mQSD) {
    Form_Load();
}

void ModeloEconomico::Form_Load() {
    CrearControles();
    LimpiarDatosAnalisis();
    SeleccionarCombustible(0);
}

void ModeloEconomico::CrearControles() {
    for (const CajaEconomica& caja : mVentana.Entradas()) {
        mCajas[caja.indice] = {"", true, caja.toolTip};
        mEtiquetas[caja.indice] = {caja.etiqueta, true};
    }
    for (const CajaEconomica& caja : mVentana.resultados) {
        mCajas[caja.indice] = {"", false, caja.toolTip};
        mEtiquetas[caja.indice] = {caja.etiqueta, false};
    }
    mEtiquetas[mVentana.indiceHoras] = {"Horas trabajadas por el &equipo en el año:", true};
    mEtiquetas[mVentana.indiceCombustible] = {"Combustible &utilizado:", true};
    for (const CajaEconomica& caja : mVentana.dimensiones) {
        mUnidades[caja.indice] = {mContexto.Unidades.getUnits(mVentana.familia), -1, "", "",
                                  std::string("Unidades de ") + mVentana.familia};
    }
    // The currency list keeps the tool tip of a length list.
    mUnidades[mVentana.valor.indice] = {Monedas(), -1, "", "", "Unidades de Longitud"};
    mHoras = {HorasTrabajadas(), -1, "", "", "Horas trabajadas por el equipo en el año"};
    for (const Combustible& combustible : TablaCombustibles()) {
        mCombustible.entradas.emplace_back(combustible.nombre);
    }
    mCombustible.ToolTipText = "Combustible utilizado";
}

// The hours list goes through here like the unit lists, to the same entry.
void ModeloEconomico::LimpiarDatosAnalisis() {
    for (auto& [indice, caja] : mCajas) {
        Escribir(indice, "");
    }
    const int entrada = mVentana.entradaInicial - 1;
    for (const CajaEconomica& caja : mVentana.dimensiones) {
        SeleccionarUnidad(caja.indice, entrada);
    }
    SeleccionarUnidad(mVentana.valor.indice, 0);
    SeleccionarHoras(entrada);
    mEstado.clear();
}

void ModeloEconomico::setVariables(const ValoresAnalisis& valores) {
    mTipoAnalisis = valores.TipoAnalisis;
    for (size_t o = 0; o < mQSD.size(); ++o) {
        mQSD[o] = o < valores.QSD.size() ? valores.QSD[o] : 0.0;
        mQSA[o] = o < valores.QSA.size() ? valores.QSA[o] : 0.0;
    }
    mValores = valores.informe;
}

double ModeloEconomico::QSD(int orientacion) const {
    return mQSD.at(static_cast<size_t>(orientacion));
}

double ModeloEconomico::QSA(int orientacion) const {
    return mQSA.at(static_cast<size_t>(orientacion));
}

void ModeloEconomico::SetText(int indice, const std::string& texto) {
    Escribir(indice, texto);
}

void ModeloEconomico::Escribir(int indice, const std::string& texto) {
    CajaAnalisis& caja = mCajas.at(indice);
    if (caja.Text == texto) {
        return;
    }
    caja.Text = texto;
    ActualizarEstadoAnalisis();
}

void ModeloEconomico::Habilitar(int indice, bool habilitar) {
    mCajas.at(indice).Enabled = habilitar;
    mEtiquetas.at(indice).Enabled = habilitar;
}

void ModeloEconomico::txtValor_GotFocus(int indice) {
    mFoco = NombreControl("txtValor", indice);
    if (indice == mVentana.eficiencia.indice && mCajas.at(indice).Text.empty()) {
        Escribir(indice, kEficienciaVacia);
    }
    const Combustible* combustible = CombustibleActual();
    mEstado = AyudaEconomica(mVentana, indice, combustible != nullptr ? combustible->palabra : "");
}

TeclaEconomica ModeloEconomico::txtValor_KeyPress(int indice, char32_t tecla, int cursor) {
    TeclaEconomica r{tecla, mCajas.at(indice).Text, cursor, false};
    if (tecla == kIntro) {
        r.tecla = 0;
        r.tabulador = EsNombre(indice) ? !Trim(r.texto).empty() : IsNumeric(r.texto);
    } else if (EsNombre(indice) || EsDigito(tecla) || tecla == kRetroceso) {
        return r;
    } else if (tecla == U'.' || tecla == U',') {
        r.tecla = U'.';
        if (r.texto.empty()) {
            r.texto = "0";
            r.cursor = 1;
            Escribir(indice, r.texto);
        } else if (r.texto.find('.') != std::string::npos) {
            r.tecla = 0;
        }
    } else {
        r.tecla = 0;
    }
    return r;
}

void ModeloEconomico::SeleccionarUnidad(int indice, int entrada) {
    Seleccionar(mUnidades.at(indice), entrada);
    cboUnidad_Click(indice);
}

// A change of unit or currency with a result shown computes it again at once; the currency
// has no conversion, so its amounts keep their numbers under the new symbol.
void ModeloEconomico::cboUnidad_Click(int indice) {
    ListaAnalisis& lista = mUnidades.at(indice);
    if (indice != mVentana.valor.indice && mContexto.ConversionAutomatica) {
        Escribir(indice, ConvertirCampo(mCajas.at(indice).Text, lista.Tag, lista.Text, mPrompter));
    }
    lista.Tag = lista.Text;
    if (mAceptarHabilitado && mResultadosHabilitados) {
        cmdAceptar_Click();
    }
}

void ModeloEconomico::Seleccionar(ListaAnalisis& lista, int entrada) {
    lista.ListIndex =
            entrada >= 0 && entrada < static_cast<int>(lista.entradas.size()) ? entrada : -1;
    lista.Text = lista.ListIndex >= 0 ? lista.entradas[static_cast<size_t>(entrada)] : "";
}

void ModeloEconomico::SetHoras(const std::string& texto) {
    if (mHoras.Text == texto) {
        return;
    }
    mHoras.Text = texto;
    mHoras.ListIndex = -1;
    for (size_t i = 0; i < mHoras.entradas.size(); ++i) {
        if (mHoras.entradas[i] == texto) {
            mHoras.ListIndex = static_cast<int>(i);
        }
    }
    cboHorasTrabajadas_Change();
}

void ModeloEconomico::SeleccionarHoras(int entrada) {
    Seleccionar(mHoras, entrada);
    cboHorasTrabajadas_Change();
}

// A number of hours beyond the 32-bit range leaves the status label as it was.
void ModeloEconomico::cboHorasTrabajadas_Change() {
    if (IsNumeric(mHoras.Text)) {
        try {
            mEstado = CicloOperacion(CLng(Val(mHoras.Text)));
        } catch (const RuntimeError&) {
        }
    } else {
        mEstado = AyudaEconomica(mVentana, mVentana.indiceHoras, "");
    }
    ActualizarEstadoAnalisis();
}

TeclaEconomica ModeloEconomico::cboHorasTrabajadas_KeyPress(char32_t tecla) {
    TeclaEconomica r{tecla, mHoras.Text, 0, false};
    if (tecla == kIntro) {
        r.tecla = 0;
        r.tabulador = IsNumeric(mHoras.Text);
    } else if (!EsDigito(tecla) && tecla != kRetroceso) {
        r.tecla = 0;
    }
    return r;
}

void ModeloEconomico::SeleccionarCombustible(int entrada) {
    Seleccionar(mCombustible, entrada);
    cboCombustibleUtilizado_Click();
}

void ModeloEconomico::cboCombustibleUtilizado_GotFocus() {
    mFoco = "cboCombustibleUtilizado";
    mEstado = "Combustible utilizado: " + mCombustible.Text;
}

void ModeloEconomico::OtroControl_GotFocus() {
    mEstado.clear();
}

void ModeloEconomico::cboCombustibleUtilizado_Click() {
    const Combustible* combustible = CombustibleActual();
    if (combustible == nullptr) {
        return;
    }
    mEstado = "Combustible utilizado: " + mCombustible.Text;
    const int nombre = mVentana.nombreCombustible.indice;
    const int poder = mVentana.poder.indice;
    Habilitar(nombre, combustible->escrito);
    Habilitar(poder, combustible->escrito);
    if (combustible->escrito) {
        Escribir(nombre, "");
        Escribir(poder, "");
        txtValor_GotFocus(nombre);
    } else {
        Escribir(nombre, combustible->nombre);
        Escribir(poder, TextoCaja(combustible->poderCalorifico));
    }
    mEtiquetas.at(mVentana.valor.indice).Caption = EtiquetaValor(*combustible);
    mEtiquetas.at(poder).Caption = EtiquetaPoder(*combustible);
}

const Combustible* ModeloEconomico::CombustibleActual() const {
    if (mCombustible.ListIndex < 0) {
        return nullptr;
    }
    return &TablaCombustibles().at(static_cast<size_t>(mCombustible.ListIndex));
}

void ModeloEconomico::Activar() {
    if (!mAceptarHabilitado) {
        ActualizarEstadoAnalisis();
    }
    if (mActualizar) {
        mActualizar();
    }
}

void ModeloEconomico::ActualizarEstadoAnalisis() {
    mAceptarHabilitado = DatosFaltantes().empty();
    LimpiarResultados(false);
    const bool hayResultado = !mCajas.at(mVentana.resultados.front().indice).Text.empty();
    mTag = mAceptarHabilitado && hayResultado ? mVentana.tag : "0";
    if (mActualizar) {
        mActualizar();
    }
}

std::vector<std::string> ModeloEconomico::DatosFaltantes() const {
    std::vector<std::string> faltantes;
    for (const CajaEconomica& caja : mVentana.Entradas()) {
        const std::string& texto = mCajas.at(caja.indice).Text;
        if (EsNombre(caja.indice) ? texto.empty() : !IsNumeric(texto)) {
            faltantes.emplace_back(caja.toolTip);
        }
    }
    if (!IsNumeric(mHoras.Text)) {
        faltantes.push_back(mHoras.ToolTipText);
    }
    if (mCombustible.ListIndex < 0) {
        faltantes.push_back(mCombustible.ToolTipText);
    }
    return faltantes;
}

bool ModeloEconomico::EsNombre(int indice) const {
    return indice == mVentana.nombreCombustible.indice;
}

bool ModeloEconomico::EsResultado(int indice) const {
    for (const CajaEconomica& caja : mVentana.resultados) {
        if (caja.indice == indice) {
            return true;
        }
    }
    return false;
}

// While the guard stands, the results being written are not wiped by their own change events.
void ModeloEconomico::LimpiarResultados(bool habilitar) {
    if (mGuarda && !habilitar) {
        return;
    }
    for (auto& [indice, caja] : mCajas) {
        if (!EsResultado(indice)) {
            continue;
        }
        if (!habilitar) {
            caja.Text.clear();
        }
        caja.Enabled = habilitar;
        mEtiquetas.at(indice).Enabled = habilitar;
    }
    mResultadosHabilitados = habilitar;
}

void ModeloEconomico::cmdAceptar_Click() {
    mFoco = "cmdAceptar";
    if (!mBomba.DoEvents() || !Comprobar()) {
        return;
    }
    std::optional<RuntimeError> error;
    try {
        Calcular();
    } catch (const RuntimeError& e) {
        error = e;
    }
    mFecha = mReloj.Hoy();
    if (error) {
        Avisar("Error inesperado: " + error->description);
    }
}

bool ModeloEconomico::Comprobar() {
    if (!ComprobarDimensiones()) {
        return false;
    }
    const double horas = Val(Trim(mHoras.Text));
    if (horas <= 0 || horas > kHorasAnio) {
        return Rechazar(
                "El Número de horas trabajadas por el equipo en el año debe estar en el "
                "rango [1, 8760].",
                "cboHorasTrabajadas");
    }
    const Combustible* combustible = CombustibleActual();
    if (combustible == nullptr) {
        return Rechazar("Por favor seleccione el combustible utilizado.",
                        "cboCombustibleUtilizado");
    }
    const int nombre = mVentana.nombreCombustible.indice;
    if (combustible->escrito && Trim(mCajas.at(nombre).Text).empty()) {
        return Rechazar("Por favor ingrese el Nombre del combustible utilizado.",
                        NombreControl("txtValor", nombre));
    }
    const CajaEconomica& valor = mVentana.valor;
    if (Val(Trim(mCajas.at(valor.indice).Text)) <= 0) {
        return Rechazar(std::string("El ") + valor.toolTip + " debe ser mayor que cero.",
                        NombreControl("txtValor", valor.indice));
    }
    // The message says 1, but 0 passes and fails later as a division by zero.
    const double eficiencia = Val(Trim(mCajas.at(mVentana.eficiencia.indice).Text));
    if (eficiencia < 0 || eficiencia > kEficienciaMaxima) {
        return Rechazar("La Eficiencia del Equipo debe estar en el rango [1, 100].",
                        NombreControl("txtValor", mVentana.eficiencia.indice));
    }
    return true;
}

bool ModeloEconomico::ComprobarDimensiones() {
    const std::string articulo = std::string(mVentana.articulo) + " ";
    const std::string inicial = std::string(mVentana.articuloInicial) + " ";
    for (const CajaEconomica& caja : mVentana.dimensiones) {
        const std::string texto = Trim(mCajas.at(caja.indice).Text);
        const std::string foco = NombreControl("txtValor", caja.indice);
        if (!IsNumeric(texto)) {
            return Rechazar("Por favor ingrese " + articulo + caja.toolTip + ".", foco);
        }
        if (Val(texto) <= 0) {
            return Rechazar(inicial + caja.toolTip + " debe ser mayor que cero.", foco);
        }
        if (mUnidades.at(caja.indice).ListIndex < 0) {
            return Rechazar("Por favor seleccione la unidad para " + articulo + caja.toolTip + ".",
                            NombreControl("cboUnidad", caja.indice));
        }
    }
    return true;
}

bool ModeloEconomico::Rechazar(const std::string& texto, const std::string& foco) {
    Avisar(texto);
    mFoco = foco;
    return false;
}

void ModeloEconomico::Avisar(const std::string& texto) {
    Mensaje mensaje;
    mensaje.texto = texto;
    mensaje.icono = Icono::Exclamacion;
    mensaje.titulo = kTituloAplicacion;
    mPrompter.MsgBox(mensaje);
}

// The areas go to "pie2", which Convert knows only under the catalogue's own spelling "pie²":
// taken literally, the list's own "pie²" would not convert to it. The target is therefore the
// catalogue entry that the symbol names.
std::string ModeloEconomico::UnidadCalculo() const {
    const classUnidades& unidades = mContexto.Unidades;
    const int indice = unidades.getIndexUnit(mVentana.unidadCalculo);
    return unidades.getUnits(mVentana.familia).at(static_cast<size_t>(indice - 1));
}

void ModeloEconomico::Calcular() {
    const DatosAhorro datos = DatosEntrada(mQSD, mQSA);
    CalcularAhorro(datos.dimensiones, datos.horas, datos.valor,
                   static_cast<int16_t>(mCombustible.ListIndex + 1), datos.poder,
                   mUnidades.at(mVentana.valor.indice).Text, datos.eficiencia);
}

DatosAhorro ModeloEconomico::DatosEntrada(const std::vector<double>& QSD,
                                          const std::vector<double>& QSA) const {
    const std::string unidad = UnidadCalculo();
    std::vector<double> dimensiones;
    for (const CajaEconomica& caja : mVentana.dimensiones) {
        dimensiones.push_back(mContexto.Unidades.Convert(Val(mCajas.at(caja.indice).Text),
                                                         mUnidades.at(caja.indice).Text, unidad));
    }
    return {QSD,
            QSA,
            std::move(dimensiones),
            Val(mHoras.Text),
            Val(mCajas.at(mVentana.valor.indice).Text),
            Val(mCajas.at(mVentana.poder.indice).Text),
            CSng(Val(mCajas.at(mVentana.eficiencia.indice).Text)),
            mVentana.ordenTotal};
}

void ModeloEconomico::CalcularAhorro(const std::vector<double>& dimensiones, double horas,
                                     double valor, int16_t, double poder, const std::string& moneda,
                                     float eficiencia) {
    DatosAhorro datos{mQSD,  mQSA,  dimensiones, horas,
                      valor, poder, eficiencia,  mVentana.ordenTotal};
    mMontos = CalcularMontos(datos);
    mDatos = std::move(datos);
    const std::string simbolo = mContexto.Unidades.getUnitCurrency(moneda);
    {
        const Guarda guarda(mGuarda);
        LimpiarResultados(true);
        for (size_t o = 0; o < mMontos.ahorro.size(); ++o) {
            Escribir(mVentana.resultados[o].indice, TextoMonto(mMontos.ahorro[o], simbolo));
        }
        Escribir(mVentana.resultados.back().indice, TextoMonto(mMontos.total, simbolo));
    }
    mMoneda = moneda;
    mEficiencia = eficiencia;
}

std::string ModeloEconomico::TextoMonto(double monto, const std::string& simbolo) const {
    return simbolo + Format(monto, kFormatoMonto);
}

}  // namespace kelvora
