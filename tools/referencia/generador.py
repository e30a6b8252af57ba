#!/usr/bin/env python3
"""Writes random project files, realistic and edge ones, for comparing the calculations."""

import argparse
import os
import random

NOMINALES = [0.5, 0.75, 1, 1.25, 1.5, 2, 2.5, 3, 3.5, 4, 5, 6, 8, 10, 12, 14, 16, 18, 20, 22, 24,
             26, 28, 30, 32, 34, 36]
TEMPERATURAS = ["°F", "°C", "K", "°R"]
VELOCIDADES = ["mi/h", "km/h", "yd/h", "m/s"]
LONGITUDES = ["plg", "mm", "cm", "m", "km", "mi", "yd", "pie", "pies"]
COMENTARIOS = "';:/*!#"


def de_fahrenheit(valor, unidad):
    if unidad == "°C":
        return (valor - 32) * 5 / 9
    if unidad == "K":
        return (valor + 459.67) * 5 / 9
    if unidad == "°R":
        return valor + 459.67
    return valor


def texto(valor, r):
    """A number as a person or the writer would put it."""
    eleccion = r.random()
    if eleccion < 0.35:
        return "%.*g" % (r.choice([3, 4, 5, 6]), valor)
    if eleccion < 0.45 and abs(valor) >= 20:
        return "%d" % round(valor)
    if eleccion < 0.5:
        return ("%.6g" % valor).replace("e+0", "E").replace("e", "E")
    return repr(valor)


class Generador:
    def __init__(self, semilla):
        self.r = random.Random(semilla)

    def p(self, probabilidad):
        """The chance of a fault in the file; files are spoilt only some of the time."""
        return probabilidad if self.sucio else 0

    def caso(self):
        r = self.r
        self.sucio = r.random() < 0.35
        tipo = r.choice(list(range(1, 15)) * 6 + ([0, 15, -3, 99] if self.sucio else []))
        if tipo <= 12 and tipo >= 1:
            lineas = self.caliente(tipo)
        elif tipo in (13, 14):
            lineas = self.frio(tipo)
        else:
            lineas = self.caliente(r.randint(1, 12))
        lineas = self.tipo(tipo) + lineas
        return self.estropear(lineas)

    def tipo(self, tipo):
        r = self.r
        x = r.random()
        if x < self.p(0.05):
            return []
        if x < self.p(0.1):
            return ["Tipo = %s" % r.choice(["abc", "2.5", "13.5", "7,9", "&HE", "1e400", "15.5%"])]
        return ["Tipo = %d  'producto" % tipo if r.random() < 0.8 else "tipo=%d" % tipo]

    def temperatura(self, clave, valor_f, unidad=None):
        r = self.r
        if unidad is None:
            unidad = r.choice(TEMPERATURAS) if r.random() < 0.4 else "°F"
        valor = de_fahrenheit(valor_f, unidad)
        if unidad == "K" and r.random() < self.p(0.3):
            valor = r.choice([0, -5])
        lineas = []
        if r.random() > self.p(0.06):
            lineas.append("%s = %s" % (clave, texto(valor, r)))
        x = r.random()
        if x < 0.03 + self.p(0.05):
            pass
        elif x < 0.03 + self.p(0.09):
            lineas.append("Unidad%s = %s" % (clave, r.choice(["F", "grados", "°K", "pie", ""])))
        else:
            if r.random() < 0.1:
                unidad = unidad.upper() if r.random() < 0.5 else unidad.lower()
            lineas.append("Unidad%s = %s" % (clave, unidad))
        return lineas

    def velocidad(self):
        r = self.r
        x = r.random()
        if x < 0.6:
            v = r.uniform(0, 25)
        elif x < 0.7:
            v = 0
        elif x < 0.8:
            v = r.choice([1e3, 5e4, 1e6, 123456.7])
        elif x < 0.9:
            v = r.choice([1e-6, 0.001, 0.004, 0.006])
        else:
            v = r.choice([-0.5, -1, -2])
        unidad = r.choice(VELOCIDADES) if r.random() < 0.4 else "mi/h"
        lineas = []
        if r.random() > self.p(0.08):
            lineas.append("VelocidadAire = %s" % texto(v, r))
        y = r.random()
        if y < 0.03 + self.p(0.05):
            pass
        elif y < 0.03 + self.p(0.09):
            lineas.append("UnidadVelocidadAire = %s" % r.choice(["mph", "m/min", "nudos"]))
        else:
            lineas.append("UnidadVelocidadAire = %s" % unidad)
        return lineas

    def material(self, clave_codigo, clave_emisividad, desnuda):
        r = self.r
        x = r.random()
        lineas = []
        if x < 0.78:
            codigo = r.randint(1, 4) if desnuda and r.random() < 0.7 else r.randint(1, 17)
        elif x < 0.86:
            codigo = 0
        elif x < 0.91:
            codigo = r.choice([18, 25, 99, 1000])
        elif x < 0.93:
            codigo = r.choice([-1, -7])
        elif x < 0.97:
            codigo = r.choice([2.5, 3.5, 0.4, 6.7, 1.5, 12.49])
        else:
            codigo = None if self.sucio else r.randint(5, 17)
        if codigo is not None:
            lineas.append("%s = %s" % (clave_codigo, codigo))
        if r.random() < 0.75:
            e = r.choice([r.uniform(0.03, 1), r.uniform(0.03, 1), 0, 1, 1.2, 0.0005, 0.1234])
            lineas.append("%s = %s" % (clave_emisividad, texto(e, r)))
        return lineas

    def diametro(self, frio):
        r = self.r
        x = r.random()
        unidad = "plg"
        if x < 0.6:
            d = r.choice(NOMINALES)
        elif x < 0.7:
            d = r.choice([3.3, 0.375, 7, 9, 0.1, 13.99])
        elif x < 0.8:
            d = r.choice([14.7, 15, 19.5, 40, 100])
        elif x < 0.88:
            unidad = r.choice(LONGITUDES)
            nominal = r.choice(NOMINALES)
            factor = {"plg": 1, "mm": 25.4, "cm": 2.54, "m": 0.0254, "km": 2.54e-5,
                      "mi": 1.5783e-5, "yd": 0.02778, "pie": 1 / 12, "pies": 1 / 12}[unidad]
            d = nominal * factor
        elif x < 0.93:
            d = r.choice([0, -2])
        else:
            d = None if self.sucio else r.choice(NOMINALES)
        lineas = []
        if d is not None:
            lineas.append("DiametroTuberia = %s" % (repr(d) if r.random() < 0.7 else texto(d, r)))
        y = r.random()
        if y < 0.02 + self.p(0.08):
            pass
        elif y < 0.02 + self.p(0.12):
            lineas.append("UnidadDiametroTuberia = %s" % r.choice(["pulg", "in", "pies", "pie"]))
        else:
            lineas.append("UnidadDiametroTuberia = %s" % unidad)
        return lineas

    def caliente(self, tipo):
        r = self.r
        x = r.random()
        ta = r.uniform(30, 110)
        if x < 0.55:
            ti = r.uniform(150, 1500)
            ts = r.uniform(ta + 10, min(ti, 200))
        elif x < 0.62:
            ti = r.uniform(150, 900)
            ts = ta
        elif x < 0.7:
            ti = r.uniform(150, 900)
            ts = ta + r.choice([0.001, 0.01, 0.1, 0.5, 1])
        elif x < 0.76:
            ts = r.uniform(100, 300)
            ti = ts + r.choice([-20, -0.001, 0, 0.004, 0.3, 2])
        elif x < 0.8:
            ti = r.uniform(150, 900)
            ts = ta - r.uniform(0, 20)
        elif x < 0.85:
            ta = r.uniform(-60, 0)
            ts = r.uniform(ta, 10)
            ti = r.uniform(20, 400)
        elif x < 0.9:
            ti = r.uniform(1400, 3000)
            ts = r.uniform(ta + 20, 400)
        elif x < 0.95:
            ti = r.uniform(150, 900)
            ts = r.uniform(ti, ti + 200)
        else:
            ti = r.uniform(100, 600)
            ts = r.uniform(ta, ti)
            ta = r.uniform(ts - 5, ts + 5)
        lineas = []
        lineas += self.temperatura("TemperaturaInterior", ti)
        lineas += self.temperatura("TemperaturaSuperficieAislamiento", ts)
        lineas += self.temperatura("TemperaturaAmbiente", ta)
        lineas += self.velocidad()
        if tipo >= 8:
            lineas += self.diametro(False)
        lineas += self.material("CodigoMaterialSuperficieAislamiento",
                                "EmisividadSuperficieAislamiento", False)
        if tipo <= 7:
            lineas += self.material("CodigoMaterialSuperficieDesnuda",
                                    "EmisividadSuperficieDesnuda", True)
        return lineas

    def frio(self, tipo):
        r = self.r
        x = r.random()
        ta = r.uniform(60, 110)
        if x < 0.6:
            ti = r.uniform(-40, 60)
            rocio = r.uniform(ta - 40, ta - 2)
        elif x < 0.68:
            ti = r.uniform(-40, 60)
            rocio = ta
        elif x < 0.76:
            ti = r.uniform(-40, 60)
            rocio = ta - r.choice([0.5, 1, 1.001, 1.5])
        elif x < 0.82:
            ti = ta + r.choice([0, 1, 10])
            rocio = ta - 10
        elif x < 0.88:
            ti = r.uniform(-40, 60)
            rocio = r.uniform(ti - 10, ti + 1)
        elif x < 0.94:
            ti = r.uniform(-300, -100)
            rocio = r.uniform(ta - 30, ta - 2)
        else:
            ti = r.uniform(40, 70)
            rocio = r.uniform(ti, ta)
        lineas = []
        lineas += self.temperatura("TemperaturaInterior", ti)
        lineas += self.temperatura("TemperaturaAmbiente", ta)
        if r.random() < 0.7:
            lineas += self.temperatura("TemperaturaBulboHumedo", r.choice(
                [r.uniform(rocio, ta), 0, 32, -10]))
        lineas += self.temperatura("TemperaturaPuntoRocio", rocio)
        if r.random() < 0.75:
            hr = r.choice([r.uniform(10, 100)] * 5 + [0, 150, -5, 55])
            lineas.append("HumedadRelativa = %s  '%%" % texto(hr, r))
        if r.random() > self.p(0.1):
            k = r.choice([r.uniform(0.1, 0.35)] * 6 + [0.17, 0.175, 0.004, 0, -0.2, 2.5])
            lineas.append("CoeficienteTransmisionCalor = %s  'BTU plg/pie² h °F" % texto(k, r))
        lineas += self.velocidad()
        if tipo == 14:
            lineas += self.diametro(True)
        lineas += self.material("CodigoMaterialSuperficieAislamiento",
                                "EmisividadSuperficieAislamiento", False)
        if tipo == 13:
            lineas += self.material("CodigoMaterialSuperficieDesnuda",
                                    "EmisividadSuperficieDesnuda", True)
        return lineas

    def estropear(self, lineas):
        r = self.r
        if r.random() < 0.3:
            r.shuffle(lineas)
        extra = []
        for _ in range(r.choice([0, 0, 0, 1, 2, 3]) if self.sucio else r.choice([0, 0, 1])):
            inocuas = [
                r.choice(COMENTARIOS) + " comentario = 5",
                "   " + r.choice(COMENTARIOS) + "nota",
                "",
                "   ",
                "ClaveDesconocida = 7",
                "Observaciones = tubería nueva",
            ]
            faltas = [
                "texto sin igual",
                "= 5",
                "TemperaturaInterior",
                "UnidadTemperaturaInterior =",
                "VelocidadAire = 12,5",
            ]
            extra.append(r.choice(inocuas + (faltas if self.sucio else [])))
        for linea in extra:
            lineas.insert(r.randint(0, len(lineas)), linea)
        if r.random() < 0.2:
            i = r.randrange(len(lineas)) if lineas else 0
            if lineas:
                clave = lineas[i].split("=")[0]
                lineas[i] = clave.upper() + "=" + "=".join(lineas[i].split("=")[1:])
        return lineas

    def archivo(self, lineas):
        fin = "\r\n" if self.r.random() < 0.9 else "\n"
        contenido = fin.join(lineas) + (fin if self.r.random() < 0.9 else "")
        return contenido.encode("cp1252", errors="replace")


def _caliente(tipo, ti, ts, ta, v=5, extra=(), unidades=("°F", "°F", "°F", "mi/h"), codigos=(5, 1),
              emisividades=(0.05, 0.79), diametro=("4", "plg")):
    lineas = ["Tipo = %d" % tipo,
              "TemperaturaInterior = %s" % ti, "UnidadTemperaturaInterior = %s" % unidades[0],
              "TemperaturaSuperficieAislamiento = %s" % ts,
              "UnidadTemperaturaSuperficieAislamiento = %s" % unidades[1],
              "TemperaturaAmbiente = %s" % ta, "UnidadTemperaturaAmbiente = %s" % unidades[2],
              "VelocidadAire = %s" % v, "UnidadVelocidadAire = %s" % unidades[3]]
    if tipo >= 8:
        lineas += ["DiametroTuberia = %s" % diametro[0], "UnidadDiametroTuberia = %s" % diametro[1]]
    lineas += ["CodigoMaterialSuperficieAislamiento = %s" % codigos[0],
               "EmisividadSuperficieAislamiento = %s" % emisividades[0]]
    if tipo <= 7:
        lineas += ["CodigoMaterialSuperficieDesnuda = %s" % codigos[1],
                   "EmisividadSuperficieDesnuda = %s" % emisividades[1]]
    return lineas + list(extra)


def _frio(tipo, ti, ta, rocio, k=0.17, v=2, tbh="80", hr="55", diametro=("4", "plg"), codigos=(14, 2),
          unidades=("°F", "°F", "°F", "°F", "mi/h"), extra=()):
    lineas = ["Tipo = %d" % tipo,
              "TemperaturaInterior = %s" % ti, "UnidadTemperaturaInterior = %s" % unidades[0],
              "TemperaturaAmbiente = %s" % ta, "UnidadTemperaturaAmbiente = %s" % unidades[1]]
    if tbh is not None:
        lineas += ["TemperaturaBulboHumedo = %s" % tbh,
                   "UnidadTemperaturaBulboHumedo = %s" % unidades[2]]
    lineas += ["TemperaturaPuntoRocio = %s" % rocio,
               "UnidadTemperaturaPuntoRocio = %s" % unidades[3]]
    if hr is not None:
        lineas.append("HumedadRelativa = %s  '%%" % hr)
    lineas += ["CoeficienteTransmisionCalor = %s  'BTU plg/pie² h °F" % k,
               "VelocidadAire = %s" % v, "UnidadVelocidadAire = %s" % unidades[4]]
    if tipo == 14:
        lineas += ["DiametroTuberia = %s" % diametro[0], "UnidadDiametroTuberia = %s" % diametro[1]]
    lineas.append("CodigoMaterialSuperficieAislamiento = %s" % codigos[0])
    lineas.append("EmisividadSuperficieAislamiento = 0.9")
    if tipo == 13:
        lineas += ["CodigoMaterialSuperficieDesnuda = %s" % codigos[1],
                   "EmisividadSuperficieDesnuda = 0.3"]
    return lineas + list(extra)


def casos_borde():
    """Edge files picked by hand: each one aims at one rule."""
    casos = {
        "ts-igual-ta": _caliente(1, 400, 80, 80),
        "ts-casi-ta": _caliente(2, 400, 80.001, 80),
        "ti-igual-ts": _caliente(3, 200, 200, 80, v=0),
        "ti-casi-ts": _caliente(4, 200.004, 200, 80, v=0),
        "ts-sobre-ti": _caliente(5, 200, 250, 80),
        "ta-sobre-ts": _caliente(6, 400, 100, 120),
        "v-enorme": _caliente(7, 600, 120, 80, v=1e6),
        "v-diminuta": _caliente(1, 600, 120, 80, v=1e-9),
        "v-negativa": _caliente(1, 600, 120, 80, v=-1),
        "k-cero": _caliente(1, 0, -10, -20, unidades=("K", "°F", "°F", "mi/h")),
        "k-negativa": _caliente(1, -5, 100, 80, unidades=("k", "°F", "°F", "mi/h")),
        "kelvin": _caliente(2, 600, 320, 300, unidades=("K", "K", "K", "m/s")),
        "celsius": _caliente(3, 300, 50, 25, unidades=("°C", "°c", "°C", "km/h")),
        "rankine": _caliente(4, 1000, 580, 540, unidades=("°R", "°R", "°R", "yd/h")),
        "limite-justo": _caliente(4, 650, 120, 80),
        "limite-pasado": _caliente(4, 650.01, 120, 80),
        "codigo-0-con-e": _caliente(1, 600, 120, 80, codigos=(0, 1)),
        "codigo-0-sin-e": [l for l in _caliente(1, 600, 120, 80, codigos=(0, 1))
                           if not l.startswith("EmisividadSuperficieAislamiento")],
        "codigo-inexistente": _caliente(1, 600, 120, 80, codigos=(30, 1)),
        "codigo-negativo": _caliente(1, 600, 120, 80, codigos=(-5, 1)),
        "codigo-decimal": _caliente(1, 600, 120, 80, codigos=(5.5, 1.5)),
        "codigo-grande": _caliente(1, 600, 120, 80, codigos=(123456, 1)),
        "codigo-enorme": _caliente(1, 600, 120, 80, codigos=(1e12, 1)),
        "codigo-40000": _caliente(1, 600, 120, 80, codigos=(40000, 1)),
        "ti-enorme": _caliente(1, 1e20, 120, 80),
        "ts-enorme": _caliente(1, 1e9, 1e8, 80),
        "orbelas-2": _caliente(12, 500, 120, 80, diametro=("2", "plg")),
        "orbelas-36": _caliente(12, 800, 100, 80, v=0, diametro=("36", "plg")),
        "orbelas-14-7": _caliente(12, 500, 120, 80, diametro=("14.7", "plg")),
        "nivara-14-7": _caliente(8, 500, 120, 80, diametro=("14.7", "plg")),
        "nivara-mm": _caliente(8, 500, 120, 80, diametro=("50.8", "mm")),
        "nivara-cm": _caliente(8, 500, 120, 80, diametro=("5.08", "cm")),
        "nivara-m": _caliente(9, 500, 120, 80, diametro=("0.0508", "m")),
        "nivara-pie": _caliente(9, 500, 120, 80, diametro=("0.5", "pie")),
        "nivara-pies": _caliente(9, 500, 120, 80, diametro=("0.5", "PIES")),
        "nivara-3-3": _caliente(10, 500, 120, 80, diametro=("3.3", "plg")),
        "nivara-cero": _caliente(10, 500, 120, 80, diametro=("0", "plg")),
        "nivara-sin-unidad": _caliente(10, 500, 120, 80, diametro=("2", "")),
        "sc-ts-negativa": _caliente(11, 300, -10, -40),
        "sp-ts-negativa": _caliente(5, 300, -10, -40),
        "sp-ts-negativa-2": _caliente(5, 300, -10, -15),
        "frio-base": _frio(13, 40, 95, 76),
        "frio-rocio-ta": _frio(13, 40, 95, 95),
        "frio-rocio-casi": _frio(13, 40, 95, 94),
        "frio-rocio-bajo-ti": _frio(13, 40, 95, 30),
        "frio-ti-ta": _frio(13, 95, 95, 80),
        "frio-ti-sobre-ta": _frio(13, 96, 95, 80),
        "frio-tbh-0": _frio(13, 40, 95, 76, tbh="0"),
        "frio-tbh-k": _frio(13, 40, 95, 76, tbh="0", unidades=("°F", "°F", "K", "°F", "mi/h")),
        "frio-tbh-neg-k": _frio(13, 40, 95, 76, tbh="-1", unidades=("°F", "°F", "K", "°F", "mi/h")),
        "frio-sin-tbh-hr": _frio(13, 40, 95, 76, tbh=None, hr=None),
        "frio-hr-150": _frio(13, 40, 95, 76, hr="150"),
        "frio-hr-neg": _frio(13, 40, 95, 76, hr="-1"),
        "frio-k-0": _frio(13, 40, 95, 76, k="0"),
        "frio-k-redondeo": _frio(13, 40, 95, 76, k="0.175"),
        "frio-k-neg": _frio(13, 40, 95, 76, k="-0.17"),
        "frio-celsius": _frio(13, 5, 35, 24, unidades=("°C", "°C", "°C", "°C", "m/s")),
        "frio-kelvin-rocio": _frio(13, 40, 95, 297, unidades=("°F", "°F", "°F", "K", "mi/h")),
        "frio-limite": _frio(13, 850.5, 900, 800),
        "orbelas-pu-base": _frio(14, 40, 95, 76),
        "orbelas-pu-2": _frio(14, 0, 95, 80, diametro=("2", "plg")),
        "orbelas-pu-seccion": _frio(14, -100, 95, 85, k="0.3", diametro=("0.5", "plg")),
        "orbelas-pu-mm": _frio(14, 40, 95, 76, diametro=("101.6", "mm")),
        "orbelas-pu-36": _frio(14, 40, 95, 76, diametro=("36", "plg")),
        "orbelas-pu-sin-d": _frio(14, 40, 95, 76, diametro=("", "")),
        "orbelas-pu-rocio-ta": _frio(14, 40, 95, 95),
        "orbelas-pu-ti-ta": _frio(14, 95, 95, 80),
        "tipo-vacio": ["' nada"],
        "tipo-decimal": ["Tipo = 2.5"] + _caliente(1, 600, 120, 80)[1:],
        "tipo-hex": ["Tipo = &HE"] + _frio(14, 40, 95, 76)[1:],
        "tipo-0": ["Tipo = 0"],
        "tipo-15": ["Tipo = 15"],
        "tipo-grande": ["Tipo = 70000"],
        "tipo-porcentaje": ["Tipo = 15.5%"],
        "numero-enorme": _caliente(1, "1e400", 120, 80),
        "coma-decimal": _caliente(1, "600,7", "120,5", 80),
        "igual-primero": _caliente(1, 600, 120, 80, extra=["= 5"]),
        "clave-sola": _caliente(1, 600, 120, 80, extra=["VelocidadAire ="]),
        "duplicada": _caliente(1, 600, 120, 80, extra=["TemperaturaInterior = 700",
                                                       "UNIDADTEMPERATURAINTERIOR = °C"]),
        "unidad-mala-t": _caliente(1, 600, 120, 80, unidades=("C", "°F", "°F", "mi/h")),
        "unidad-mala-v": _caliente(1, 600, 120, 80, unidades=("°F", "°F", "°F", "mph")),
        "unidad-vacia": _caliente(1, 600, 120, 80, unidades=("", "°F", "°F", "mi/h")),
        "sin-valor-con-unidad": [l for l in _caliente(1, 600, 120, 80)
                                 if not l.startswith("TemperaturaInterior")],
        "tabulador": ["\tTipo = 1"] + _caliente(1, 600, 120, 80)[1:],
        "comentarios": ["' cabecera", "# otra", "; y otra", "   ! con blancos"]
        + _caliente(1, 600, 120, 80) + ["* fin", ": fin", "/ fin"],
    }
    return casos


TEXTOS = ["Fornalis S.A.", "Ingeniería Térmica Ltda.", "Refinería del Norte; planta 2",
          "  con blancos  ", "Cliente\r\nsegunda línea", "Niño & Peña", "a;b;c", ";", "Ñandú S.A.",
          "Caldera 3 - línea de vapor", "\tTabulado", "x"]
FECHAS_BUENAS = ["05/03/2026", "01/01/2000", "31/12/1999", "29/02/2024", "28/02/2026", "1/2/2026",
                 "15/8/95", " 07/07/2021 ", "2026-03-05", "12/31/2024", "5/3"]
FECHAS_MALAS = ["31/02/2026", "29/02/2025", "00/05/2020", "32/01/2024", "13/13/2020", "hoy", "",
                "05.03.2026"]
COMBUSTIBLES = ["Carbón", "ACPM", "Crudo", "Fuel Oil", "Gas natural", "Energia eléctrica",
                "Propano", "Otro", "carbón", "fuel oil"]
AREAS = ["cm²", "m²", "pulg²", "pie²", "ha", "acre"]
HORAS = ["876", "1752", "2628", "3480", "5256", "6132", "7008", "7884", "8760"]


def _texto_encabezado(r):
    x = r.random()
    if x < 0.1:
        return ""
    if x < 0.15:
        return r.choice(TEXTOS) * r.choice([300, 1000])
    if x < 0.2:
        return "".join(r.choice("abcdeñáé ;,.-") for _ in range(10000))
    return r.choice(TEXTOS)


def _cantidad(r):
    """A number as a user would give it to the command line."""
    x = r.random()
    if x < 0.6:
        return "%g" % round(r.uniform(0.1, 5000), r.choice([0, 1, 2]))
    if x < 0.7:
        return r.choice(["0", "-5", "0.001", "1e6", "12.5"])
    if x < 0.8:
        return "%d" % r.randint(1, 100)
    return repr(round(r.uniform(0.01, 100), 3))


def opciones_informe(r, tipo, pipe):
    """Random options of `kelvora-cli informe` for a report kind; `pipe` picks lengths."""
    opciones = ["--hoy", r.choice(["05/03/2026", "29/02/2024", "31/12/1999", "01/01/2030"])]
    if tipo in ("tecnico", "economico") and r.random() < 0.75:
        fecha = r.choice(FECHAS_BUENAS) if r.random() < 0.8 else r.choice(FECHAS_MALAS)
        opciones += ["--fecha", fecha, "--vendedor", _texto_encabezado(r),
                     "--comprador", _texto_encabezado(r), "--trabajo", _texto_encabezado(r)]
    if tipo == "tabla":
        opciones += ["--grafica", r.choice(["1", "2"])]
    if tipo == "economico":
        n = 2 if pipe else 3
        if r.random() < 0.95:
            opciones += ["--longitudes" if pipe else "--areas",
                         ",".join(_cantidad(r) for _ in range(n))]
        if r.random() < 0.5:
            opciones += ["--unidad", r.choice(["mm", "cm", "m", "km", "pie", "plg", "mi", "yd"]
                                              if pipe else AREAS)]
        if r.random() < 0.6:
            opciones += ["--horas", r.choice(HORAS + ["100.5", "0", "8761", "4380"])]
        combustible = None
        if r.random() < 0.6:
            combustible = r.choice(COMBUSTIBLES)
            opciones += ["--combustible", combustible]
        if combustible == "Otro":
            if r.random() < 0.9:
                opciones += ["--nombre", r.choice(["Leña", "Bagazo; seco", "  ", "Gas de alto horno"])]
            if r.random() < 0.9:
                opciones += ["--poder", _cantidad(r)]
        if r.random() < 0.95:
            opciones += ["--valor", _cantidad(r)]
        if r.random() < 0.5:
            opciones += ["--moneda", r.choice(["Pesos", "Dolares", "Euros", "dolares"])]
        if r.random() < 0.6:
            opciones += ["--eficiencia", r.choice(["100", "85", "0", "150", "72.5", "1"])]
    return opciones


def main():
    parser = argparse.ArgumentParser(description=__doc__)
    parser.add_argument("carpeta")
    parser.add_argument("--cantidad", type=int, default=300)
    parser.add_argument("--semilla", type=int, default=1)
    parser.add_argument("--bordes", action="store_true", help="also write the hand-picked files")
    args = parser.parse_args()
    os.makedirs(args.carpeta, exist_ok=True)
    if args.bordes:
        for nombre, lineas in casos_borde().items():
            with open(os.path.join(args.carpeta, "borde-%s.adk" % nombre), "wb") as f:
                f.write(("\r\n".join(lineas) + "\r\n").encode("cp1252"))
    generador = Generador(args.semilla)
    for n in range(args.cantidad):
        with open(os.path.join(args.carpeta, "caso%04d.adk" % n), "wb") as f:
            f.write(generador.archivo(generador.caso()))


if __name__ == "__main__":
    main()
