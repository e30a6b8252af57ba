#include "core/airehumedo/modeloairehumedo.h"

#include "core/runtime/formato.h"
#include "core/runtime/numeros.h"
#include "core/runtime/texto.h"
#include "core/units/convertircampo.h"
#include "core/units/unidades.h"

namespace kelvora {

namespace {

constexpr CampoAire kCampos[] = {CampoAire::Seco,  CampoAire::Humedad, CampoAire::BulboHumedo,
                                 CampoAire::Rocio, CampoAire::Altitud, CampoAire::Presion,
                                 CampoAire::Razon, CampoAire::Entalpia};

// A ratio of kilograms or pounds per kilogram or pound needs five decimals to say anything.
const char* Patron(CampoAire campo, const std::string& unidad) {
    if (campo == CampoAire::Razon && !IgualTexto(unidad, "g/kg")) {
        return "0.00000";
    }
    return campo == CampoAire::Presion ? "0.0##" : "0.0#";
}

std::string TextoCaja(double valor, const char* patron) {
    std::string texto = Format(valor, patron);
    return NormalizarDecimal(texto);
}

}  // namespace

ModeloAireHumedo::ModeloAireHumedo(const classUnidades& unidades, Prompter& prompter)
    : mUnidades(unidades), mPrompter(prompter) {
    for (const CampoAire campo : kCampos) {
        CajaAire& caja = CajaMutable(campo);
        caja.unidades = UnidadesCampoAire(campo, unidades);
        for (size_t i = 0; i < caja.unidades.size(); ++i) {
            if (caja.unidades[i] == UnidadInicialAire(campo)) {
                caja.ListIndex = static_cast<int>(i);
            }
        }
    }
    CajaMutable(CampoAire::Seco).dato = true;
    CajaMutable(mHumedad).dato = true;
    CajaMutable(mPresion).dato = true;
    // Most sites are near sea level: the altitude starts at 0.
    CajaMutable(mPresion).Text.assign(1, '0');
    Recalcular();
}

void ModeloAireHumedo::ElegirHumedad(CampoAire campo) {
    Elegir(mHumedad, campo);
}

void ModeloAireHumedo::ElegirPresion(CampoAire campo) {
    Elegir(mPresion, campo);
}

void ModeloAireHumedo::Elegir(CampoAire& actual, CampoAire nuevo) {
    if (actual == nuevo) {
        return;
    }
    CajaMutable(actual).dato = false;
    CajaMutable(nuevo).dato = true;
    actual = nuevo;
    Recalcular();
}

void ModeloAireHumedo::SetTexto(CampoAire campo, const std::string& texto) {
    CajaAire& caja = CajaMutable(campo);
    if (!caja.dato || caja.Text == texto) {
        return;
    }
    caja.Text = texto;
    Recalcular();
}

void ModeloAireHumedo::SeleccionarUnidad(CampoAire campo, int indice) {
    CajaAire& caja = CajaMutable(campo);
    if (indice < 0 || indice >= static_cast<int>(caja.unidades.size())) {
        return;
    }
    const std::string anterior = caja.Unidad();
    caja.ListIndex = indice;
    if (caja.dato) {
        caja.Text = ConvertirCampo(caja.Text, anterior, caja.Unidad(), mPrompter);
    }
    Recalcular();
}

void ModeloAireHumedo::Recalcular() {
    mEstadoAire.reset();
    mCampoError.reset();
    mEstado.clear();
    if (!Faltante()) {
        const auto magnitud = [this](CampoAire campo) {
            const CajaAire& caja = Caja(campo);
            return Magnitud{Val(Trim(caja.Text)), caja.Unidad()};
        };
        const DatosAire datos{magnitud(CampoAire::Seco), mHumedad, magnitud(mHumedad), mPresion,
                              magnitud(mPresion)};
        const CalculoAire calculo = CalcularAire(datos, mUnidades);
        mEstadoAire = calculo.estado;
        if (!mEstadoAire) {
            mCampoError = calculo.campo;
            mEstado = calculo.mensaje;
        }
    }
    MostrarResultados();
}

// The first given box that holds no number.
bool ModeloAireHumedo::Faltante() {
    for (const CampoAire campo : kCampos) {
        const CajaAire& caja = Caja(campo);
        if (caja.dato && !IsNumeric(Trim(caja.Text))) {
            mCampoError = campo;
            mEstado = std::string("Por favor ingrese la ") + NombreCampoAire(campo) + ".";
            return true;
        }
    }
    return false;
}

void ModeloAireHumedo::MostrarResultados() {
    for (const CampoAire campo : kCampos) {
        CajaAire& caja = CajaMutable(campo);
        if (!caja.dato) {
            caja.Text = mEstadoAire ? Texto(campo, caja.Unidad()) : "";
        }
    }
}

std::string ModeloAireHumedo::Texto(CampoAire campo, const std::string& unidad) const {
    return TextoCaja(ValorAire(*mEstadoAire, campo, unidad, mUnidades), Patron(campo, unidad));
}

std::optional<std::array<std::string, 4>> ModeloAireHumedo::TextosVentanaFria(
        const std::array<std::string, 3>& unidades) const {
    if (!mEstadoAire) {
        return std::nullopt;
    }
    return std::array<std::string, 4>{
            Texto(CampoAire::Seco, unidades[0]), Texto(CampoAire::BulboHumedo, unidades[1]),
            Texto(CampoAire::Rocio, unidades[2]), Texto(CampoAire::Humedad, "%")};
}

}  // namespace kelvora
