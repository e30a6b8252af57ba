"""IsDate and CDate of the classic runtime for numeric dates, day first as in the es locale."""

import re

SEPARADORES = re.compile(r"[/\- ]+")


def _valida(anio, mes, dia):
    if not (100 <= anio <= 9999 and 1 <= mes <= 12 and dia >= 1):
        return False
    dias = [31, 29 if _bisiesto(anio) else 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31]
    return dia <= dias[mes - 1]


def _bisiesto(anio):
    return anio % 4 == 0 and (anio % 100 != 0 or anio % 400 == 0)


def _anio(texto):
    anio = int(texto)
    if len(texto) <= 2:
        return anio + (2000 if anio < 30 else 1900)
    return anio


def leer_fecha(texto, hoy):
    """(year, month, day) or None. Three numbers: day/month/year, then month/day/year, then
    year/month/day; two numbers: day and month of this year."""
    partes = [p for p in SEPARADORES.split(texto.strip(" ")) if p != ""]
    if not partes or not all(p.isdigit() and p.isascii() and len(p) <= 4 for p in partes):
        return None
    numeros = [int(p) for p in partes]
    if len(partes) == 3:
        anio = _anio(partes[2])
        candidatos = [(anio, numeros[1], numeros[0]), (anio, numeros[0], numeros[1]),
                      (_anio(partes[0]), numeros[1], numeros[2])]
    elif len(partes) == 2:
        candidatos = [(hoy[0], numeros[1], numeros[0]), (hoy[0], numeros[0], numeros[1])]
    else:
        return None
    for fecha in candidatos:
        if _valida(*fecha):
            return fecha
    return None


def formato_fecha(fecha):
    """Format(date, "dd/mm/yyyy")."""
    anio, mes, dia = fecha
    return "%02d/%02d/%04d" % (dia, mes, anio)
