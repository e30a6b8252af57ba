#pragma once

#include "core/economics/modeloeconomico.h"

#include <map>
#include <vector>

class QComboBox;
class QGroupBox;
class QLabel;
class QLineEdit;
class QPushButton;
class QWidget;

namespace kelvora {

class CajaValor;

/// The controls of an economic window, by the names of the product; boxes, labels and unit
/// lists by their index in the model.
struct FormularioEconomico {
    std::map<int, QLabel*> lblEtiqueta;
    /// The input boxes, which type through the key filter.
    std::map<int, CajaValor*> txtValor;
    /// The read-only result boxes.
    std::map<int, QLineEdit*> txtResultado;
    std::map<int, QComboBox*> cboUnidad;
    QComboBox* cboHorasTrabajadas = nullptr;
    QComboBox* cboCombustibleUtilizado = nullptr;
    QGroupBox* fraDatosEntrada = nullptr;
    QGroupBox* fraResultados = nullptr;
    QLabel* lblEstado = nullptr;
    QPushButton* cmdAceptar = nullptr;
    QPushButton* cmdCancelar = nullptr;
    /// Every control that takes the focus, in tab order.
    std::vector<QWidget*> ordenTabulacion;
};

/// Builds the form of the model's window into `ventana`: the data frame with the orientations,
/// the hours, the fuel, its name, price and calorific value and the efficiency; the status
/// line; the results frame; and the two buttons.
FormularioEconomico CrearFormularioEconomico(QWidget& ventana, const ModeloEconomico& modelo);

}  // namespace kelvora
