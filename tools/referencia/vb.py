"""Conversions, formats and checked arithmetic of the classic desktop runtime the program follows."""

import math
import struct
from decimal import ROUND_HALF_UP, Decimal, localcontext

DESCRIPCIONES = {
    5: "Argumento o llamada a procedimiento no válidos",
    6: "Desbordamiento",
    11: "División por cero",
    13: "No coinciden los tipos",
}


class ErrorVB(Exception):
    """A run-time error: number and description."""

    def __init__(self, numero, descripcion=None):
        super().__init__(numero)
        self.numero = numero
        self.descripcion = descripcion if descripcion is not None else DESCRIPCIONES.get(numero, "")


ESPACIOS_VAL = " \t\n\r\u3000"


def val(texto):
    """Val: the longest numeric prefix, blanks ignored, only the point as decimal mark."""
    i, n = 0, len(texto)
    while i < n and texto[i] in ESPACIOS_VAL:
        i += 1
    if i < n and texto[i] == "&":
        return _val_base(texto, i + 1)
    buf = []
    if i < n and texto[i] in "+-":
        buf.append(texto[i])
        i += 1
    hay_digitos = False
    hay_punto = False
    while i < n:
        c = texto[i]
        if c in " \t\n\r":
            i += 1
        elif c.isdigit() and c.isascii():
            buf.append(c)
            hay_digitos = True
            i += 1
        elif c == "." and not hay_punto:
            buf.append(c)
            hay_punto = True
            i += 1
        else:
            break
    exponente = []
    if i < n and texto[i] in "eEdD" and (hay_digitos or hay_punto):
        i += 1
        while i < n and texto[i] in " \t\n\r":
            i += 1
        if i < n and texto[i] in "+-":
            exponente.append(texto[i])
            i += 1
        while i < n and ((texto[i].isdigit() and texto[i].isascii()) or texto[i] in " \t\n\r"):
            if texto[i].isdigit():
                exponente.append(texto[i])
            i += 1
    cuerpo = "".join(buf)
    if not hay_digitos:
        return 0.0
    if cuerpo in ("+", "-"):
        return 0.0
    digitos_exp = "".join(exponente)
    if digitos_exp in ("", "+", "-"):
        digitos_exp = "0"
    valor = float(cuerpo + "e" + digitos_exp)
    if math.isinf(valor):
        raise ErrorVB(6)
    if i < n:
        sufijo = texto[i]
        if sufijo in "%&":
            if valor != math.floor(valor):
                raise ErrorVB(13)
        elif sufijo == "!":
            valor = csng(valor)
    return valor + 0.0


def _val_base(texto, i):
    n = len(texto)
    if i >= n or texto[i] not in "hHoO":
        return 0.0
    base = 16 if texto[i] in "hH" else 8
    validos = "0123456789abcdefABCDEF" if base == 16 else "01234567"
    i += 1
    digitos = []
    while i < n and texto[i] in validos:
        digitos.append(texto[i])
        i += 1
    if not digitos:
        return 0.0
    valor = int("".join(digitos), base)
    largo = i < n and texto[i] == "&"
    if base == 16 and len(digitos) <= 4 and not largo:
        return float(valor - 0x10000 if valor >= 0x8000 else valor)
    if valor > 0xFFFFFFFF:
        raise ErrorVB(6)
    return float(valor - 0x100000000 if valor >= 0x80000000 else valor)


def es_numerico(texto):
    """IsNumeric for a point locale with no thousands separator."""
    s = texto.strip(" \t\n\r")
    if not s:
        return False
    i, n = 0, len(s)
    signo = parentesis = False
    while i < n:
        c = s[i]
        if c in "+-" and not signo:
            signo = True
        elif c == "(" and not parentesis:
            parentesis = True
        elif c in " \t":
            pass
        else:
            break
        i += 1
    if s.startswith("&", i):
        resto = s[i + 1:]
        if resto[:1] in ("h", "H"):
            return len(resto) > 1 and all(c in "0123456789abcdefABCDEF" for c in resto[1:])
        if resto[:1] in ("o", "O"):
            return len(resto) > 1 and all(c in "01234567" for c in resto[1:])
        return False
    digitos = 0
    while i < n and s[i].isdigit() and s[i].isascii():
        digitos += 1
        i += 1
    if i < n and s[i] == ".":
        i += 1
        while i < n and s[i].isdigit() and s[i].isascii():
            digitos += 1
            i += 1
    if digitos == 0:
        return False
    if i < n and s[i] in "eE":
        i += 1
        if i < n and s[i] in "+-":
            i += 1
        exp = 0
        while i < n and s[i].isdigit() and s[i].isascii():
            exp += 1
            i += 1
        if exp == 0:
            return False
    while i < n and s[i] in " \t":
        i += 1
    if i < n and s[i] in "+-" and not signo:
        i += 1
    elif i < n and s[i] == ")" and parentesis:
        parentesis = False
        i += 1
    while i < n and s[i] in " \t":
        i += 1
    return i == n and not parentesis


def _digitos15(x):
    mantisa, exponente = ("%.14e" % abs(x)).split("e")
    return mantisa.replace(".", ""), int(exponente)


def texto_numero(x):
    """The default text of a 64-bit float (15 significant digits)."""
    if x == 0:
        return "0"
    digitos, e = _digitos15(x)
    digitos = digitos.rstrip("0")
    n = len(digitos)
    signo = "-" if x < 0 else ""
    if e >= 15 or (e < 0 and (-e - 1) + n > 15):
        cuerpo = digitos[0] + ("." + digitos[1:] if n > 1 else "")
        return "%s%sE%s%02d" % (signo, cuerpo, "+" if e >= 0 else "-", abs(e))
    if e >= 0:
        entero = digitos[: e + 1].ljust(e + 1, "0")
        decimales = digitos[e + 1:]
    else:
        entero = "0"
        decimales = "0" * (-e - 1) + digitos
    return signo + entero + ("." + decimales if decimales else "")


def formato(x, minimo, maximo):
    """Format with "0.0#"-like patterns: 15 significant digits rounded half away from zero."""
    with localcontext() as ctx:
        ctx.prec = 400
        d = Decimal(0) if x == 0 else Decimal("%.14e" % abs(x))
        q = d.quantize(Decimal(1).scaleb(-maximo), rounding=ROUND_HALF_UP)
        texto = format(q, "f")
    entero, _, decimales = texto.partition(".")
    while len(decimales) > minimo and decimales.endswith("0"):
        decimales = decimales[:-1]
    signo = "-" if x < 0 else ""
    return signo + entero + ("." + decimales if decimales else "")


def formato_cientifico(x):
    """The named format "Scientific": 0.00E+00."""
    if x == 0:
        return "0.00E+00"
    with localcontext() as ctx:
        ctx.prec = 400
        d = Decimal("%.14e" % abs(x))
        e = d.adjusted()
        m = (d.scaleb(-e)).quantize(Decimal("0.01"), rounding=ROUND_HALF_UP)
        if m >= 10:
            m = (m / 10).quantize(Decimal("0.01"), rounding=ROUND_HALF_UP)
            e += 1
    return "%s%sE%s%02d" % ("-" if x < 0 else "", format(m, "f"), "+" if e >= 0 else "-", abs(e))


def redondeo_bancario(x):
    return float(round(x))


def cint(x):
    r = redondeo_bancario(x)
    if r < -32768 or r > 32767:
        raise ErrorVB(6)
    return int(r)


def clng(x):
    r = redondeo_bancario(x)
    if r < -2147483648 or r > 2147483647:
        raise ErrorVB(6)
    return int(r)


def csng(x):
    if abs(x) > 3.4028234663852886e38:
        raise ErrorVB(6)
    return struct.unpack("f", struct.pack("f", x))[0]


def vb_int(x):
    return float(math.floor(x))


def comprobar(x):
    if not math.isfinite(x):
        raise ErrorVB(6)
    return x


def dividir(a, b):
    if b == 0:
        raise ErrorVB(6 if a == 0 else 11)
    return comprobar(a / b)


def potencia(base, exponente):
    if base < 0 and exponente != math.floor(exponente):
        raise ErrorVB(5)
    if base == 0 and exponente < 0:
        raise ErrorVB(5)
    try:
        return comprobar(math.pow(base, exponente))
    except OverflowError:
        raise ErrorVB(6) from None


def exp(x):
    try:
        return comprobar(math.exp(x))
    except OverflowError:
        raise ErrorVB(6) from None


def log(x):
    if x <= 0:
        raise ErrorVB(5)
    return math.log(x)


def normalizar_decimal(texto):
    return texto.replace(",", ".", 1).strip(" ")


def trim(texto):
    return texto.strip(" ")


def igual(a, b):
    return a.casefold() == b.casefold()


class Regional:
    """The separators of the user's locale that CStr, Format and dates use: es or C."""

    def __init__(self, coma):
        self.decimal = "," if coma else "."
        self.miles = "." if coma else ","

    @staticmethod
    def del_entorno(entorno):
        for clave in ("LC_ALL", "LC_NUMERIC", "LANG"):
            valor = entorno.get(clave, "")
            if valor:
                return Regional(valor.lower().startswith("es"))
        return Regional(False)


def formato_miles(x, regional):
    """Format(x, "0,000.0#"): four integer digits at least, grouped, locale separators."""
    texto = formato(x, 1, 2)
    signo = "-" if texto.startswith("-") else ""
    entero, _, decimales = texto.lstrip("-").partition(".")
    entero = entero.rjust(4, "0")
    grupos = []
    while entero:
        grupos.insert(0, entero[-3:])
        entero = entero[:-3]
    return signo + regional.miles.join(grupos) + regional.decimal + decimales


def limpiar_texto(texto, quitar=""):
    """LimpiarTexto: blanks, then line ends, tabs and blanks at both ends; then every `quitar`."""
    texto = trim(texto)
    while texto and texto[0] in "\n\r\t ":
        texto = texto[1:]
    while texto and texto[-1] in "\n\r\t ":
        texto = texto[:-1]
    if quitar:
        bajo = quitar.casefold()
        salida, i = [], 0
        while i < len(texto):
            if texto[i:i + len(quitar)].casefold() == bajo:
                i += len(quitar)
            else:
                salida.append(texto[i])
                i += 1
        texto = "".join(salida)
    return texto
