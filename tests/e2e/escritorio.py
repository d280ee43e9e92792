"""A desktop of the test's own: a screen in memory, the bus through which it is read and, if wanted, a window manager.
Nothing of the developer's session reaches it, and nothing of it outlives the test."""

import argparse
import os
import shutil
import subprocess
import tempfile
import time
from pathlib import Path

PLAZO = 60  # seconds; a wait ends as soon as what it waits for happens
PASO = 0.02
NADIE = 65534
PANTALLA = "1920x1080"
HERRAMIENTAS = ("Xvfb", "setxkbmap", "xdotool", "openbox", "dbus-daemon", "pdftotext")


def espera(que, condicion, plazo=PLAZO):
    """The first true value of the condition; when none comes in time, the test ends telling what was awaited."""
    fin = time.monotonic() + plazo
    while not (valor := condicion()):
        assert time.monotonic() < fin, f"waited in vain for {que}"
        time.sleep(PASO)
    return valor


def cuenta(*historias):
    """Tells the story named on the command line, on a desktop made for it."""
    argumentos = argparse.ArgumentParser()
    argumentos.add_argument("historia", choices=[historia.__name__ for historia in historias])
    argumentos.add_argument("ejecutable", type=Path)
    argumentos.add_argument("datos", type=Path, help="the data files of the build")
    argumentos.add_argument("--gestor", help="a window manager; none without it")
    argumentos.add_argument("--escala", default="1", help="of everything on the screen")
    elegido = argumentos.parse_args()
    historia = next(h for h in historias if h.__name__ == elegido.historia)
    with Escritorio(elegido) as escritorio:
        historia(escritorio)


class Escritorio:
    """A desktop with a Spanish keyboard and a fresh application directory. The test goes on in its environment."""

    def __init__(self, elegido):
        self.elegido = elegido
        self.procesos = []

    def __enter__(self):
        faltan = [nombre for nombre in HERRAMIENTAS if shutil.which(nombre) is None]
        assert not faltan, f"{', '.join(faltan)} not found: ./test.sh installs what the tests need"
        self.carpeta = Path(tempfile.mkdtemp(prefix="orvemo-e2e-"))
        self.aplicacion = self.carpeta / "aplicacion"
        try:
            self._reune_la_aplicacion()
            self._suelta_privilegios()
            self._aisla()
            self._arranca()
        except BaseException:
            self.__exit__()
            raise
        return self

    def __exit__(self, *_):
        for proceso in reversed(self.procesos):
            proceso.terminate()
            proceso.wait()
        if self.aplicacion.exists():
            self.aplicacion.chmod(0o755)
        shutil.rmtree(self.carpeta)

    def _reune_la_aplicacion(self):
        shutil.copytree(self.elegido.datos, self.aplicacion, ignore=shutil.ignore_patterns("CMakeFiles", "*.cmake"))
        shutil.copy2(self.elegido.ejecutable, self.aplicacion)

    def _suelta_privilegios(self):
        """Root may write anywhere, a user may not: the story is a user's."""
        if os.geteuid() != 0:
            return
        for ruta in [self.carpeta, *self.carpeta.rglob("*")]:
            os.chown(ruta, NADIE, NADIE)
        os.setgroups([])
        os.setgid(NADIE)
        os.setuid(NADIE)

    def _aisla(self):
        """Of the caller's environment only the paths stay: the rest would be the developer's desktop."""
        for variable in set(os.environ) - {"PATH", "LD_LIBRARY_PATH"}:
            del os.environ[variable]
        os.environ |= {
            "HOME": str(self.carpeta),
            "XDG_RUNTIME_DIR": str(self.carpeta),
            "LANG": "C.UTF-8",
            "QT_QPA_PLATFORM": "xcb",
            "QT_SCALE_FACTOR": self.elegido.escala,
            "QT_LINUX_ACCESSIBILITY_ALWAYS_ON": "1",
            # No printer answers there: reports go to PDF files.
            "CUPS_SERVER": str(self.carpeta / "no-printers"),
            # Font and toolkit caches that are never freed are no leak of the program.
            "ASAN_OPTIONS": "detect_leaks=0",
        }

    def _arranca(self):
        # Without -noreset the server forgets the keyboard as soon as nobody is connected.
        pantalla = self._servidor(
            "Xvfb", "-displayfd", "{}", "-screen", "0", f"{PANTALLA}x24", "-nolisten", "tcp", "-noreset")
        os.environ["DISPLAY"] = f":{pantalla}"
        subprocess.run(["setxkbmap", "es"], check=True)
        os.environ["DBUS_SESSION_BUS_ADDRESS"] = self._servidor(
            "dbus-daemon", "--session", "--nofork", "--nopidfile", "--print-address={}")
        if self.elegido.gestor:
            self._lanza(self.elegido.gestor)
            espera("the window manager", self._hay_gestor)

    def _lanza(self, *orden, **opciones):
        self.procesos.append(
            subprocess.Popen(orden, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL, **opciones))

    def _servidor(self, *orden):
        """Starts a server that says how to reach it on the descriptor put for {}, once it can be reached."""
        lectura, escritura = os.pipe()
        self._lanza(*(parte.replace("{}", str(escritura)) for parte in orden), pass_fds=[escritura])
        os.close(escritura)
        with os.fdopen(lectura) as respuesta:
            linea = respuesta.readline().strip()
        assert linea, f"{orden[0]} does not start"
        return linea

    @staticmethod
    def _hay_gestor():
        """Only a window manager knows of desktops."""
        return subprocess.run(["xdotool", "get_num_desktops"], capture_output=True, check=False).returncode == 0
