#include "cli/calcular.h"

#include "cli/json.h"
#include "cli/prompterconsola.h"
#include "core/app/numeroventanalibre.h"
#include "core/datafile/leerarchivo.h"
#include "core/datafile/listadogrilla.h"
#include "core/entry/llamadacalculo.h"
#include "core/entry/materialesbd.h"
#include "core/entry/modeloentrada.h"
#include "core/entry/ventanadatosarchivo.h"
#include "core/materials/errorbd.h"
#include "core/materials/fuentetubosbd.h"
#include "core/platform/settingsmemoria.h"
#include "core/runtime/texto.h"

#include <CLI/CLI.hpp>
#include <array>
#include <charconv>
#include <filesystem>
#include <iostream>
#include <memory>
#include <optional>

namespace kelvora::cli {

namespace {

struct OpcionesCalcular {
    bool json = false;
    bool csv = false;
    bool sinBD = false;
    std::vector<std::string> archivos;
};

// "-" reads the project from standard input.
std::string RutaLectura(const std::string& archivo) {
    return archivo == "-" ? "/dev/stdin" : archivo;
}

std::string CarpetaEjecutable() {
    std::error_code error;
    const std::filesystem::path ejecutable = std::filesystem::read_symlink("/proc/self/exe", error);
    return error ? std::filesystem::current_path().string() : ejecutable.parent_path().string();
}

// No database file: no lookup, and a pipe table that cannot be read.
class MaterialesAusentes : public AccesoMateriales {
public:
    bool ExisteBaseDatos() override { return false; }
    void AbrirConexion() override {}
    std::string LeerMaterial(int32_t, std::string&) override { return ""; }
    void CerrarConexion() override {}
};

class TubosAusentes : public FuenteTubos {
public:
    explicit TubosAusentes(std::string archivo) : mArchivo(std::move(archivo)) {}
    std::optional<FilaTubos> BuscarTubo(double) override {
        throw ErrorBaseDatos("No se pudo encontrar el archivo '" + mArchivo + "'.");
    }

private:
    std::string mArchivo;
};

class DestinoCli : public DestinoResultados {
public:
    DestinoCli(const classUnidades& unidades, Prompter& prompter, EventPump& bomba,
               FuenteTubos& tubos)
        : mUnidades(unidades), mPrompter(prompter), mBomba(bomba), mTubos(tubos) {}

    ModeloResultados& NuevaVentanaResultados(TipoResultados tipo) override {
        mVentana = std::make_unique<ModeloResultados>(tipo, mUnidades, mPrompter, mBomba);
        return *mVentana;
    }
    void DescargarVentanaResultados(ModeloResultados&) override { mVentana.reset(); }
    FuenteTubos& Tubos() override { return mTubos; }

    const ModeloResultados* Ventana() const { return mVentana.get(); }

private:
    const classUnidades& mUnidades;
    Prompter& mPrompter;
    EventPump& mBomba;
    FuenteTubos& mTubos;
    std::unique_ptr<ModeloResultados> mVentana;
};

// A window's caption as the program numbers it: here it is the only window of its kind.
std::string CaptionNumerado(const std::string& caption) {
    const std::string base = Trim(caption) + " [";
    return base + std::to_string(NumeroVentanaLibre(base, {base})) + "]";
}

const char* NombreAnalisis(Analisis analisis) {
    switch (analisis) {
        case Analisis::SP:
            return "SP";
        case Analisis::SC:
            return "SC";
        case Analisis::SPFrio:
            return "SPFrio";
        case Analisis::SCFrio:
            break;
    }
    return "SCFrio";
}

// One data file opened in a window of its own and calculated, with everything it needs.
class CalculoArchivo {
public:
    CalculoArchivo(std::string archivo, const OpcionesCalcular& opciones);

    /// True when the results stand.
    bool Ejecutar();
    /// True when a window took the file and its data are complete.
    bool Abrir();
    /// "C&alcular": true when the results stand.
    bool Calcular();
    ArchivoAbierto Abierto();
    std::string ComoJson() const;
    std::string ComoCsv() const;
    std::string Listado() const;

private:
    VentanaArchivo* CrearVentana(int16_t Tipo);

    std::string mArchivo;
    ContextoAplicacion mContexto;
    PrompterConsola mPrompter;
    SettingsEnMemoria mAjustes;
    BombaSinVentana mBomba;
    std::unique_ptr<AccesoMateriales> mMateriales;
    std::unique_ptr<FuenteTubos> mTubos;
    std::unique_ptr<ModeloEntrada> mModelo;
    std::unique_ptr<VentanaDatosArchivo> mVentana;
    std::unique_ptr<DestinoCli> mDestino;
    bool mBien = false;
};

CalculoArchivo::CalculoArchivo(std::string archivo, const OpcionesCalcular& opciones)
    : mArchivo(std::move(archivo)), mPrompter(!opciones.json) {
    DerivarRutas(mContexto, CarpetaEjecutable());
    if (opciones.sinBD) {
        mMateriales = std::make_unique<MaterialesAusentes>();
        mTubos = std::make_unique<TubosAusentes>(mContexto.ArchivoBD);
    } else {
        mMateriales = std::make_unique<MaterialesBD>(mContexto);
        mTubos = std::make_unique<FuenteTubosBD>(mContexto.CadenaConexion);
    }
    mDestino = std::make_unique<DestinoCli>(mContexto.Unidades, mPrompter, mBomba, *mTubos);
}

VentanaArchivo* CalculoArchivo::CrearVentana(int16_t Tipo) {
    const DescripcionEntrada* descripcion = DescripcionParaProducto(Tipo);
    if (descripcion == nullptr) {
        return nullptr;
    }
    mModelo = std::make_unique<ModeloEntrada>(
            *descripcion, EntornoEntrada{mPrompter, mContexto, *mMateriales, mBomba, {}, {}});
    mModelo->SetTipoAnalisis(Tipo);
    mModelo->SetCaption(CaptionNumerado(descripcion->caption));
    mModelo->SetLblProducto(NombreProducto(Tipo, false));
    mModelo->Activar();
    mVentana = std::make_unique<VentanaDatosArchivo>(*mModelo);
    return mVentana.get();
}

bool CalculoArchivo::Ejecutar() {
    return Abrir() && Calcular();
}

bool CalculoArchivo::Abrir() {
    EntornoArchivos entorno{mContexto, mPrompter, mAjustes};
    const bool leido =
            LeerArchivo(RutaLectura(mArchivo), entorno,
                        [this](VentanaEntrada, int16_t Tipo) { return CrearVentana(Tipo); });
    if (!leido || !mModelo) {
        return false;
    }
    // "C&alcular" cannot be pressed while a box is empty or not a number.
    if (!mModelo->cmdAceptarEnabled()) {
        std::cerr << mArchivo << ": los datos están incompletos y no se pueden calcular.\n";
        return false;
    }
    return true;
}

bool CalculoArchivo::Calcular() {
    mBien = mModelo->cmdAceptar_Click(*mDestino);
    return mBien;
}

ArchivoAbierto CalculoArchivo::Abierto() {
    return {mContexto, mPrompter, mBomba, *mTubos, *mModelo, mBien ? mDestino->Ventana() : nullptr};
}

Json Valor(const ValorPublico& valor) {
    if (const std::string* texto = std::get_if<std::string>(&valor)) {
        return *texto;
    }
    if (const double* numero = std::get_if<double>(&valor)) {
        return *numero;
    }
    return std::get<bool>(valor);
}

Json Mensajes(const std::vector<Mensaje>& mensajes) {
    Json lista = Json::array();
    for (const Mensaje& mensaje : mensajes) {
        lista.push_back({{"texto", mensaje.texto},
                         {"icono", NombreIcono(mensaje.icono)},
                         {"botones", NombreBotones(mensaje)}});
    }
    return lista;
}

void EscribirResultados(Json& json, const ModeloResultados* resultados) {
    json["resultados"] = resultados ? resultados->ResultadosCalculo() : std::vector<double>{};
    Json& valores = json["valores"] = Json::object();
    Json& tabla = json["tabla"] = Json::array();
    if (resultados == nullptr) {
        return;
    }
    for (const auto& [nombre, valor] : resultados->Valores().Todos()) {
        valores[nombre] = Valor(valor);
    }
    for (int fila = 0; fila < resultados->MSFG().Rows(); ++fila) {
        Json celdas = Json::array();
        for (int columna = 0; columna < resultados->MSFG().Cols(); ++columna) {
            celdas.push_back(resultados->MSFG().TextMatrix(fila, columna));
        }
        tabla.push_back(std::move(celdas));
    }
}

std::string CalculoArchivo::ComoJson() const {
    cli::Json json = {{"archivo", mArchivo}, {"tipo", mModelo ? mModelo->TipoAnalisis() : 0}};
    json["ventana"] = mModelo ? cli::Json(NombreAnalisis(mModelo->Ventana().analisis)) : nullptr;
    json["ok"] = mBien;
    json["mensajes"] = Mensajes(mPrompter.Mostrados());
    EscribirResultados(json, mBien ? mDestino->Ventana() : nullptr);
    return TextoJson(json);
}

// A spreadsheet's field: quoted when it holds a comma, a quote or a line end.
std::string CampoCsv(const std::string& texto) {
    if (texto.find_first_of(",\"\r\n") == std::string::npos) {
        return texto;
    }
    std::string campo = "\"";
    for (const char caracter : texto) {
        campo += caracter == '"' ? "\"\"" : std::string(1, caracter);
    }
    return campo + "\"";
}

// The shortest text that reads back as the same number, with a point whatever the locale.
std::string NumeroCsv(double numero) {
    std::array<char, 32> texto{};
    const auto fin = std::to_chars(texto.data(), texto.data() + texto.size(), numero);
    return std::string(texto.data(), fin.ptr);
}

constexpr int kPosicionesCsv = 3;
// Offsets in a block of the thickness and of the total heat flow.
constexpr int kRanuraEspesor = kFilaEspesor;
constexpr int kRanuraQt = 14;

constexpr const char* kCabeceraCsv =
        "archivo,tipo,analisis,ok,E_1,Qt_1,E_2,Qt_2,E_3,Qt_3,unidad_E,unidad_Qt\n";

std::string CalculoArchivo::ComoCsv() const {
    const ModeloResultados* resultados = mBien ? mDestino->Ventana() : nullptr;
    std::string fila = CampoCsv(mArchivo) + ',' +
                       (mModelo ? std::to_string(mModelo->TipoAnalisis()) + ',' +
                                          NombreAnalisis(mModelo->Ventana().analisis)
                                : std::string(",")) +
                       (mBien ? ",true" : ",false");
    const int posiciones =
            resultados ? static_cast<int>(resultados->Ventana().posiciones.size()) : 0;
    for (int p = 0; p < kPosicionesCsv; ++p) {
        // The practical block of position p is block 2p + 1.
        const int base = (2 * p + 1) * kFilasPorBloque;
        fila += p < posiciones ? ',' + NumeroCsv(resultados->Resultado(base + kRanuraEspesor)) +
                                         ',' + NumeroCsv(resultados->Resultado(base + kRanuraQt))
                               : std::string(",,");
    }
    if (resultados != nullptr) {
        const auto& datos = resultados->Ventana().datos;
        return fila + ',' + CampoCsv(datos[kRanuraEspesor - 1].unidad) + ',' +
               CampoCsv(datos[kRanuraQt - 1].unidad) + '\n';
    }
    return fila + ",,\n";
}

std::string CalculoArchivo::Listado() const {
    const ModeloResultados* resultados = mBien ? mDestino->Ventana() : nullptr;
    if (resultados == nullptr) {
        return "";
    }
    Grilla grilla = resultados->MSFG();
    grilla.Caption = CaptionNumerado(resultados->Ventana().caption);
    return ListadoGrilla(grilla, NumeroTag(resultados->Ventana().tag));
}

int Calcular(const OpcionesCalcular& opciones) {
    if (opciones.csv) {
        std::cout << kCabeceraCsv;
    }
    int salida = kSalidaBien;
    for (const std::string& archivo : opciones.archivos) {
        CalculoArchivo calculo(archivo, opciones);
        if (!calculo.Ejecutar()) {
            salida = kSalidaDetenido;
        }
        std::cout << (opciones.json  ? calculo.ComoJson() + '\n'
                      : opciones.csv ? calculo.ComoCsv()
                                     : calculo.Listado())
                  << std::flush;
    }
    return salida;
}

}  // namespace

Ejecucion DeclararCalcular(CLI::App& comando) {
    auto opciones = std::make_shared<OpcionesCalcular>();
    comando.add_option("ARCHIVO", opciones->archivos,
                       "Proyectos .adk; «-» lee uno de la entrada estándar.")
            ->required();
    CLI::Option* json = comando.add_flag("--json", opciones->json,
                                         "Un objeto JSON por proyecto, en una línea: mensajes, "
                                         "ranuras de resultados, valores y tabla.");
    comando.add_flag("--csv", opciones->csv,
                     "Una fila CSV por proyecto: espesor práctico (E) y pérdida total (Qt) de "
                     "cada posición.")
            ->excludes(json);
    comando.add_flag("--sin-bd", opciones->sinBD, "Calcula sin la base de datos de materiales.");
    return [opciones] { return Calcular(*opciones); };
}

int ConArchivo(const std::string& archivo, bool sinBD, bool calcular,
               const std::function<int(ArchivoAbierto&)>& usar) {
    OpcionesCalcular opciones;
    opciones.sinBD = sinBD;
    CalculoArchivo calculo(archivo, opciones);
    if (!calculo.Abrir() || (calcular && !calculo.Calcular())) {
        return kSalidaDetenido;
    }
    ArchivoAbierto abierto = calculo.Abierto();
    return usar(abierto);
}

}  // namespace kelvora::cli
