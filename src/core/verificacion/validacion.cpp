#include "core/verificacion/validacion.h"

#include "core/runtime/numeros.h"
#include "core/thermal/pelicula.h"
#include "core/thermal/tuberia.h"
#include "core/units/unidades.h"
#include "core/verificacion/capaaislante.h"
#include "core/verificacion/errorverificacion.h"

#include <cmath>
#include <istream>
#include <sstream>

namespace kelvora {

namespace {

using FilaCsv = std::vector<std::string>;

// 1 BTU/h = 0.29307107 W and 1 pie = 0.3048 m.
constexpr double kVatiosPorMetroPorBtuPie = 0.29307107 / 0.3048;
constexpr double kPulgadasPorPie = 12;

enum Columna {
    kId,
    kFuente,
    kUrl,
    kGeometria,
    kDiametro,
    kUnidadDiametro,
    kTSuperficie,
    kTAire,
    kUnidadT,
    kViento,
    kUnidadViento,
    kEmisividad,
    kMagnitud,
    kValor,
    kUnidadValor,
    kNota,
    kEspesor,
    kUnidadEspesor,
    kK,
    kColumnas
};

// Fields separated by commas; a field in double quotes may hold commas and doubled quotes.
FilaCsv DividirCsv(const std::string& linea) {
    FilaCsv campos(1);
    bool entreComillas = false;
    for (size_t i = 0; i < linea.size(); ++i) {
        const char c = linea[i];
        if (c == '"' && entreComillas && i + 1 < linea.size() && linea[i + 1] == '"') {
            campos.back() += '"';
            ++i;
        } else if (c == '"') {
            entreComillas = !entreComillas;
        } else if (c == ',' && !entreComillas) {
            campos.emplace_back();
        } else if (c != '\r') {
            campos.back() += c;
        }
    }
    return campos;
}

std::vector<FilaCsv> LeerFilas(std::istream& csv, size_t columnas) {
    std::vector<FilaCsv> filas;
    std::string linea;
    for (int numero = 1; std::getline(csv, linea); ++numero) {
        if (numero == 1 || linea.empty()) {
            continue;
        }
        FilaCsv fila = DividirCsv(linea);
        fila.resize(std::max(fila.size(), columnas));
        if (fila.size() != columnas) {
            throw ErrorVerificacion("La línea " + std::to_string(numero) +
                                    " de la tabla de referencias tiene campos de más.");
        }
        filas.push_back(std::move(fila));
    }
    return filas;
}

double Numero(const std::string& texto) {
    return texto.empty() ? 0 : Val(texto);
}

double AlPrograma(const classUnidades& unidades, const std::string& texto,
                  const std::string& unidad, const char* interna) {
    return texto.empty() ? 0 : unidades.Convert(Numero(texto), unidad, interna);
}

CasoReferencia Caso(const FilaCsv& f, const classUnidades& u) {
    CasoReferencia c;
    c.id = f[kId];
    c.fuente = f[kFuente];
    c.url = f[kUrl];
    c.geometria = f[kGeometria];
    c.magnitud = f[kMagnitud];
    c.unidadValor = f[kUnidadValor];
    c.nota = f[kNota];
    c.D = AlPrograma(u, f[kDiametro], f[kUnidadDiametro], "plg");
    c.TS = AlPrograma(u, f[kTSuperficie], f[kUnidadT], "°F");
    c.TA = AlPrograma(u, f[kTAire], f[kUnidadT], "°F");
    c.V = AlPrograma(u, f[kViento], f[kUnidadViento], "mi/h");
    if (!f[kEmisividad].empty()) {
        c.emisividad = Numero(f[kEmisividad]);
    }
    c.valor = Numero(f[kValor]);
    c.espesor = AlPrograma(u, f[kEspesor], f[kUnidadEspesor], "plg");
    c.k = Numero(f[kK]);
    return c;
}

bool Plana(const CasoReferencia& c) {
    return c.geometria.rfind("plana", 0) == 0;
}

bool Aislada(const CasoReferencia& c) {
    return c.geometria == "tuberia_horizontal_aislada";
}

Posicion PosicionPlana(const CasoReferencia& c) {
    if (c.geometria == "plana_flujo_arriba") {
        return Posicion::CaraArriba;
    }
    return c.geometria == "plana_flujo_abajo" ? Posicion::CaraAbajo : Posicion::Vertical;
}

// The published value is a conductance per area and degree, or a flow per length.
bool PorArea(const CasoReferencia& c) {
    return c.unidadValor == "BTU/pie² h °F";
}

double EnUnidadPublicada(const CasoReferencia& c, double QtPorArea, double D) {
    if (PorArea(c)) {
        return QtPorArea / (c.TS - c.TA);
    }
    const double porPie = QtPorArea * kPiTuberia * D / kPulgadasPorPie;
    return c.unidadValor == "W/m" ? porPie * kVatiosPorMetroPorBtuPie : porPie;
}

SistemaAislado SistemaDelCaso(const CasoReferencia& c) {
    SistemaAislado s;
    s.posicion = Plana(c) ? PosicionPlana(c) : Posicion::TuberiaHorizontal;
    s.TI = c.TS;
    s.Es = c.emisividad.value_or(kEmisividadSinDato);
    s.D = c.D;
    s.k = {c.k, 0};
    s.aire = {c.TA, c.V, 1};
    return s;
}

// The film formulas of the calculations: the position's coefficient on a flat surface, the
// horizontal run's on a pipe, and a bare pipe radiating at emissivity 1.
double Programa(const CasoReferencia& c) {
    const Pelicula pelicula(c.TA, FactorViento(c.V), Sentido::Calor);
    if (Plana(c)) {
        static constexpr double kCoeficientes[] = {kCaraArriba, kVertical, kCaraAbajo};
        const double C = kCoeficientes[static_cast<int>(PosicionPlana(c))];
        const double e = c.emisividad.value_or(kEmisividadSinDato);
        return EnUnidadPublicada(c, pelicula.Qrad(c.TS, e) + pelicula.Qconv(c.TS, C), 0);
    }
    const auto formula = [&pelicula, &c](double T, double D) {
        const double e = Aislada(c) ? c.emisividad.value_or(kEmisividadSinDato) : 1;
        return FlujoSuperficie{pelicula.Qrad(T, e),
                               pelicula.Qconv(T, CoeficienteTuberia(kTuberiaHorizontal, D))};
    };
    const SistemaAislado s = SistemaDelCaso(c);
    const EstadoSuperficie estado = SuperficieConEspesor(s, c.espesor, formula);
    return EnUnidadPublicada(c, estado.flujo.Qt(), c.D + 2 * c.espesor);
}

double Moderno(const CasoReferencia& c) {
    const SistemaAislado s = SistemaDelCaso(c);
    const EstadoSuperficie estado = SuperficieConEspesor(s, c.espesor);
    return EnUnidadPublicada(c, estado.flujo.Qt(), c.D + 2 * c.espesor);
}

bool FuenteModerna(const CasoReferencia& c) {
    return c.fuente.find("Incropera") != std::string::npos ||
           c.fuente.find("MEASUR") != std::string::npos;
}

// Four significant figures, a point as decimal mark.
std::string Valor(double v) {
    const double magnitud = std::fabs(v);
    return TextoNumero(v, magnitud >= 100 ? "0.0" : magnitud >= 10 ? "0.00" : "0.000");
}

// Rounded first, so that a small negative difference does not show as "-0.0".
std::string Porcentaje(double diferencia) {
    const double redondeada = std::round(diferencia * 10) / 10 + 0.0;
    return (redondeada >= 0 ? "+" : "") + TextoNumero(redondeada, "0.0") + " %";
}

const char* NombreGeometria(const CasoReferencia& c) {
    if (c.geometria == "plana_flujo_arriba") {
        return "Plana, cara hacia arriba";
    }
    if (c.geometria == "plana_vertical") {
        return "Plana, vertical";
    }
    if (c.geometria == "plana_flujo_abajo") {
        return "Plana, cara hacia abajo";
    }
    return Aislada(c) ? "Tubería horizontal aislada" : "Tubería horizontal desnuda";
}

const std::string* BuscarExplicacion(const std::vector<Explicacion>& explicaciones,
                                     const std::string& id, const char* metodo) {
    for (const Explicacion& e : explicaciones) {
        if (e.id == id && e.metodo == metodo) {
            return &e.texto;
        }
    }
    return nullptr;
}

constexpr const char* kIntroduccion = R"(# Validación con valores publicados

Esta página compara los resultados de Kelvora con valores publicados de la pérdida de calor de
superficies desnudas y de una tubería aislada. Cada caso se calcula de dos maneras:

- **Programa**: las fórmulas de película de los cálculos de espesor, tal como el programa las
  aplica (una ley de potencia por posición, un factor de viento que no depende del diámetro y,
  en tubería desnuda, radiación con emisividad 1).
- **Método moderno**: el cálculo de la ventana «Verificación» (Herramientas › Verificación):
  propiedades del aire a la temperatura de película (Incropera, tabla A.4), Churchill–Chu para
  placas verticales y cilindros horizontales, las correlaciones clásicas de placas horizontales
  (caso estable o inestable según el sentido del calor), Churchill–Bernstein con viento, suma de
  potencias para la convección mixta y radiación con la emisividad de la superficie hacia un
  entorno a la temperatura del aire.

Longitud característica de las superficies planas: 1 m. Donde la fuente no indica la
emisividad, el método moderno toma 0.9 (acero oxidado). Los casos marcados «sí» en la columna
«Fuente moderna» vienen de fuentes que ya usan correlaciones modernas (libro de texto y casos
de prueba de MEASUR): el método moderno debe quedar a menos del 3 % de ellos. Una prueba del
programa calcula todos los casos y escribe esta página; si el método moderno se aparta más del
3 % de un caso moderno, la prueba falla.

)";

constexpr const char* kCabeceraTabla =
        "| Caso | Superficie | Superficie °F | Aire °F | Viento mi/h | Emisividad | Publicado "
        "| Unidad | Programa | Dif. | Método moderno | Dif. | Fuente moderna |\n"
        "|---|---|---|---|---|---|---|---|---|---|---|---|---|\n";

std::string FilaTabla(const CasoValidado& v) {
    const CasoReferencia& c = v.caso;
    const std::string emisividad =
            c.emisividad ? TextoNumero(*c.emisividad, "0.0#") : std::string("—");
    return "| " + c.id + " | " + NombreGeometria(c) + " | " + TextoNumero(c.TS, "0.0") + " | " +
           TextoNumero(c.TA, "0.0") + " | " + TextoNumero(c.V, "0.0") + " | " + emisividad + " | " +
           Valor(c.valor) + " | " + c.unidadValor + " | " + Valor(v.programa) + " | " +
           Porcentaje(Diferencia(v.programa, c.valor)) + " | " + Valor(v.moderno) + " | " +
           Porcentaje(Diferencia(v.moderno, c.valor)) + " | " + (v.fuenteModerna ? "sí" : "no") +
           " |\n";
}

std::string Explicaciones(const std::vector<CasoValidado>& casos,
                          const std::vector<Explicacion>& explicaciones) {
    std::string texto = "\n## Diferencias de más de 5 %\n\n";
    for (const CasoValidado& v : casos) {
        const std::pair<const char*, double> metodos[] = {{"programa", v.programa},
                                                          {"moderno", v.moderno}};
        for (const auto& [metodo, valor] : metodos) {
            const double diferencia = Diferencia(valor, v.caso.valor);
            const std::string* explicacion = BuscarExplicacion(explicaciones, v.caso.id, metodo);
            if (std::fabs(diferencia) > kDiferenciaExplicada && explicacion != nullptr) {
                texto += "- **" + v.caso.id + ", " +
                         (std::string(metodo) == "programa" ? "programa" : "método moderno") +
                         " (" + Porcentaje(diferencia) + ")**: " + *explicacion + "\n";
            }
        }
    }
    return texto;
}

std::string Fuentes(const std::vector<CasoValidado>& casos) {
    std::string texto = "\n## Fuentes\n\n";
    for (const CasoValidado& v : casos) {
        const CasoReferencia& c = v.caso;
        texto += "- " + c.id + ": " + c.fuente;
        if (!c.url.empty()) {
            texto += ", <" + c.url + ">";
        }
        if (!c.nota.empty()) {
            texto += " (" + c.nota + ")";
        }
        texto += ".\n";
    }
    return texto;
}

}  // namespace

std::vector<CasoReferencia> LeerCasosReferencia(std::istream& csv, const classUnidades& unidades) {
    std::vector<CasoReferencia> casos;
    for (const FilaCsv& fila : LeerFilas(csv, kColumnas)) {
        casos.push_back(Caso(fila, unidades));
    }
    return casos;
}

CasoValidado ValidarCaso(const CasoReferencia& caso) {
    return {caso, Programa(caso), Moderno(caso), FuenteModerna(caso)};
}

double Diferencia(double valor, double publicado) {
    return (valor - publicado) / publicado * 100;
}

std::vector<Explicacion> LeerExplicaciones(std::istream& csv) {
    std::vector<Explicacion> explicaciones;
    for (const FilaCsv& fila : LeerFilas(csv, 3)) {
        explicaciones.push_back({fila[0], fila[1], fila[2]});
    }
    return explicaciones;
}

std::string PaginaValidacion(const std::vector<CasoValidado>& casos,
                             const std::vector<Explicacion>& explicaciones) {
    std::string pagina = std::string(kIntroduccion) + kCabeceraTabla;
    for (const CasoValidado& v : casos) {
        pagina += FilaTabla(v);
    }
    return pagina + Explicaciones(casos, explicaciones) + Fuentes(casos);
}

}  // namespace kelvora
