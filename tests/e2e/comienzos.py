"""What the program does where its directory isn't as it should be."""

import random

import desempleo
import menu
from escritorio import cuenta
from usuario import CONFIRMACION, ERROR, Programa, espera_ventana, pulsa

SIN_PORTADA = 'El programa no puede empezar: el fichero "portada.bmp" no se puede usar (no existe).'
NO_SE_GRABA = 'No se ha podido completar la operación: el fichero "desemp.nom" no se puede usar (no hay permiso).'

DESCARTA = "¿Desea descartar los datos del supuesto?"


def sin_portada(escritorio):
    """Without the cover picture the program says so and ends."""
    (escritorio.aplicacion / "portada.bmp").unlink()
    with Programa(escritorio.aplicacion) as programa:
        programa.responde(ERROR, SIN_PORTADA, "Return")
        assert programa.espera_fin() == 1


def config_de_basura(escritorio):
    """Whatever bytes config.nom holds, the options that are always there are there."""
    (escritorio.aplicacion / "config.nom").write_bytes(random.Random(2005).randbytes(20 * 256 + 100))
    with Programa(escritorio.aplicacion) as programa:
        programa.espera_que_se_lea("Información")
        menu.abandona(programa)


def solo_lectura(escritorio):
    """In a directory that can't be written cases are computed and printed; saving tells why it can't."""
    (escritorio.aplicacion / "desemp.nom").chmod(0o444)
    escritorio.aplicacion.chmod(0o555)
    with Programa(escritorio.aplicacion) as programa:
        desempleo.abre(programa)
        desempleo.rellena_desde(desempleo.NOMBRE)
        desempleo.concluye(programa)
        pulsa("ctrl+g")
        espera_ventana(desempleo.GRABACION)
        pulsa("Return")
        programa.responde(ERROR, NO_SE_GRABA, "Return")
        espera_ventana(desempleo.PANTALLA)
        assert desempleo.imprime(programa, escritorio.carpeta / "informe.pdf") == desempleo.INFORME
        pulsa("ctrl+w")
        programa.responde(CONFIRMACION, DESCARTA, "alt+s")  # it could not be saved
        espera_ventana(menu.MENU)
        menu.abandona(programa)


if __name__ == "__main__":
    cuenta(sin_portada, config_de_basura, solo_lectura)
