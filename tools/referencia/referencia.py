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


class Proyecto:
    """One file opened as in a freshly started program: its entry window and, once calculated,
    its results window."""

    def __init__(self, archivo, bd, bd_disponible=True):
        self.archivo = archivo
        self.bd = bd
        self.bd_disponible = bd_disponible
        self.mensajes = []
        self.tipo = 0
        self.ventana = None
        self.entrada = None
        self.argumentos = None
        self.slots = None
        self.tabla = None
        self.valores = None

    def abrir(self):
        """Reader, file checks and ShowVariables; False when no entry window results."""
        try:
            with open(self.archivo, "rb") as f:
                datos = f.read()
        except OSError as error:
            self.mensajes.append(("Error: " + str(error), "critico", "Aceptar"))
            return False
        lector = Lector(self.mensajes)
        tipo = lector.leer(datos)
        if tipo is None or not validar_variables(lector.unidades, tipo, self.mensajes):
            return False
        self.tipo = tipo
        self.ventana, clase = ventana_de_tipo(tipo)
        self.entrada = clase(tipo, self.bd, self.mensajes, self.bd_disponible)
        self.entrada.mostrar_variables(lector.unidades)
        return True

    def calcular(self):
        """"C&alcular" of the entry window; False when no results window stays."""
        if not self.entrada.completa() or not self.entrada.validar():
            return False
        argumentos = self.entrada.argumentos()
        try:
            slots, publicos = _calcular(self.ventana, self.tipo, argumentos, self.bd)
            self.tabla = mostrar_resultados(self.ventana, self.tipo, slots, argumentos["unidades"])
            self.valores = _valores(self.ventana, self.entrada, argumentos, publicos)
        except ErrorVB as error:
            self.mensajes.append(("Error inesperado: " + error.descripcion, "exclamacion",
                                  "Aceptar"))
            return False
        except SeccionNoPrevista:
            self.mensajes.append((TEXTO_SECCION, "exclamacion", "Aceptar"))
            return False
        self.argumentos = argumentos
        self.slots = slots
        return True


def calcular_archivo(archivo, bd):
    proyecto = Proyecto(archivo, bd)
    if not proyecto.abrir():
        return _salida(archivo, proyecto.mensajes)
    if not proyecto.calcular():
        return _salida(archivo, proyecto.mensajes, proyecto.tipo, proyecto.ventana)
    return _salida(archivo, proyecto.mensajes, proyecto.tipo, proyecto.ventana, proyecto.slots,
                   proyecto.tabla, proyecto.valores)


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
