"""Products and the two reference tables, read from the seed CSV files."""

import csv
import os

from vb import ErrorVB

PRODUCTOS = {
    1: ("Velmar de 80 kg/m³", 1400, 0.217, 0.0019),
    2: ("Velmar de 100 kg/m³", 1400, 0.2199, 0.0017),
    3: ("Velmar de 140 kg/m³", 1400, 0.234, 0.0015),
    4: ("Dorlin", 650, 0.21, 0.0022),
    5: ("Kandor", 650, 0.234, 0.0022),
    6: ("Sarvel", 850, 0.21, 0.0022),
    7: ("Lorvan", 850, 0.212, 0.002),
    8: ("Nivara", 1400, 0.234, 0.0015),
    9: ("Dorlin", 650, 0.21, 0.0022),
    10: ("Kandor", 650, 0.234, 0.0022),
    11: ("Sarvel", 850, 0.21, 0.0022),
    12: ("Orbelas", 850, 0.2219, 0.0018),
    13: ("Tavelas de Poliuretano", 850, 0.20304, 0.00214),
    14: ("Orbelas de Poliuretano", 850, 0.20304, 0.00209),
}


def nombre_producto(codigo):
    return PRODUCTOS[codigo][0] if codigo in PRODUCTOS else ""


def temperatura_maxima(codigo):
    return float(PRODUCTOS[codigo][1]) if codigo in PRODUCTOS else 0.0


def coeficientes(codigo):
    return PRODUCTOS[codigo][2:] if codigo in PRODUCTOS else (0.0, 0.0)


CARPETA_BD = os.path.join(os.path.dirname(os.path.abspath(__file__)), "..", "..", "data", "bd")


class BaseDatos:
    def __init__(self, carpeta=CARPETA_BD):
        with open(os.path.join(carpeta, "emisividad.csv"), encoding="utf-8") as f:
            self.emisividad = {
                float(fila["Codigo"]): (float(fila["Emisividad"]), fila["Descripcion"])
                for fila in csv.DictReader(f)
            }
        with open(os.path.join(carpeta, "tubos.csv"), encoding="utf-8") as f:
            self.tubos = [{k: float(v) for k, v in fila.items()} for fila in csv.DictReader(f)]

    def material(self, codigo):
        return self.emisividad.get(float(codigo))

    def tubo(self, nominal):
        for fila in self.tubos:
            if fila["Nominal"] == nominal:
                return fila
        return None


class SinBaseDatos:
    """The database file missing: every query fails with the program's message, naming the
    file where the program looks for it."""

    def __init__(self, archivo_bd):
        self.archivo_bd = archivo_bd

    def material(self, codigo):
        return None

    def tubo(self, nominal):
        raise ErrorVB(0, "No se pudo encontrar el archivo '%s'." % self.archivo_bd)
