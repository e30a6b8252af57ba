#include "cli/aire.h"

#include "cli/json.h"
#include "cli/prompterconsola.h"
#include "core/airehumedo/modeloairehumedo.h"
#include "core/units/unidades.h"

#include <CLI/CLI.hpp>
#include <iostream>
#include <map>
#include <memory>
#include <optional>

namespace kelvora::cli {

namespace {

struct OpcionesAire {
    /// The values given, by box, as numbers written with the point.
    std::map<CampoAire, std::string> datos;
    /// Units by box; a temperature unit goes to every temperature box.
    std::map<CampoAire, std::string> unidades;
    bool json = false;
};

constexpr CampoAire kCampos[] = {CampoAire::Seco,  CampoAire::Humedad, CampoAire::BulboHumedo,
                                 CampoAire::Rocio, CampoAire::Altitud, CampoAire::Presion,
                                 CampoAire::Razon, CampoAire::Entalpia};

// clang-format off
const std::map<CampoAire, const char*> kClaves = {
    {CampoAire::Seco, "seco"}, {CampoAire::Humedad, "humedad"},
    {CampoAire::BulboHumedo, "bulboHumedo"}, {CampoAire::Rocio, "rocio"},
    {CampoAire::Altitud, "altitud"}, {CampoAire::Presion, "presion"},
    {CampoAire::Razon, "razon"}, {CampoAire::Entalpia, "entalpia"},
};
// clang-format on

bool EsTemperatura(CampoAire campo) {
    return campo == CampoAire::Seco || campo == CampoAire::BulboHumedo || campo == CampoAire::Rocio;
}

// Each box's unit list takes the unit asked for it; false after a message when it has none.
bool PonerUnidades(ModeloAireHumedo& modelo, const OpcionesAire& opciones) {
    for (const CampoAire campo : kCampos) {
        const auto pedida = opciones.unidades.find(EsTemperatura(campo) ? CampoAire::Seco : campo);
        if (pedida == opciones.unidades.end() || campo == CampoAire::Humedad) {
            continue;
        }
        const std::vector<std::string>& unidades = modelo.Caja(campo).unidades;
        std::string lista;
        for (size_t i = 0; i < unidades.size(); ++i) {
            if (unidades[i] == pedida->second) {
                modelo.SeleccionarUnidad(campo, static_cast<int>(i));
                lista.clear();
                break;
            }
            lista += (lista.empty() ? "" : ", ") + unidades[i];
        }
        if (!lista.empty()) {
            std::cerr << "Unidad desconocida para la " << NombreCampoAire(campo) << ": "
                      << pedida->second << " (" << lista << ")\n";
            return false;
        }
    }
    return true;
}

void Escribir(ModeloAireHumedo& modelo, const OpcionesAire& opciones) {
    for (const auto& [campo, texto] : opciones.datos) {
        if (campo == CampoAire::Altitud || campo == CampoAire::Presion) {
            modelo.ElegirPresion(campo);
        } else if (campo != CampoAire::Seco) {
            modelo.ElegirHumedad(campo);
        }
        modelo.SetTexto(campo, texto);
    }
}

Json ComoJson(const ModeloAireHumedo& modelo) {
    if (!modelo.Estado()) {
        return {{"ok", false},
                {"campo", NombreCampoAire(modelo.CampoError().value_or(CampoAire::Seco))},
                {"mensaje", modelo.lblEstado()}};
    }
    Json valores = Json::object();
    Json unidades = Json::object();
    Json textos = Json::object();
    const classUnidades catalogo;
    for (const CampoAire campo : kCampos) {
        const CajaAire& caja = modelo.Caja(campo);
        valores[kClaves.at(campo)] = ValorAire(*modelo.Estado(), campo, caja.Unidad(), catalogo);
        unidades[kClaves.at(campo)] = caja.Unidad();
        textos[kClaves.at(campo)] = caja.Text;
    }
    return {{"ok", true}, {"valores", valores}, {"unidades", unidades}, {"textos", textos}};
}

int Calcular(const OpcionesAire& opciones) {
    const bool sinHumedad = !opciones.datos.contains(CampoAire::Humedad) &&
                            !opciones.datos.contains(CampoAire::BulboHumedo) &&
                            !opciones.datos.contains(CampoAire::Rocio);
    if (sinHumedad) {
        std::cerr << "Falta uno de --humedad, --bulbo-humedo o --rocio.\n";
        return kSalidaUso;
    }
    const classUnidades unidades;
    PrompterConsola prompter;
    ModeloAireHumedo modelo(unidades, prompter);
    if (!PonerUnidades(modelo, opciones)) {
        return kSalidaUso;
    }
    Escribir(modelo, opciones);
    if (opciones.json) {
        std::cout << TextoJson(ComoJson(modelo)) << '\n';
    } else if (modelo.Estado()) {
        for (const CampoAire campo : kCampos) {
            const CajaAire& caja = modelo.Caja(campo);
            std::cout << NombreCampoAire(campo) << ": " << caja.Text << ' ' << caja.Unidad()
                      << '\n';
        }
    } else {
        std::cerr << modelo.lblEstado() << '\n';
    }
    return modelo.Estado() ? kSalidaBien : kSalidaDetenido;
}

CLI::Option* Valor(CLI::App& comando, const std::shared_ptr<OpcionesAire>& opciones,
                   const char* nombre, CampoAire campo, const char* ayuda) {
    return comando
            .add_option_function<std::string>(
                    nombre,
                    [opciones, campo](const std::string& valor) { opciones->datos[campo] = valor; },
                    ayuda)
            ->check(CLI::Validator(CLI::Number).description(""))
            ->type_name("VALOR");
}

void Unidad(CLI::App& comando, const std::shared_ptr<OpcionesAire>& opciones, const char* nombre,
            CampoAire campo, const char* ayuda) {
    comando.add_option_function<std::string>(
                   nombre,
                   [opciones, campo](const std::string& u) { opciones->unidades[campo] = u; },
                   ayuda)
            ->type_name("UNIDAD");
}

}  // namespace

Ejecucion DeclararAire(CLI::App& comando) {
    auto opciones = std::make_shared<OpcionesAire>();
    Valor(comando, opciones, "--seco", CampoAire::Seco, "Temperatura de bulbo seco.")->required();
    CLI::Option* humedad =
            Valor(comando, opciones, "--humedad", CampoAire::Humedad, "Humedad relativa, en %.");
    CLI::Option* bulbo = Valor(comando, opciones, "--bulbo-humedo", CampoAire::BulboHumedo,
                               "Temperatura de bulbo húmedo.");
    CLI::Option* rocio =
            Valor(comando, opciones, "--rocio", CampoAire::Rocio, "Temperatura de punto de rocío.");
    humedad->excludes(bulbo)->excludes(rocio);
    bulbo->excludes(rocio);
    CLI::Option* altitud = Valor(comando, opciones, "--altitud", CampoAire::Altitud,
                                 "Altitud del sitio (0 si se omite).");
    CLI::Option* presion = Valor(comando, opciones, "--presion", CampoAire::Presion,
                                 "Presión barométrica, en lugar de la altitud.");
    altitud->excludes(presion);
    Unidad(comando, opciones, "--unidad-temperatura", CampoAire::Seco,
           "Unidad de las temperaturas (°F si se omite).");
    Unidad(comando, opciones, "--unidad-altitud", CampoAire::Altitud,
           "Unidad de la altitud (pie).");
    Unidad(comando, opciones, "--unidad-presion", CampoAire::Presion,
           "Unidad de la presión (psi).");
    Unidad(comando, opciones, "--unidad-razon", CampoAire::Razon,
           "Unidad de la razón de humedad (lb/lb, kg/kg o g/kg).");
    Unidad(comando, opciones, "--unidad-entalpia", CampoAire::Entalpia,
           "Unidad de la entalpía (BTU/lb o kJ/kg).");
    comando.add_flag("--json", opciones->json, "Un objeto JSON en una línea.");
    return [opciones] { return Calcular(*opciones); };
}

}  // namespace kelvora::cli
