#include "gui/thermal/tablagrilla.h"

#include "gui/platform/texto.h"

#include <QHeaderView>
#include <QTableWidget>

namespace kelvora {

namespace {

QColor ColorDe(const TablaColores& colores, int indice) {
    const Color c = colores.at(static_cast<size_t>(indice));
    return QColor(Rojo(c), Verde(c), Azul(c));
}

// Heading texts break their lines with CR LF; a cell shows one break.
QString TextoCelda(const std::string& texto) {
    return Q(texto).replace(QStringLiteral("\r\n"), QStringLiteral("\n"));
}

QTableWidgetItem* Celda(const Grilla& grilla, int fila, int columna, const TablaColores& colores,
                        const QFont& fuente) {
    const EstiloCelda& estilo = grilla.Estilo(fila, columna);
    auto* celda = new QTableWidgetItem(TextoCelda(grilla.TextMatrix(fila, columna)));
    celda->setFlags(Qt::ItemIsEnabled | Qt::ItemIsSelectable);
    celda->setTextAlignment(AlineacionDe(estilo.alineacion));
    QFont negrita = fuente;
    negrita.setBold(estilo.negrita);
    celda->setFont(negrita);
    if (estilo.colorFondo != 0) {
        celda->setBackground(ColorDe(colores, estilo.colorFondo));
    }
    if (estilo.colorTexto != 0) {
        celda->setForeground(ColorDe(colores, estilo.colorTexto));
    }
    return celda;
}

void CombinarFila(QTableWidget& tabla, const Grilla& grilla, int fila) {
    int inicio = 0;
    for (int columna = 1; columna <= grilla.Cols(); ++columna) {
        if (columna < grilla.Cols() &&
            grilla.TextMatrix(fila, columna) == grilla.TextMatrix(fila, inicio)) {
            continue;
        }
        if (columna - inicio > 1) {
            tabla.setSpan(fila, inicio, 1, columna - inicio);
        }
        inicio = columna;
    }
}

}  // namespace

Qt::Alignment AlineacionDe(Alineacion alineacion) {
    switch (alineacion) {
        case Alineacion::Centro:
            return Qt::AlignCenter;
        case Alineacion::Derecha:
            return Qt::AlignRight | Qt::AlignVCenter;
        default:
            return Qt::AlignLeft | Qt::AlignVCenter;
    }
}

void MostrarGrilla(QTableWidget& tabla, const Grilla& grilla, const TablaColores& colores) {
    tabla.setUpdatesEnabled(false);
    tabla.clearSpans();
    tabla.setColumnCount(grilla.Cols());
    tabla.setRowCount(grilla.Rows());
    const int alto = tabla.verticalHeader()->defaultSectionSize();
    for (int fila = 0; fila < grilla.Rows(); ++fila) {
        for (int columna = 0; columna < grilla.Cols(); ++columna) {
            tabla.setItem(fila, columna, Celda(grilla, fila, columna, colores, tabla.font()));
        }
        if (grilla.MergeRow(fila)) {
            CombinarFila(tabla, grilla, fila);
        }
        tabla.setRowHeight(fila, static_cast<int>(alto * grilla.RowHeight(fila)));
    }
    tabla.setUpdatesEnabled(true);
}

void AjustarColumnas(QTableWidget& tabla, const std::vector<double>& proporciones) {
    const int ancho = tabla.viewport()->width();
    int usado = 0;
    const int columnas = std::min(tabla.columnCount(), static_cast<int>(proporciones.size()));
    for (int columna = 0; columna < columnas; ++columna) {
        const bool ultima = columna == columnas - 1;
        const int propio =
                ultima ? ancho - usado
                       : static_cast<int>(ancho * proporciones[static_cast<size_t>(columna)]);
        tabla.setColumnWidth(columna, std::max(propio, 1));
        usado += propio;
    }
}

}  // namespace kelvora
