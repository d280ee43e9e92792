"""A working session by keyboard alone: a case of unemployment is filled in, concluded, saved, loaded, printed and
erased, and the program left."""

import time

import desempleo
import menu
from desempleo import CASO, EDAD, FECHA, GRABACION, LARGO_REGISTRO, NOMBRE, PANTALLA, SUMA, registro
from escritorio import cuenta, espera
from usuario import CONFIRMACION, ERROR, Programa, espera_ventana, pulsa, teclea

CARGA = "Carga de supuestos"
SUPUESTO = "Media jornada"
SOBREESCRIBE = "¿Desea sobreescribir el antigüo supuesto?"


def portada_y_menu(comienzo):
    """The menu comes when the second of the cover is over."""
    espera_ventana("PENSIONES_ORVEMO")
    espera_ventana(menu.MENU)
    assert time.monotonic() - comienzo >= 1, "the cover has not stayed its second"


def corrige_una_edad(programa):
    """A refused age takes the focus back, all of it selected: the good one is typed at once."""
    teclea(CASO[NOMBRE])
    pulsa("Tab")
    teclea("145")
    pulsa("Tab")
    programa.responde(ERROR, "El número no es correcto. Debe introducir un número entre 1 y 99", "Return")
    espera_ventana(PANTALLA)
    teclea(CASO[EDAD])
    pulsa("Tab")
    programa.espera_campo(EDAD, CASO[EDAD])


def guarda_solo(fichero, comienzo):
    """Whether the file holds a single record, which begins so."""
    contenido = fichero.read_bytes() if fichero.exists() else b""
    return len(contenido) == LARGO_REGISTRO and contenido.startswith(comienzo)


def espera_grabado(fichero, edad):
    espera(f"{fichero.name} with the case", lambda: guarda_solo(fichero, registro(SUPUESTO, edad)))


def graba(fichero):
    pulsa("ctrl+g")
    espera_ventana(GRABACION)
    teclea(SUPUESTO)
    pulsa("Return")
    espera_ventana(PANTALLA)
    espera_grabado(fichero, edad=45)


def graba_encima(programa, fichero):
    """The same name again: refused, the dialog stays; confirmed, the case takes the place of the old one."""
    programa.tabula_hasta(EDAD)
    teclea("46")
    pulsa("ctrl+g")
    espera_ventana(GRABACION)
    teclea(SUPUESTO)
    pulsa("Return")
    programa.responde(CONFIRMACION, SOBREESCRIBE, "alt+n")
    espera_ventana(GRABACION)
    assert guarda_solo(fichero, registro(SUPUESTO, edad=45)), "overwritten against the answer"
    pulsa("Return")
    programa.responde(CONFIRMACION, SOBREESCRIBE, "alt+s")
    espera_ventana(PANTALLA)
    espera_grabado(fichero, edad=46)


def empieza_otro_y_carga(programa):
    pulsa("ctrl+n")
    programa.espera_campo(NOMBRE, "")
    programa.espera_campo(EDAD, "0")
    pulsa("ctrl+o")
    espera_ventana(CARGA)
    programa.espera_que_se_lea(SUPUESTO)
    pulsa("Down", "Return")
    espera_ventana(PANTALLA)
    for campo, texto in (CASO | {EDAD: "46", SUMA: "8.000,50"}).items():
        programa.espera_campo(campo, texto)


def imprime(programa, pdf):
    informe = desempleo.imprime(programa, pdf)
    assert informe == [linea.replace("Edad: 45", "Edad: 46") for linea in desempleo.INFORME], informe


def borra(programa, fichero):
    """The record stays as a free slot."""
    pulsa("ctrl+o")
    espera_ventana(CARGA)
    pulsa("Down", "Delete")
    programa.responde(CONFIRMACION, "¿Borrar el supuesto?", "alt+s")
    espera_ventana(CARGA)
    espera(f"a free slot in {fichero.name}", lambda: guarda_solo(fichero, b"*"))
    pulsa("Escape")
    espera_ventana(PANTALLA)


def recorrido(escritorio):
    fichero = escritorio.aplicacion / "desemp.nom"
    fichero.unlink()  # the examples, which are not this user's
    comienzo = time.monotonic()
    with Programa(escritorio.aplicacion) as programa:
        portada_y_menu(comienzo)
        desempleo.abre(programa)
        corrige_una_edad(programa)
        desempleo.rellena_desde(FECHA)
        desempleo.concluye(programa)
        desempleo.vuelve_a_los_datos(programa)
        graba(fichero)
        graba_encima(programa, fichero)
        empieza_otro_y_carga(programa)
        desempleo.concluye(programa)
        imprime(programa, escritorio.carpeta / "informe.pdf")
        borra(programa, fichero)
        desempleo.vuelve_al_menu()
        menu.duda_y_se_queda(programa)
        menu.abandona(programa)


if __name__ == "__main__":
    cuenta(recorrido)
