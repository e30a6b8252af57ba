"""The four thickness calculations, display mode, in the internal units (°F, plg, mi/h)."""

import math

from datos import coeficientes
from vb import (ErrorVB, comprobar, csng, dividir, exp, log, normalizar_decimal, potencia,
                texto_numero, vb_int)


def _sin_convergencia():
    """A bisection whose bracket no longer moves would run for ever: it ends with this error."""
    return ErrorVB(6, "El cálculo no converge")


LIMITE = csng(1e-10)


def conductividad(tipo, tm):
    a, b = coeficientes(tipo)
    return comprobar(a * exp(b * tm))


def factor_viento(v):
    return potencia(dividir(88 * v + 68.9, 68.9), 1 / 2)


class Peliculas:
    """Film formulas around one ambient temperature; the cold forms swap the differences."""

    def __init__(self, ta, fv, frio=False):
        self.ta = ta
        self.fv = fv
        self.frio = frio

    def qrad(self, t, e):
        a = potencia((t + 459.6) / 100, 4)
        b = potencia((self.ta + 459.6) / 100, 4)
        diferencia = b - a if self.frio else a - b
        return comprobar((0.174 * e) * diferencia)

    def qconv0(self, t, c):
        media = dividir(1, ((self.ta + 459.6) + (t + 459.6)) / 2)
        primero = comprobar(c * potencia(media, 0.181))
        salto = (self.ta - t) if self.frio else (t - self.ta)
        return comprobar(primero * potencia(salto, 1.266))

    def qconv(self, t, c):
        return comprobar(self.qconv0(t, c) * self.fv)


def biseccion_caliente(p, objetivo, c, ta, ts, es):
    inferior, superior = ta, comprobar(ts + ts)
    while True:
        antes = (inferior, superior)
        t = comprobar(comprobar(superior - inferior) / 2 + inferior)
        q = comprobar(p.qrad(t, es) + p.qconv(t, c))
        if abs(objetivo - q) < 0.01:
            return t
        if q < objetivo:
            inferior = t
        else:
            superior = t
        if csng(abs(inferior - t)) < LIMITE and csng(abs(superior - t)) < LIMITE:
            return None
        if (inferior, superior) == antes:
            raise _sin_convergencia()


def biseccion_fria(p, objetivo, c, ti, ta, es):
    inferior, superior = ti, ta
    while True:
        antes = (inferior, superior)
        t = comprobar(comprobar(superior - inferior) / 2 + inferior)
        q = comprobar(p.qrad(t, es) + p.qconv(t, c))
        if abs(objetivo - q) < 0.01:
            return t
        if q > objetivo:
            inferior = t
        else:
            superior = t
        if (inferior, superior) == antes:
            raise _sin_convergencia()


def biseccion_radio(r1, eq, abandono=True):
    inferior, superior = r1, comprobar(r1 + eq)
    while True:
        antes = (inferior, superior)
        r = comprobar(comprobar(superior - inferior) / 2 + inferior)
        e = comprobar(log(dividir(r, r1)) * r)
        if abs(e - eq) < 0.001:
            return r
        if not abandono and r in antes:
            raise _sin_convergencia()
        if e > eq:
            superior = r
        else:
            inferior = r
        if abandono and csng(abs(inferior - r)) < LIMITE and csng(abs(superior - r)) < LIMITE:
            return r
        if (inferior, superior) == antes:
            raise _sin_convergencia()


def redondeo_practico(e):
    """To the nearest half inch; the integer part is Int, so a negative thickness rounds too."""
    n = vb_int(e)
    fraccion = e - n
    if fraccion < 0.25:
        return n
    if fraccion < 0.75:
        return n + 0.5
    return n + 1


def redondeo_frio(e):
    n = vb_int(e)
    return n + 0.5 if e - n < 0.5 else n + 1


def _bloque(*valores):
    return list(valores) + [0.0]


def calcular_sp(a, tipo):
    """RealizarCalculosSP."""
    ti, ts, ta, v, es, ed = a["TI"], a["TS"], a["TA"], a["V"], a["Es"], a["Ed"]
    fv = factor_viento(v)
    p = Peliculas(ta, fv)
    flujo = comprobar(p.qrad(ts, es) + p.qconv0(ts, 0.941))
    posiciones = [0.941, 0.7383, 0.4714]
    ideal = []
    for c in posiciones:
        b = dict(T=0.0, TM=0.0, k=0.0, f=0.0, E=0.0, Qr=0.0, Qc=0.0, Qt=0.0, Qdc=0.0)
        t = biseccion_caliente(p, flujo, c, ta, ts, es)
        if t is not None:
            b["Qdc"] = p.qconv(ti, c)
            b["T"] = t
            b["TM"] = (t + ti) / 2
            b["k"] = conductividad(tipo, b["TM"])
            b["Qr"] = p.qrad(t, es)
            b["Qc"] = p.qconv(t, c)
            b["Qt"] = comprobar(b["Qr"] + b["Qc"])
            b["E"] = dividir(comprobar((ti - t) * b["k"]), b["Qt"])
            b["f"] = dividir(comprobar((ti - t) * b["k"]), comprobar((t - ta) * b["E"]))
        ideal.append(b)
    qrd = p.qrad(ti, ed)
    for b in ideal:
        b["Qdt"] = comprobar(qrd + b["Qdc"])
        b["Ef"] = comprobar(dividir(b["Qdt"] - flujo, b["Qdt"]) * 100)
    e0 = ideal[0]["E"] if ideal[0]["E"] < ideal[1]["E"] else ideal[1]["E"]
    if ideal[2]["E"] < e0:
        e0 = ideal[2]["E"]
    ep = redondeo_practico(e0)
    practico = []
    for c, bi in zip(posiciones, ideal):
        b = dict(T=0.0, TM=0.0, k=0.0, f=0.0, Qr=0.0, Qc=0.0, Qt=0.0, Qdc=0.0)
        b["q"] = dividir(ti - bi["T"], dividir(ep, bi["k"]))
        t = biseccion_caliente(p, b["q"], c, ta, ts, es)
        if t is not None:
            b["Qdc"] = p.qconv(ti, c)
            b["T"] = t
            b["TM"] = (t + ti) / 2
            b["k"] = conductividad(tipo, b["TM"])
            b["Qr"] = p.qrad(t, es)
            b["Qc"] = p.qconv(t, c)
            b["Qt"] = comprobar(b["Qr"] + b["Qc"])
            b["f"] = dividir(comprobar((ti - t) * b["k"]), comprobar((t - ta) * ep))
        practico.append(b)
    qrd = p.qrad(ti, ed)
    for b in practico:
        b["Qdt"] = comprobar(qrd + b["Qdc"])
        b["Ef"] = comprobar(dividir(b["Qdt"] - b["q"], b["Qdt"]) * 100)
    slots = []
    codigo = float(a["codigo"])
    for bi, bp in zip(ideal, practico):
        slots += _bloque(ti, bi["T"], ta, v, codigo, es, ed, bi["TM"], bi["k"], bi["f"], bi["E"],
                         bi["Qr"], bi["Qc"], bi["Qt"], bi["Qdt"], bi["Ef"])
        slots += _bloque(ti, bp["T"], ta, v, codigo, es, ed, bp["TM"], bp["k"], bp["f"], ep,
                         bp["Qr"], bp["Qc"], bp["Qt"], bp["Qdt"], bp["Ef"])
    return slots, {}


def _fila_tubo(bd, nominal):
    texto = normalizar_decimal(texto_numero(nominal))
    fila = bd.tubo(float(texto))
    if fila is None:
        raise ErrorVB(1005, "No se encontró un diámetro de %s plg en la Base de Datos." % texto)
    return fila


SECCIONES = ["Una", "UnaMedia", "Dos", "DosMedia", "Tres", "TresMedia", "Cuatro"]
ESPESORES = [1, 1.5, 2, 2.5, 3, 3.5, 4]


def _seccion_orbelas(fila, dreq):
    if fila["Una"] > dreq:
        return 0
    for i in range(1, len(SECCIONES)):
        if fila[SECCIONES[i]] > dreq:
            exceso = fila[SECCIONES[i]] - dreq
            faltante = dreq - fila[SECCIONES[i - 1]]
            return i if exceso < faltante else i - 1
    return len(SECCIONES) - 1


def calcular_sc(a, tipo, bd):
    """RealizarCalculosSC."""
    ti, ts, ta, v, es = a["TI"], a["TS"], a["TA"], a["V"], a["Es"]
    nominal = a["D"]
    fila = None
    if tipo == 12 or nominal < 14:
        fila = _fila_tubo(bd, nominal)
        d, de, dint = fila["Real"], fila["Real"] + 3, fila["Interior"]
    else:
        nominal = vb_int(nominal)
        d = dint = nominal
        de = nominal + 3
    r1 = d / 2
    fv = factor_viento(v)
    p = Peliculas(ta, fv)
    flujo = comprobar(p.qrad(ts, es) + p.qconv0(ts, comprobar(1.235 * potencia(dividir(1, de), 0.2))))
    pi = 4 * math.atan(1)
    bloques = []
    por_pie_ideal = None
    for indice, c0 in enumerate([1.235, 1.016]):
        bi = dict(T=0.0, TM=0.0, k=0.0, f=0.0, E=0.0, Qr=0.0, Qc=0.0, Qt=0.0, Qdt=0.0, Ef=0.0)
        bp = dict(T=0.0, TM=0.0, k=0.0, f=0.0, E=0.0, Qr=0.0, Qc=0.0, Qt=0.0, Qdt=0.0, Ef=0.0)
        c = comprobar(c0 * potencia(dividir(1, de), 0.2))
        t = biseccion_caliente(p, flujo, c, ta, ts, es)
        eq = 0.0
        if t is not None:
            bi["T"] = t
            bi["Qr"] = p.qrad(t, es)
            bi["Qc"] = p.qconv(t, c)
            bi["Qt"] = comprobar(bi["Qr"] + bi["Qc"])
            bi["TM"] = (t + ti) / 2
            bi["k"] = conductividad(tipo, bi["TM"])
            eq = dividir(comprobar((ti - t) * bi["k"]), bi["Qt"])
            bi["f"] = dividir(comprobar((ti - t) * bi["k"]), comprobar((t - ta) * eq))
        # The bare pipe needs no surface temperature: it stands when the bisection gives up.
        cd = comprobar(c0 * potencia(dividir(1, d), 0.2))
        bi["Qrd"] = _qrd_caliente(ti, ta)
        bi["Qdc"] = p.qconv(ti, cd)
        bi["Qdt"] = comprobar(bi["Qrd"] + bi["Qdc"])
        if t is not None:
            bi["Ef"] = comprobar(dividir(bi["Qdt"] - bi["Qt"], bi["Qdt"]) * 100)
            r2 = biseccion_radio(r1, eq)
            bi["E"] = r2 - r1
        if indice == 1:
            por_pie_ideal = de
        if t is not None:
            de = _practico_sc(p, tipo, fila, nominal, ti, ta, ts, es, c0, d, de, dint, r1, bi, bp)
        for clave in ("Qr", "Qc", "Qt"):
            bp[clave] = comprobar(bp[clave] * pi * de / 12)
        bp["Qdt"] = comprobar(bp["Qdt"] * pi * d / 12)
        bloques.append([bi, bp])
    for bi, _ in bloques:
        for clave in ("Qr", "Qc", "Qt"):
            bi[clave] = comprobar(bi[clave] * pi * por_pie_ideal / 12)
        bi["Qdt"] = comprobar(bi["Qdt"] * pi * d / 12)
    slots = []
    codigo = float(a["codigo"])
    for bi, bp in bloques:
        for b in (bi, bp):
            slots += _bloque(ti, b["T"], ta, v, nominal, codigo, es, b["TM"], b["k"], b["f"], b["E"],
                             b["Qr"], b["Qc"], b["Qt"], b["Qdt"], b["Ef"])
    vertical = bloques[0][0]["Qrd"]
    for bi, _ in bloques:
        bi["Qrd"] = vertical
    return slots, _desnudas_por_pie(bloques, pi, d)


def _desnudas_por_pie(bloques, pi, d):
    """The public values of a pipe window: D and the bare flows per foot of each block."""
    publicos = {"DM": d}
    for n, (bi, bp) in enumerate(bloques, start=1):
        publicos["QDRL%d" % n] = comprobar(bi.get("Qrd", 0.0) * pi * d / 12)
        publicos["QDCL%d" % n] = comprobar(bi.get("Qdc", 0.0) * pi * d / 12)
        publicos["QDRDL%d" % n] = comprobar(bp.get("Qrd", 0.0) * pi * d / 12)
        publicos["QDCDL%d" % n] = comprobar(bp.get("Qdc", 0.0) * pi * d / 12)
    return publicos


def _practico_sc(p, tipo, fila, nominal, ti, ta, ts, es, c0, d, de, dint, r1, bi, bp):
    """Steps 8 to 12 of a run, taken only when its ideal surface temperature was found."""
    cd = comprobar(c0 * potencia(dividir(1, d), 0.2))
    if tipo == 12:
        if fila is None:
            raise ErrorVB(1005, "No se encontró un diámetro de %s plg en la Base de Datos."
                          % normalizar_decimal(texto_numero(nominal)))
        dreq = 2 * bi["E"] + d
        s = _seccion_orbelas(fila, dreq)
        bp["E"] = ESPESORES[s]
        r2p = (fila[SECCIONES[s]] - dint) / 2 + r1
    else:
        ep = redondeo_practico(bi["E"])
        if ep < 1:
            ep = 1.0
        bp["E"] = ep
        dop = 2 * ep + d
        r2p = dop / 2
        de = dop
    eqp = comprobar(log(dividir(r2p, r1)) * r2p)
    q = dividir(ti - ta, comprobar(dividir(eqp, bi["k"]) + dividir(1, bi["f"])))
    c = comprobar(c0 * potencia(dividir(1, de), 0.2))
    t2 = biseccion_caliente(p, q, c, ta, ts, es)
    if t2 is not None:
        bp["T"] = t2
        bp["Qr"] = p.qrad(t2, es)
        bp["Qc"] = p.qconv(t2, c)
        bp["Qt"] = comprobar(bp["Qr"] + bp["Qc"])
        bp["TM"] = (t2 + ti) / 2
        bp["k"] = conductividad(tipo, bp["TM"])
        eq2 = dividir(comprobar((ti - t2) * bp["k"]), bp["Qt"])
        bp["f"] = dividir(comprobar((ti - t2) * bp["k"]), comprobar((t2 - ta) * eq2))
        bp["Qrd"] = _qrd_caliente(ti, ta)
        bp["Qdc"] = p.qconv(ti, cd)
        bp["Qdt"] = comprobar(bp["Qrd"] + bp["Qdc"])
        bp["Ef"] = comprobar(dividir(bp["Qdt"] - bp["Qt"], bp["Qdt"]) * 100)
    return de


def _qrd_caliente(ti, ta):
    return comprobar(0.174 * (potencia((ti + 459.6) / 100, 4) - potencia((ta + 459.6) / 100, 4)))


def calcular_spfrio(a):
    """RealizarCalculosSPFrio."""
    ti, ts, ta, v, es, ed, k = a["TI"], a["TS"], a["TA"], a["V"], a["Es"], a["Ed"], a["k"]
    fv = factor_viento(v)
    p = Peliculas(ta, fv, frio=True)
    flujo = comprobar(p.qconv0(ts, 0.941) + p.qrad(ts, es))
    posiciones = [0.941, 0.7383, 0.4714]
    ideal = []
    for c in posiciones:
        b = {}
        b["Qdc"] = p.qconv(ti, c)
        t = ts
        b["T"] = t
        b["TM"] = (t + ti) / 2
        b["Qr"] = p.qrad(t, es)
        b["Qc"] = p.qconv(t, c)
        b["Qt"] = comprobar(b["Qr"] + b["Qc"])
        b["E"] = dividir(comprobar((t - ti) * k), b["Qt"])
        b["f"] = dividir(comprobar((t - ti) * k), comprobar((ta - t) * b["E"]))
        ideal.append(b)
    qrd = p.qrad(ti, ed)
    for b in ideal:
        b["Qdt"] = comprobar(b["Qdc"] + qrd)
        b["Ef"] = comprobar(dividir(b["Qdt"] - flujo, b["Qdt"]) * 100)
    practico = []
    for indice, (c, bi) in enumerate(zip(posiciones, ideal)):
        b = {}
        b["E"] = redondeo_frio(bi["E"])
        b["q"] = dividir(ts - ti, dividir(b["E"], k))
        t = biseccion_fria(p, b["q"], c, ti, ta, es)
        b["Qdc"] = p.qconv(ti, c)
        b["T"] = t
        b["TM"] = (t + ti) / 2
        b["Qr"] = p.qrad(t, es)
        b["Qc"] = p.qconv(t, c)
        b["Qt"] = comprobar(b["Qr"] + b["Qc"])
        if indice == 1:
            b["f"] = dividir(comprobar((ti - t) * k), comprobar((t - ta) * b["E"]))
        else:
            b["f"] = dividir(comprobar((t - ti) * k), comprobar((ta - t) * b["E"]))
        practico.append(b)
    qrd = p.qrad(ti, ed)
    for b in practico:
        b["Qdt"] = comprobar(b["Qdc"] + qrd)
        b["Ef"] = comprobar(dividir(b["Qdt"] - b["q"], b["Qdt"]) * 100)
    slots = []
    codigo = float(a["codigo"])
    for bi, bp in zip(ideal, practico):
        for b in (bi, bp):
            slots += _bloque(ti, b["T"], ta, v, codigo, es, ed, b["TM"], k, b["f"], b["E"],
                             b["Qr"], b["Qc"], b["Qt"], b["Qdt"], b["Ef"])
    return slots, {}


class SeccionNoPrevista(Exception):
    pass


def calcular_scfrio(a, bd):
    """RealizarCalculosSCFrio."""
    ti, ts, ta, v, es, k = a["TI"], a["TS"], a["TA"], a["V"], a["Es"], a["k"]
    nominal = a["D"]
    fila = _fila_tubo(bd, nominal)
    d, de, dint = fila["Real"], fila["Real"] + 3, fila["Interior"]
    r1 = d / 2
    fv = factor_viento(v)
    p = Peliculas(ta, fv, frio=True)
    pi = 3.1416
    slots = []
    bloques = []
    codigo = float(a["codigo"])
    t = ts
    for c0 in [1.235, 1.016]:
        c = comprobar(c0 * potencia(dividir(1, de), 0.2))
        cd = comprobar(c0 * potencia(dividir(1, d), 0.2))
        bi, bp = {}, {}
        bi["T"] = t
        bi["Qr"] = p.qrad(t, es)
        bi["Qc"] = p.qconv(t, c)
        bi["Qt"] = comprobar(bi["Qr"] + bi["Qc"])
        bi["TM"] = (t + ti) / 2
        eq = dividir(comprobar((t - ti) * k), bi["Qt"])
        bi["f"] = dividir(comprobar((t - ti) * k), comprobar((ta - t) * eq))
        qrd = _qrd_frio(ti, ta)
        bi["Qrd"] = bp["Qrd"] = qrd
        bi["Qdc"] = bp["Qdc"] = p.qconv(ti, cd)
        bi["Qdt"] = comprobar(qrd + bi["Qdc"])
        bi["Ef"] = comprobar(dividir(bi["Qdt"] - bi["Qt"], bi["Qdt"]) * 100)
        r2 = biseccion_radio(r1, eq, abandono=False)
        bi["E"] = r2 - r1
        dreq = 2 * bi["E"] + d
        s = next((i for i in range(5) if fila[SECCIONES[i]] > dreq), None)
        if s is None:
            raise SeccionNoPrevista()
        bp["E"] = float(ESPESORES[s])
        r2p = (fila[SECCIONES[s]] - dint) / 2 + r1
        eqp = comprobar(log(dividir(r2p, r1)) * r2p)
        q = dividir(ta - ti, comprobar(dividir(eqp, k) + dividir(1, bi["f"])))
        t2 = biseccion_fria(p, q, c, ti, ta, es)
        bp["T"] = t2
        bp["Qr"] = p.qrad(t2, es)
        bp["Qc"] = p.qconv(t2, c)
        bp["Qt"] = comprobar(bp["Qr"] + bp["Qc"])
        bp["TM"] = (t2 + ti) / 2
        eq2 = dividir(comprobar((t2 - ti) * k), bp["Qt"])
        bp["f"] = dividir(comprobar((t2 - ti) * k), comprobar((ta - t2) * eq2))
        bp["Qdt"] = comprobar(qrd + p.qconv(ti, cd))
        bp["Ef"] = comprobar(dividir(bp["Qdt"] - bp["Qt"], bp["Qdt"]) * 100)
        bloques.append((bi, bp))
        for b in (bi, bp):
            for clave in ("Qr", "Qc", "Qt"):
                b[clave] = comprobar(b[clave] * pi * de / 12)
            b["Qdt"] = comprobar(b["Qdt"] * pi * d / 12)
            slots += _bloque(ti, b["T"], ta, v, nominal, codigo, es, b["TM"], k, b["f"], b["E"],
                             b["Qr"], b["Qc"], b["Qt"], b["Qdt"], b["Ef"])
        t = t2
    return slots, _desnudas_por_pie(bloques, pi, d)


def _qrd_frio(ti, ta):
    return comprobar(0.174 * (potencia((ta + 459.6) / 100, 4) - potencia((ti + 459.6) / 100, 4)))
