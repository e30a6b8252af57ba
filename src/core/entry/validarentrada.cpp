#include "core/entry/validarentrada.h"

#include "core/entry/modeloentrada.h"
#include "core/runtime/numeros.h"
#include "core/runtime/runtimeerror.h"
#include "core/runtime/texto.h"
#include "core/thermal/productos.h"

namespace kelvora {

namespace {

class Validacion {
public:
    explicit Validacion(ModeloEntrada& ventana)
        : mVentana(ventana), mDescripcion(ventana.Ventana()) {}

    bool Ejecutar();

private:
    bool CajaValida(int i);
    bool DentroDelLimite();
    bool Comparacion(const ComparacionTemperaturas& comparacion);
    bool Cota(const CotaInferior& cota);
    bool Rechazar(const std::string& texto, Control foco);
    void Avisar(const std::string& texto);
    std::string ToolTip(int i) const { return mVentana.Caja(i).ToolTipText; }
    double Convertir(double valor, int desde, int hasta) const;

    ModeloEntrada& mVentana;
    const DescripcionEntrada& mDescripcion;
};

// A check that fails to run lets the validation go on with the next one.
template <class Comprobacion>
bool Aprueba(Comprobacion&& comprobacion) {
    try {
        return comprobacion();
    } catch (const RuntimeError&) {
        return true;
    }
}

bool Validacion::Ejecutar() {
    for (int i = 1; i <= mDescripcion.cajasValidadas; ++i) {
        if (!Aprueba([&] { return CajaValida(i); })) {
            return false;
        }
    }
    if (!Aprueba([&] { return DentroDelLimite(); })) {
        return false;
    }
    for (const ComparacionTemperaturas& comparacion : mDescripcion.comparaciones) {
        if (!Aprueba([&] { return Comparacion(comparacion); })) {
            return false;
        }
    }
    for (const CotaInferior& cota : mDescripcion.cotas) {
        if (!Aprueba([&] { return Cota(cota); })) {
            return false;
        }
    }
    return true;
}

bool Validacion::CajaValida(int i) {
    const CampoEntrada& campo = mDescripcion.Campo(i);
    const std::string texto = Trim(mVentana.Texto(i));
    const Control caja{TipoControl::Caja, i};
    const bool ausente = campo.opcional ? !texto.empty() && !IsNumeric(texto) : !IsNumeric(texto);
    if (ausente) {
        return Rechazar("Por favor ingrese " + std::string(campo.articulo) + ToolTip(i) + ".",
                        caja);
    }
    const bool conLista = mVentana.TieneLista(i);
    if (conLista && Val(texto) <= 0 && mVentana.Lista(i).Text() == "K") {
        return Rechazar("La " + ToolTip(i) + " no es válida.", caja);
    }
    if (campo.positivo && Val(texto) <= 0) {
        return Rechazar("El " + ToolTip(i) + " no es válido.", caja);
    }
    if (conLista && mVentana.Lista(i).ListIndex < 0) {
        return Rechazar("Por favor seleccione la unidad para " + std::string(campo.articulo) +
                                ToolTip(i) + ".",
                        {TipoControl::Lista, i});
    }
    return true;
}

bool Validacion::DentroDelLimite() {
    const double TI =
            mVentana.Unit().Convert(Val(mVentana.Texto(1)), mVentana.Lista(1).Text(), "°F");
    const double limite = TemperaturaMaximaProducto(mVentana.TipoAnalisis());
    if (!(limite < TI)) {
        return true;
    }
    Mensaje mensaje;
    mensaje.texto = "El Producto '" + NombreProducto(mVentana.TipoAnalisis(), false) +
                    "' de FORNALIS sólo puede utilizarse hasta " + TextoNumero(limite) + " °F.";
    mensaje.botones = Botones::AceptarCancelar;
    mensaje.icono = Icono::Exclamacion;
    mensaje.titulo = kTituloAplicacion;
    if (mVentana.Entorno().prompter.MsgBox(mensaje) != Respuesta::Cancelar) {
        return true;
    }
    mVentana.EstablecerFoco({TipoControl::Caja, 1});
    return false;
}

double Validacion::Convertir(double valor, int desde, int hasta) const {
    return mVentana.Unit().Convert(valor, mVentana.Lista(desde).Text(),
                                   mVentana.Lista(hasta).Text());
}

bool Validacion::Comparacion(const ComparacionTemperaturas& comparacion) {
    const double valor = Val(mVentana.Texto(comparacion.caja));
    const double otra =
            Convertir(Val(mVentana.Texto(comparacion.otra)), comparacion.otra, comparacion.caja);
    const bool falla = comparacion.fallaSiMenor ? valor < otra : valor > otra;
    return !falla || Rechazar(comparacion.mensaje, {TipoControl::Caja, comparacion.foco});
}

bool Validacion::Cota(const CotaInferior& cota) {
    const double valor = Val(Trim(mVentana.Texto(cota.caja)));
    const bool falla = cota.conCero ? valor <= 0 : valor < 0;
    return !falla || Rechazar(cota.articulo + ToolTip(cota.caja) + " debe ser mayor que cero.",
                              {TipoControl::Caja, cota.caja});
}

bool Validacion::Rechazar(const std::string& texto, Control foco) {
    Avisar(texto);
    mVentana.EstablecerFoco(foco);
    return false;
}

void Validacion::Avisar(const std::string& texto) {
    Mensaje mensaje;
    mensaje.texto = texto;
    mensaje.icono = Icono::Exclamacion;
    mensaje.titulo = kTituloAplicacion;
    mVentana.Entorno().prompter.MsgBox(mensaje);
}

}  // namespace

bool ValidarEntrada(ModeloEntrada& ventana) {
    return Validacion(ventana).Ejecutar();
}

}  // namespace kelvora
