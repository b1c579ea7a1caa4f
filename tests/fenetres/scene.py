"""A scene for tests of the real program: a screen of its own, a window manager, real keys and
mouse, and the accessibility tree to judge by.

Run under `session`, so that the accessibility bus is the scene's own. Nothing here sleeps for
a fixed time: every wait is for a condition, with a limit after which the test fails.
"""

import contextlib
import fcntl
import os
import pathlib
import shutil
import subprocess
import tempfile
import time

# What libraries write of the machine: it has no sound server and no graphics card.
DEHORS = ("PulseAudioService", "qt.multimedia.ffmpeg: ", "Failed to open VDPAU backend",
          # What went away while the scene was reading it, such as the cell of a table.
          "QAccessibleTable::child: Invalid index",
          "qt.accessibility.atspi: Could not find accessible on path: ")

ATTENTE = 40  # seconds after which a condition that has not come is a failure


class Echec(AssertionError):
    pass


def attendre(condition, quoi, limite=ATTENTE):
    """Waits until condition() is true, and gives its value."""
    fin = time.monotonic() + limite
    while True:
        valeur = condition()
        if valeur:
            return valeur
        if time.monotonic() > fin:
            raise Echec(f"n'est pas venu : {quoi}")
        time.sleep(0.02)


class Scene:
    """`jeu` is the folder that the build made (pictures, sound); the scene works in a copy."""

    def __init__(self, programme, jeu, captures, taille="1366x768", echelle=None):
        self.programme = os.path.abspath(programme)
        self.jeu = pathlib.Path(jeu)
        self.captures = pathlib.Path(captures)
        self.taille = taille
        self.echelle = echelle
        self.pile = contextlib.ExitStack()
        self.processus = None

    def __enter__(self):
        try:
            return self._dresser()
        except BaseException:
            self.pile.close()
            raise

    def _dresser(self):
        self.captures.mkdir(parents=True, exist_ok=True)
        self.depart = self._dossiertemporaire()
        self._garnir()
        self._ouvrirecran()
        # The keyboard of the players: accented letters have keys of their own.
        subprocess.run(["setxkbmap", "fr"], check=True, capture_output=True)
        self._lancer(["openbox", "--sm-disable"])
        attendre(lambda: subprocess.run(["xprop", "-root", "_NET_SUPPORTING_WM_CHECK"],
                                        capture_output=True, text=True).stdout.count("0x"),
                 "le gestionnaire de fenêtres")
        return self

    def _ouvrirecran(self):
        """One server at a time: two that look for a free number may both take the same."""
        verrou = os.open("/tmp", os.O_RDONLY)  # where the servers of a machine have their sockets
        fcntl.flock(verrou, fcntl.LOCK_EX)
        lecture, ecriture = os.pipe()
        self._lancer(["Xvfb", "-displayfd", str(ecriture), "-screen", "0", self.taille + "x24",
                      "-nolisten", "tcp", "-noreset"], pass_fds=(ecriture,))
        os.close(ecriture)
        with os.fdopen(lecture) as tube:
            os.environ["DISPLAY"] = ":" + tube.readline().strip()
        os.close(verrou)

    def _dossiertemporaire(self):
        dossier = pathlib.Path(tempfile.mkdtemp(prefix="partie d'été "))
        self.pile.callback(shutil.rmtree, dossier, ignore_errors=True)
        return dossier

    def _garnir(self):
        """Makes the play folder, here the one in which the program is started."""
        self.dossier = self.depart
        shutil.copytree(self.jeu / "images", self.dossier / "images")
        shutil.copy(self.jeu / "APP05.WAV", self.dossier)

    def __exit__(self, *erreur):
        if erreur[0] is not None and self.processus is not None:
            with contextlib.suppress(Exception):
                self.photographier("echec")
        self.pile.close()
        return False

    def _lancer(self, commande, **options):
        processus = subprocess.Popen(commande, stdout=subprocess.DEVNULL,
                                     stderr=subprocess.DEVNULL, **options)
        self.pile.callback(self._arreter, processus)
        return processus

    @staticmethod
    def _arreter(processus):
        if processus.poll() is None:
            processus.terminate()
            try:
                processus.wait(5)
            except subprocess.TimeoutExpired:
                processus.kill()
                processus.wait()

    # The program.

    def demarrer(self, *arguments):
        execution = tempfile.mkdtemp()
        self.pile.callback(shutil.rmtree, execution, ignore_errors=True)
        environnement = dict(os.environ, XDG_RUNTIME_DIR=execution, QT_QPA_PLATFORM="xcb",
                             QT_LINUX_ACCESSIBILITY_ALWAYS_ON="1", LC_ALL="C.UTF-8")
        if self.echelle:
            environnement["QT_SCALE_FACTOR"] = self.echelle
        journal = open(self.depart / "journal", "w")
        self.pile.callback(journal.close)
        self.processus = subprocess.Popen([self.programme, *arguments], cwd=self.depart,
                                          env=environnement, stdout=journal, stderr=journal)
        self.pile.callback(self._arreter, self.processus)

    def fini(self, statut=0):
        """The program ends by itself, with this status and nothing on its error output."""
        attendre(lambda: self.processus.poll() is not None, "la fin du programme")
        if self.processus.returncode != statut:
            raise Echec(f"statut {self.processus.returncode} au lieu de {statut} : {self.journal()}")
        if self.journal().strip():
            raise Echec("avertissements : " + self.journal())

    def journal(self):
        """What the program wrote on its error output, but for what is not of its making."""
        lignes = (self.depart / "journal").read_text(errors="replace").splitlines()
        return "\n".join(ligne for ligne in lignes if not ligne.startswith(DEHORS))

    # Its files, with a backslash as the program writes them.

    def ecrire(self, chemin, *lignes):
        cible = self.dossier / chemin.replace("\\", "/")
        cible.parent.mkdir(parents=True, exist_ok=True)
        cible.write_bytes("".join(ligne + "\r\n" for ligne in lignes).encode("cp1252"))

    def lire(self, chemin):
        cible = self.dossier / chemin.replace("\\", "/")
        if not cible.exists():
            return None
        return cible.read_bytes().decode("cp1252").split("\r\n")[:-1]

    # Its windows, as assistive technologies see them.

    def _racine(self):
        import pyatspi

        for application in pyatspi.Registry.getDesktop(0):
            if application is not None and application.get_process_id() == self.processus.pid:
                return application
        return None

    def fenetre(self, titre):
        """The window whose title begins so, once it is there and shown."""
        import pyatspi

        def chercher():
            if self.processus.poll() is not None:
                raise Echec(f"le programme a fini ({self.processus.returncode}) : {self.journal()}")
            racine = self._racine()
            for cadre in racine or []:
                if cadre is not None and cadre.name.startswith(titre) \
                        and cadre.getState().contains(pyatspi.STATE_SHOWING):
                    return cadre
            return None

        return attendre(chercher, f"la fenêtre « {titre} »")

    def devant(self, titre):
        """The window, once it has come in front."""
        attendre(lambda: self.etat(self.fenetre(titre), "ACTIVE"), f"« {titre} » devant")
        return self.fenetre(titre)

    def objets(self, titre):
        """Every object of a window, by accessible name."""
        parnom = {}
        a_voir = [self.fenetre(titre)]
        while a_voir:
            objet = a_voir.pop()
            if objet is None:
                continue
            parnom.setdefault(objet.name, objet)
            a_voir.extend(objet)
        return parnom

    @staticmethod
    def texte(objet):
        contenu = objet.queryText()
        return contenu.getText(0, contenu.characterCount)

    @staticmethod
    def etat(objet, nom):
        import pyatspi

        return objet.getState().contains(getattr(pyatspi, "STATE_" + nom))

    # The player.

    def xdotool(self, *arguments):
        subprocess.run(["xdotool", *arguments], check=True, capture_output=True)

    def touche(self, *noms):
        self.xdotool("key", "--clearmodifiers", "--delay", "15", *noms)

    def taper(self, texte):
        self.xdotool("type", "--delay", "15", texte)

    def cliquer(self, objet, fois=1):
        pixels = float(self.echelle or 1)  # of the screen, in one of the accessibility tree

        def place():
            boite = objet.queryComponent().getExtents(0)
            return (round(pixels * (boite.x + boite.width / 2)),
                    round(pixels * (boite.y + boite.height / 2)))

        def posee():
            avant = place()
            time.sleep(0.05)
            return avant == place()

        attendre(posee, "une place stable")  # its window may still be on its way
        x, y = place()
        self.xdotool("mousemove", str(x), str(y), "click", "--repeat", str(fois), "--delay", "60",
                     "1")

    def nombrefenetres(self):
        """Windows of the program on the screen, menus included."""
        cherche = subprocess.run(["xdotool", "search", "--onlyvisible", "--pid",
                                  str(self.processus.pid)], capture_output=True, text=True)
        return len(cherche.stdout.split())

    def fermer(self, titre):
        """The close box of the window manager."""
        numero = subprocess.run(["xdotool", "search", "--onlyvisible", "--name", titre], check=True,
                                capture_output=True, text=True).stdout.split()[0]
        subprocess.run(["xdotool", "windowfocus", "--sync", numero], check=True)
        self.touche("alt+F4")

    def photographier(self, nom):
        subprocess.run(["import", "-window", "root", str(self.captures / (nom + ".png"))],
                       check=True, capture_output=True)
