"""The start of the program, on a screen of its own.

    /usr/bin/python3 bench/demarrage.py build/release/src/orvane FENETREVIDE build/release/jeu

Against an empty Qt window of the same size, in turns, from the start of the process: its first
window on screen, and that window painted. Then the time of processor that the program takes, its
libraries included, from its start to the menu with a panel open. Fails if the first window is over
one of its ratios or the panel over its milliseconds.
"""

import contextlib
import ctypes
import os
import pathlib
import select
import statistics
import subprocess
import sys
import tempfile
import time

FOIS = 21
LIMITES = (("à l'écran", 1.28), ("peinte", 1.4))  # of the empty window's time
LIMITEMENU = 57  # milliseconds
ATTENTE = 20  # seconds after which what should have come is a failure
SUBSTRUCTURE, MAP = 1 << 19, 19  # of the X protocol: what to hear of, and that a window is shown
BORD = 8  # pixels that a painting may leave out


class Rectangle(ctypes.Structure):
    _fields_ = [("x", ctypes.c_short), ("y", ctypes.c_short), ("largeur", ctypes.c_ushort),
                ("hauteur", ctypes.c_ushort)]


class Peinture(ctypes.Structure):
    _fields_ = [("genre", ctypes.c_int), ("numero", ctypes.c_ulong), ("envoye", ctypes.c_int),
                ("ecran", ctypes.c_void_p), ("surface", ctypes.c_ulong), ("suivi", ctypes.c_ulong),
                ("niveau", ctypes.c_int), ("suite", ctypes.c_int), ("instant", ctypes.c_ulong),
                ("place", Rectangle), ("entier", Rectangle)]


class Ecran:
    """A screen, and an ear for the windows that are shown and painted on it."""

    def __enter__(self):
        lecture, ecriture = os.pipe()
        self.serveur = subprocess.Popen(
            ["Xvfb", "-displayfd", str(ecriture), "-screen", "0", "1366x768x24", "-nolisten", "tcp",
             "-noreset"], pass_fds=(ecriture,), stderr=subprocess.DEVNULL)
        os.close(ecriture)
        with os.fdopen(lecture) as tube:
            os.environ["DISPLAY"] = ":" + tube.readline().strip()
        self.x11 = ctypes.CDLL("libX11.so.6")
        self.x11.XOpenDisplay.restype = ctypes.c_void_p
        self.x11.XDefaultRootWindow.restype = ctypes.c_ulong
        self.ecoute = ctypes.c_void_p(self.x11.XOpenDisplay(None))
        racine = ctypes.c_ulong(self.x11.XDefaultRootWindow(self.ecoute))
        self.x11.XSelectInput(self.ecoute, racine, ctypes.c_long(SUBSTRUCTURE))
        suivi = ctypes.CDLL("libXdamage.so.1")
        base, erreur = ctypes.c_int(), ctypes.c_int()
        suivi.XDamageQueryExtension(self.ecoute, ctypes.byref(base), ctypes.byref(erreur))
        suivi.XDamageCreate(self.ecoute, racine, 0)
        self.peinture = base.value
        return self

    def __exit__(self, *erreur):
        self.serveur.terminate()
        self.serveur.wait()
        return False

    def oublier(self):
        self.x11.XSync(self.ecoute, 1)

    def evenement(self):
        """The next one: its kind and, of a painting, its place."""
        octets = (ctypes.c_long * 24)()
        if not self.x11.XPending(self.ecoute):
            cle = self.x11.XConnectionNumber(self.ecoute)
            if not select.select([cle], [], [], ATTENTE)[0]:
                raise TimeoutError("rien ne vient à l'écran")
        self.x11.XNextEvent(self.ecoute, octets)
        evenement = ctypes.cast(octets, ctypes.POINTER(Peinture))[0]
        return evenement.genre, evenement.place

    def montree(self):
        """Waits for the next window, and gives the moment."""
        while self.evenement()[0] != MAP:
            pass
        return time.perf_counter()

    def peinte(self, largeur, hauteur):
        """Waits until so much is painted at once, and gives the moment."""
        while True:
            genre, place = self.evenement()
            if (genre == self.peinture and place.largeur >= largeur - BORD
                    and place.hauteur >= hauteur - BORD):
                return time.perf_counter()

    def lancer(self, commande, dossier):
        self.oublier()
        return subprocess.Popen([commande], cwd=dossier, stderr=subprocess.DEVNULL)


@contextlib.contextmanager
def lance(ecran, commande, dossier):
    processus = ecran.lancer(commande, dossier)
    try:
        yield processus
    finally:
        processus.kill()
        processus.wait()


def premierefenetre(ecran, commande, dossier):
    """Seconds to the first window shown, and painted."""
    debut = time.perf_counter()
    with lance(ecran, commande, dossier):
        montree = ecran.montree() - debut
        return montree, ecran.peinte(752, 376) - debut


def processeur(pid):
    """Milliseconds of processor time that a process has taken, threads that have ended included."""
    horloge = (~pid << 3) | 2  # clock_getcpuclockid of the C library
    return 1000 * time.clock_gettime(horloge)


def joueurconnu(dossier, jeu):
    """A folder in which a user stands already."""
    for nom in ("images", "listes", "infosouris.txt", "APP05.WAV"):
        (dossier / nom).symlink_to(pathlib.Path(jeu) / nom)
    (dossier / "users.dat").write_bytes(b"Essai\r\n")
    (dossier / "Essai").mkdir()
    (dossier / "Essai" / "settings.dat").write_bytes(
        "95\r\n80\r\n8\r\n5\r\n1\r\nPar défaut\r\n1\r\n".encode("cp1252"))
    (dossier / "Essai" / "hist.dat").touch()


def touches(*noms):
    subprocess.run(["xdotool", "key", *noms], check=True)


def panneau(ecran, programme, dossier):
    """Milliseconds of processor time to the menu with its first panel open."""
    with lance(ecran, programme, dossier) as processus:
        ecran.peinte(752, 376)
        touches("Return")
        ecran.montree()
        ecran.peinte(920, 658)
        touches("Tab", "space")
        ecran.peinte(914, 412)
        return processeur(processus.pid)


def main(programme, vide, jeu):
    mesures = {programme: [], vide: []}
    with Ecran() as ecran, tempfile.TemporaryDirectory(prefix="partie d'été ") as temporaire:
        os.environ["XDG_RUNTIME_DIR"] = temporaire
        for _ in range(FOIS):
            for commande, durees in mesures.items():
                durees.append(premierefenetre(ecran, commande, jeu))
        dossier = pathlib.Path(temporaire) / "joueur"
        dossier.mkdir()
        joueurconnu(dossier, jeu)
        menu = statistics.median(panneau(ecran, programme, dossier) for _ in range(FOIS))
    tenu = menu <= LIMITEMENU
    for rang, (quoi, limite) in enumerate(LIMITES):
        ours, autre = (1000 * statistics.median(duree[rang] for duree in mesures[commande])
                       for commande in (programme, vide))
        tenu = tenu and ours / autre <= limite
        print(f"première fenêtre {quoi} : {ours:.0f} ms, fenêtre vide {autre:.0f} ms, "
              f"rapport {ours / autre:.2f}")
    print(f"menu, un panneau ouvert : {menu:.0f} ms de processeur")
    return 0 if tenu else 1


if __name__ == "__main__":
    sys.exit(main(*[os.path.abspath(chemin) for chemin in sys.argv[1:]]))
