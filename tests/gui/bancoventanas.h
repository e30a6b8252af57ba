#pragma once

#include "core/app/contexto.h"
#include "core/datafile/dialogosarchivo.h"
#include "core/materials/tubos.h"
#include "gui/app/mdikelvora.h"
#include "gui/datafile/archivosventanas.h"
#include "gui/entry/frmdatosentrada.h"
#include "gui/thermal/frmresultados.h"
#include "support/dobles.h"

#include <deque>
#include <functional>
#include <memory>
#include <vector>

class QAction;
class QComboBox;
class QLineEdit;
class QPushButton;

namespace kelvora::prueba {

/// Answers the Open and Save dialogs from a script (cancel once it is used up) and records
/// how each was set up.
class DialogosGuion : public DialogosArchivo {
public:
    std::optional<std::string> Abrir(const OpcionesDialogo& opciones) override;
    std::optional<std::string> Guardar(const OpcionesDialogo& opciones) override;

    std::deque<std::optional<std::string>> respuestas;
    std::vector<OpcionesDialogo> pedidos;
};

/// The pipe rows of the database, each lookup taking a while: long enough for the events of a
/// calculation to run in between.
class TubosLentos : public FuenteTubos {
public:
    explicit TubosLentos(const std::string& cadenaConexion);
    std::optional<FilaTubos> BuscarTubo(double nominal) override;

    int esperaMs = 0;

private:
    std::unique_ptr<FuenteTubos> mTubos;
};

/// The frame with the program's calculation windows, the database beside the tests, and
/// scripted boxes and dialogs. Its frame is shown and active.
struct BancoVentanas {
    BancoVentanas();

    frmDatosEntrada* Nueva(int16_t tipo);
    /// Reads an example of data/ejemplos into a new window.
    frmDatosEntrada* Abrir(const char* ejemplo);
    /// Presses "C&alcular" and gives the results window it left, or nullptr.
    frmResultados* Calcular(frmDatosEntrada* ventana);
    /// Lets closed windows go.
    static void Esperar();
    /// Plugs `fabrica` into the frame again after a test has added commands to it.
    void PonerFabrica();

    FabricaVentanas fabrica;
    PrompterGuion prompter;
    SettingsMemoria ajustes;
    RelojFijo reloj{Fecha{2024, 3, 5}};
    ContextoAplicacion contexto;
    mdiKelvora marco{contexto, ajustes, reloj};
    DialogosGuion* dialogos = nullptr;
    TubosLentos* tubos = nullptr;
    ArchivosVentanas* ventanas = nullptr;
};

/// The path of an example of data/ejemplos.
std::string Ejemplo(const char* nombre);

/// The results grid of a data file opened and calculated with the core alone, as the command
/// line does it: no window, the same database.
Grilla GrillaSinVentanas(const std::string& archivo);

/// The child windows as the user sees them: the entries of the frame's Ventana menu, the active
/// one ending in "*". A sub-window of the frame's area with no window in it reads "(vacía)",
/// and a menu that lists another number of windows than the area holds adds "(menú distinto)".
QStringList Ventanas(const mdiKelvora& marco);

/// Controls of a window by name; a missing one stops the test program.
QWidget* Hijo(const QWidget* ventana, const QString& nombre);
QAction* Accion(const QWidget* ventana, const char* nombre);
template <class T = QWidget>
T* Control(const QWidget* ventana, const QString& nombre) {
    return static_cast<T*>(Hijo(ventana, nombre));
}
QLineEdit* Caja(const QWidget* ventana, int i);
QComboBox* Lista(const QWidget* ventana, int i);
QPushButton* Boton(const QWidget* ventana, const char* nombre);

/// Clicks into a box or an editable list, selects its text and types over it.
void Escribir(const QWidget* ventana, const QString& nombre, const QString& texto);
/// Takes the list with the mouse and picks an entry.
void Seleccionar(QComboBox* lista, const QString& entrada);

/// Does `hacer` once, from the events that a running calculation lets through, the first time
/// `listo` holds.
void AlOcurrir(QObject* dueno, std::function<bool()> listo, std::function<void()> hacer);

/// What the window shows disagrees with its model: the first difference, or empty.
QString Desacuerdo(const frmDatosEntrada& ventana);

}  // namespace kelvora::prueba
