#include "core/units/listavariables.h"

#include "core/runtime/runtimeerror.h"
#include "core/runtime/texto.h"

#include <algorithm>
#include <limits>
#include <utility>

namespace kelvora {

namespace {

constexpr int kSubindiceFueraDeIntervalo = 9;

}  // namespace

void ListaVariables::Agregar(const Variable& variable) {
    if (mVariables.size() >= static_cast<size_t>(std::numeric_limits<int16_t>::max())) {
        throw RuntimeError::DelRuntime(errores::Desbordamiento);
    }
    mVariables.push_back(variable);
}

void ListaVariables::Quitar(const std::string& nombre) {
    if (const Variable* variable = Buscar(nombre)) {
        mVariables.erase(mVariables.begin() + (variable - mVariables.data()));
    }
}

Variable* ListaVariables::Buscar(const std::string& nombre) {
    return const_cast<Variable*>(std::as_const(*this).Buscar(nombre));
}

const Variable* ListaVariables::Buscar(const std::string& nombre) const {
    const auto encontrada =
            std::find_if(mVariables.begin(), mVariables.end(),
                         [&](const Variable& v) { return IgualTexto(v.Name, nombre); });
    return encontrada == mVariables.end() ? nullptr : &*encontrada;
}

void ListaVariables::Vaciar() {
    mVariables.clear();
}

int16_t ListaVariables::Cuenta() const {
    return static_cast<int16_t>(mVariables.size());
}

Variable ListaVariables::Registro(int16_t indice) const {
    if (indice < 1 || indice > Cuenta()) {
        throw RuntimeError(kSubindiceFueraDeIntervalo, "El subíndice está fuera del intervalo");
    }
    return mVariables[indice - 1];
}

}  // namespace kelvora
