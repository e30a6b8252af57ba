#pragma once

#include "core/entry/modeloentrada.h"

#include <vector>

class QComboBox;
class QGroupBox;
class QLabel;
class QMenu;
class QPushButton;
class QToolButton;
class QWidget;

namespace kelvora {

class CajaValor;

/// The controls of a data entry window, by the names of the product. Arrays are indexed from
/// 1 like the boxes; an entry that a box does not have is nullptr.
struct FormularioEntrada {
    std::vector<QLabel*> lblEtiqueta;
    std::vector<CajaValor*> txtValor;
    std::vector<QComboBox*> cboUnidad;
    std::vector<QPushButton*> cmdConsultarMaterial;
    QGroupBox* fraDatosEntrada = nullptr;
    QGroupBox* fraProducto = nullptr;
    QLabel* lblProducto = nullptr;
    QToolButton* tbrProducto = nullptr;
    QMenu* mnuProductos = nullptr;
    QLabel* lblEstado = nullptr;
    QPushButton* cmdAceptar = nullptr;
    QPushButton* cmdCancelar = nullptr;
    QPushButton* cmdGraficar = nullptr;

    /// The widget of a control of the model; nullptr for none.
    QWidget* Widget(Control control) const;
};

/// Builds the form of the model's window into `ventana`: the letterhead, the product frame,
/// the fields in reading order with their labels, lists and query buttons, the status line
/// and the three buttons, in the model's tab order.
FormularioEntrada CrearFormulario(QWidget& ventana, const ModeloEntrada& modelo);

}  // namespace kelvora
