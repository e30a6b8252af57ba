"""Report documents as filled grids: input data, economic, copy and technical reports, and the
report header."""

from datos import nombre_producto
from economia import COMBUSTIBLES
from fechas import formato_fecha, leer_fecha
from vb import formato, formato_miles, limpiar_texto, normalizar_decimal, texto_numero, trim, val

EMPRESA = "Fornalis S.A."
SALTO = "\r\n"


def _numero(x, decimales=2):
    return normalizar_decimal(formato(x, 1, decimales))


class Documento:
    """The grid of a report window and its caption."""

    def __init__(self, filas, columnas, caption, tipo_ventana):
        self.columnas = columnas
        self.celdas = []
        self.merge = []
        self.row_data = []
        self.col_data = [0] * columnas
        self.tag = ""
        self.caption = caption
        self.tipo_ventana = tipo_ventana
        self.filas(filas)

    def filas(self, n):
        """Rows = n: new rows come empty, surplus rows go."""
        while len(self.celdas) < n:
            self.celdas.append([""] * self.columnas)
            self.merge.append(False)
            self.row_data.append(0)
        del self.celdas[n:], self.merge[n:], self.row_data[n:]

    def titulo(self, fila, texto):
        self.celdas[fila] = [texto] * self.columnas
        self.merge[fila] = True

    def poner(self, fila, *textos):
        for columna, texto in enumerate(textos):
            self.celdas[fila][columna] = texto

    def largo(self, fila, columna, indice):
        """A cell printed from the long-text list."""
        self.row_data[fila] = indice
        self.col_data[columna] = indice

    def json(self):
        return {
            "TipoVentana": self.tipo_ventana,
            "Caption": self.caption,
            "Tag": self.tag,
            "Rows": len(self.celdas),
            "Cols": self.columnas,
            "celdas": self.celdas,
            "MergeRow": self.merge,
            "RowData": self.row_data,
            "ColData": self.col_data,
        }


class Encabezado:
    """The header values of the window that owns a report."""

    def __init__(self):
        self.hay = False
        self.fecha = None
        self.vendedor = ""
        self.comprador = ""
        self.trabajo = ""

    def pedir(self, respuesta, mensajes, hoy):
        """PedirEncabezado; `respuesta` is what is typed in the four boxes before "Aceptar",
        or None for "Cancelar"."""
        if self.hay or respuesta is None:
            return False
        fecha = leer_fecha(trim(respuesta[0]), hoy)
        if fecha is None:
            # The dialog stays open on its message; with nobody to type, it ends cancelled.
            mensajes.append(("Por favor ingrese una fecha válida.", "exclamacion", "Aceptar"))
            return False
        self.fecha = fecha
        self.vendedor, self.comprador, self.trabajo = (limpiar_texto(t) for t in respuesta[1:])
        self.hay = all((self.vendedor, self.comprador, self.trabajo))
        return True

    def fecha_texto(self, hoy):
        """The date, or today's when it is none, stored back."""
        if self.fecha is None:
            self.fecha = hoy
        return formato_fecha(self.fecha)

    def filas(self):
        return [("Empresa que realiza el estudio:", self.vendedor, 1),
                ("Cálculos hechos para:", self.comprador, 2), ("Trabajo:", self.trabajo, 3)]


def _filas_encabezado(doc, fila, encabezado):
    for etiqueta, texto, indice in encabezado.filas():
        if texto != "":
            doc.filas(len(doc.celdas) + 1)
            fila += 1
            doc.largo(fila, 1, indice)
            doc.poner(fila, etiqueta, texto)
    return fila


# Input data reports --------------------------------------------------------------------------

CAPTIONS_ENTRADA = {
    1: "Cálculo de Espesor Óptimo - Pérdida de Calor - Equipos",
    5: "Cálculo de Espesor Óptimo - Pérdida de Calor - Tuberías",
    9: "Cálculo de Espesor Óptimo - Ganancia de Calor - Equipos",
    12: "Cálculo de Espesor Óptimo - Ganancia de Calor - Tuberías",
}
TITULOS = {
    1: "Transferencia de Calor para Superficies Planas (Calor)",
    5: "Transferencia de Calor para Superficies Cilíndricas (Calor)",
    9: "Transferencia de Calor para Superficies Planas (Frío)",
    12: "Transferencia de Calor para Superficies Cilíndricas (Frío)",
}
_CALIENTE = ["Temperatura Interior", "Temperatura Superficie Aislamiento", "Temperatura Ambiente",
             "Velocidad del Aire"]
_FRIO = ["Temperatura Interior", "Temperatura Ambiente", "Temperatura Bulbo Húmedo",
         "Temperatura Punto de Rocío", "Humedad Relativa", "Coeficiente Transmisión de Calor",
         "Velocidad del Aire"]
ETIQUETAS_DATOS = {
    1: _CALIENTE + ["Código Material Superficie Aislamiento", "Nombre Material Superficie Aislamiento",
                    "Emisividad Superficie Aislamiento", "Código Material Superficie Desnuda",
                    "Nombre Material Superficie Desnuda", "Emisividad Superficie Desnuda"],
    5: _CALIENTE + ["Diámetro de la Tubería a aislar", "Código Material Superficie Aislamiento",
                    "Nombre Material Superficie Aislamiento", "Emisividad Superficie Aislamiento"],
    9: _FRIO + ["Codigo Material Superficie Aislamiento", "Nombre Material Superficie Aislamiento",
                "Emisividad Superficie Aislamiento", "Codigo Material Superficie Desnuda",
                "Nombre Material Superficie Desnuda", "Emisividad Superficie Desnuda"],
    12: _FRIO + ["Diámetro de la Tubería a aislar", "Codigo Material Superficie Aislamiento",
                 "Nombre Material Superficie Aislamiento", "Emisividad Superficie Aislamiento"],
}
_COEFICIENTE = " BTU plg/pie² h °F"
# Rows, last box, boxes with a unit list, literal suffixes, long-text rows after a box.
DISPOSICION = {
    1: (13, 8, (1, 2, 3, 4), {}, {5: 1, 7: 2}),
    5: (11, 7, (1, 2, 3, 4, 5), {}, {6: 1}),
    9: (16, 11, (1, 2, 3, 4, 7), {5: " %", 6: _COEFICIENTE}, {8: 1, 10: 2}),
    12: (14, 10, (1, 2, 3, 4, 7, 8), {5: " %", 6: _COEFICIENTE}, {9: 1}),
}


def informe_datos(tag, entrada):
    """The input data report of an entry window whose `Tag` is 1, 5, 9 or 12."""
    filas, ultima, con_lista, sufijos, largos = DISPOSICION[tag]
    doc = Documento(filas, 2, CAPTIONS_ENTRADA[tag] + " [1]", tag)
    materiales = [entrada.nombre(0)] + ([entrada.nombre(1)] if tag in (1, 9) else [])
    doc.tag = ".;" + "".join(m + ";" for m in materiales)
    doc.titulo(0, (EMPRESA + SALTO).upper())
    doc.titulo(1, ("Datos de Entrada" + SALTO + TITULOS[tag] + SALTO + SALTO).upper())
    doc.poner(2, "Producto", nombre_producto(entrada.tipo))
    etiquetas = ETIQUETAS_DATOS[tag]
    fila = 3
    frio = tag in (9, 12)
    for i in range(1, ultima + 1):
        texto = entrada.cajas[i]
        if frio:
            texto = normalizar_decimal(texto_numero(val(texto)))
        if i in con_lista:
            texto += " " + (entrada.listas.get(i) or "")
        texto += sufijos.get(i, "")
        doc.poner(fila, etiquetas[fila - 3], texto)
        fila += 1
        if i in largos:
            indice = largos[i]
            doc.poner(fila, etiquetas[fila - 3], materiales[indice - 1])
            doc.largo(fila, 1, indice)
            fila += 1
    return doc


# Economic reports ----------------------------------------------------------------------------

def _entre_parentesis(texto):
    inicio = texto.find("(")
    fin = texto.find(")", inicio + 1)
    return texto[inicio + 1:fin] if inicio >= 0 and fin > inicio else ""


def _por(texto):
    """The unit word of the price label: after "por " up to ":"."""
    inicio = texto.find(" por ")
    fin = texto.find(":")
    return texto[inicio + 5:fin] if inicio >= 0 and fin > inicio else ""


def informe_economico(ventana, proyecto, encabezado, respuesta, mensajes, hoy, regional):
    """The economic report of an economic window with a result; `proyecto` holds its results
    window."""
    plana = ventana.e.plana
    tag = 3 if plana else 7
    producto = nombre_producto(proyecto.tipo)
    caption = ("Análisis Económico en Superficies Planas" if plana
               else "Análisis Económico en Superficies Cilíndricas") + " - " + producto + " [1]"
    doc = Documento(1, 3, caption, tag)
    encabezado.pedir(respuesta, mensajes, hoy)
    valores = proyecto.valores
    tabla = proyecto.tabla
    materiales = [valores["MaterialSA"]] + ([valores["MaterialSD"]] if plana else [])
    doc.tag = ".;" + "".join(t + ";" for t in [encabezado.vendedor, encabezado.comprador,
                                               encabezado.trabajo, producto] + materiales)
    fecha = encabezado.fecha_texto(hoy)
    titulo = ("Analisis Económico para Superficies Planas (Calor)" if plana
              else "Analisis Económico para Superficies Cilíndricas (Calor)")
    cabeza = (EMPRESA + SALTO + titulo + SALTO + producto + SALTO + "Fecha: " + fecha
              + SALTO).upper()
    if plana:
        cabeza = cabeza.replace("KG/M³", "kg/m³")
    doc.titulo(0, cabeza)
    fila = _filas_encabezado(doc, 0, encabezado)
    doc.filas(len(doc.celdas) + (39 if plana else 36))
    fila += 2
    doc.titulo(fila, "DATOS DE ENTRADA")
    fila += 1
    doc.poner(fila, "Producto", producto)
    doc.largo(fila, 1, 4)

    def valor(r):
        return tabla[r][1]

    def unidad(r):
        return tabla[r][2]

    def numero(r, decimales=2):
        return _numero(val(valor(r)), decimales)

    etiqueta_valor = ventana.etiqueta_valor()
    filas = [
        ("Temperatura Interior", unidad(3), numero(3)),
        ("Temperatura Superficie Aislam. supuesta", valores["unitTS"], _numero(valores["TS"])),
        ("Temperatura Ambiente", unidad(5), numero(5)),
        ("Velocidad del Aire", "mi/h", numero(6)),
    ]
    if plana:
        filas += [
            ("Material Superficie Aislamiento", materiales[0], "", 5),
            ("Emisividad Superficie Aislamiento", "", numero(8, 3)),
            ("Material Superficie Desnuda", materiales[1], "", 6),
            ("Emisividad Superficie Desnuda", "", numero(9, 3)),
            ("ESPESOR DEL AISLAMIENTO", "plg", numero(30)),
        ]
    else:
        filas += [
            ("Diámetro Nominal de la Tubería", "plg", numero(7)),
            ("Diámetro Real de la Tubería", "plg", _numero(valores["DM"])),
            ("Material Superficie Aislamiento", materiales[0], "", 5),
            ("Emisividad Superficie Aislamiento", "", numero(9, 3)),
        ]
    filas += [
        ("Horas de Trabajo al año", "h", ventana.horas),
        ("Combustible utilizado", _entre_parentesis(ventana.etiqueta_poder()),
         COMBUSTIBLES[ventana.combustible][0]),
        ("Poder Calorífico", _por(etiqueta_valor), ventana.cajas[ventana.e.poder]),
        ("Valor Combustible por " + _por(etiqueta_valor), ventana.moneda,
         ventana.cajas[ventana.e.valor]),
        ("Eficiencia del Equipo", "%", ventana.cajas[0]),
    ]
    for contenido in filas:
        fila += 1
        doc.poner(fila, *contenido[:3])
        if len(contenido) > 3:
            doc.largo(fila, 1, contenido[3])
    if plana:
        posiciones = ["SUPERFICIE PLANA HORIZONTAL CARA HACIA ARRIBA", "SUPERFICIE PLANA VERTICAL",
                      "SUPERFICIE PLANA HORIZONTAL CARA HACIA ABAJO"]
        flujo, total, desnuda, medida = ("BTU/pie² h", "Pérdida de Calor Total Superficie Aislada",
                                         "Pérdida de Calor Superficie Desnuda", "Area")
    else:
        posiciones = ["TUBERIA VERTICAL", "TUBERIA HORIZONTAL"]
        flujo, total, desnuda, medida = ("BTU/pie h", "Pérdida de Calor Total Tubería Aislada",
                                         "Pérdida de Calor Tubería Desnuda", "Longitud")
    for n, posicion in enumerate(posiciones):
        fila += 1
        doc.titulo(fila, posicion)
        caja = ventana.e.dimensiones[n]
        ahorro = ventana.cajas[ventana.e.resultados[n]]
        bloque = [
            (total, flujo, numero(34 * n + 33)),
            (desnuda, flujo, numero(34 * n + 34)),
            ("Eficiencia del Aislamiento", "%", numero(34 * n + 35)),
            (medida, ventana.listas[caja], ventana.cajas[caja]),
        ]
        if not plana:
            bloque.append(("ESPESOR DEL AISLAMIENTO", "plg", numero(34 * n + 30)))
        bloque.append(("VALOR DE LA ECONOMIA EN COMBUSTIBLE", ventana.moneda, _desde_digito(ahorro)))
        for contenido in bloque:
            fila += 1
            doc.poner(fila, *contenido)
    for etiqueta, texto in [
        ("TOTAL ECONOMIA EN COMBUSTIBLE AÑO", ventana.cajas[ventana.e.resultados[-1]]),
        ("TOTAL COSTO COMBUSTIBLE/AÑO (SUP. DESNUDA)", formato_miles(ventana.costo_sd, regional)),
        ("TOTAL COSTO COMBUSTIBLE/AÑO (SUP. AISLADA)", formato_miles(ventana.costo_sa, regional)),
    ]:
        fila += 1
        doc.poner(fila, etiqueta, ventana.moneda, texto)
    return doc


def _desde_digito(texto):
    for i, c in enumerate(texto):
        if c.isdigit():
            return texto[i:]
    return ""


# Copy report ---------------------------------------------------------------------------------

def informe_copia(grafica):
    """The copy report of a chart window showing its table."""
    doc = Documento(len(grafica.tabla) + 3, 2, grafica.caption, 16)
    doc.titulo(0, (EMPRESA + SALTO).upper())
    titulo = grafica.caption[:grafica.caption.find("[") - 1] if "[" in grafica.caption \
        else grafica.caption
    doc.titulo(1, titulo.upper().replace(" - ", SALTO))
    doc.poner(2, " ", " ")
    for fila, (a, b) in enumerate(grafica.tabla, start=3):
        doc.poner(fila, a, b)
    return doc


# Technical reports ---------------------------------------------------------------------------

TECNICOS = {
    "SP": (4, "Informe Técnico - Transferencia de Calor para Superficies Planas (Calor)", 46),
    "SC": (8, "Informe Técnico - Transferencia de Calor para Superficies Cilíndricas (Calor)", 38),
    "SPFrio": (11, "Informe Técnico - Transferencia de Calor para Superficies Planas (Frío)", 48),
    "SCFrio": (14, "Informe Técnico - Transferencia de Calor para Superficies Cilíndricas (Frío)",
               40),
}
ARRIBA = "SUPERFICIE PLANA HORIZONTAL CARA HACIA ARRIBA"
ABAJO = "SUPERFICIE PLANA HORIZONTAL CARA HACIA ABAJO"
ORIENTACIONES = {
    "SP": [ARRIBA, "SUPERFICIE PLANA VERTICAL", ABAJO],
    "SPFrio": [ABAJO, "SUPERFICIE PLANA VERTICAL", ARRIBA],
    "SC": ["TUBERIA VERTICAL", "TUBERIA HORIZONTAL"],
    "SCFrio": ["TUBERIA VERTICAL", "TUBERIA HORIZONTAL"],
}


def informe_tecnico(proyecto, encabezado, respuesta, mensajes, hoy):
    """The technical report of a results window."""
    ventana = proyecto.ventana
    tag, titulo, resto = TECNICOS[ventana]
    plana = ventana in ("SP", "SPFrio")
    frio = ventana in ("SPFrio", "SCFrio")
    producto = nombre_producto(proyecto.tipo)
    tabla, valores = proyecto.tabla, proyecto.valores
    doc = Documento(3, 4, titulo + " - " + producto + " [1]", tag)
    encabezado.pedir(respuesta, mensajes, hoy)
    materiales = [valores["MaterialSA"]] + ([valores["MaterialSD"]] if plana else [])
    doc.tag = ".;" + "".join(t + ";" for t in [encabezado.vendedor, encabezado.comprador,
                                               encabezado.trabajo] + materiales + [producto])
    fecha = encabezado.fecha_texto(hoy)
    doc.titulo(0, EMPRESA.upper())
    doc.titulo(1, titulo.upper())
    nombre = producto.upper()
    if ventana == "SP":
        nombre = nombre.replace("KG/M³", "kg/m³")
    doc.titulo(2, "PRODUCTO: " + nombre + "    FECHA: " + fecha + SALTO)
    fila = _filas_encabezado(doc, 2, encabezado)
    doc.filas(len(doc.celdas) + resto)

    def valor(r):
        return tabla[r][1]

    def unidad(r):
        return tabla[r][2]

    fila += 1
    doc.titulo(fila, "DATOS DE ENTRADA")
    fila += 1
    doc.poner(fila, "Producto", producto)
    doc.largo(fila, 1, 6 if plana else 5)
    entradas = [("Temperatura Interior", unidad(3), valor(3))]
    if frio:
        entradas += [
            ("Temperatura Ambiente (Bulbo Seco)", unidad(5), valor(5)),
            ("Temperatura Punto de Rocío", valores["unitTPR"], _numero(valores["TPR"])),
            ("Temperatura Bulbo Húmedo", valores["unitTBH"] if valores["hayTBH"] else "",
             _numero(valores["TBH"]) if valores["hayTBH"] else "DESCONOCIDA"),
            ("Humedad Relativa", "%" if valores["hayHR"] else "",
             _numero(valores["HR"]) if valores["hayHR"] else "DESCONOCIDA"),
            ("Velocidad del Aire", "mi/h", valor(6)),
        ]
    else:
        entradas += [
            ("Temperatura Superficie Aislam. supuesta", valores["unitTS"], _numero(valores["TS"])),
            ("Temperatura Ambiente", unidad(5), valor(5)),
            ("Velocidad del Aire", "mi/h", valor(6)),
        ]
    if ventana == "SC":
        entradas += [("Diámetro Nominal de la Tubería", "plg", valor(7)),
                     ("Diámetro Real de la Tubería", "plg", _numero(valores["DM"]))]
    elif ventana == "SCFrio":
        entradas += [("Diámetro nominal de la tubería", "plg", valor(7)),
                     ("Diámetro real de la tubería", "plg", _numero(valores["DM"]))]
    entradas += [("Material Superficie Aislamiento", materiales[0], "", 4),
                 ("Emisividad Superficie Aislamiento", "", valor(9))]
    if plana:
        entradas += [("Material Superficie Desnuda", materiales[1], "", 5),
                     ("Emisividad Superficie Desnuda", "", valor(9))]
    for contenido in entradas:
        fila += 1
        doc.poner(fila, *contenido[:3])
        if len(contenido) > 3:
            doc.largo(fila, 1, contenido[3])
    verbo = "Ganancia" if frio else "Pérdida"
    for n, orientacion in enumerate(ORIENTACIONES[ventana]):
        base = 34 * n + 2
        fila += 1
        doc.titulo(fila, orientacion)
        fila += 1
        doc.poner(fila, "", "", "EXACTO", "RECOMENDADO")

        def por_k(etiqueta, texto_unidad, k):
            return (etiqueta, texto_unidad, valor(base + k), valor(base + 17 + k))

        media = unidad(base + 2) if ventana == "SP" else unidad(base + 8)
        pelicula = ("Conductancia de la pelicula de aire" if ventana == "SCFrio"
                    else "Conductancia de la película de aire")
        filas = [
            por_k("Temperatura de la Superficie", unidad(base + 2), 2),
            por_k("Temperatura Media", media, 8),
            por_k("Coeficiente de Conductividad Térmica", "BTU plg/pie² h °F", 9),
            por_k(pelicula, "BTU/pie² h °F", 10),
            por_k("ESPESOR DEL AISLAMIENTO", "plg", 11),
        ]
        if plana:
            filas += [
                por_k(verbo + " de Calor por Radiación", "BTU/pie² h", 12),
                por_k(verbo + " de Calor por Convección", "BTU/pie² h", 13),
                por_k(verbo + " de Calor Total", "BTU/pie² h", 14),
                por_k(verbo + " de Calor Superficie Desnuda", "BTU/pie² h", 15),
                por_k("Eficiencia del Aislamiento", "%", 16),
            ]
        else:
            m = n + 1
            filas += [
                por_k(verbo + " de Calor por Radiación (SA)", "BTU/pie h", 12),
                por_k(verbo + " de Calor por Convección (SA)", "BTU/pie h", 13),
                por_k(verbo + " de Calor Total (SA)", "BTU/pie h", 14),
                (verbo + " de Calor por Radiación (SD)", "BTU/pie h",
                 _numero(valores["QDRL%d" % m]), _numero(valores["QDRDL%d" % m])),
                (verbo + " de Calor por Convección (SD)", "BTU/pie h",
                 _numero(valores["QDCL%d" % m]), _numero(valores["QDCDL%d" % m])),
                por_k(verbo + " de Calor Total (SD)", "BTU/pie h", 15),
                por_k("Eficiencia del Aislamiento", "%", 16),
            ]
        for contenido in filas:
            fila += 1
            doc.poner(fila, *contenido)
            if contenido[0] == "ESPESOR DEL AISLAMIENTO":
                doc.row_data[fila] = -fila
    return doc
