"""The unemployment screen and the case that the tests work on it."""

import struct
import subprocess
from datetime import date

import menu
from usuario import INFORMA, espera_ventana, pulsa, rellena, teclea

PANTALLA = "Prestaciones de desempleo"
GRABACION = "Grabación de supuestos"
PDF = "Guardar el informe en PDF"
DATOS = "Datos del solicitante"
DICTAMEN = "CONCLUSIONES SOBRE PRESTACION DE DESEMPLEO"

NOMBRE = "Nombre completo:"
EDAD = "Edad del solicitante:"
FECHA = "Fecha de solicitud:"
SUMA = "Suma de cotizaciones de los últimos 180 días:"
HORAS = "Horas reales trabajadas durante la semana (1 a 39 horas):"

# What is typed, in the order of the fields; before the last one the contract is marked as a part-time one.
CASO = {
    NOMBRE: "Begoña Nuño",
    EDAD: "45",
    FECHA: "20-03-2005",
    "Fecha de inicio de la situación:": "01-03-2005",
    SUMA: "8000,50",
    "Días cotizados en los 6 años anteriores:": "1000",
    "Número de hijos menores de 26 años o minusválidos:": "1",
    HORAS: "20",
}

# 8000,50 / 180 = 44,45; 70 % is 31,12 and 60 % 26,67, both over half of the ceiling for one child, 36,54 / 2.
CONCLUSIONES = """\
El interesado desea solicitar una prestación de desempleo.
Tiene derecho a 300 días de prestación.
La base reguladora diaria es de 44,45 €.
Se ha tomado la parte proporcional de los topes mínimo y máximo diarios,
equivalentes a 50%, por ser contrato a tiempo parcial.
La prestación diaria para los primeros 180 días supera la máxima, por lo que se toma ésta.
Los primeros 180 días tendrá una prestación de 18,27 € diarios.
La prestación diaria para los restantes 120 días supera la máxima, por lo que se toma ésta.
A partir del día 181 la prestación será de 18,27 € diarios.
La solicitud ha sido hecha fuera del plazo de 15 días por lo que pierde la
prestación correspondiente a 20 días.
"""

INFORME = f"""\
DESEMPLEO
Nombre:Begoña Nuño
Edad: 45
Fecha de solicitud: 20-mar-2005
Fecha de inicio de la situación: 01-mar-2005
Suma de cotizaciones de los últimos 180 días: 8.000,50€
Número de hijos menores de 26 años o minusválidos: 1
CONCLUSIONES
{CONCLUSIONES}""".splitlines()

LARGO_REGISTRO = 297


def registro(supuesto, edad=45):
    """The case as desemp.nom holds it under this name, up to the text that no field uses."""
    def texto(contenido):
        return contenido.encode("cp1252").ljust(80)

    def fecha(dia):
        return float((dia - date(1899, 12, 30)).days)

    return struct.pack("<c80s80sidddiiii", b" ", texto(supuesto), texto(CASO[NOMBRE]), edad,
                       fecha(date(2005, 3, 20)), fecha(date(2005, 3, 1)), 8000.5, 1000, 1, 20, 1)


def abre(programa):
    menu.abre(programa, "Desempleo", PANTALLA)
    programa.espera_foco(NOMBRE)


def rellena_desde(campo):
    """Types the case from this field on, which has the focus."""
    *textos, horas = list(CASO.values())[list(CASO).index(campo):]
    rellena(*textos)
    pulsa("space", "Tab")  # part-time: the hours appear
    rellena(horas)


def concluye(programa):
    """Goes on to the conclusions and reads them."""
    pulsa("alt+Right")
    programa.espera_que_se_lea(DICTAMEN)
    programa.espera_campo("Conclusiones", CONCLUSIONES)
    programa.espera_que_se_lea("Resultado favorable")


def vuelve_a_los_datos(programa):
    pulsa("alt+Left")
    programa.espera_foco(NOMBRE)


def imprime(programa, pdf):
    """Prints into the file and gives the lines of the report. Without printers the program asks for a file."""
    pulsa("ctrl+p")
    espera_ventana(PDF)
    teclea(str(pdf))
    pulsa("Return")
    programa.responde(INFORMA, "Impresión terminada", "Return")
    espera_ventana(PANTALLA)
    texto = subprocess.run(["pdftotext", "-layout", pdf, "-"], capture_output=True, text=True, check=True).stdout
    return [linea.strip() for linea in texto.splitlines() if linea.strip()]


def vuelve_al_menu():
    pulsa("ctrl+w")
    espera_ventana(menu.MENU)
