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

#include <filesystem>
#include <iostream>
#include <memory>
#include <optional>

namespace kelvora::cli {

namespace {

constexpr const char* kUso = "Uso: kelvora-cli calcular ARCHIVO.adk... [--json] [--sin-bd]";

struct OpcionesCalcular {
    bool json = false;
    bool sinBD = false;
    std::vector<std::string> archivos;
};

std::optional<OpcionesCalcular> LeerOpcionesCalcular(const Argumentos& argumentos) {
    OpcionesCalcular opciones;
    for (const std::string& argumento : argumentos) {
        if (argumento == "--json") {
            opciones.json = true;
        } else if (argumento == "--sin-bd") {
            opciones.sinBD = true;
        } else if (argumento.starts_with("-")) {
            std::cerr << "Opción desconocida: " << argumento << '\n';
            return std::nullopt;
        } else {
            opciones.archivos.push_back(argumento);
        }
    }
    if (opciones.archivos.empty()) {
        return std::nullopt;
    }
    return opciones;
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
    std::string Json() const;
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
    const bool leido = LeerArchivo(
            mArchivo, entorno, [this](VentanaEntrada, int16_t Tipo) { return CrearVentana(Tipo); });
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

void EscribirValor(EscritorJson& json, const ValorPublico& valor) {
    if (const std::string* texto = std::get_if<std::string>(&valor)) {
        json.Texto(*texto);
    } else if (const double* numero = std::get_if<double>(&valor)) {
        json.Numero(*numero);
    } else {
        json.Booleano(std::get<bool>(valor));
    }
}

void EscribirMensajes(EscritorJson& json, const std::vector<Mensaje>& mensajes) {
    json.Clave("mensajes").AbrirLista();
    for (const Mensaje& mensaje : mensajes) {
        json.AbrirObjeto()
                .Clave("texto")
                .Texto(mensaje.texto)
                .Clave("icono")
                .Texto(NombreIcono(mensaje.icono))
                .Clave("botones")
                .Texto(NombreBotones(mensaje))
                .CerrarObjeto();
    }
    json.CerrarLista();
}

void EscribirResultados(EscritorJson& json, const ModeloResultados* resultados) {
    json.Clave("resultados").AbrirLista();
    for (const double valor :
         resultados ? resultados->ResultadosCalculo() : std::vector<double>{}) {
        json.Numero(valor);
    }
    json.CerrarLista().Clave("valores").AbrirObjeto();
    for (const auto& [nombre, valor] :
         resultados ? resultados->Valores().Todos() : std::vector<ValoresPublicos::Entrada>{}) {
        EscribirValor(json.Clave(nombre), valor);
    }
    json.CerrarObjeto().Clave("tabla").AbrirLista();
    for (int fila = 0; resultados && fila < resultados->MSFG().Rows(); ++fila) {
        json.AbrirLista();
        for (int columna = 0; columna < resultados->MSFG().Cols(); ++columna) {
            json.Texto(resultados->MSFG().TextMatrix(fila, columna));
        }
        json.CerrarLista();
    }
    json.CerrarLista();
}

std::string CalculoArchivo::Json() const {
    const ModeloResultados* resultados = mBien ? mDestino->Ventana() : nullptr;
    EscritorJson json;
    json.AbrirObjeto().Clave("archivo").Texto(mArchivo);
    json.Clave("tipo").Numero(mModelo ? mModelo->TipoAnalisis() : 0).Clave("ventana");
    if (mModelo) {
        json.Texto(NombreAnalisis(mModelo->Ventana().analisis));
    } else {
        json.Nulo();
    }
    json.Clave("ok").Booleano(mBien);
    EscribirMensajes(json, mPrompter.Mostrados());
    EscribirResultados(json, resultados);
    json.CerrarObjeto();
    return json.Resultado();
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

}  // namespace

int ComandoCalcular(const Argumentos& argumentos) {
    const std::optional<OpcionesCalcular> opciones = LeerOpcionesCalcular(argumentos);
    if (!opciones) {
        std::cerr << kUso << '\n';
        return kSalidaUso;
    }
    int salida = kSalidaBien;
    for (const std::string& archivo : opciones->archivos) {
        CalculoArchivo calculo(archivo, *opciones);
        if (!calculo.Ejecutar()) {
            salida = kSalidaDetenido;
        }
        std::cout << (opciones->json ? calculo.Json() + '\n' : calculo.Listado()) << std::flush;
    }
    return salida;
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
