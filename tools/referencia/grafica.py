"""The chart window: its series in chart mode, and the table of its second tab."""

from calculos import (Peliculas, biseccion_caliente, calcular_sc, conductividad, factor_viento,
                      redondeo_practico)
from datos import nombre_producto
from unidades import convertir
from vb import ErrorVB, cint, clng, comprobar, dividir, formato, normalizar_decimal, val, vb_int

TITULOS = {
    1: "Temperatura Superficie (°F) vs Espesor (plg)",
    2: "Pérdida de Calor (BTU/pie² h) vs Espesor (plg)",
}
CABECERAS = {
    1: ("Temperatura Superficie (°F)", "Espesor Recomendado (plg)"),
    2: ("Pérdida de Calor (BTU/pie² h)", "Espesor Recomendado (plg)"),
}


def _tubo(texto):
    return texto.replace("BTU/pie² h", "BTU/pie h")


def _paso(funcion, previo):
    """One statement under "resume next": a failure leaves its target as it was."""
    try:
        return funcion()
    except ErrorVB:
        return previo


def grafica_sp(ti, ts, ta, v, es, ed, tipo, tipo_grafica):
    """RealizarCalculosSP in chart mode: (practical thickness, chart value). A failing statement
    is passed over; a bisection that fails counts as one that gives up."""
    fv = _paso(lambda: factor_viento(v), 0.0)
    p = Peliculas(ta, fv)
    flujo = _paso(lambda: comprobar(p.qrad(ts, es) + p.qconv0(ts, 0.941)), 0.0)
    posiciones = [0.941, 0.7383, 0.4714]
    ideal = []
    for c in posiciones:
        b = dict(T=0.0, k=0.0, E=0.0)
        t = _paso(lambda: biseccion_caliente(p, flujo, c, ta, ts, es), None)
        if t is not None:
            b["T"] = t
            tm = (t + ti) / 2
            b["k"] = _paso(lambda: conductividad(tipo, tm), 0.0)
            qt = _paso(lambda: comprobar(p.qrad(t, es) + p.qconv(t, c)), 0.0)
            b["E"] = _paso(lambda: dividir(comprobar((ti - t) * b["k"]), qt), 0.0)
        ideal.append(b)
    e0 = ideal[0]["E"] if ideal[0]["E"] < ideal[1]["E"] else ideal[1]["E"]
    if ideal[2]["E"] < e0:
        e0 = ideal[2]["E"]
    ep = redondeo_practico(e0)
    c, bi = posiciones[1], ideal[1]
    q = _paso(lambda: dividir(ti - bi["T"], dividir(ep, bi["k"])), 0.0)
    t = _paso(lambda: biseccion_caliente(p, q, c, ta, ts, es), None)
    qt = 0.0
    if t is not None:
        qt = _paso(lambda: comprobar(p.qrad(t, es) + p.qconv(t, c)), 0.0)
    return ep, (ts if tipo_grafica == 1 else qt)


def grafica_sc(argumentos, tipo, tipo_grafica, bd):
    """RealizarCalculosSC in chart mode: an error ends the series with its message."""
    slots, _ = calcular_sc(argumentos, tipo, bd)
    espesor = slots[51 + 10]
    return espesor, (argumentos["TS"] if tipo_grafica == 1 else slots[51 + 13])


class SerieLarga(Exception):
    """More points than a comparison waits for."""


class Grafica:
    """A chart window of one entry window, first of its kind, showing its table."""

    def __init__(self, proyecto, tipo_grafica, maximo=None):
        self.maximo = maximo
        self.proyecto = proyecto
        self.tipo_grafica = tipo_grafica
        self.plana = proyecto.ventana == "SP"
        titulo = TITULOS[tipo_grafica]
        cabecera = CABECERAS[tipo_grafica]
        if not self.plana:
            titulo = _tubo(titulo)
            cabecera = tuple(_tubo(c) for c in cabecera)
        self.caption = ("Gráfica " + titulo + " - " + nombre_producto(proyecto.tipo) + " [1]")
        self.tabla = [list(cabecera)]

    def _leer(self, caja, hasta):
        entrada = self.proyecto.entrada
        return convertir(entrada.listas[caja] or "", hasta, val(entrada.cajas[caja]))

    def graficar(self, mensajes):
        """Computes the series and fills the table; False when the series stops. A unit that
        cannot be converted stops it before the first point, with no message of its own."""
        entrada = self.proyecto.entrada
        tipo = self.proyecto.tipo
        try:
            ti = self._leer(1, "°F")
            ta = self._leer(3, "°F")
            n = clng(vb_int((ti - ta) / 1.0) + 1)
            v = self._leer(4, "mi/h")
            ts = self._leer(2, "°F")
            if self.plana:
                es, ed = val(entrada.cajas[6]), val(entrada.cajas[8])
            else:
                d = self._leer(5, "plg")
                codigo = cint(val(entrada.cajas[6]))
        except ErrorVB:
            return False
        if self.maximo is not None and n > self.maximo:
            raise SerieLarga()
        x, y = [], []
        for i in range(0, n + 1):
            if self.plana:
                punto = grafica_sp(ti, ts, ta, v, es, ed, tipo, self.tipo_grafica)
            else:
                argumentos = {"TI": ti, "TS": ts, "TA": ta, "V": v, "D": d,
                              "Es": val(entrada.cajas[7]), "codigo": codigo}
                try:
                    punto = grafica_sc(argumentos, tipo, self.tipo_grafica, self.proyecto.bd)
                except ErrorVB as error:
                    mensajes.append(("Error inesperado: " + error.descripcion, "exclamacion",
                                     "Aceptar"))
                    return False
            x.append(punto[0])
            y.append(punto[1])
            ts = ta if i == 0 else ts + 1.0
        self._tabla(x, y)
        return True

    def _tabla(self, x, y):
        if not x:
            return
        yhigh = max(y)
        i = 1
        while i < len(x):
            j, suma = i, 0.0
            while j < len(x) and x[j] == x[i]:
                suma += y[j]
                j += 1
            media = suma / (j - i)
            self.tabla.append([normalizar_decimal(formato(media, 1, 2)),
                               normalizar_decimal(formato(x[i], 1, 2))])
            if (self.tipo_grafica == 1 and x[i] == 0) or (
                    self.tipo_grafica == 2 and any(v == yhigh for v in y[i:j])):
                break
            i = j
