#pragma once

#include <cstdint>
#include <functional>
#include <string>

class QWidget;

namespace kelvora {

enum class ComandoAyuda { Contenido, Indice, Busqueda };

/// The commands that the windows of the other subsystems give the frame. Each is optional:
/// a menu entry or button whose function is empty stays disabled. A window that the frame
/// should own is placed with mdiKelvora::AgregarHija; its state is read from the properties
/// described in ventanahija.h.
struct FabricaVentanas {
    /// The data entry window of a product code (1 to 14), shown; nullptr when none was made.
    std::function<QWidget*(int16_t tipo)> NuevaVentanaDatos;
    /// Reads a data file into a new window; false when it could not.
    std::function<bool(const std::string& archivo)> LeerArchivo;
    /// Saves a child, asking for a name when it has none or `comoNuevo`.
    std::function<bool(QWidget* ventana, bool comoNuevo)> GuardarVentana;
    /// Offers to save a child before it closes; false when the closing must stop.
    std::function<bool(QWidget* ventana)> PreguntarGuardar;
    std::function<void(QWidget* ventana)> VistaPreliminar;
    /// Prints a child; `directa` is true from the toolbar, which prints with no dialog.
    std::function<void(QWidget* ventana, bool directa)> Imprimir;
    /// The active child's document as a PDF file; enabled like Imprimir.
    std::function<void(QWidget* ventana)> ExportarPdf;
    /// The default printer's name; empty when there is no printer.
    std::function<std::string()> NombreImpresora;
    std::function<void()> ConfigurarPagina;
    /// A chart of the active child: 1 surface temperature, 2 heat loss, against thickness.
    std::function<void(QWidget* ventana, int tipo)> Graficar;
    std::function<void()> ConvertidorUnidades;
    std::function<void()> ConvertidorUnidadesPersonalizado;
    std::function<void()> InsertarMaterial;
    std::function<void()> ConsultarMateriales;
    std::function<void()> AireHumedo;
    /// The help's contents, index and search; left empty, as the three commands do nothing.
    std::function<void(ComandoAyuda comando)> Ayuda;
};

}  // namespace kelvora
