#include "core/units/unidades.h"

#include "core/runtime/numeros.h"
#include "core/runtime/runtimeerror.h"
#include "core/runtime/texto.h"
#include "core/units/catalogo.h"
#include "core/units/formulas.h"

namespace kelvora {

namespace {

bool EnLista(const char* grafiaLista, const UnidadCatalogo& unidad, const std::string& simbolo) {
    const char* principal = *grafiaLista != '\0' ? grafiaLista : unidad.simbolo;
    return IgualTexto(principal, simbolo) ||
           (*unidad.segundaGrafia != '\0' && IgualTexto(unidad.segundaGrafia, simbolo));
}

bool EnListaGeneral(const std::string& simbolo) {
    for (const FamiliaCatalogo& familia : CatalogoUnidades()) {
        for (const UnidadCatalogo& unidad : familia.unidades) {
            if (EnLista(unidad.enListaGeneral, unidad, simbolo)) {
                return true;
            }
        }
    }
    return false;
}

bool EnListaFamilia(const FamiliaCatalogo& familia, const std::string& simbolo) {
    for (const UnidadCatalogo& unidad : familia.unidades) {
        if (EnLista(unidad.enListaFamilia, unidad, simbolo)) {
            return true;
        }
    }
    return false;
}

RuntimeError SinConversion(double valor, const std::string& desde, const std::string& hasta) {
    return {errores::SinConversion,
            "No se puede convertir " + TextoNumero(valor) + " " + desde + " a " + hasta};
}

}  // namespace

bool classUnidades::ExistUnit(const std::string& Unit, const std::string& Type) const {
    if (Type.empty()) {
        return EnListaGeneral(Unit);
    }
    const FamiliaCatalogo* familia = BuscarFamilia(Type);
    return familia != nullptr && EnListaFamilia(*familia, Unit);
}

std::vector<std::string> classUnidades::getTypeUnits() const {
    return {"Area",      "Caudal",   "Energía",        "Fuerza",      "Longitud",
            "Peso",      "Potencia", "Presión",        "Temperatura", "Tiempo",
            "Velocidad", "Volumen",  "Personalizar..."};
}

std::vector<std::string> classUnidades::getUnits(const std::string& Type) const {
    std::vector<std::string> unidades;
    if (const FamiliaCatalogo* familia = BuscarFamilia(Type)) {
        for (const UnidadCatalogo& unidad : familia->unidades) {
            unidades.emplace_back(unidad.simbolo);
        }
    }
    return unidades;
}

int16_t classUnidades::getIndexUnit(const std::string& Unit) const {
    const UbicacionUnidad ubicacion = BuscarUnidad(Unit);
    return static_cast<int16_t>(ubicacion.indice + 1);
}

std::string classUnidades::getNameUnit(const std::string& Unit) const {
    const UbicacionUnidad ubicacion = BuscarUnidad(Unit);
    return ubicacion.familia != nullptr ? ubicacion.Unidad().nombre : "";
}

double classUnidades::Convert(double valor, const std::string& desde,
                              const std::string& hasta) const {
    if (IgualTexto(desde, hasta)) {
        return valor;
    }
    const UbicacionUnidad origen = BuscarUnidad(desde);
    const UbicacionUnidad destino = BuscarUnidad(hasta);
    const FormulaConversion* formula =
            origen.familia != nullptr && destino.familia != nullptr
                    ? BuscarFormula(origen.Unidad().simbolo, destino.Unidad().simbolo)
                    : nullptr;
    if (formula == nullptr) {
        throw SinConversion(valor, desde, hasta);
    }
    return AplicarFormula(*formula, valor);
}

void classUnidades::AddVariable(const std::string& Name, double Value, const std::string& Unit) {
    mVariables.Agregar({Name, Value, Unit});
}

void classUnidades::RemoveVariable(const std::string& Name) {
    mVariables.Quitar(Name);
}

void classUnidades::ModifyVariable(const std::string& Name, double Value, const std::string& Unit) {
    if (Variable* variable = mVariables.Buscar(Name)) {
        variable->Value = Value;
        variable->Unit = Unit;
    } else {
        AddVariable(Name, Value, Unit);
    }
}

std::string classUnidades::getUnitVariable(const std::string& Name) const {
    const Variable* variable = mVariables.Buscar(Name);
    return variable != nullptr ? variable->Unit : "";
}

double classUnidades::getValueVariable(const std::string& Name) const {
    const Variable* variable = mVariables.Buscar(Name);
    return variable != nullptr ? variable->Value : 0;
}

void classUnidades::setUnitVariable(const std::string& Name, const std::string& Unit) {
    if (!ExistUnit(Unit, "")) {
        throw RuntimeError(errores::UnidadDesconocida, "La Unidad '" + Unit + "' no existe.");
    }
    if (Variable* variable = mVariables.Buscar(Name)) {
        variable->Unit = Unit;
    } else {
        AddVariable(Name, 0, Unit);
    }
}

void classUnidades::setValueVariable(const std::string& Name, double Value) {
    if (Variable* variable = mVariables.Buscar(Name)) {
        variable->Value = Value;
    } else {
        AddVariable(Name, Value, "");
    }
}

void classUnidades::ResetVariables() {
    mVariables.Vaciar();
}

bool classUnidades::ExistVariable(const std::string& Name) const {
    return mVariables.Buscar(Name) != nullptr;
}

int16_t classUnidades::Count() const {
    return mVariables.Cuenta();
}

void classUnidades::setVariables(const classUnidades& otras) {
    ResetVariables();
    const int16_t cuenta = otras.Count();
    for (int16_t i = 1; i <= cuenta; ++i) {
        addVariableRec(otras.getVariableRec(i));
    }
}

std::string classUnidades::getUnitCurrency(const std::string& Name) const {
    for (const UnidadCatalogo& moneda : BuscarFamilia("Moneda")->unidades) {
        if (IgualTexto(moneda.nombre, Name)) {
            return moneda.simbolo;
        }
    }
    return "";
}

Variable classUnidades::getVariableRec(int16_t indice) const {
    return mVariables.Registro(indice);
}

void classUnidades::addVariableRec(const Variable& variable) {
    AddVariable(variable.Name, variable.Value, variable.Unit);
}

}  // namespace kelvora
