#include "cli/economia.h"

#include "cli/calcular.h"
#include "cli/json.h"
#include "core/app/contexto.h"
#include "core/economics/modeloeconomico.h"
#include "core/platform/clock.h"
#include "core/platform/prompter.h"
#include "core/runtime/formato.h"
#include "core/runtime/texto.h"
#include "core/thermal/modeloresultados.h"

#include <CLI/CLI.hpp>
#include <charconv>
#include <chrono>
#include <cmath>
#include <iostream>
#include <map>
#include <optional>

namespace kelvora::cli {

namespace {

// The options that take a value, with their help.
struct OpcionConValor {
    const char* nombre;
    const char* valor;
    const char* ayuda;
};

// clang-format off
const std::vector<OpcionConValor> kConValor = {
        {"--areas", "A,B,C", "Áreas de las tres posiciones de la superficie plana."},
        {"--longitudes", "A,B", "Longitudes de tubería vertical y horizontal."},
        {"--unidad", "UNIDAD", "Unidad de las áreas o longitudes (p. ej. m²)."},
        {"--horas", "H", "Horas de operación al año."},
        {"--combustible", "NOMBRE", "Combustible utilizado, de la lista, u Otro."},
        {"--nombre", "NOMBRE", "Nombre del combustible, con --combustible Otro."},
        {"--poder", "P", "Poder calorífico del combustible, con --combustible Otro."},
        {"--valor", "V", "Valor del combustible."},
        {"--moneda", "MONEDA", "Moneda del valor, como en la ventana."},
        {"--eficiencia", "E", "Eficiencia del equipo, en %."},
};
// clang-format on

struct OpcionesEconomia {
    std::string archivo;
    std::shared_ptr<ValoresEconomicos> valores = std::make_shared<ValoresEconomicos>();
    bool json = false;
    bool sinBD = false;
};

// A number as a box takes it: a point or a comma as the decimal mark, written with the point.
std::optional<std::string> TextoNumerico(std::string texto) {
    std::string limpio = NormalizarDecimal(texto);
    double valor = 0;
    const char* fin = limpio.data() + limpio.size();
    const auto [resto, error] = std::from_chars(limpio.data(), fin, valor);
    if (limpio.empty() || error != std::errc() || resto != fin || !std::isfinite(valor)) {
        return std::nullopt;
    }
    return limpio;
}

std::vector<std::string> Partes(const std::string& lista) {
    std::vector<std::string> partes;
    size_t inicio = 0;
    for (size_t coma = lista.find(','); coma != std::string::npos; coma = lista.find(',', inicio)) {
        partes.push_back(lista.substr(inicio, coma - inicio));
        inicio = coma + 1;
    }
    partes.push_back(lista.substr(inicio));
    return partes;
}

int IndiceEn(const std::vector<std::string>& entradas, const std::string& buscada) {
    for (size_t i = 0; i < entradas.size(); ++i) {
        if (IgualTexto(entradas[i], buscada)) {
            return static_cast<int>(i);
        }
    }
    return -1;
}

std::string Lista(const std::vector<std::string>& entradas) {
    std::string texto;
    for (const std::string& entrada : entradas) {
        texto += (texto.empty() ? "" : ", ") + entrada;
    }
    return texto;
}

// Passes every box on and keeps those of the economic window for the JSON listing.
class PrompterRegistro : public Prompter {
public:
    explicit PrompterRegistro(Prompter& destino) : mDestino(destino) {}

    Respuesta MsgBox(const Mensaje& mensaje) override {
        mensajes.push_back(mensaje);
        return mDestino.MsgBox(mensaje);
    }
    std::optional<std::string> InputBox(const Entrada& entrada) override {
        return mDestino.InputBox(entrada);
    }

    std::vector<Mensaje> mensajes;

private:
    Prompter& mDestino;
};

// Fills the economic window from the options as a user would, box after box; false after a
// message on standard error when an option does not fit the window.
class Llenado {
public:
    Llenado(ModeloEconomico& modelo, const ValoresEconomicos& valores)
        : mModelo(modelo), mVentana(modelo.Ventana()), mValores(valores) {}

    bool Llenar() {
        return Dimensiones() && Horas() && Combustible() && Escrito() && Valor() && Moneda() &&
               Eficiencia();
    }

private:
    const std::string* Valor(const std::string& opcion) const {
        const auto it = mValores.find(opcion);
        return it == mValores.end() ? nullptr : &it->second;
    }

    bool Rechazar(const std::string& texto) {
        std::cerr << texto << '\n';
        return false;
    }

    bool Escribir(int caja, const std::string& opcion) {
        mModelo.txtValor_GotFocus(caja);
        const std::string* valor = Valor(opcion);
        if (valor == nullptr) {
            return true;
        }
        const std::optional<std::string> texto = TextoNumerico(*valor);
        if (!texto) {
            return Rechazar("El valor de " + opcion + " no es un número: " + *valor);
        }
        mModelo.SetText(caja, *texto);
        return true;
    }

    bool Dimensiones() {
        const bool planas = mVentana.Orientaciones() == 3;
        const std::string propia = planas ? "--areas" : "--longitudes";
        if (Valor(planas ? "--longitudes" : "--areas") != nullptr) {
            return Rechazar("Este análisis pide " + propia + ".");
        }
        if (!Unidad()) {
            return false;
        }
        const std::string* lista = Valor(propia);
        const std::vector<std::string> partes = lista ? Partes(*lista) : std::vector<std::string>();
        if (lista != nullptr && partes.size() != mVentana.dimensiones.size()) {
            return Rechazar(propia + " lleva " + std::to_string(mVentana.dimensiones.size()) +
                            " valores separados por comas.");
        }
        for (size_t o = 0; o < partes.size(); ++o) {
            const std::optional<std::string> texto = TextoNumerico(partes[o]);
            if (!texto) {
                return Rechazar("El valor de " + propia + " no es un número: " + partes[o]);
            }
            mModelo.txtValor_GotFocus(mVentana.dimensiones[o].indice);
            mModelo.SetText(mVentana.dimensiones[o].indice, *texto);
        }
        return true;
    }

    bool Unidad() {
        const std::string* unidad = Valor("--unidad");
        if (unidad == nullptr) {
            return true;
        }
        const std::vector<std::string>& unidades =
                mModelo.cboUnidad(mVentana.dimensiones.front().indice).entradas;
        const int entrada = IndiceEn(unidades, *unidad);
        if (entrada < 0) {
            return Rechazar("Unidad desconocida: " + *unidad + " (" + Lista(unidades) + ")");
        }
        for (const CajaEconomica& caja : mVentana.dimensiones) {
            mModelo.SeleccionarUnidad(caja.indice, entrada);
        }
        return true;
    }

    bool Horas() {
        const std::string* horas = Valor("--horas");
        if (horas == nullptr) {
            return true;
        }
        const std::optional<std::string> texto = TextoNumerico(*horas);
        if (!texto) {
            return Rechazar("El valor de --horas no es un número: " + *horas);
        }
        mModelo.SetHoras(*texto);
        return true;
    }

    bool Combustible() {
        const std::string* nombre = Valor("--combustible");
        if (nombre == nullptr) {
            return true;
        }
        const int entrada = IndiceEn(mModelo.cboCombustibleUtilizado().entradas, *nombre);
        if (entrada < 0) {
            return Rechazar("Combustible desconocido: " + *nombre + " (" +
                            Lista(mModelo.cboCombustibleUtilizado().entradas) + ")");
        }
        mModelo.SeleccionarCombustible(entrada);
        return true;
    }

    // The fuel's name and calorific value are typed only for "Otro".
    bool Escrito() {
        const bool otro = mModelo.txtValor(mVentana.poder.indice).Enabled;
        const std::string* nombre = Valor("--nombre");
        if (!otro && (nombre != nullptr || Valor("--poder") != nullptr)) {
            return Rechazar("--nombre y --poder solo valen con --combustible Otro.");
        }
        if (nombre != nullptr) {
            mModelo.txtValor_GotFocus(mVentana.nombreCombustible.indice);
            mModelo.SetText(mVentana.nombreCombustible.indice, *nombre);
        }
        return !otro || Escribir(mVentana.poder.indice, "--poder");
    }

    bool Valor() { return Escribir(mVentana.valor.indice, "--valor"); }

    bool Moneda() {
        const std::string* moneda = Valor("--moneda");
        if (moneda == nullptr) {
            return true;
        }
        const std::vector<std::string>& monedas = mModelo.cboUnidad(mVentana.valor.indice).entradas;
        const int entrada = IndiceEn(monedas, *moneda);
        if (entrada < 0) {
            return Rechazar("Moneda desconocida: " + *moneda + " (" + Lista(monedas) + ")");
        }
        mModelo.SeleccionarUnidad(mVentana.valor.indice, entrada);
        return true;
    }

    // Passing through the efficiency box fills an empty one with 100.
    bool Eficiencia() { return Escribir(mVentana.eficiencia.indice, "--eficiencia"); }

    ModeloEconomico& mModelo;
    const VentanaEconomica& mVentana;
    const ValoresEconomicos& mValores;
};

// The costs read as the result boxes do: the currency's symbol and the amount.
std::string Monto(const ModeloEconomico& modelo, double valor) {
    return classUnidades().getUnitCurrency(modelo.Moneda()) + Format(valor, "0,000.0#");
}

constexpr const char* kCostoDesnuda = "TOTAL COSTO COMBUSTIBLE/AÑO (SUP. DESNUDA)";
constexpr const char* kCostoAislada = "TOTAL COSTO COMBUSTIBLE/AÑO (SUP. AISLADA)";

void ImprimirTexto(const ModeloEconomico& m) {
    for (const CajaEconomica& caja : m.Ventana().resultados) {
        std::cout << m.lblEtiqueta(caja.indice).Caption << ' ' << m.txtValor(caja.indice).Text
                  << '\n';
    }
    std::cout << kCostoDesnuda << ": " << Monto(m, m.CostoTotalSD()) << '\n';
    std::cout << kCostoAislada << ": " << Monto(m, m.CostoTotalSA()) << '\n';
}

Json Entradas(const ModeloEconomico& m) {
    const DatosAhorro& d = m.DatosCalculo();
    const VentanaEconomica& v = m.Ventana();
    return {{"QSD", d.QSD},
            {"QSA", d.QSA},
            {"dimensiones", d.dimensiones},
            {"unidad", m.cboUnidad(v.dimensiones.front().indice).Text},
            {"horas", d.horas},
            {"combustible", m.cboCombustibleUtilizado().Text},
            {"nombre", m.txtValor(v.nombreCombustible.indice).Text},
            {"valor", d.valor},
            {"poder", d.poder},
            {"eficiencia", d.eficiencia}};
}

Json Resultados(const ModeloEconomico& m) {
    const Ahorro& a = m.Montos();
    const std::vector<CajaEconomica>& cajas = m.Ventana().resultados;
    Json resultados = Json::array();
    for (size_t o = 0; o < cajas.size(); ++o) {
        Json caja = {{"caja", cajas[o].indice},
                     {"etiqueta", m.lblEtiqueta(cajas[o].indice).Caption},
                     {"texto", m.txtValor(cajas[o].indice).Text}};
        if (o < a.ahorro.size()) {
            caja["combustible"] = a.combustible[o];
            caja["ahorro"] = a.ahorro[o];
        } else {
            caja["ahorro"] = a.total;
        }
        resultados.push_back(std::move(caja));
    }
    return resultados;
}

std::string ComoJson(const OpcionesEconomia& o, const ModeloEconomico& m,
                     const std::vector<Mensaje>& mensajes, bool bien) {
    Json json = {{"archivo", o.archivo},
                 {"ventana", m.Ventana().nombre},
                 {"tipo", m.TipoAnalisis()},
                 {"ok", bien},
                 {"mensajes", Json::array()}};
    for (const Mensaje& mensaje : mensajes) {
        json["mensajes"].push_back(mensaje.texto);
    }
    if (bien) {
        json["entradas"] = Entradas(m);
        json["resultados"] = Resultados(m);
        json["CostoTotalSD"] = m.CostoTotalSD();
        json["CostoTotalSA"] = m.CostoTotalSA();
        json["textoCostoTotalSD"] = Monto(m, m.CostoTotalSD());
        json["textoCostoTotalSA"] = Monto(m, m.CostoTotalSA());
        json["Moneda"] = m.Moneda();
        json["Eficiencia"] = m.Eficiencia();
        json["Tag"] = m.Tag();
    }
    return TextoJson(json);
}

int Analizar(ArchivoAbierto& abierto, const OpcionesEconomia& opciones) {
    const std::optional<TipoEconomico> tipo = AnalisisEconomicoDe(*abierto.resultados);
    if (!tipo) {
        std::cerr << opciones.archivo << ": el análisis económico es solo de los análisis en "
                  << "caliente.\n";
        return kSalidaDetenido;
    }
    PrompterRegistro prompter(abierto.prompter);
    RelojSistema reloj;
    ModeloEconomico modelo(*tipo, abierto.contexto, prompter, abierto.bomba, reloj);
    modelo.setVariables(ValoresParaAnalisis(*abierto.resultados));
    if (!LlenarEconomia(modelo, *opciones.valores)) {
        return kSalidaUso;
    }
    const std::vector<std::string> faltantes = modelo.DatosFaltantes();
    if (!faltantes.empty()) {
        std::cerr << opciones.archivo
                  << ": faltan datos del análisis económico: " << Lista(faltantes) << ".\n";
    } else {
        modelo.cmdAceptar_Click();
    }
    const bool bien = modelo.Tag() == modelo.Ventana().tag;
    if (opciones.json) {
        std::cout << ComoJson(opciones, modelo, prompter.mensajes, bien) << '\n';
    } else if (bien) {
        ImprimirTexto(modelo);
    }
    return bien ? kSalidaBien : kSalidaDetenido;
}

}  // namespace

Fecha RelojSistema::Hoy() {
    const auto hoy = std::chrono::floor<std::chrono::days>(std::chrono::system_clock::now());
    const std::chrono::year_month_day fecha(hoy);
    return {static_cast<int>(fecha.year()), static_cast<int>(unsigned(fecha.month())),
            static_cast<int>(unsigned(fecha.day()))};
}

void DeclararOpcionesEconomicas(CLI::App& comando,
                                const std::shared_ptr<ValoresEconomicos>& valores) {
    for (const OpcionConValor& con : kConValor) {
        const std::string opcion = con.nombre;
        comando.add_option_function<std::string>(
                       opcion,
                       [valores, opcion](const std::string& valor) { (*valores)[opcion] = valor; },
                       con.ayuda)
                ->type_name(con.valor);
    }
}

bool LlenarEconomia(ModeloEconomico& modelo, const ValoresEconomicos& valores) {
    return Llenado(modelo, valores).Llenar();
}

Ejecucion DeclararEconomia(CLI::App& comando) {
    auto opciones = std::make_shared<OpcionesEconomia>();
    comando.add_option("ARCHIVO", opciones->archivo,
                       "Proyecto .adk en caliente; «-» lo lee de la entrada estándar.")
            ->required();
    DeclararOpcionesEconomicas(comando, opciones->valores);
    comando.add_flag("--json", opciones->json, "Un objeto JSON en una línea: entradas y montos.");
    comando.add_flag("--sin-bd", opciones->sinBD, "Calcula sin la base de datos de materiales.");
    return [opciones] {
        return ConArchivo(opciones->archivo, opciones->sinBD, true,
                          [&](ArchivoAbierto& abierto) { return Analizar(abierto, *opciones); });
    };
}

}  // namespace kelvora::cli
