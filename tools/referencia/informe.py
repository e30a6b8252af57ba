#!/usr/bin/env python3
"""An independent second implementation of the reports: opens a project file as a freshly
started program does, makes one report and prints the JSON of `kelvora-cli informe --json`."""

import argparse
import datetime
import json
import os
import sys

from datos import BaseDatos, SinBaseDatos
from economia import VentanaEconomica
from fechas import leer_fecha
from grafica import Grafica
from informes import Encabezado, informe_copia, informe_datos, informe_economico, informe_tecnico
from referencia import Proyecto
from vb import Regional

TAG_ENTRADA = {"SP": 1, "SC": 5, "SPFrio": 9, "SCFrio": 12}


def _fallo(etapa, mensajes):
    return {"ok": False, "stage": etapa, "messages": [m[0] for m in mensajes]}


def _numeros(texto):
    return [float(parte.replace(",", ".")) for parte in texto.split(",")] if texto else None


def _numero(texto):
    return None if texto is None else float(texto.replace(",", "."))


def opciones_economicas(args):
    return {
        "dimensiones": _numeros(args.areas or args.longitudes),
        "unidad": args.unidad,
        "horas": _numero(args.horas),
        "combustible": args.combustible,
        "nombre": args.nombre,
        "poder": _numero(args.poder),
        "valor": _numero(args.valor),
        "moneda": args.moneda,
        "eficiencia": _numero(args.eficiencia),
    }


def _hoy(texto):
    hoy = datetime.date.today()
    hoy = (hoy.year, hoy.month, hoy.day)
    return leer_fecha(texto, hoy) if texto else hoy


def generar(archivo, tipo, args, bd, bd_disponible, regional, maximo=None):
    """The JSON object of one file and one report kind."""
    hoy = _hoy(args.hoy)
    proyecto = Proyecto(archivo, bd, bd_disponible)
    mensajes = proyecto.mensajes
    if not proyecto.abrir():
        return _fallo("archivo", mensajes)
    respuesta = None
    if args.fecha is not None:
        respuesta = (args.fecha, args.vendedor, args.comprador, args.trabajo)
    if not proyecto.entrada.completa():
        return _fallo("datos", mensajes)
    if tipo == "datos":
        doc = informe_datos(TAG_ENTRADA[proyecto.ventana], proyecto.entrada)
    elif tipo == "tabla":
        if proyecto.ventana not in ("SP", "SC"):
            return _fallo("grafica", mensajes)
        grafica = Grafica(proyecto, args.grafica, maximo)
        if not grafica.graficar(mensajes):
            return _fallo("grafica", mensajes)
        doc = informe_copia(grafica)
    else:
        if not proyecto.calcular():
            return _fallo("calculo", mensajes)
        if tipo == "tecnico":
            doc = informe_tecnico(proyecto, Encabezado(), respuesta, mensajes, hoy)
        else:
            if proyecto.ventana not in ("SP", "SC"):
                return _fallo("economia", mensajes)
            ventana = VentanaEconomica(proyecto.ventana == "SP", proyecto.tabla)
            ventana.aplicar(opciones_economicas(args))
            if not ventana.calcular(mensajes, regional):
                return _fallo("economia", mensajes)
            doc = informe_economico(ventana, proyecto, Encabezado(), respuesta, mensajes, hoy,
                                    regional)
    salida = doc.json()
    salida["messages"] = [m[0] for m in mensajes]
    salida["ok"] = True
    return salida


def main():
    parser = argparse.ArgumentParser(description=__doc__)
    parser.add_argument("archivos", nargs="+")
    parser.add_argument("--tipo", required=True, choices=["datos", "tecnico", "economico", "tabla"])
    parser.add_argument("--json", action="store_true", help="accepted; the output is always JSON")
    for clave in ("fecha", "vendedor", "comprador", "trabajo", "areas", "longitudes", "unidad",
                  "horas", "combustible", "nombre", "poder", "valor", "moneda", "eficiencia",
                  "hoy"):
        parser.add_argument("--" + clave)
    parser.add_argument("--grafica", type=int, default=1, choices=[1, 2])
    parser.add_argument("--sin-bd", action="store_true")
    parser.add_argument("--bd", help="folder with emisividad.csv and tubos.csv")
    parser.add_argument("--archivo-bd", default="BD/Kelvora.mdb",
                        help="where the program looks for its database, for its message")
    args = parser.parse_args()
    if args.sin_bd:
        bd = SinBaseDatos(args.archivo_bd)
    else:
        bd = BaseDatos(args.bd) if args.bd else BaseDatos()
    regional = Regional.del_entorno(os.environ)
    for archivo in args.archivos:
        salida = generar(archivo, args.tipo, args, bd, not args.sin_bd, regional)
        json.dump(salida, sys.stdout, ensure_ascii=False)
        sys.stdout.write("\n")


if __name__ == "__main__":
    main()
