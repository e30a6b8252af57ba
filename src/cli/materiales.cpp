#include "cli/materiales.h"

#include "core/app/contexto.h"
#include "core/materials/conexion.h"
#include "core/materials/fuentetubosbd.h"
#include "core/materials/recordset.h"
#include "core/materials/sentencias.h"
#include "core/runtime/formato.h"
#include "core/runtime/numeros.h"
#include "core/runtime/texto.h"

#include <CLI/CLI.hpp>
#include <charconv>
#include <filesystem>
#include <iostream>

namespace kelvora::cli {

namespace {

// The database is BD/Kelvora.mdb beside the executable, as for the program.
std::string CadenaConexionCli() {
    std::error_code error;
    const std::filesystem::path ejecutable = std::filesystem::read_symlink("/proc/self/exe", error);
    ContextoAplicacion contexto;
    DerivarRutas(contexto, error ? std::filesystem::current_path().string()
                                 : ejecutable.parent_path().string());
    return contexto.CadenaConexion;
}

std::string ConPunto(std::string texto) {
    return NormalizarDecimal(texto);
}

std::string Celda(const ValorCampo& valor, const char* patron) {
    return valor.EsNulo() ? std::string() : ConPunto(Format(valor.Numero(), patron));
}

std::optional<double> LeerNominal(std::string texto) {
    const std::string normalizado = NormalizarDecimal(texto);
    double valor = 0;
    const char* fin = normalizado.data() + normalizado.size();
    const auto [ultimo, error] = std::from_chars(normalizado.data(), fin, valor);
    if (normalizado.empty() || error != std::errc() || ultimo != fin) {
        return std::nullopt;
    }
    return valor;
}

int ListarMateriales() {
    Conexion conexion;
    conexion.Open(CadenaConexionCli());
    Recordset materiales;
    materiales.Open(kSqlListarMateriales, conexion, TipoCursor::SoloAdelante);
    std::cout << "Código\tDescripción\tEmisividad\tTemperatura (°F)\n";
    for (; !materiales.Eof(); materiales.MoveNext()) {
        std::cout << TextoNumero(materiales.Fields("Codigo").Numero()) << '\t'
                  << UCase(Trim(materiales.Fields("Descripcion").Texto())) << '\t'
                  << Celda(materiales.Fields("Emisividad"), "0.0#") << '\t'
                  << Celda(materiales.Fields("Temperatura"), "0.0##") << '\n';
    }
    return kSalidaBien;
}

int MostrarTubo(const std::string& texto) {
    const std::optional<double> nominal = LeerNominal(texto);
    if (!nominal) {
        std::cerr << "El diámetro nominal no es un número: " << texto << '\n';
        return kSalidaUso;
    }
    FuenteTubosBD tubos(CadenaConexionCli());
    const std::optional<FilaTubos> fila = tubos.BuscarTubo(*nominal);
    if (!fila) {
        throw ErrorTuboNoEncontrado(*nominal);
    }
    std::cout << "Nominal\tReal\tInterior\tUna\tUnaMedia\tDos\tDosMedia\tTres\tTresMedia\tCuatro\n";
    for (const double valor : {fila->Nominal, fila->Real, fila->Interior, fila->Una, fila->UnaMedia,
                               fila->Dos, fila->DosMedia, fila->Tres, fila->TresMedia}) {
        std::cout << ConPunto(TextoNumero(valor)) << '\t';
    }
    std::cout << ConPunto(TextoNumero(fila->Cuatro)) << '\n';
    return kSalidaBien;
}

}  // namespace

Ejecucion DeclararMateriales(CLI::App&) {
    return ListarMateriales;
}

Ejecucion DeclararTubo(CLI::App& comando) {
    auto nominal = std::make_shared<std::string>();
    comando.add_option("NOMINAL", *nominal, "Diámetro nominal en plg, p. ej. 1.25 o 1,25.")
            ->required();
    return [nominal] { return MostrarTubo(*nominal); };
}

}  // namespace kelvora::cli
