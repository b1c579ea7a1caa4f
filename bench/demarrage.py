"""From the start of a process to its first window on screen: the program against an empty Qt window
of the same size, in turns, on a screen of its own.

    /usr/bin/python3 bench/demarrage.py build/release/src/orvane FENETREVIDE build/release/jeu

Fails if the ratio of the medians is over its bound.
"""

import ctypes
import os
import statistics
import subprocess
import sys
import tempfile
import time

FOIS = 21
LIMITE = 1.5
SUBSTRUCTURE, MAP = 1 << 19, 19  # of the X protocol: what to hear of, and that a window is shown


def ecran():
    lecture, ecriture = os.pipe()
    serveur = subprocess.Popen(["Xvfb", "-displayfd", str(ecriture), "-screen", "0", "1366x768x24",
                                "-nolisten", "tcp", "-noreset"], pass_fds=(ecriture,),
                               stderr=subprocess.DEVNULL)
    os.close(ecriture)
    with os.fdopen(lecture) as tube:
        os.environ["DISPLAY"] = ":" + tube.readline().strip()
    return serveur


def guetteur():
    """Waits for the next window to be shown."""
    x11 = ctypes.CDLL("libX11.so.6")
    x11.XOpenDisplay.restype = ctypes.c_void_p
    x11.XDefaultRootWindow.restype = ctypes.c_ulong
    ecoute = ctypes.c_void_p(x11.XOpenDisplay(None))
    x11.XSelectInput(ecoute, ctypes.c_ulong(x11.XDefaultRootWindow(ecoute)),
                     ctypes.c_long(SUBSTRUCTURE))
    evenement = (ctypes.c_int * 64)()

    def attendre():
        while True:
            x11.XNextEvent(ecoute, evenement)
            if evenement[0] == MAP:
                return time.perf_counter()

    def oublier():
        x11.XSync(ecoute, 1)

    return attendre, oublier


def main(programme, vide, jeu):
    serveur = ecran()
    attendre, oublier = guetteur()
    durees = {programme: [], vide: []}
    with tempfile.TemporaryDirectory(prefix="partie d'été ") as execution:
        os.environ["XDG_RUNTIME_DIR"] = execution
        for _ in range(FOIS):
            for commande, mesures in durees.items():
                oublier()
                debut = time.perf_counter()
                processus = subprocess.Popen([commande], cwd=jeu, stderr=subprocess.DEVNULL)
                mesures.append(attendre() - debut)
                processus.kill()
                processus.wait()
    serveur.terminate()
    serveur.wait()
    mediane = {commande: statistics.median(mesures) for commande, mesures in durees.items()}
    rapport = mediane[programme] / mediane[vide]
    print(f"programme {1000 * mediane[programme]:.0f} ms, fenêtre vide {1000 * mediane[vide]:.0f} ms, "
          f"rapport {rapport:.2f} (au plus {LIMITE})")
    return 0 if rapport <= LIMITE else 1


if __name__ == "__main__":
    sys.exit(main(*[os.path.abspath(chemin) for chemin in sys.argv[1:]]))
