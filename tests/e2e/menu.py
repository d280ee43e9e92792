"""The main menu."""

from usuario import CONFIRMACION, espera_ventana, pulsa

MENU = "PENSIONES ORVEMO - Simulador de prestaciones, retenciones y nóminas 2005"
ABANDONA = "¿Desea abandonar el programa?"


def abre(programa, opcion, pantalla):
    """Opens an option, whose window has the given title."""
    espera_ventana(MENU)
    programa.tabula_hasta(opcion)
    pulsa("Return")
    espera_ventana(pantalla)


def duda_y_se_queda(programa):
    pulsa("alt+f")
    programa.responde(CONFIRMACION, ABANDONA, "alt+n")
    espera_ventana(MENU)


def abandona(programa):
    pulsa("alt+f")
    programa.responde(CONFIRMACION, ABANDONA, "alt+s")
    assert programa.espera_fin() == 0, "the program has not ended well"
