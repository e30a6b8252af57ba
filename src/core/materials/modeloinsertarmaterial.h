#pragma once

#include "core/app/contexto.h"
#include "core/materials/grillamateriales.h"
#include "core/materials/sentencias.h"
#include "core/materials/teclanumerica.h"
#include "core/platform/prompter.h"

#include <string>

namespace kelvora {

class RuntimeError;

/// What the insert window takes from outside.
struct EntornoInsertar {
    Prompter& prompter;
    /// Its connection string.
    const ContextoAplicacion& contexto;
};

/// The insert and modify window of one row of Emisividad, `frmInsertarMaterial`. Boxes:
/// 1 code (read only), 2 description, 3 emissivity, 4 temperature in °F.
class ModeloInsertarMaterial {
public:
    static constexpr int kCajas = 4;

    explicit ModeloInsertarMaterial(EntornoInsertar entorno);

    /// Ready for a new row: the next free code, the other boxes empty, insert mode.
    void Borrar();
    /// Ready to modify the row of these cells of the material list.
    void CargarFila(const CeldasMaterial& celdas);

    bool Modificar() const { return mModificar; }
    const std::string& Texto(int i) const;
    /// A change of box i: the description is upper-cased (character for character, so the
    /// caret keeps its place); then `Activar`.
    void SetTexto(int i, std::string texto);
    /// A key typed into box 3 or 4 with its caret and selection; box 2 takes every key.
    ResultadoTeclaNumerica txtValor_KeyPress(int i, int caret, int seleccion, int KeyAscii);

    /// Enables "Aceptar" and sets its caption, tool tip and the window's title by the mode.
    void Activar();
    const std::string& Caption() const { return mCaption; }
    const std::string& cmdAceptarCaption() const { return mAceptarCaption; }
    const std::string& cmdAceptarToolTipText() const { return mCaption; }
    bool cmdAceptarEnabled() const { return mAceptarHabilitado; }
    /// The box that should have the focus, 0 for none; the window takes it and clears it.
    int Foco() const { return mFoco; }
    void FocoTomado() { mFoco = 0; }

    /// Checks the boxes and writes the row; true when it was written and the form is
    /// ready for the next one.
    bool cmdAceptar_Click();

private:
    bool PonerCodigoLibre();
    bool Comprobar();
    bool Rechazar(const char* texto, int caja);
    FilaMaterial Fila() const;
    void Avisar(const std::string& texto, Icono icono);
    void AvisarError(const RuntimeError& error);

    EntornoInsertar mEntorno;
    bool mModificar = false;
    std::string mTextos[kCajas];
    std::string mCaption = "Insertar Acabado Superficial";
    std::string mAceptarCaption = "&Insertar";
    bool mAceptarHabilitado = false;
    int mFoco = 0;
};

}  // namespace kelvora
