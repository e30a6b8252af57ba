#!/usr/bin/env python3
"""Runs `kelvora-cli informe --json` and the second implementation of the reports on project
files, with random header values and economic options, in each locale, and lists every
difference key by key."""

import argparse
import collections
import glob
import json
import os
import random
import re
import subprocess
import sys

from comparar import AQUI
from datos import BaseDatos, SinBaseDatos
from generador import opciones_informe
from grafica import SerieLarga
from informe import generar
from lector import Lector
from vb import Regional

TIPOS = ["datos", "tecnico", "economico", "tabla"]
CLAVES = ["ok", "stage", "TipoVentana", "Caption", "Tag", "Rows", "Cols", "MergeRow", "RowData",
          "ColData", "messages"]


def _es_tuberia(archivo):
    try:
        with open(archivo, "rb") as f:
            tipo = Lector([]).leer(f.read())
    except OSError:
        return False
    return tipo is not None and tipo in (8, 9, 10, 11, 12, 14)


def _argumentos(opciones):
    """The options as the parser of informe.py leaves them."""
    pares = dict(zip(opciones[::2], opciones[1::2]))
    espacio = argparse.Namespace(
        **{clave: pares.get("--" + clave) for clave in
           ("fecha", "vendedor", "comprador", "trabajo", "areas", "longitudes", "unidad", "horas",
            "combustible", "nombre", "poder", "valor", "moneda", "eficiencia", "hoy")})
    espacio.grafica = int(pares.get("--grafica", "1"))
    return espacio


def _programa(cli, archivo, tipo, opciones, entorno, segundos):
    orden = [cli, "informe", archivo, "--tipo", tipo, "--json"] + opciones
    try:
        proceso = subprocess.run(orden, capture_output=True, text=True, timeout=segundos,
                                 env=entorno)
    except subprocess.TimeoutExpired:
        return {"falla": "no terminó en %d s" % segundos}
    try:
        return json.loads(proceso.stdout)
    except json.JSONDecodeError:
        return {"falla": "salida no JSON (código %d): %s" % (
            proceso.returncode, (proceso.stderr or proceso.stdout).strip()[-300:])}


def _corto(valor):
    texto = json.dumps(valor, ensure_ascii=False)
    return texto if len(texto) <= 160 else texto[:150] + "…(%d)" % len(texto)


def diferencias(programa, referencia):
    """(key, program, reference) for every key that differs; cells one by one."""
    if "falla" in programa:
        return [("falla", programa["falla"], "")]
    salida = []
    for clave in CLAVES:
        a, b = programa.get(clave), referencia.get(clave)
        if a != b:
            salida.append((clave, a, b))
    cp, cr = programa.get("celdas") or [], referencia.get("celdas") or []
    for r in range(max(len(cp), len(cr))):
        fp = cp[r] if r < len(cp) else None
        fr = cr[r] if r < len(cr) else None
        if fp == fr:
            continue
        if fp is None or fr is None:
            salida.append(("celdas[%d]" % r, fp, fr))
            continue
        for c in range(max(len(fp), len(fr))):
            a = fp[c] if c < len(fp) else None
            b = fr[c] if c < len(fr) else None
            if a != b:
                salida.append(("celdas[%d][%d] %s" % (r, c, (fr[0] if fr else "")[:40]), a, b))
    return salida


def _clase(clave):
    """The kind of a difference, for the summary: a cell's column and the label of its row."""
    return re.sub(r"\[\d+\]", "[]", clave.split(" ", 1)[0]) + (
        " " + clave.split(" ", 1)[1] if " " in clave else "")


def main():
    parser = argparse.ArgumentParser(description=__doc__)
    parser.add_argument("archivos", nargs="+", help="project files or folders of them")
    parser.add_argument("--cli", default=os.path.join(AQUI, "..", "..", "build", "bin",
                                                      "kelvora-cli"))
    parser.add_argument("--tipos", default=",".join(TIPOS))
    parser.add_argument("--locales", default="C.UTF-8,es_ES.UTF-8")
    parser.add_argument("--semilla", type=int, default=1)
    parser.add_argument("--segundos", type=int, default=60)
    parser.add_argument("--sin-bd", type=float, default=0.0,
                        help="share of runs made with --sin-bd")
    parser.add_argument("--maximo", type=int, default=3, help="differences shown per run")
    parser.add_argument("--puntos", type=int, default=5000,
                        help="chart series longer than this are left out")
    args = parser.parse_args()
    archivos = []
    for nombre in args.archivos:
        if os.path.isdir(nombre):
            archivos += sorted(glob.glob(os.path.join(nombre, "*.adk")))
        else:
            archivos.append(nombre)
    r = random.Random(args.semilla)
    bd = BaseDatos()
    archivo_bd = os.path.join(os.path.dirname(os.path.abspath(args.cli)), "BD", "Kelvora.mdb")
    sin_bd = SinBaseDatos(archivo_bd)
    corridas = con_diferencias = omitidas = 0
    resumen = collections.Counter()
    for archivo in archivos:
        tuberia = _es_tuberia(archivo)
        for tipo in args.tipos.split(","):
            opciones = opciones_informe(r, tipo, tuberia)
            sin = r.random() < args.sin_bd
            if sin:
                opciones.append("--sin-bd")
            for local in args.locales.split(","):
                entorno = dict(os.environ, LC_ALL=local, LANG=local)
                try:
                    referencia = generar(archivo, tipo, _argumentos(opciones),
                                         sin_bd if sin else bd, not sin,
                                         Regional.del_entorno(entorno), args.puntos)
                except SerieLarga:
                    omitidas += 1
                    continue
                programa = _programa(args.cli, archivo, tipo, opciones, entorno, args.segundos)
                corridas += 1
                lista = diferencias(programa, referencia)
                if not lista:
                    continue
                con_diferencias += 1
                print("== %s --tipo %s [%s] %s" % (archivo, tipo, local,
                                                   " ".join(_corto(o) for o in opciones)))
                for clave, a, b in lista[:args.maximo]:
                    print("  %s\n    programa:   %s\n    referencia: %s" % (clave, _corto(a),
                                                                          _corto(b)))
                if len(lista) > args.maximo:
                    print("  … %d más" % (len(lista) - args.maximo))
                for clave in {_clase(c) for c, _, _ in lista}:
                    resumen[(tipo, clave)] += 1
    print("\nDiferencias por clase (informe, clave: corridas)")
    for (tipo, clave), n in resumen.most_common():
        print("  %-9s %-60s %d" % (tipo, clave[:60], n))
    print("%d archivos, %d corridas, %d con diferencias, %d series largas omitidas"
          % (len(archivos), corridas, con_diferencias, omitidas))
    return 1 if con_diferencias else 0


if __name__ == "__main__":
    sys.exit(main())
