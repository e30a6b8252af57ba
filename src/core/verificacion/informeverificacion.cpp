#include "core/verificacion/informeverificacion.h"

#include "core/runtime/texto.h"
#include "core/thermal/modeloresultados.h"
#include "core/thermal/productos.h"
#include "core/verificacion/errorverificacion.h"
#include "core/verificacion/verificacion.h"

#include <cmath>
#include <string>
#include <vector>

namespace kelvora {

namespace {

constexpr int kColumnas = 5;
constexpr const char* kTitulo = "VERIFICACIÓN CON CORRELACIONES MODERNAS";
constexpr const char* kFinDeLinea = "\r\n";

using Fila = std::vector<std::string>;

class Informe {
public:
    explicit Informe(const Verificacion& v) : mV(v), mFrio(v.datos.frio) {
        mGrilla.SetCols(kColumnas);
    }

    Grilla Construir();

private:
    void Encabezado(const std::string& texto);
    void Agregar(const Fila& celdas);
    void Entradas();
    void Posicion(const PosicionVerificada& p);
    std::string Dictamen(const PosicionVerificada& p) const;
    std::string UnidadFlujo() const;

    const Verificacion& mV;
    const bool mFrio;
    Grilla mGrilla;
};

std::string Temperatura(double T) {
    return TextoNumero(T) + " °F";
}

std::string ConSigno(double valor, const char* unidad) {
    const double redondeado = std::round(valor * 100) / 100 + 0.0;
    return (redondeado >= 0 ? "+" : "") + TextoNumero(redondeado) + " " + unidad;
}

std::string Relativa(double valor, double referencia) {
    return referencia == 0 ? std::string() : ConSigno((valor / referencia - 1) * 100, "%");
}

std::string MasDelMaximo() {
    return "más de " + TextoNumero(kEspesorMaximo, "0");
}

std::string LeyTexto(const LeyConductividad& k) {
    if (k.b == 0) {
        return TextoNumero(k.a, "0.0###");
    }
    return TextoNumero(k.a, "0.0###") + " · exp(" + TextoNumero(k.b, "0.0####") + " · T)";
}

Grilla Informe::Construir() {
    Encabezado(kEmpresa);
    Encabezado(std::string(kTitulo) + kFinDeLinea + UCase(NombreProducto(mV.datos.producto, true)));
    Entradas();
    for (const PosicionVerificada& p : mV.posiciones) {
        Posicion(p);
    }
    return mGrilla;
}

void Informe::Encabezado(const std::string& texto) {
    Agregar(Fila(kColumnas, texto));
    mGrilla.SetMergeRow(mGrilla.Rows() - 1, true);
}

void Informe::Agregar(const Fila& celdas) {
    const int fila = mGrilla.Rows();
    mGrilla.SetRows(fila + 1);
    for (int c = 0; c < kColumnas && c < static_cast<int>(celdas.size()); ++c) {
        mGrilla.SetTextMatrix(fila, c, celdas[static_cast<size_t>(c)]);
    }
}

void Informe::Entradas() {
    const DatosVerificacion& d = mV.datos;
    const SistemaAislado& s = d.sistema;
    Encabezado("DATOS DE ENTRADA");
    Agregar({"Temperatura Interior", "°F", TextoNumero(s.TI)});
    Agregar({mFrio ? "Temperatura de superficie exigida (punto de rocío + 1 °F)"
                   : "Temperatura de superficie exigida",
             "°F", TextoNumero(d.requerida)});
    Agregar({"Temperatura Ambiente", "°F", TextoNumero(s.aire.TA)});
    Agregar({"Velocidad del Aire", "mi/h", TextoNumero(s.aire.V)});
    if (s.D > 0) {
        Agregar({"Diámetro real de la tubería", "plg", TextoNumero(s.D, "0.0##")});
    }
    Agregar({"Emisividad Superficie Aislamiento", "", TextoNumero(s.Es, "0.0##")});
    Agregar({mFrio ? "Coeficiente de Conductividad Térmica (dato)"
                   : "Coeficiente de Conductividad Térmica (T en °F)",
             "BTU plg/pie² h °F", LeyTexto(s.k)});
    Agregar({s.D > 0 ? "Altura del tramo vertical" : "Longitud característica (altura o lado)", "m",
             TextoNumero(s.aire.L, "0.0##")});
}

std::string Informe::UnidadFlujo() const {
    return mV.datos.sistema.D > 0 ? "BTU/pie h" : "BTU/pie² h";
}

void Informe::Posicion(const PosicionVerificada& p) {
    const PracticoPrograma& programa = p.programa;
    Encabezado(programa.posicion);
    Agregar({"", "", "PROGRAMA", "MÉTODO MODERNO", "DIFERENCIA"});
    const std::string E = TextoNumero(programa.E);
    Agregar({"Espesor práctico del aislamiento", "plg", E, E, ""});
    Agregar({"Temperatura de la Superficie", "°F", TextoNumero(programa.TS),
             TextoNumero(p.moderno.TS), ConSigno(p.moderno.TS - programa.TS, "°F")});
    Agregar({mFrio ? "Ganancia de Calor Total" : "Pérdida de Calor Total", UnidadFlujo(),
             TextoNumero(programa.Qt), TextoNumero(p.QtModerno),
             Relativa(p.QtModerno, programa.Qt)});
    const std::string necesario =
            p.espesorNecesario ? TextoNumero(*p.espesorNecesario) : MasDelMaximo();
    Agregar({"Espesor ideal para la temperatura exigida", "plg", TextoNumero(programa.exacto),
             necesario, p.espesorNecesario ? Relativa(*p.espesorNecesario, programa.exacto) : ""});
    Encabezado(Dictamen(p));
}

// The verdict on the practical thickness: what the modern method says, and whether that
// differs from what the program says.
std::string Informe::Dictamen(const PosicionVerificada& p) const {
    const std::string exigida = Temperatura(mV.datos.requerida) +
                                (mFrio ? " exigidos (punto de rocío + 1 °F)" : " exigidos");
    const std::string moderno = Temperatura(p.moderno.TS);
    if (p.cumple) {
        return std::string(p.cumplePrograma ? "Cumple" : "Cumple con el método moderno") +
               ": la superficie queda en " + moderno +
               (mFrio ? ", sin bajar de los " : ", sin pasar de los ") + exigida + ".";
    }
    const std::string falta =
            (p.espesorNecesario ? TextoNumero(*p.espesorNecesario) : MasDelMaximo()) + " plg";
    const std::string lado = mFrio ? ", por debajo de los " : ", por encima de los ";
    if (p.cumplePrograma) {
        return "NO CUMPLE con el método moderno: la superficie " +
               std::string(mFrio ? "baja a " : "llega a ") + moderno + lado + exigida +
               "; hacen falta " + falta + ".";
    }
    return "No cumple con ninguno de los dos métodos: la superficie queda en " +
           Temperatura(p.programa.TS) + " según el programa y en " + moderno +
           " según el método moderno" + lado + exigida + "; hacen falta " + falta + ".";
}

}  // namespace

Grilla InformeVerificacion(const Verificacion& verificacion) {
    return Informe(verificacion).Construir();
}

}  // namespace kelvora
