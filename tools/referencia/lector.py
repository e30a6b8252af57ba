"""Reading a project file: the line reader, then the check of what it left in the list."""

from unidades import NOMBRES, ListaVariables, existe_unidad
from vb import ErrorVB, cint, igual, trim, val

CLAVES_NUMERO = [
    "TemperaturaInterior", "TemperaturaSuperficieAislamiento", "TemperaturaAmbiente",
    "TemperaturaBulboHumedo", "TemperaturaPuntoRocio", "HumedadRelativa",
    "CoeficienteTransmisionCalor", "VelocidadAire", "DiametroTuberia",
    "CodigoMaterialSuperficieAislamiento", "EmisividadSuperficieAislamiento",
    "CodigoMaterialSuperficieDesnuda", "EmisividadSuperficieDesnuda",
]

CLAVES_UNIDAD = {
    "UnidadTemperaturaInterior": "Temperatura",
    "UnidadTemperaturaSuperficieAislamiento": "Temperatura",
    "UnidadTemperaturaAmbiente": "Temperatura",
    "UnidadTemperaturaBulboHumedo": "Temperatura",
    "UnidadTemperaturaPuntoRocio": "Temperatura",
    "UnidadVelocidadAire": "Velocidad",
    "UnidadDiametroTuberia": "Longitud",
}

COMENTARIOS = "';:/*!#"

TEXTO_SIN_VENTANA = (
    "No es posible asociar los datos leidos con alguna ventana de Entrada de Datos.\r\n"
    "Haga click en Ayuda para mayor información."
)


def decodificar(datos):
    """Windows-1252 bytes to text; the five unassigned bytes keep their code."""
    return "".join(
        chr(b) if b in (0x81, 0x8D, 0x8F, 0x90, 0x9D) else bytes([b]).decode("cp1252")
        for b in datos
    )


def lineas(texto):
    return texto.replace("\r\n", "\n").replace("\r", "\n").split("\n")


def _quitar_final(partes):
    if partes and partes[-1] == "":
        partes.pop()
    return partes


class Lector:
    def __init__(self, mensajes):
        self.mensajes = mensajes
        self.unidades = ListaVariables()

    def leer(self, datos):
        """First stage; returns the Tipo, or None after an error that ends the read."""
        tipo = 0
        try:
            for linea in _quitar_final(lineas(decodificar(datos))):
                linea = trim(linea)
                posicion = linea.find("=")
                if posicion >= 1:
                    tipo = self._asignar(trim(linea[:posicion]), trim(linea[posicion + 1:]), tipo)
                elif linea != "" and linea[0] not in COMENTARIOS:
                    self.mensajes.append(
                        ("Expresión Desconocida: " + linea, "exclamacion", "Aceptar,Cancelar"))
        except ErrorVB as error:
            self.mensajes.append(("Error: " + error.descripcion, "critico", "Aceptar"))
            return None
        return tipo

    def _asignar(self, clave, valor, tipo):
        if igual(clave, "Tipo"):
            return cint(val(valor))
        for nombre in CLAVES_NUMERO:
            if igual(clave, nombre):
                self.unidades.fijar_valor(clave, val(valor))
                return tipo
        for nombre, familia in CLAVES_UNIDAD.items():
            if igual(clave, nombre):
                if existe_unidad(valor, familia):
                    self.unidades.fijar_unidad(clave[6:], valor)
                elif valor != "":
                    raise ErrorVB(
                        1002, "La Unidad '%s' no existe para '%s'." % (valor, familia))
                return tipo
        return tipo


class Validacion:
    """ValidarVariablesArchivo."""

    def __init__(self, unidades):
        self.u = unidades
        self.errores = ""
        self.avisos = ""

    def _aviso(self, texto):
        self.avisos += texto + "\r\n"

    def _error(self, texto):
        self.errores += texto + "\r\n"

    def temperatura(self, variable, nombre, bulbo_humedo=False):
        if not self.u.existe(variable):
            if bulbo_humedo:
                self._aviso("* La %s. Se asumió DESCONOCIDA." % nombre)
            else:
                self._aviso("* La %s. Se asumió 0." % nombre)
        unidad = self.u.unidad(variable)
        if unidad == "":
            self._aviso("* La Unidad para la %s. Se asumió °F (%s)." % (nombre, NOMBRES["°F"]))
            self.u.fijar_unidad(variable, "°F")
        else:
            valor = self.u.valor(variable)
            invalido = valor < 0 if bulbo_humedo else valor <= 0
            if invalido and igual(unidad, "K"):
                self._error("- El Valor de la %s es Inválido." % nombre)

    def velocidad(self):
        if not self.u.existe("VelocidadAire"):
            self._aviso("* La Velocidad del Aire. Se asumió 0.")
        if self.u.unidad("VelocidadAire") == "":
            self._aviso("* La Unidad para la Velocidad del Aire. Se asumió mi/h (%s)."
                        % NOMBRES["mi/h"])
            self.u.fijar_unidad("VelocidadAire", "mi/h")

    def diametro(self):
        if not self.u.existe("DiametroTuberia"):
            self._error("- No se encontró el Diámetro de la tubería a aislar.")
        elif self.u.unidad("DiametroTuberia") == "":
            self._aviso("* La Unidad para el Diámetro de la tubería a aislar. Se asumió plg (%s)."
                        % NOMBRES["plg"])
            self.u.fijar_unidad("VelocidadAire", "mi/h")

    def material(self, codigo, emisividad, lugar):
        if not self.u.existe(codigo):
            self._error("- No se encontró el Código del Material para la Superficie %s." % lugar)
        elif self.u.valor(codigo) == 0 and not self.u.existe(emisividad):
            self._error("- No se encontró la Emisividad del Material para la Superficie %s."
                        % lugar)

    def calor(self, tipo):
        self.temperatura("TemperaturaInterior", "Temperatura Interior")
        self.temperatura("TemperaturaSuperficieAislamiento",
                         "Temperatura de la Superficie del Aislamiento")
        self.temperatura("TemperaturaAmbiente", "Temperatura Ambiente")
        self.velocidad()
        if tipo >= 8:
            self.diametro()
        self.material("CodigoMaterialSuperficieAislamiento", "EmisividadSuperficieAislamiento",
                      "Exterior del Aistamiento")
        if tipo <= 7:
            self.material("CodigoMaterialSuperficieDesnuda", "EmisividadSuperficieDesnuda",
                          "Desnuda")

    def frio(self, tipo):
        self.temperatura("TemperaturaInterior", "Temperatura Interior")
        self.temperatura("TemperaturaAmbiente", "Temperatura Ambiente")
        self.temperatura("TemperaturaBulboHumedo", "Temperatura del Bulbo Húmedo", True)
        self.temperatura("TemperaturaPuntoRocio", "Temperatura del Punto de Rocío")
        if not self.u.existe("HumedadRelativa"):
            self._aviso("* La Humedad Relativa. Se asumió DESCONOCIDA.")
        if not self.u.existe("CoeficienteTransmisionCalor"):
            self._error("- No se encontró el Coeficiente de Transmisión de Calor.")
        self.velocidad()
        if tipo == 14:
            self.diametro()
        self.material("CodigoMaterialSuperficieAislamiento", "EmisividadSuperficieAislamiento",
                      "Exterior del Aistamiento")
        if tipo == 13:
            self.material("CodigoMaterialSuperficieDesnuda", "EmisividadSuperficieDesnuda",
                          "Desnuda")


def validar_variables(unidades, tipo, mensajes):
    if not 1 <= tipo <= 14:
        mensajes.append((TEXTO_SIN_VENTANA, "critico", "Aceptar,Ayuda"))
        return False
    v = Validacion(unidades)
    if tipo <= 12:
        v.calor(tipo)
    else:
        v.frio(tipo)
    if v.errores:
        mensajes.append(("Se han encontrado los siguientes errores:\r\n" + v.errores, "critico",
                         "Aceptar"))
        return False
    if v.avisos:
        mensajes.append(("Los siguientes valores no se encontraron:\r\n" + v.avisos, "informacion",
                         "Aceptar,Cancelar"))
    return True
