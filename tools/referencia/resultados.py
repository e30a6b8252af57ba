"""The results grid: labels, units and cell texts of the four results windows."""

from datos import nombre_producto
from unidades import convertir
from vb import formato, normalizar_decimal, texto_numero

TITULOS = {
    "SP": "Transferencia de Calor para Superficies Planas (Calor)",
    "SC": "Transferencia de Calor para Superficies Cilíndricas (Calor)",
    "SPFrio": "Transferencia de Calor para Superficies Planas (Frío)",
    "SCFrio": "Transferencia de Calor para Superficies Cilíndricas (Frío)",
}

POSICIONES_PLANAS = [
    "SUPERFICIE PLANA HORIZONTAL CARA HACIA ARRIBA",
    "SUPERFICIE PLANA VERTICAL",
    "SUPERFICIE PLANA HORIZONTAL CARA HACIA ABAJO",
]
POSICIONES_TUBERIA = ["TUBERIA VERTICAL", "TUBERIA HORIZONTAL"]
CASOS = ["CALCULOS PARA ESPESOR IDEAL", "CALCULOS PARA ESPESOR PRACTICO"]

SALTO = "\r\n"


def _filas(ventana):
    plana = ventana in ("SP", "SPFrio")
    frio = ventana in ("SPFrio", "SCFrio")
    flujo = "BTU/pie² h" if plana else "BTU/pie h"
    verbo = "Ganancia" if frio else "Pérdida"
    filas = [
        ("Temperatura Interior (TI)", 1, "temp"),
        ("Temperatura Superficie Aislamiento (TS)", 2, "temp"),
        ("Temperatura Ambiente (Bulbo Seco) (TA)" if ventana == "SPFrio"
         else "Temperatura Ambiente (TA)", 3, "temp"),
        ("Velocidad del Aire (V)", "mi/h", 2),
    ]
    if plana:
        filas += [
            ("Material Superficie Aislamiento", "", "material"),
            ("Emisividad Superficie Aislamiento (Es)", "", 3),
            ("Emisividad Superficie Fría (Ed)" if frio else "Emisividad Superficie Desnuda (Ed)",
             "", 3),
        ]
    else:
        filas += [
            ("Diámetro de la tubería a aislar (D)", "plg", 2),
            ("Material Superficie Aislamiento", "", "material"),
            ("Emisividad Superficie Aislamiento (Es)", "", 3),
        ]
    radiacion = "Radiación (Qv)" if ventana == "SCFrio" else "Radiación (Qr)"
    filas += [
        ("Temperatura Media (TM)", "°F", 2),
        ("Coeficiente de Conductividad Térmica (k)", "BTU plg/pie² h °F", 2),
        ("Conductancia de la película de aire (f)", "BTU/pie² h °F", 2),
        ("Espesor Exacto del Aislamiento (E)" if ventana == "SCFrio"
         else "Espesor del Aislamiento recomendado (E)", "plg", 2),
        ("%s de Calor por %s" % (verbo, radiacion), flujo, 2),
        ("%s de Calor por Convección (Qc)" % verbo, flujo, 2),
        ("%s de Calor Total (Qt)" % verbo, flujo, 2),
        ("%s de Calor Superficie Desnuda (Qdt)" % verbo, flujo, 2),
        ("Eficiencia del aislamiento (Ef)", "%", 2),
    ]
    return filas


def _titulo_producto(tipo):
    return nombre_producto(tipo).upper().replace("KG/M³", "kg/m³")


def mostrar_resultados(ventana, tipo, slots, unidades):
    """MostrarResultados: the grid as rows of three texts."""
    tabla = [["FORNALIS S.A."] * 3]
    tabla.append([TITULOS[ventana].upper() + SALTO + _titulo_producto(tipo)] * 3)
    posiciones = POSICIONES_PLANAS if ventana in ("SP", "SPFrio") else POSICIONES_TUBERIA
    filas = _filas(ventana)
    bloque = 0
    for posicion in posiciones:
        for caso in CASOS:
            tabla.append([posicion + SALTO + caso] * 3)
            for desplazamiento, (etiqueta, unidad, forma) in enumerate(filas, start=1):
                valor = slots[17 * bloque + desplazamiento - 1]
                if forma == "temp":
                    unidad = unidades[unidad - 1]
                    texto = normalizar_decimal(formato(convertir("°F", unidad, valor), 1, 2))
                elif forma == "material":
                    texto = texto_numero(valor)
                else:
                    texto = normalizar_decimal(formato(valor, 1, forma))
                tabla.append([etiqueta, texto, unidad])
            bloque += 1
    return tabla
