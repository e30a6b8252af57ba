"""The two economic windows as far as the command line's options and "C&alcular" reach them."""

from unidades import convertir
from vb import ErrorVB, csng, dividir, es_numerico, formato_miles, igual, texto_numero, trim, val

# Fuel: name, calorific value (box text), price unit, calorific unit.
COMBUSTIBLES = [
    ("Carbón", "26455", "kg", "BTU/kg"),
    ("ACPM", "138500", "galón", "BTU/gal"),
    ("Crudo", "150000", "galón", "BTU/gal"),
    ("Fuel Oil", "150000", "galón", "BTU/gal"),
    ("Gas natural", "1000", "pie³", "BTU/pie³"),
    ("Energia eléctrica", "0.000293", "kW h", "BTU/kW h"),
    ("Propano", "91690", "galón", "BTU/gal"),
    ("Otro", "", "unid. de volumen ó peso", "unid. de volumen ó peso"),
]
HORAS = ["876", "1752", "2628", "3480", "5256", "6132", "7008", "7884", "8760"]
MONEDAS = {"Pesos": "$", "Dolares": "US$", "Euros": "€"}
AREAS = ["cm²", "m²", "pulg²", "pie²", "ha", "acre"]
LONGITUDES = ["mm", "cm", "m", "km", "pie", "plg", "mi", "yd"]


class Economia:
    """Box numbers, words and defaults of one window; `plana` picks the flat or the pipe one."""

    def __init__(self, plana):
        self.plana = plana
        if plana:
            self.dimensiones = [1, 2, 3]
            self.nombre, self.valor, self.poder = 6, 7, 8
            self.resultados = [9, 10, 11, 12]
            self.ayudas = ["Area superficie plana horizontal cara hacia arriba",
                           "Area superficie plana vertical",
                           "Area superficie plana horizontal cara hacia abajo"]
            self.articulo = ("el ", "El ")
            self.unidades, self.destino, self.unidad_inicial = AREAS, "pie²", "pie²"
            self.horas_inicial = "3480"
        else:
            self.dimensiones = [1, 2]
            self.nombre, self.valor, self.poder = 5, 6, 7
            self.resultados = [8, 9, 10]
            self.ayudas = ["Longitud de la tubería vertical", "Longitud de la tubería horizontal"]
            self.articulo = ("la ", "La ")
            self.unidades, self.destino, self.unidad_inicial = LONGITUDES, "pie", "pie"
            self.horas_inicial = "5256"


def _texto(numero):
    return texto_numero(numero)


class VentanaEconomica:
    """Boxes as texts; QSD and QSA as handed over by the results window, in its grid's text."""

    def __init__(self, plana, tabla):
        self.e = Economia(plana)
        self.tabla = tabla
        self.cajas = {i: "" for i in [0] + self.e.dimensiones
                      + [self.e.nombre, self.e.valor, self.e.poder] + self.e.resultados}
        self.listas = {i: self.e.unidad_inicial for i in self.e.dimensiones}
        self.horas = self.e.horas_inicial
        self.moneda = "Pesos"
        self.combustible = 0
        self._elegir_combustible(0)
        # Per orientation: bare and insulated loss at the practical thickness.
        self.qsd = [val(tabla[34 * n + 34][1]) for n in range(len(self.e.dimensiones))]
        self.qsa = [val(tabla[34 * n + 33][1]) for n in range(len(self.e.dimensiones))]
        self.tag = "0"
        self.costo_sd = 0.0
        self.costo_sa = 0.0

    def _elegir_combustible(self, indice):
        self.combustible = indice
        nombre, poder, _, _ = COMBUSTIBLES[indice]
        if nombre == "Otro":
            self.cajas[self.e.nombre] = ""
            self.cajas[self.e.poder] = ""
        else:
            self.cajas[self.e.nombre] = nombre
            self.cajas[self.e.poder] = poder

    def etiqueta_valor(self):
        """Caption of the price box's label, by fuel."""
        return "Valor del co&mbustible por " + COMBUSTIBLES[self.combustible][2] + ":"

    def etiqueta_poder(self):
        return "&Poder Calorífico (" + COMBUSTIBLES[self.combustible][3] + "):"

    def aplicar(self, opciones):
        """The command line's options, as a user would type and choose them."""
        if opciones.get("dimensiones") is not None:
            for caja, numero in zip(self.e.dimensiones, opciones["dimensiones"]):
                self.cajas[caja] = _texto(numero)
        if opciones.get("unidad") is not None:
            for caja in self.e.dimensiones:
                self.listas[caja] = opciones["unidad"]
        if opciones.get("horas") is not None:
            self.horas = _texto(opciones["horas"])
        if opciones.get("combustible") is not None:
            for i, fila in enumerate(COMBUSTIBLES):
                if igual(fila[0], opciones["combustible"]):
                    self._elegir_combustible(i)
        if opciones.get("nombre") is not None:
            self.cajas[self.e.nombre] = opciones["nombre"]
        if opciones.get("poder") is not None:
            self.cajas[self.e.poder] = _texto(opciones["poder"])
        if opciones.get("valor") is not None:
            self.cajas[self.e.valor] = _texto(opciones["valor"])
        if opciones.get("moneda") is not None:
            for moneda in MONEDAS:
                if igual(moneda, opciones["moneda"]):
                    self.moneda = moneda
        eficiencia = opciones.get("eficiencia")
        self.cajas[0] = "100" if eficiencia is None else _texto(eficiencia)

    def completa(self):
        for caja in [0] + self.e.dimensiones + [self.e.valor, self.e.poder]:
            if not es_numerico(self.cajas[caja]):
                return False
        return trim(self.cajas[self.e.nombre]) != "" and es_numerico(self.horas)

    def calcular(self, mensajes, regional):
        """cmdAceptar_Click; sets `tag` to the window's kind when a result stands."""
        if not self.completa():
            return False
        articulo, mayuscula = self.e.articulo
        for caja, ayuda in zip(self.e.dimensiones, self.e.ayudas):
            texto = trim(self.cajas[caja])
            if not es_numerico(texto):
                return self._aviso(mensajes, "Por favor ingrese " + articulo + ayuda + ".")
            if val(texto) <= 0:
                return self._aviso(mensajes, mayuscula + ayuda + " debe ser mayor que cero.")
        horas = val(trim(self.horas))
        if horas <= 0 or horas > 8760:
            return self._aviso(mensajes, "El Número de horas trabajadas por el equipo en el año "
                                         "debe estar en el rango [1, 8760].")
        if COMBUSTIBLES[self.combustible][0] == "Otro" and trim(self.cajas[self.e.nombre]) == "":
            return self._aviso(mensajes, "Por favor ingrese el Nombre del combustible utilizado.")
        if val(trim(self.cajas[self.e.valor])) <= 0:
            return self._aviso(mensajes,
                               "El Valor del Combustible utilizado debe ser mayor que cero.")
        eficiencia = val(trim(self.cajas[0]))
        if eficiencia < 0 or eficiencia > 100:
            return self._aviso(mensajes, "La Eficiencia del Equipo debe estar en el rango [1, 100].")
        try:
            self._calcular_ahorro(regional)
        except ErrorVB as error:
            return self._aviso(mensajes, "Error inesperado: " + error.descripcion)
        self.tag = "3" if self.e.plana else "7"
        return True

    def _aviso(self, mensajes, texto):
        mensajes.append((texto, "exclamacion", "Aceptar"))
        return False

    def _calcular_ahorro(self, regional):
        dimensiones = [convertir(self.listas[c], self.e.destino, val(self.cajas[c]))
                       for c in self.e.dimensiones]
        horas = val(self.horas)
        valor = val(self.cajas[self.e.valor])
        poder = val(self.cajas[self.e.poder])
        fraccion = csng(csng(val(self.cajas[0])) / 100)
        ahorros = []
        for qsd, qsa, dimension in zip(self.qsd, self.qsa, dimensiones):
            combustible = dividir(dividir((qsd - qsa) * dimension * horas, poder), fraccion)
            ahorros.append(combustible * valor)
        if self.e.plana:
            total = ahorros[1] + ahorros[0] + ahorros[2]
            arriba, vertical, abajo = dimensiones
            sd = self.qsd[2] * abajo + (vertical * self.qsd[1] + arriba * self.qsd[0])
            sa = self.qsa[2] * abajo + (vertical * self.qsa[1] + arriba * self.qsa[0])
        else:
            total = ahorros[1] + ahorros[0]
            vertical, horizontal = dimensiones
            sd = self.qsd[1] * horizontal + vertical * self.qsd[0]
            sa = self.qsa[1] * horizontal + vertical * self.qsa[0]
        self.costo_sd = dividir(dividir(sd * valor * horas, poder), fraccion)
        self.costo_sa = dividir(dividir(sa * valor * horas, poder), fraccion)
        simbolo = MONEDAS[self.moneda]
        for caja, cantidad in zip(self.e.resultados, ahorros + [total]):
            self.cajas[caja] = simbolo + formato_miles(cantidad, regional)
