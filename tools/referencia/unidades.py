"""The units a project file can name (temperature, speed, length), the variable list and Convert."""

from vb import ErrorVB, comprobar, igual, texto_numero

FAMILIAS = {
    "Temperatura": ["°R", "°F", "°C", "K"],
    "Velocidad": ["mi/h", "km/h", "yd/h", "m/s"],
    "Longitud": ["mm", "cm", "m", "km", "pie", "plg", "mi", "yd"],
    "Area": ["cm²", "m²", "pulg²", "pie²", "ha", "acre"],
}

# What ExistUnit searches for a named family; the length list is its own.
LISTAS_EXISTE = {
    "Temperatura": ["°R", "°F", "°C", "K"],
    "Velocidad": ["mi/h", "km/h", "yd/h", "m/s"],
    "Longitud": ["mm", "cm", "m", "pies", "plg", "mi", "km", "yd"],
}

# What ExistUnit searches with no family: every unit of every family, "ac" for "acre".
LISTA_GENERAL = [
    "mm", "cm", "m", "km", "pie", "plg", "mi", "yd", "BTU", "cal", "kJ", "erg", "kW", "BTU/h",
    "hp", "psi", "atm", "bar", "kPa", "°R", "°F", "°C", "K", "L", "gal", "pie³", "m³", "pie3",
    "m3", "seg", "min", "h", "días", "m³/h", "pie³/h", "m3/h", "pie3/h", "mi/h", "km/h", "yd/h",
    "m/s", "cm²", "m²", "pulg²", "pie²", "ha", "ac", "cm2", "m2", "pulg2", "pie2", "N", "dina",
    "lbf", "kgf", "oz", "g", "kg", "lb", "ton", "$", "US$", "€",
]

NOMBRES = {"°F": "Grados Fahrenheit", "mi/h": "Millas por hora", "plg": "Pulgadas"}


def existe_unidad(unidad, familia):
    lista = LISTA_GENERAL if familia == "" else LISTAS_EXISTE.get(familia, [])
    return any(igual(unidad, u) for u in lista)


def indice_unidad(unidad):
    for unidades in FAMILIAS.values():
        for i, u in enumerate(unidades):
            if igual(unidad, u):
                return i + 1
    return 0


def canonica(unidad):
    for unidades in FAMILIAS.values():
        for u in unidades:
            if igual(unidad, u):
                return u
    return None


def _temperatura(desde, hasta, x):
    tabla = {
        ("°R", "°F"): lambda: x - 459.67,
        ("°R", "°C"): lambda: (x - 491.67) * 5 / 9,
        ("°R", "K"): lambda: x * 5 / 9,
        ("°F", "°R"): lambda: x + 459.67,
        ("°F", "°C"): lambda: (x - 32) * 5 / 9,
        ("°F", "K"): lambda: (x + 459.67) * 5 / 9,
        ("°C", "°R"): lambda: (x + 273.15) * 9 / 5,
        ("°C", "°F"): lambda: x * 9 / 5 + 32,
        ("°C", "K"): lambda: x + 273.15,
        ("K", "°R"): lambda: x * 9 / 5,
        ("K", "°F"): lambda: x * 9 / 5 - 459.67,
        ("K", "°C"): lambda: x - 273.15,
    }
    return tabla.get((desde, hasta))


def _velocidad(desde, hasta, x):
    tabla = {
        ("mi/h", "km/h"): lambda: x / 0.62137,
        ("mi/h", "yd/h"): lambda: x / 0.00062137 / 0.9144,
        ("mi/h", "m/s"): lambda: x / 0.00062137 / 3600,
        ("km/h", "mi/h"): lambda: x * 0.62137,
        ("km/h", "yd/h"): lambda: x / 0.9144 * 1000,
        ("km/h", "m/s"): lambda: x * 1000 / 3600,
        ("yd/h", "mi/h"): lambda: x * 0.00062137 * 0.9144,
        ("yd/h", "km/h"): lambda: x * 0.9144 / 1000,
        ("yd/h", "m/s"): lambda: x * 0.9144 / 3600,
        ("m/s", "mi/h"): lambda: x * 0.00062137 * 3600,
        ("m/s", "km/h"): lambda: x / 1000 * 3600,
        ("m/s", "yd/h"): lambda: x / 0.9144 * 3600,
    }
    return tabla.get((desde, hasta))


def _longitud(desde, hasta, x):
    tabla = {
        ("mm", "cm"): lambda: x / 10, ("mm", "m"): lambda: x / 1000,
        ("mm", "km"): lambda: x / 1000 / 1000, ("mm", "pie"): lambda: x / 304.8,
        ("mm", "plg"): lambda: x / 25.4, ("mm", "mi"): lambda: x / 1000 * 0.00062137,
        ("mm", "yd"): lambda: x / 1000 / 0.9144,
        ("cm", "mm"): lambda: x * 10, ("cm", "m"): lambda: x / 100,
        ("cm", "km"): lambda: x / 100 / 1000, ("cm", "pie"): lambda: x / 30.48,
        ("cm", "plg"): lambda: x / 2.54, ("cm", "mi"): lambda: x / 100 * 0.00062137,
        ("cm", "yd"): lambda: x / 100 / 0.9144,
        ("m", "mm"): lambda: x * 1000, ("m", "cm"): lambda: x * 100,
        ("m", "km"): lambda: x / 1000, ("m", "pie"): lambda: x / 0.3048,
        ("m", "plg"): lambda: x / 0.0254, ("m", "mi"): lambda: x * 0.00062137,
        ("m", "yd"): lambda: x / 0.9144,
        ("km", "mm"): lambda: x * 1000 * 1000, ("km", "cm"): lambda: x * 100 * 1000,
        ("km", "m"): lambda: x * 1000, ("km", "pie"): lambda: x / 0.3048 * 1000,
        ("km", "plg"): lambda: x / 0.0254 * 1000, ("km", "mi"): lambda: x * 0.62137,
        ("km", "yd"): lambda: x / 0.9144 * 1000,
        ("pie", "mm"): lambda: x * 304.8, ("pie", "cm"): lambda: x * 30.48,
        ("pie", "m"): lambda: x * 0.3048, ("pie", "km"): lambda: x * 0.3048 * 1000,
        ("pie", "plg"): lambda: x * 12, ("pie", "mi"): lambda: x * 0.3048 * 0.00062137,
        ("pie", "yd"): lambda: x * 0.3048 / 0.9144,
        ("plg", "mm"): lambda: x * 25.4, ("plg", "cm"): lambda: x * 2.54,
        ("plg", "m"): lambda: x * 0.0254, ("plg", "km"): lambda: x * 0.0254 * 1000,
        ("plg", "pie"): lambda: x / 12, ("plg", "mi"): lambda: x * 0.0254 * 0.00062137,
        ("plg", "yd"): lambda: x * 0.0254 / 0.9144,
        ("mi", "mm"): lambda: x * 1000 / 0.00062137, ("mi", "cm"): lambda: x * 100 / 0.00062137,
        ("mi", "m"): lambda: x / 0.00062137, ("mi", "km"): lambda: x / 0.62137,
        ("mi", "pie"): lambda: x / 0.3048 / 0.00062137,
        ("mi", "plg"): lambda: x / 0.0254 / 0.00062137,
        ("mi", "yd"): lambda: x / 0.00062137 / 0.9144,
        ("yd", "mm"): lambda: x * 1000 * 0.9144, ("yd", "cm"): lambda: x * 100 * 0.9144,
        ("yd", "m"): lambda: x * 0.9144, ("yd", "km"): lambda: x * 0.9144 / 1000,
        ("yd", "pie"): lambda: x / 0.3048 * 0.9144, ("yd", "plg"): lambda: x / 0.0254 * 0.9144,
        ("yd", "mi"): lambda: x * 0.00062137 * 0.9144,
    }
    return tabla.get((desde, hasta))


def _area(desde, hasta, x):
    """Squares are powers taken at run time."""
    tabla = {
        ("cm²", "m²"): lambda: x / 100 ** 2, ("cm²", "pulg²"): lambda: x / 2.54 ** 2,
        ("cm²", "pie²"): lambda: x / 30.48 ** 2, ("cm²", "ha"): lambda: x / 100 ** 2 / 10000,
        ("cm²", "acre"): lambda: x / 100 ** 2 / 4046.856,
        ("m²", "cm²"): lambda: 100 ** 2 * x, ("m²", "pulg²"): lambda: x / 0.0254 ** 2,
        ("m²", "pie²"): lambda: x / 0.3048 ** 2, ("m²", "ha"): lambda: x / 10000,
        ("m²", "acre"): lambda: x / 4046.856,
        ("pulg²", "cm²"): lambda: 2.54 ** 2 * x, ("pulg²", "m²"): lambda: 0.0254 ** 2 * x,
        ("pulg²", "pie²"): lambda: x / 12 ** 2, ("pulg²", "ha"): lambda: 0.0254 ** 2 * x / 10000,
        ("pulg²", "acre"): lambda: 0.0254 ** 2 * x / 4046.856,
        ("pie²", "cm²"): lambda: 30.48 ** 2 * x, ("pie²", "m²"): lambda: 0.3048 ** 2 * x,
        ("pie²", "pulg²"): lambda: 12 ** 2 * x, ("pie²", "ha"): lambda: 0.3048 ** 2 * x / 10000,
        ("pie²", "acre"): lambda: 0.3048 ** 2 * x / 4046.856,
        ("ha", "cm²"): lambda: 100 ** 2 * x * 10000, ("ha", "m²"): lambda: x * 10000,
        ("ha", "pulg²"): lambda: x / 0.0254 ** 2 * 10000,
        ("ha", "pie²"): lambda: x / 0.3048 ** 2 * 10000, ("ha", "acre"): lambda: x * 10000 / 4046.856,
        ("acre", "cm²"): lambda: 100 ** 2 * x * 4046.856, ("acre", "m²"): lambda: x * 4046.856,
        ("acre", "pulg²"): lambda: x / 0.0254 ** 2 * 4046.856,
        ("acre", "pie²"): lambda: x / 0.3048 ** 2 * 4046.856,
        ("acre", "ha"): lambda: x * 10000 / 4046.856,
    }
    return tabla.get((desde, hasta))


def convertir(desde, hasta, x):
    """Convert: one formula per ordered pair; equal symbols return the value unchanged."""
    if igual(desde, hasta):
        return x
    a, b = canonica(desde), canonica(hasta)
    formula = None
    if a is not None and b is not None:
        for tabla in (_temperatura, _velocidad, _longitud, _area):
            formula = tabla(a, b, x)
            if formula is not None:
                break
    if formula is None:
        raise ErrorVB(1001, "No se puede convertir %s %s a %s" % (texto_numero(x), desde, hasta))
    return comprobar(formula())


class ListaVariables:
    """The ordered list of named quantities; lookups take the first match, case not minded."""

    def __init__(self):
        self.registros = []

    def _buscar(self, nombre):
        for registro in self.registros:
            if igual(registro[0], nombre):
                return registro
        return None

    def existe(self, nombre):
        return self._buscar(nombre) is not None

    def valor(self, nombre):
        registro = self._buscar(nombre)
        return registro[1] if registro else 0.0

    def unidad(self, nombre):
        registro = self._buscar(nombre)
        return registro[2] if registro else ""

    def fijar_valor(self, nombre, valor):
        registro = self._buscar(nombre)
        if registro:
            registro[1] = valor
        else:
            self.registros.append([nombre, valor, ""])

    def fijar_unidad(self, nombre, unidad):
        if not existe_unidad(unidad, ""):
            raise ErrorVB(1003, "La Unidad '%s' no existe." % unidad)
        registro = self._buscar(nombre)
        if registro:
            registro[2] = unidad
        else:
            self.registros.append([nombre, 0.0, unidad])
