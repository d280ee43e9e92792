"""What a user does at the keyboard and sees on the screen.

Keys go to whatever window has the keyboard, as they would. A window handles its keys in order, so a wait is due only
where the keyboard passes from one window to another. The screen is read as an aid for the blind would read it."""

import subprocess

import gi

from escritorio import espera

gi.require_version("Atspi", "2.0")
from gi.repository import Atspi, GLib  # noqa: E402  (only after its version is chosen)

ERROR = "Comunicación de error"
CONFIRMACION = "Confirmación"
INFORMA = "Mensaje informativo"


# --- The keyboard

def pulsa(*teclas):
    """Presses keys, by their X names: "Tab", "ctrl+g"…"""
    subprocess.run(["xdotool", "key", "--delay", "0", *teclas], check=True)


def teclea(texto):
    subprocess.run(["xdotool", "type", "--delay", "0", texto], check=True)


def rellena(*textos):
    """Types field after field: entering one selects all it holds, so that each text replaces the old one."""
    for texto in textos:
        teclea(texto)
        pulsa("Tab")


# --- Windows

def _xdotool(*orden):
    return subprocess.run(["xdotool", *orden], capture_output=True, text=True, check=False).stdout.strip()


def ventana_con_teclado():
    """The title of the window that gets the keys."""
    return _xdotool("getwindowfocus", "getwindowname")


def _es(ventana, titulo):
    """Whether a window bears the title; that of a calculator is followed by the name of its case."""
    return ventana == titulo or ventana.startswith(f"{titulo} - ")


def espera_ventana(titulo):
    """Waits until the window of this title has the keyboard."""
    espera(f"the keyboard in «{titulo}»", lambda: _es(ventana_con_teclado(), titulo))


# --- The program

def _texto(nodo):
    """What a text field holds; of anything else, what is written on it."""
    return Atspi.Text.get_text(nodo, 0, -1) if "Text" in nodo.get_interfaces() else nodo.get_name()


def _tiene(nodo, estado):
    return nodo.get_state_set().contains(estado)


def _visibles(nodo):
    """The node and those under it that stand on the screen."""
    if nodo is None or not _tiene(nodo, Atspi.StateType.SHOWING):
        return
    yield nodo
    for i in range(nodo.get_child_count()):
        yield from _visibles(nodo.get_child_at_index(i))


class Programa:
    """The running program, from outside."""

    def __init__(self, carpeta):
        self.proceso = subprocess.Popen([carpeta / "PENSIONES_ORVEMO"], cwd="/")

    def __enter__(self):
        return self

    def __exit__(self, _clase, fallo, _traza):
        if fallo is not None:
            print(f"--- The keyboard was in «{ventana_con_teclado()}», and there stood:", *self.relato(), sep="\n")
        self.proceso.kill()
        self.proceso.wait()

    def espera_fin(self):
        """The status with which the program ends."""
        espera("the end of the program", lambda: self.proceso.poll() is not None)
        return self.proceso.returncode

    def espera_que_se_lea(self, texto):
        """Waits until a label, a button or a field of the active window reads so."""
        espera(f"«{texto}»", lambda: any(_texto(nodo) == texto for nodo in self._nodos()))

    def espera_campo(self, nombre, texto):
        """Waits until the field of this label holds the text."""
        espera(f"«{nombre}» with «{texto}»", lambda: self._lee(nombre) == texto)

    def espera_foco(self, nombre):
        """Waits until what has this label or caption has the focus."""
        espera(f"the focus on «{nombre}»", lambda: self.foco() == nombre)

    def tabula_hasta(self, nombre):
        """Goes on with Tab until the focus is there."""
        recorridos = []
        while (actual := self.foco()) != nombre:
            assert actual not in recorridos, f"no «{nombre}» on the way of Tab: {recorridos}"
            recorridos.append(actual)
            pulsa("Tab")
            espera("the focus elsewhere", lambda: self.foco() not in ("", actual))

    def responde(self, titulo, texto, tecla):
        """Waits for a box, reads it and answers it with a key."""
        espera_ventana(titulo)
        self.espera_que_se_lea(texto)
        pulsa(tecla)

    def foco(self):
        """Label or caption of what has the focus."""
        return next((nodo.get_name() for nodo in self._nodos() if _tiene(nodo, Atspi.StateType.FOCUSED)), "")

    def relato(self):
        """All that is written in the active window, for who has to find out."""
        return [f"{nodo.get_role_name()} «{nodo.get_name()}» «{_texto(nodo)}»" for nodo in self._nodos()]

    def _lee(self, nombre):
        campos = (n for n in self._nodos() if n.get_name() == nombre and n.get_role() != Atspi.Role.LABEL)
        return next((_texto(nodo) for nodo in campos), None)

    def _nodos(self):
        """What stands in the active window; nothing while it is changing."""
        try:
            return list(_visibles(self._ventana()))
        except GLib.Error:
            return []

    def _ventana(self):
        escritorio = Atspi.get_desktop(0)
        programas = [escritorio.get_child_at_index(i) for i in range(escritorio.get_child_count())]
        for programa in programas:
            if programa is None or programa.get_process_id() != self.proceso.pid:
                continue
            programa.set_cache_mask(Atspi.Cache.NONE)
            ventanas = [programa.get_child_at_index(i) for i in range(programa.get_child_count())]
            return next((v for v in ventanas if v and _tiene(v, Atspi.StateType.ACTIVE)), None)
        return None
