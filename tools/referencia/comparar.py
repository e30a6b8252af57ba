#!/usr/bin/env python3
"""Runs `kelvora-cli calcular --json` and the second implementation on project files and
reports every difference: ok, messages, result slots (relative 1e-9) and grid texts."""

import argparse
import glob
import json
import os
import subprocess
import sys

AQUI = os.path.dirname(os.path.abspath(__file__))
TOLERANCIA = 1e-9


def ejecutar(orden, segundos):
    try:
        proceso = subprocess.run(orden, capture_output=True, text=True, timeout=segundos)
    except subprocess.TimeoutExpired:
        return {"falla": "no terminó en %d s" % segundos}
    try:
        return json.loads(proceso.stdout)
    except json.JSONDecodeError:
        return {"falla": "salida no JSON (código %d): %s" % (proceso.returncode,
                                                              proceso.stderr.strip()[-300:])}


def distintos(a, b):
    if a == b:
        return False
    return abs(a - b) > TOLERANCIA * max(abs(a), abs(b))


def diferencias(programa, referencia, con_valores):
    if "falla" in programa or "falla" in referencia:
        return ["programa: %s / referencia: %s" % (programa.get("falla", "bien"),
                                                   referencia.get("falla", "bien"))]
    salida = []
    for clave in ("ok", "tipo", "ventana"):
        if programa[clave] != referencia[clave]:
            salida.append("%s: %r / %r" % (clave, programa[clave], referencia[clave]))
    if programa["mensajes"] != referencia["mensajes"]:
        salida.append("mensajes:\n    programa:   %s\n    referencia: %s" % (
            json.dumps(programa["mensajes"], ensure_ascii=False),
            json.dumps(referencia["mensajes"], ensure_ascii=False)))
    rp, rr = programa["resultados"], referencia["resultados"]
    if len(rp) != len(rr):
        salida.append("resultados: %d casillas / %d" % (len(rp), len(rr)))
    for i, (a, b) in enumerate(zip(rp, rr), start=1):
        if distintos(a, b):
            salida.append("casilla %d: %r / %r" % (i, a, b))
    tp, tr = programa["tabla"], referencia["tabla"]
    if len(tp) != len(tr):
        salida.append("tabla: %d filas / %d" % (len(tp), len(tr)))
    for i, (a, b) in enumerate(zip(tp, tr)):
        if a != b:
            salida.append("fila %d: %s / %s" % (i, a, b))
    if con_valores:
        salida += _valores(programa["valores"], referencia["valores"])
    return salida


def _valores(programa, referencia):
    salida = []
    for clave in sorted(set(programa) | set(referencia)):
        a, b = programa.get(clave), referencia.get(clave)
        numeros = all(isinstance(x, (int, float)) and not isinstance(x, bool) for x in (a, b))
        if (numeros and distintos(a, b)) or (not numeros and a != b):
            salida.append("valor %s: %r / %r" % (clave, a, b))
    return salida


def main():
    parser = argparse.ArgumentParser(description=__doc__)
    parser.add_argument("archivos", nargs="+", help="project files or folders of them")
    parser.add_argument("--cli", default=os.path.join(AQUI, "..", "..", "build", "bin",
                                                      "kelvora-cli"))
    parser.add_argument("--segundos", type=int, default=20)
    parser.add_argument("--valores", action="store_true", help="compare the public values too")
    args = parser.parse_args()
    archivos = []
    for nombre in args.archivos:
        if os.path.isdir(nombre):
            archivos += sorted(glob.glob(os.path.join(nombre, "*.adk")))
        else:
            archivos.append(nombre)
    con_diferencias = 0
    for archivo in archivos:
        programa = ejecutar([args.cli, "calcular", archivo, "--json"], args.segundos)
        referencia = ejecutar([sys.executable, os.path.join(AQUI, "referencia.py"), archivo],
                              args.segundos)
        lista = diferencias(programa, referencia, args.valores)
        if lista:
            con_diferencias += 1
            print("== %s" % archivo)
            for linea in lista:
                print("  " + linea)
    print("%d archivos comparados, %d con diferencias" % (len(archivos), con_diferencias))
    return 1 if con_diferencias else 0


if __name__ == "__main__":
    sys.exit(main())
