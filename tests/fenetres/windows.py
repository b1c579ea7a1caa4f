"""The program of Windows under Wine, played by real keys and mouse on a screen of its own. Nothing of
its accessibility reaches this side: it is judged by its files, and its controls are clicked where the
forms have them.

windows.py PROGRAM CAPTURES PLAYER [--revient | --misajour PORT INSTALLER VERSION]: PROGRAM is
orvane.exe where it stands in the Windows of $WINEPREFIX. At first it plays a list to its end, as a new
player. With --revient the player comes back, and his result and his list are there. With --misajour he
asks for an update, which this serves at that port of 127.0.0.1, and goes through its installer."""

import contextlib
import hashlib
import http.server
import os
import pathlib
import subprocess
import sys
import threading
import time

from joueur import BIENVENUE, MENU, SERIE, verifier, verifierbravo
from scene import Scene, attendre

MESSAGE = "^Orvane$"
INSTALLATION = "Installation d'Orvane"
LISTE = "7v6.txt"
TIRAGE, SOLUTION = "AABC", "CABA"  # one row: the order of several is drawn by lot

# In the middle of a control, from the upper left corner of its window.
PLACES = {
    BIENVENUE: {"Nouvel utilisateur ?": (592, 209), "COMMENCER": (592, 160)},
    MENU: {"SCRABBLES UNIQUES": (460, 64), "7 lettres": (391, 111), "Tout 7L poids 6": (588, 248),
           "Vérifier la mise à jour": (634, 632), "Quitter": (843, 632)},
}


class SceneWindows(Scene):
    """The play folder is %LOCALAPPDATA%\\Orvane, or that of the program when it holds the lists."""

    def _garnir(self):
        self.programme = pathlib.Path(self.programme)
        prefixe = pathlib.Path(os.environ["WINEPREFIX"])
        locales = next(prefixe.glob("drive_c/users/*/AppData/Local"))
        portable = (self.programme.parent / "listes").is_dir()
        self.dossier = self.programme.parent if portable else locales / "Orvane"

    def demarrer(self):
        self.processus = subprocess.Popen(
            ["wine", str(self.programme)], cwd=self.depart, stdout=subprocess.DEVNULL,
            stderr=subprocess.DEVNULL, env=dict(os.environ, WINEDEBUG="-all"))
        self.pile.callback(self._arreter, self.processus)

    def fini(self):
        attendre(lambda: self.processus.poll() is not None, "la fin du programme")
        verifier(self.processus.returncode == 0, f"statut {self.processus.returncode}")

    def numero(self, titre):
        """The window whose title matches, once it is shown."""
        return attendre(lambda: self.trouver(titre), f"la fenêtre « {titre} »")

    @staticmethod
    def trouver(titre):
        """A window that is shown now, whose title matches; None if there is none."""
        trouve = subprocess.run(["xdotool", "search", "--onlyvisible", "--name", titre],
                                capture_output=True, text=True).stdout.split()
        return trouve[0] if trouve else None

    def absente(self, titre):
        """No window has this title any more."""
        attendre(lambda: not self.trouver(titre), f"« {titre} » fermée")

    def active(self, titre):
        """The window, once it has come in front."""
        numero = self.numero(titre)

        def devant():
            subprocess.run(["xdotool", "windowactivate", numero], capture_output=True)
            return subprocess.run(["xdotool", "getactivewindow"], capture_output=True,
                                  text=True).stdout.strip() == numero

        attendre(devant, f"« {titre} » devant")
        return numero

    def image(self, numero):
        """What the window shows; None if it has gone, in the midst of the look perhaps."""
        with contextlib.suppress(subprocess.SubprocessError):
            return subprocess.run(["import", "-window", numero, "rgb:-"], check=True, timeout=10,
                                  capture_output=True).stdout
        return None

    def pose(self, numero):
        """What the window shows, once it stays the same."""
        def stable():
            avant = self.image(numero)
            time.sleep(0.2)
            return avant if avant is not None and avant == self.image(numero) else None

        return attendre(stable, "une fenêtre posée")

    def presser(self, titre, nom):
        """Clicks a control, and waits until the window shows something else."""
        numero = self.active(titre)
        x, y = PLACES[titre][nom]
        self.xdotool("mousemove", "--window", numero, str(x), str(y))
        avant = self.pose(numero)
        self.xdotool("click", "1")
        attendre(lambda: self.image(numero) != avant, f"l'effet de « {nom} »")

    def quitter(self):
        self.presser(MENU, "Quitter")
        self.fini()


def jouer(scene, joueur):
    """A new player, and his list from the login to its end."""
    scene.demarrer()
    scene.active(BIENVENUE)
    verifier(len(list((scene.dossier / "listes").iterdir())) > 230, "les listes sont là")
    scene.ecrire("listes\\" + LISTE, f"{TIRAGE};{SOLUTION}")
    scene.presser(BIENVENUE, "Nouvel utilisateur ?")
    scene.taper(joueur)
    scene.touche("Return")
    scene.presser(BIENVENUE, "COMMENCER")
    scene.active(MENU)
    for bouton in ("SCRABBLES UNIQUES", "7 lettres", "Tout 7L poids 6"):
        scene.presser(MENU, bouton)
    scene.pose(scene.active(SERIE))
    scene.taper(SOLUTION.lower())
    scene.touche("Return")
    scene.touche("F12")
    verifierbravo(scene, joueur, LISTE)
    scene.fermer(SERIE)
    scene.active(MENU)
    scene.quitter()


def revenir(scene, joueur):
    """The player comes back, and finds what is his."""
    scene.demarrer()
    scene.active(BIENVENUE)
    scene.presser(BIENVENUE, "COMMENCER")
    scene.active(MENU)
    for bouton in ("SCRABBLES UNIQUES", "7 lettres"):
        scene.presser(MENU, bouton)
    scene.photographier("retour")
    scene.quitter()
    verifier(scene.lire("listes\\" + LISTE) == [f"{TIRAGE};{SOLUTION}"], "la liste changée reste")
    verifier(len(scene.lire(joueur + "\\hist.dat")) == 1, "l'historique reste")


class Publication(http.server.BaseHTTPRequestHandler):
    """The update server."""

    pages = {}
    demandes = []

    def do_GET(self):
        self.demandes.append(self.path)
        corps = self.pages.get(self.path)
        self.send_response(404 if corps is None else 200)
        self.send_header("Content-Length", str(len(corps or b"")))
        self.end_headers()
        self.wfile.write(corps or b"")

    def log_message(self, *_):
        pass


def publier(scene, port, installeur, version):
    octets = pathlib.Path(installeur).read_bytes()
    somme = hashlib.sha256(octets).hexdigest()
    Publication.pages = {
        "/Orvane/version.txt": f"{version}\r\n{somme}\r\n".encode(),
        "/Orvane/downloadlink.txt": f"http://127.0.0.1:{port}/orvane_setup.exe\r\n".encode(),
        "/orvane_setup.exe": octets,
    }
    serveur = http.server.ThreadingHTTPServer(("127.0.0.1", int(port)), Publication)
    threading.Thread(target=serveur.serve_forever, daemon=True).start()
    scene.pile.callback(serveur.shutdown)


def repondre(scene, photo):
    """Answers a message of the program by its default button."""
    numero = scene.active(MESSAGE)
    scene.pose(numero)
    scene.photographier(photo)
    scene.touche("Return")
    attendre(lambda: scene.image(numero) is None, f"la réponse à « {photo} »")


def mettreajour(scene, port, installeur, version):
    """The question, the download, the installer and its last page, which starts the newer program."""
    publier(scene, port, installeur, version)
    scene.demarrer()
    scene.active(BIENVENUE)
    scene.presser(BIENVENUE, "COMMENCER")
    scene.active(MENU)
    scene.presser(MENU, "Vérifier la mise à jour")
    for photo in ("question", "telechargement", "fermeture"):
        repondre(scene, photo)
    scene.fini()
    verifier(Publication.demandes == list(Publication.pages), f"demandé : {Publication.demandes}")
    verifier(not list(scene.dossier.glob("*link.txt")) and
             not list(scene.dossier.glob("version_en_ligne.txt")), "les fichiers lus sont ôtés")
    scene.active(INSTALLATION)
    scene.photographier("installation")
    inventaire = scene.programme.parent / "fournis" / "inventaire.txt"

    def arrivee():
        with contextlib.suppress(FileNotFoundError):  # its folder is on its way
            return inventaire.read_bytes().startswith(version.encode() + b" ")
        return False

    def lancee():  # whatever page is there, its default button goes on
        if scene.trouver(BIENVENUE):
            return True
        numero = scene.trouver(INSTALLATION)
        page = scene.image(numero) if numero else None
        if page is not None and page == scene.image(numero):
            scene.photographier("installee")
            subprocess.run(["xdotool", "windowactivate", numero], capture_output=True)
            scene.touche("Return")
        return False

    attendre(arrivee, "la nouvelle version")
    attendre(lancee, "le programme que lance la dernière page")
    scene.active(BIENVENUE)  # of the newer program, which its last page starts
    scene.fermer(BIENVENUE)
    scene.absente(BIENVENUE)


def main(programme, captures, joueur, *suite):
    with SceneWindows(programme, "", captures) as scene:
        if suite == ("--revient",):
            revenir(scene, joueur)
        elif suite and suite[0] == "--misajour":
            mettreajour(scene, *suite[1:])
        else:
            jouer(scene, joueur)
    print("windows : bon")


if __name__ == "__main__":
    main(*sys.argv[1:])
