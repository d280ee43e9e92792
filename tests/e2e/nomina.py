"""A month at the payroll by keyboard alone: filled in with the percentage that the withholding works out, computed,
saved, printed, loaded, and the same receipt."""

import re
import subprocess

import menu
from escritorio import cuenta
from usuario import CONFIRMACION, INFORMA, Programa, espera_ventana, pulsa, rellena, teclea

PANTALLA = "Cálculo de Nóminas"
RETENCIONES = "Retenciones del Trabajo Personal a cuenta del IRPF"
RECIBO = "Recibo de nóminas del trabajador"
LIQUIDO = "LÍQUIDO (A-B)"

# The month of docs/payslip.md, but for its tax: 24000 - 1524 less 2400 and 3400 leave 16676, whose quota, 3739,04, is
# 15,57 % of the pay. 15,57 % of 1206,32 is 187,82, and 1206,32 - 99,22 - 187,82 is 919,28.
CONCEPTOS = {"01": "1200", "02": "80", "83": "60", "HE": "90"}
IMPRESO = """\
Salario Base 800,00
IT enfermedad común/acc.no laboral 202,99
TOTAL APORTACIONES 99,22
2. Impuesto sobre la Renta de las Personas Físicas (15,57%) 187,82
LÍQUIDO TOTAL A PERCIBIR (A-B) 919,28""".splitlines()


def rellena_el_contrato(programa):
    rellena("Begoña Nuño", "", "5", "")  # group 5; epigraph and contract stay
    pulsa(*["Down"] * 5, "Tab", "Tab")  # June
    rellena("01-03-2001", "", "34", "", "", "2", "1200")
    programa.espera_campo("Edad:", "34")


def trae_el_porcentaje(programa):
    programa.tabula_hasta("Cálculo %IRPF")
    pulsa("Return")
    espera_ventana(RETENCIONES)
    rellena("Begoña Nuño", "", "1965", *[""] * 6, "24000", "", "1524")
    programa.espera_campo("Retribuciones anuales:", "24.000,00")
    pulsa(*["alt+Right"] * 3)
    programa.espera_que_se_lea("Resultado favorable")
    pulsa("ctrl+w")
    programa.responde(CONFIRMACION, "¿Desea descartar los datos del supuesto?", "alt+s")
    espera_ventana(PANTALLA)
    programa.espera_campo("% IRPF:", "15,57")


def rellena_los_conceptos(programa):
    """After the code comes its list, after the amount the period, which the code has proposed."""
    programa.tabula_hasta("Código 1")
    for codigo, importe in CONCEPTOS.items():
        rellena(codigo, "", importe)
        if codigo != "HE":
            pulsa("Tab")  # an amount of once and for all has its period locked


def rellena_la_baja(programa):
    pulsa(*["Tab"] * 8)  # two rows of concepts are left
    programa.espera_foco("Incidencia 1")
    rellena("1", "", "15", "24")
    pulsa("alt+Right")
    rellena("1450", "1490", "40", "360", "30")


def recibo(programa):
    """Goes on from the data of the leave and gives all that the receipt tells."""
    pulsa("alt+Right")
    programa.espera_que_se_lea(RECIBO)
    programa.espera_campo(LIQUIDO, "919,28")
    _titulo, *relato = programa.relato()
    return relato


def graba():
    pulsa("ctrl+g")
    espera_ventana("Grabación de supuestos")
    pulsa("Return")
    espera_ventana(PANTALLA)


def imprime(programa, pdf):
    pulsa("ctrl+p")
    programa.espera_foco("Empresa:")
    rellena("Talleres Norte, S.L.", "Calle Mayor, 1", "B-12345678", "28/123456789")
    programa.tabula_hasta("Imprimir")
    pulsa("Return")
    espera_ventana("Guardar el informe en PDF")
    teclea(str(pdf))
    pulsa("Return")
    programa.responde(INFORMA, "Impresión terminada", "Return")
    espera_ventana(PANTALLA)
    texto = subprocess.run(["pdftotext", "-layout", pdf, "-"], capture_output=True, text=True, check=True).stdout
    lineas = [re.sub(r"[. ]{3,}", " ", linea).strip() for linea in texto.splitlines()]
    assert set(IMPRESO) <= set(lineas), lineas


def carga(programa):
    pulsa("ctrl+n")
    programa.espera_campo("Nombre:", "")
    pulsa("ctrl+o")
    espera_ventana("Carga de supuestos")
    pulsa("Down", "Return")
    espera_ventana(PANTALLA)
    programa.espera_campo("Nombre:", "Begoña Nuño")


def nomina(escritorio):
    (escritorio.aplicacion / "nominas.nom").unlink()  # the examples, which are not this user's
    with Programa(escritorio.aplicacion) as programa:
        menu.abre(programa, "Cálculo de Nóminas", PANTALLA)
        programa.espera_foco("Nombre:")
        rellena_el_contrato(programa)
        trae_el_porcentaje(programa)
        rellena_los_conceptos(programa)
        rellena_la_baja(programa)
        calculado = recibo(programa)
        imprime(programa, escritorio.carpeta / "nomina.pdf")
        graba()
        carga(programa)
        pulsa("alt+Right")
        assert recibo(programa) == calculado, "another receipt once saved and loaded"
        pulsa("ctrl+w")
        espera_ventana(menu.MENU)
        menu.abandona(programa)


if __name__ == "__main__":
    cuenta(nomina)
