#include "core/datafile/validarvariables.h"

#include "core/app/contexto.h"
#include "core/runtime/texto.h"

#include <string>

namespace kelvora {

namespace {

/// The messages of one check, collected in order.
class Comprobacion {
public:
    explicit Comprobacion(classUnidades& unidades) : mUnidades(unidades) {}

    void Temperatura(const char* variable, const std::string& nombre);
    void BulboHumedo();
    void AvisoSiFalta(const char* variable, const std::string& texto);
    void ErrorSiFalta(const char* variable, const std::string& texto);
    void Velocidad();
    void Diametro();
    void Material(const char* codigo, const char* emisividad, const std::string& lugar);

    const std::string& Errores() const { return mErrores; }
    const std::string& Avisos() const { return mAvisos; }

private:
    void Error(const std::string& texto) { mErrores += texto + kSaltoDeLinea; }
    void Aviso(const std::string& texto) { mAvisos += texto + kSaltoDeLinea; }
    void UnidadTemperatura(const char* variable, const std::string& nombre, bool ceroValido);

    classUnidades& mUnidades;
    std::string mErrores;
    std::string mAvisos;
};

void Comprobacion::UnidadTemperatura(const char* variable, const std::string& nombre,
                                     bool ceroValido) {
    const std::string unidad = mUnidades.getUnitVariable(variable);
    if (unidad.empty()) {
        // For a missing temperature this adds it as 0 °F, as the two warnings say.
        Aviso("* La Unidad para la " + nombre + ". Se asumió °F (" + mUnidades.getNameUnit("°F") +
              ").");
        mUnidades.setUnitVariable(variable, "°F");
        return;
    }
    const double valor = mUnidades.getValueVariable(variable);
    const bool invalido = ceroValido ? valor < 0 : valor <= 0;
    if (invalido && IgualTexto(unidad, "K")) {
        Error("- El Valor de la " + nombre + " es Inválido.");
    }
}

void Comprobacion::Temperatura(const char* variable, const std::string& nombre) {
    AvisoSiFalta(variable, "* La " + nombre + ". Se asumió 0.");
    UnidadTemperatura(variable, nombre, false);
}

// The wet bulb is assumed unknown, not 0, and only a value below 0 K is refused.
void Comprobacion::BulboHumedo() {
    const std::string nombre = "Temperatura del Bulbo Húmedo";
    AvisoSiFalta("TemperaturaBulboHumedo", "* La " + nombre + ". Se asumió DESCONOCIDA.");
    UnidadTemperatura("TemperaturaBulboHumedo", nombre, true);
}

void Comprobacion::AvisoSiFalta(const char* variable, const std::string& texto) {
    if (!mUnidades.ExistVariable(variable)) {
        Aviso(texto);
    }
}

void Comprobacion::ErrorSiFalta(const char* variable, const std::string& texto) {
    if (!mUnidades.ExistVariable(variable)) {
        Error(texto);
    }
}

void Comprobacion::Velocidad() {
    AvisoSiFalta("VelocidadAire", "* La Velocidad del Aire. Se asumió 0.");
    if (mUnidades.getUnitVariable("VelocidadAire").empty()) {
        Aviso("* La Unidad para la Velocidad del Aire. Se asumió mi/h (" +
              mUnidades.getNameUnit("mi/h") + ").");
        mUnidades.setUnitVariable("VelocidadAire", "mi/h");
    }
}

// The warning promises plg for the diameter, but what is set is the speed's unit: the program
// has always done so, and files depend on it.
void Comprobacion::Diametro() {
    if (!mUnidades.ExistVariable("DiametroTuberia")) {
        Error("- No se encontró el Diámetro de la tubería a aislar.");
    } else if (mUnidades.getUnitVariable("DiametroTuberia").empty()) {
        Aviso("* La Unidad para el Diámetro de la tubería a aislar. Se asumió plg (" +
              mUnidades.getNameUnit("plg") + ").");
        mUnidades.setUnitVariable("VelocidadAire", "mi/h");
    }
}

void Comprobacion::Material(const char* codigo, const char* emisividad, const std::string& lugar) {
    if (!mUnidades.ExistVariable(codigo)) {
        Error("- No se encontró el Código del Material para la Superficie " + lugar + ".");
    } else if (mUnidades.getValueVariable(codigo) == 0 && !mUnidades.ExistVariable(emisividad)) {
        Error("- No se encontró la Emisividad del Material para la Superficie " + lugar + ".");
    }
}

// "Aistamiento" is the spelling the users have always seen.
const char* const kLugarAislamiento = "Exterior del Aistamiento";
const char* const kLugarDesnuda = "Desnuda";

void MaterialAislamiento(Comprobacion& c) {
    c.Material("CodigoMaterialSuperficieAislamiento", "EmisividadSuperficieAislamiento",
               kLugarAislamiento);
}

void MaterialDesnuda(Comprobacion& c) {
    c.Material("CodigoMaterialSuperficieDesnuda", "EmisividadSuperficieDesnuda", kLugarDesnuda);
}

void ComprobarCalor(Comprobacion& c, int16_t Tipo) {
    c.Temperatura("TemperaturaInterior", "Temperatura Interior");
    c.Temperatura("TemperaturaSuperficieAislamiento",
                  "Temperatura de la Superficie del Aislamiento");
    c.Temperatura("TemperaturaAmbiente", "Temperatura Ambiente");
    c.Velocidad();
    if (Tipo >= 8) {
        c.Diametro();
    }
    MaterialAislamiento(c);
    if (Tipo <= 7) {
        MaterialDesnuda(c);
    }
}

void ComprobarFrio(Comprobacion& c, int16_t Tipo) {
    c.Temperatura("TemperaturaInterior", "Temperatura Interior");
    c.Temperatura("TemperaturaAmbiente", "Temperatura Ambiente");
    c.BulboHumedo();
    c.Temperatura("TemperaturaPuntoRocio", "Temperatura del Punto de Rocío");
    c.AvisoSiFalta("HumedadRelativa", "* La Humedad Relativa. Se asumió DESCONOCIDA.");
    c.ErrorSiFalta("CoeficienteTransmisionCalor",
                   "- No se encontró el Coeficiente de Transmisión de Calor.");
    c.Velocidad();
    if (Tipo == 14) {
        c.Diametro();
    }
    MaterialAislamiento(c);
    if (Tipo == 13) {
        MaterialDesnuda(c);
    }
}

// Every box of the checks, the warnings' one included, bears the application's title.
Respuesta Mostrar(Prompter& prompter, std::string texto, Botones botones, Icono icono,
                  int contextoAyuda = 0) {
    Mensaje mensaje;
    mensaje.texto = std::move(texto);
    mensaje.botones = botones;
    mensaje.icono = icono;
    mensaje.titulo = kTituloAplicacion;
    mensaje.contextoAyuda = contextoAyuda;
    return prompter.MsgBox(mensaje);
}

bool Informar(const Comprobacion& c, Prompter& prompter) {
    if (!c.Errores().empty()) {
        Mostrar(prompter,
                std::string("Se han encontrado los siguientes errores:") + kSaltoDeLinea +
                        c.Errores(),
                Botones::Aceptar, Icono::Critico);
        return false;
    }
    if (!c.Avisos().empty()) {
        const Respuesta r = Mostrar(prompter,
                                    std::string("Los siguientes valores no se encontraron:") +
                                            kSaltoDeLinea + c.Avisos(),
                                    Botones::AceptarCancelar, Icono::Informacion);
        return r != Respuesta::Cancelar;
    }
    return true;
}

}  // namespace

bool ValidarVariablesArchivo(int16_t Tipo, classUnidades& Unidades, Prompter& prompter) {
    Comprobacion c(Unidades);
    if (Tipo >= 1 && Tipo <= 12) {
        ComprobarCalor(c, Tipo);
    } else if (Tipo == 13 || Tipo == 14) {
        ComprobarFrio(c, Tipo);
    } else {
        Mostrar(prompter,
                std::string("No es posible asociar los datos leidos con alguna ventana de "
                            "Entrada de Datos.") +
                        kSaltoDeLinea + "Haga click en Ayuda para mayor información.",
                Botones::Aceptar, Icono::Critico, kAyudaArchivoSinVentana);
        return false;
    }
    return Informar(c, prompter);
}

}  // namespace kelvora
