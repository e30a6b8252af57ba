#!/usr/bin/env python3
"""An independent second implementation of the calculations: opens a project file as the
program does, presses "C&alcular" and prints the same JSON as `kelvora-cli calcular --json`."""

import argparse
import json
import sys

from calculos import SeccionNoPrevista, calcular_sc, calcular_scfrio, calcular_sp, calcular_spfrio
from datos import BaseDatos
from lector import Lector, validar_variables
from resultados import mostrar_resultados
from unidades import convertir
from ventanas import ventana_de_tipo
from vb import ErrorVB

TEXTO_SECCION = "Orbelas de mas de 4 plg de espesor, no prevista en este programa"


def _salida(archivo, mensajes, tipo=0, ventana=None, slots=None, tabla=None, valores=None):
    return {
        "archivo": archivo,
        "tipo": tipo,
        "ventana": ventana,
        "ok": slots is not None,
        "mensajes": [{"texto": t, "icono": i, "botones": b} for t, i, b in mensajes],
        "resultados": slots or [],
        "valores": valores or {},
        "tabla": tabla or [],
    }


def _calcular(ventana, tipo, argumentos, bd):
    if ventana == "SP":
        return calcular_sp(argumentos, tipo)
    if ventana == "SC":
        return calcular_sc(argumentos, tipo, bd)
    if ventana == "SPFrio":
        return calcular_spfrio(argumentos)
    return calcular_scfrio(argumentos, bd)


def calcular_archivo(archivo, bd):
    mensajes = []
    try:
        with open(archivo, "rb") as f:
            datos = f.read()
    except OSError as error:
        mensajes.append(("Error: " + str(error), "critico", "Aceptar"))
        return _salida(archivo, mensajes)
    lector = Lector(mensajes)
    tipo = lector.leer(datos)
    if tipo is None or not validar_variables(lector.unidades, tipo, mensajes):
        return _salida(archivo, mensajes)
    nombre, clase = ventana_de_tipo(tipo)
    entrada = clase(tipo, bd, mensajes)
    entrada.mostrar_variables(lector.unidades)
    if not entrada.completa() or not entrada.validar():
        return _salida(archivo, mensajes, tipo, nombre)
    argumentos = entrada.argumentos()
    try:
        slots, publicos = _calcular(nombre, tipo, argumentos, bd)
        tabla = mostrar_resultados(nombre, tipo, slots, argumentos["unidades"])
        valores = _valores(nombre, entrada, argumentos, publicos)
    except ErrorVB as error:
        mensajes.append(("Error inesperado: " + error.descripcion, "exclamacion", "Aceptar"))
        return _salida(archivo, mensajes, tipo, nombre)
    except SeccionNoPrevista:
        mensajes.append((TEXTO_SECCION, "exclamacion", "Aceptar"))
        return _salida(archivo, mensajes, tipo, nombre)
    return _salida(archivo, mensajes, tipo, nombre, slots, tabla, valores)


def _valores(ventana, entrada, a, publicos):
    """The public values of the results window."""
    unidades = a["unidades"]
    valores = {"MaterialSA": entrada.nombre(0)}
    if ventana in ("SP", "SPFrio"):
        valores["MaterialSD"] = entrada.nombre(1)
    valores["unitTS"] = unidades[1]
    valores["TS"] = convertir("°F", unidades[1], a["TS"])
    if ventana in ("SPFrio", "SCFrio"):
        valores.update({
            "unitTPR": unidades[4], "TPR": convertir("°F", unidades[4], a["TPR"]),
            "hayTBH": a["hayTBH"], "unitTBH": unidades[3],
            "TBH": convertir("°F", unidades[3], a["TBH"]), "hayHR": a["hayHR"], "HR": a["HR"],
        })
    valores.update(publicos)
    return valores


def main():
    parser = argparse.ArgumentParser(description=__doc__)
    parser.add_argument("archivos", nargs="+")
    parser.add_argument("--bd", help="folder with emisividad.csv and tubos.csv")
    args = parser.parse_args()
    bd = BaseDatos(args.bd) if args.bd else BaseDatos()
    # One line per file, each opened as in a program of its own.
    for archivo in args.archivos:
        json.dump(calcular_archivo(archivo, bd), sys.stdout, ensure_ascii=False)
        sys.stdout.write("\n")


if __name__ == "__main__":
    main()
