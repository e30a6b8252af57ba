"""The four data entry windows as far as a file and "C&alcular" reach them."""

from datos import nombre_producto, temperatura_maxima
from unidades import FAMILIAS, convertir, indice_unidad
from vb import ErrorVB, cint, clng, es_numerico, formato, normalizar_decimal, texto_numero, trim, val


def _texto_formato(valor, maximo):
    return normalizar_decimal(formato(valor, 1, maximo))


class VentanaEntrada:
    """Boxes as texts and lists as the unit shown (None: no selection)."""

    # box: (variable, family of its list or None)
    CAJAS = {}
    # (code box, emissivity box, code variable, emissivity variable)
    MATERIALES = []
    OPCIONALES = ()

    def __init__(self, tipo, base_datos, mensajes, bd_disponible=True, leer_emisividad_bd=True):
        self.tipo = tipo
        self.bd = base_datos
        self.mensajes = mensajes
        self.bd_disponible = bd_disponible
        self.leer_emisividad_bd = leer_emisividad_bd
        self.cajas = {i: "" for i in self.CAJAS}
        self.nombres = {}
        for codigo, emisividad, _, _ in self.MATERIALES:
            self.cajas[codigo] = ""
            self.cajas[emisividad] = ""
        self.listas = {i: FAMILIAS[f][1] for i, (_, f) in self.CAJAS.items() if f}

    def mostrar_variables(self, unidades):
        """ShowVariables: lists first, then the boxes, emissivity before its code."""
        for i, (variable, familia) in self.CAJAS.items():
            if familia:
                indice = indice_unidad(unidades.unidad(variable)) - 1
                self.listas[i] = FAMILIAS[familia][indice] if indice >= 0 else None
        for i, (variable, _) in self.CAJAS.items():
            valor = unidades.valor(variable)
            if i in self.OPCIONALES and valor == 0:
                continue
            self.cajas[i] = _texto_formato(valor, 2)
        for codigo, emisividad, var_codigo, var_emisividad in self.MATERIALES:
            self.cajas[emisividad] = _texto_formato(unidades.valor(var_emisividad), 3)
            self.cajas[codigo] = normalizar_decimal(texto_numero(unidades.valor(var_codigo)))
            self._cambio_material(codigo, emisividad)

    def _cambio_material(self, codigo, emisividad):
        texto = self.cajas[codigo]
        if trim(texto) == "":
            self.cajas[emisividad] = ""
        if val(texto) == 0 and self.leer_emisividad_bd:
            self.cajas[emisividad] = ""
        if es_numerico(texto) and val(texto) != 0 and self.bd_disponible:
            # The code becomes a 32-bit integer at the call: an overflow there ends the step,
            # with the box and the name as they were.
            try:
                entero = clng(val(texto))
            except ErrorVB:
                return
            self.nombres[codigo] = self._leer_material(entero, emisividad)
        else:
            self.nombres[codigo] = ""

    def _leer_material(self, codigo, emisividad):
        """LeerMaterial: the emissivity into its box; the description, or what went wrong."""
        fila = self.bd.material(codigo)
        if fila is None:
            self.cajas[emisividad] = ""
            return "No existe un material con código %d" % codigo
        self.cajas[emisividad] = normalizar_decimal(texto_numero(fila[0]))
        return trim(fila[1]).upper()

    def nombre(self, indice):
        codigo = self.MATERIALES[indice][0]
        return self.nombres.get(codigo, "")

    def completa(self):
        for i, texto in self.cajas.items():
            if i in self.OPCIONALES and trim(texto) == "":
                continue
            if not es_numerico(texto):
                return False
        return True

    def v(self, i):
        return val(trim(self.cajas[i]))

    def a_unidad(self, i, hasta):
        return convertir(self.listas[i], hasta, val(self.cajas[i]))

    def _mensaje(self, texto):
        self.mensajes.append((texto, "exclamacion", "Aceptar"))
        return False

    def _limite_servicio(self):
        ti = convertir(self.listas[1], "°F", val(self.cajas[1]))
        limite = temperatura_maxima(self.tipo)
        if limite < ti:
            self.mensajes.append((
                "El Producto '%s' de FORNALIS sólo puede utilizarse hasta %s °F."
                % (nombre_producto(self.tipo), texto_numero(limite)),
                "exclamacion", "Aceptar,Cancelar"))


def _paso(funcion, defecto):
    """A step of cmdAceptar_Click: an error leaves the target as it was."""
    try:
        return funcion()
    except ErrorVB:
        return defecto


class VentanaSP(VentanaEntrada):
    CAJAS = {
        1: ("TemperaturaInterior", "Temperatura"),
        2: ("TemperaturaSuperficieAislamiento", "Temperatura"),
        3: ("TemperaturaAmbiente", "Temperatura"),
        4: ("VelocidadAire", "Velocidad"),
    }
    MATERIALES = [
        (5, 6, "CodigoMaterialSuperficieAislamiento", "EmisividadSuperficieAislamiento"),
        (7, 8, "CodigoMaterialSuperficieDesnuda", "EmisividadSuperficieDesnuda"),
    ]
    AYUDAS = {
        1: "Temperatura Interior",
        2: "Temperatura de la Superficie del Aislamiento",
        3: "Temperatura Ambiente",
        4: "Velocidad del Aire",
        5: "Diametro de la tubería a aislar",
    }
    NUMERO_CAJAS = 4

    def _articulo(self, i):
        return "la "

    def _cajas(self):
        for i in range(1, self.NUMERO_CAJAS + 1):
            ayuda = self.AYUDAS[i]
            if not es_numerico(trim(self.cajas[i])):
                return self._mensaje("Por favor ingrese %s%s." % (self._articulo(i), ayuda))
            if self.v(i) <= 0 and self.listas.get(i) == "K":
                return self._mensaje("La %s no es válida." % ayuda)
            if not self._caja_propia(i, ayuda):
                return False
            if self.listas.get(i) is None:
                return self._mensaje("Por favor seleccione la unidad para %s%s."
                                     % (self._articulo(i), ayuda))
        return True

    def _caja_propia(self, i, ayuda):
        return True

    def validar(self):
        if not self._cajas():
            return False
        self._limite_servicio()
        if val(self.cajas[1]) < convertir(self.listas[2], self.listas[1], val(self.cajas[2])):
            return self._mensaje("La Temperatura de la Superficie del Aislamiento debe ser menor "
                                 "que la Temperatura Interior.")
        if val(self.cajas[2]) < convertir(self.listas[3], self.listas[2], val(self.cajas[3])):
            return self._mensaje(
                "La Temperatura Ambiente debe ser menor que la Temperatura Superficial.")
        return True

    def argumentos(self):
        return {
            "TI": _paso(lambda: self.a_unidad(1, "°F"), 0.0),
            "TS": _paso(lambda: self.a_unidad(2, "°F"), 0.0),
            "TA": _paso(lambda: self.a_unidad(3, "°F"), 0.0),
            "unidades": [self.listas[1], self.listas[2], self.listas[3]],
            "V": _paso(lambda: self.a_unidad(4, "mi/h"), 0.0),
            "Es": val(self.cajas[6]),
            "Ed": val(self.cajas[8]),
            "codigo": _paso(lambda: cint(val(self.cajas[5])), 0),
            "codigo_desnuda": _paso(lambda: cint(val(self.cajas[7])), 0),
        }


class VentanaSC(VentanaSP):
    CAJAS = dict(VentanaSP.CAJAS)
    CAJAS[5] = ("DiametroTuberia", "Longitud")
    MATERIALES = [(6, 7, "CodigoMaterialSuperficieAislamiento", "EmisividadSuperficieAislamiento")]
    NUMERO_CAJAS = 5

    def _articulo(self, i):
        return "el " if i == 5 else "la "

    def _caja_propia(self, i, ayuda):
        if i == 5 and self.v(i) <= 0:
            return self._mensaje("El %s no es válido." % ayuda)
        return True

    def argumentos(self):
        return {
            "TI": _paso(lambda: self.a_unidad(1, "°F"), 0.0),
            "TS": _paso(lambda: self.a_unidad(2, "°F"), 0.0),
            "TA": _paso(lambda: self.a_unidad(3, "°F"), 0.0),
            "unidades": [self.listas[1], self.listas[2], self.listas[3]],
            "V": _paso(lambda: self.a_unidad(4, "mi/h"), 0.0),
            "D": _paso(lambda: self.a_unidad(5, "plg"), 0.0),
            "codigo": _paso(lambda: cint(val(self.cajas[6])), 0),
            "Es": val(self.cajas[7]),
        }


class VentanaSPFrio(VentanaEntrada):
    CAJAS = {
        1: ("TemperaturaInterior", "Temperatura"),
        2: ("TemperaturaAmbiente", "Temperatura"),
        3: ("TemperaturaBulboHumedo", "Temperatura"),
        4: ("TemperaturaPuntoRocio", "Temperatura"),
        5: ("HumedadRelativa", None),
        6: ("CoeficienteTransmisionCalor", None),
        7: ("VelocidadAire", "Velocidad"),
    }
    MATERIALES = [
        (8, 9, "CodigoMaterialSuperficieAislamiento", "EmisividadSuperficieAislamiento"),
        (10, 11, "CodigoMaterialSuperficieDesnuda", "EmisividadSuperficieDesnuda"),
    ]
    OPCIONALES = (3, 5)
    AYUDAS = {
        1: "Temperatura Interior",
        2: "Temperatura Bulbo Seco (Temperatura Ambiente)",
        3: "Temperatura Bulbo Húmedo",
        4: "Temperatura Punto de Rocío",
        5: "Humedad Relativa",
        6: "Coeficiente de Transmisión de Calor",
        7: "Velocidad del Aire",
        8: "Diámetro de la tubería a aislar",
    }
    NUMERO_CAJAS = 7
    TUBERIA = False

    def _articulo(self, i):
        return "el " if i == 6 or (self.TUBERIA and i == 8) else "la "

    def _cajas(self):
        for i in range(1, self.NUMERO_CAJAS + 1):
            ayuda = self.AYUDAS[i]
            texto = trim(self.cajas[i])
            if i in self.OPCIONALES:
                falta = texto != "" and not es_numerico(texto)
            else:
                falta = not es_numerico(texto)
            if falta:
                return self._mensaje("Por favor ingrese %s%s." % (self._articulo(i), ayuda))
            if i < 5 and self.v(i) <= 0 and self.listas.get(i) == "K":
                return self._mensaje("La %s no es válida." % ayuda)
            if (i < 5 or i == 7 or (self.TUBERIA and i == 8)) and self.listas.get(i) is None:
                articulo = self._articulo(i) if self.TUBERIA else "la "
                return self._mensaje("Por favor seleccione la unidad para %s%s."
                                     % (articulo, ayuda))
        return True

    def validar(self):
        if not self._cajas():
            return False
        self._limite_servicio()
        if val(self.cajas[1]) > convertir(self.listas[2], self.listas[1], val(self.cajas[2])):
            return self._mensaje("La Temperatura Ambiente (Temperatura del Bulbo Seco) debe ser "
                                 "mayor que la Temperatura Interior.")
        if val(self.cajas[2]) < convertir(self.listas[4], self.listas[2], val(self.cajas[4])):
            return self._mensaje(
                "La Temperatura del Punto de Rocío debe ser menor que la Temperatura Ambiente.")
        if self.v(5) < 0:
            return self._mensaje("La Humedad Relativa debe ser mayor que cero.")
        if self.v(6) <= 0:
            return self._mensaje("El Coeficiente de Transmisión de Calor debe ser mayor que cero.")
        return True

    def argumentos(self):
        argumentos = self._comunes_frio()
        argumentos["codigo_desnuda"] = _paso(lambda: cint(val(self.cajas[10])), 0)
        argumentos["Ed"] = val(self.cajas[11])
        return argumentos

    def _comunes_frio(self):
        rocio = _paso(lambda: self.a_unidad(4, "°F"), 0.0)
        return {
            "TI": _paso(lambda: self.a_unidad(1, "°F"), 0.0),
            "TS": rocio + 1.0,
            "TA": _paso(lambda: self.a_unidad(2, "°F"), 0.0),
            "TBH": _paso(lambda: self.a_unidad(3, "°F"), 0.0),
            "hayTBH": len(trim(self.cajas[3])) > 0,
            "TPR": rocio,
            "unidades": [self.listas[1], self.listas[4], self.listas[2], self.listas[3],
                         self.listas[4]],
            "V": _paso(lambda: self.a_unidad(7, "mi/h"), 0.0),
            "HR": val(self.cajas[5]),
            "hayHR": len(trim(self.cajas[5])) > 0,
            "k": val(self.cajas[6]),
            "codigo": _paso(lambda: cint(val(self.cajas[8])), 0),
            "Es": val(self.cajas[9]),
        }


class VentanaSCFrio(VentanaSPFrio):
    CAJAS = dict(VentanaSPFrio.CAJAS)
    CAJAS[8] = ("DiametroTuberia", "Longitud")
    MATERIALES = [(9, 10, "CodigoMaterialSuperficieAislamiento", "EmisividadSuperficieAislamiento")]
    NUMERO_CAJAS = 8
    TUBERIA = True

    def argumentos(self):
        argumentos = self._comunes_frio()
        argumentos["codigo"] = _paso(lambda: cint(val(self.cajas[9])), 0)
        argumentos["Es"] = val(self.cajas[10])
        argumentos["D"] = val(self.cajas[8])
        return argumentos


def ventana_de_tipo(tipo):
    if 1 <= tipo <= 7:
        return "SP", VentanaSP
    if 8 <= tipo <= 12:
        return "SC", VentanaSC
    if tipo == 13:
        return "SPFrio", VentanaSPFrio
    return "SCFrio", VentanaSCFrio
