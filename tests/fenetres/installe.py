"""An installed program: what it brings to its player's folder, a list that he has changed played to
its end by real keys and mouse, and what a newer version leaves of it.

installe.py PROGRAM CAPTURES PLAYER: the program where it is installed, in the home of whoever runs
this. With INVENTORY JEU behind, PROGRAM is installed for the trial: JEU is what comes with it, and
INVENTORY the program that makes the inventory. With --apres behind, the list was played before the
upgrade that has just been made; with --revient, it was, and there is no upgrade."""

import contextlib
import os
import pathlib
import shutil
import subprocess
import sys

from joueur import (BIENVENUE, MENU, SERIE, connecternouveau, lancer, ouvrirpanneau, tous, verifier,
                    verifierbravo)
from scene import Scene, attendre

LISTE = "7v6.txt"  # which the player makes shorter
AUTRE = "7v5.txt"  # which he leaves as it came
SOLUTIONS = {"AABC": "CABA", "EIRST": "TIERS", "AGINS": "GAINS"}


class SceneInstallee(Scene):
    """The play folder is where the system keeps what is a user's."""

    def _garnir(self):
        donnees = os.environ.get("XDG_DATA_HOME") or os.path.expanduser("~/.local/share")
        self.dossier = pathlib.Path(donnees) / "orvane"


def installer(scene, programme, inventaire, jeu):
    """A program where packages put it, and its files with their inventory."""
    racine = scene._dossiertemporaire()
    jeux, modules, fournis = (racine / chemin for chemin in
                              ("usr/games", "usr/lib/games/orvane", "usr/share/games/orvane"))
    jeux.mkdir(parents=True)
    modules.mkdir(parents=True)
    shutil.copy(programme, jeux / "orvane")
    for module in pathlib.Path(programme).parent.glob("orvane-*.so"):
        shutil.copy(module, modules)
    shutil.copytree(jeu, fournis)
    scene.programme = str(jeux / "orvane")
    scene.dossier = scene._dossiertemporaire() / "données" / "orvane"
    os.environ["XDG_DATA_HOME"] = str(scene.dossier.parent)
    return fournis, lambda numero: inventorier(inventaire, fournis, numero)


def inventorier(inventaire, fournis, numero):
    sommes = subprocess.run([inventaire, "--inventaire", fournis, numero], check=True,
                            capture_output=True).stdout
    (fournis / "inventaire.txt").write_bytes(sommes)


def pareil(scene, fournis, nom):
    return (scene.dossier / nom).read_bytes() == (fournis / nom).read_bytes()


def quitterbienvenue(scene):
    """The first window is closed. Its manager has just started: it may miss the first keys."""
    def fermee():
        if scene.processus.poll() is not None:
            return True
        with contextlib.suppress(subprocess.CalledProcessError, IndexError):
            scene.fermer(BIENVENUE)
        return False

    scene.devant(BIENVENUE)
    attendre(fermee, "la fin du programme")
    scene.fini()


def premierdemarrage(scene, fournis):
    """The player's folder comes full, and the folder of the start stays as it was."""
    verifier(not scene.dossier.exists(), "le dossier du joueur n'est pas encore là")
    scene.demarrer()
    quitterbienvenue(scene)
    noms = [c.relative_to(fournis) for c in fournis.rglob("*") if c.is_file()]
    for nom in noms:
        verifier(str(nom) == "inventaire.txt" or pareil(scene, fournis, nom), f"apporté : {nom}")
    verifier(len(noms) > 200, "toutes les listes sont apportées")
    verifier([c.name for c in scene.depart.iterdir()] == ["journal"], "rien d'autre au départ")


def jouer(scene, joueur):
    """The list of the player, from the login to its end."""
    scene.ecrire("listes\\" + LISTE, *(f"{t};{s}" for t, s in SOLUTIONS.items()))
    scene.demarrer()
    connecternouveau(scene, joueur)
    ouvrirpanneau(scene, "SCRABBLES UNIQUES", "7 lettres")
    serie = lancer(scene, "Tout", "7L poids 6")
    serie.focus("Réponse 1")
    for rang in (1, 2, 3):
        scene.taper(SOLUTIONS[serie.tirage(rang)].lower())
        scene.touche("Return")
    scene.touche("F12")
    verifierbravo(scene, joueur, LISTE)
    scene.fermer(SERIE)
    scene.devant(MENU)
    scene.cliquer(scene.objets(MENU)["Quitter"])
    scene.fini()


def revenir(scene, joueur):
    """The player comes back, and finds his result and the list that he has changed."""
    scene.demarrer()
    scene.devant(BIENVENUE)
    scene.cliquer(scene.objets(BIENVENUE)["COMMENCER"])
    scene.devant(MENU)
    ouvrirpanneau(scene, "SCRABBLES UNIQUES", "7 lettres")
    attendre(lambda: any("100% - T" in o.name for o in tous(scene.fenetre(MENU))),
             "le résultat dans le tableau")
    scene.photographier("retour")
    scene.cliquer(scene.objets(MENU)["Quitter"])
    scene.fini()
    verifier(len(scene.lire("listes\\" + LISTE)) == len(SOLUTIONS), "la liste changée reste")
    verifier(len(scene.lire(joueur + "\\hist.dat")) == 1, "l'historique reste")


def apresmiseajour(scene, fournis, joueur):
    """What the player has stays, what he left as it came is that of the newer version."""
    ancienne = (scene.dossier / "listes" / AUTRE).read_bytes()
    verifier(not pareil(scene, fournis, "listes/" + AUTRE), "la nouvelle version a une autre liste")
    revenir(scene, joueur)
    verifier(pareil(scene, fournis, "listes/" + AUTRE), "la liste est mise à jour")
    verifier((scene.dossier / "listes" / AUTRE).read_bytes() != ancienne, "et n'est plus l'ancienne")


def premierefois(scene, programme, fournis, joueur, suite):
    if suite:
        fournis, publier = installer(scene, programme, *suite)
        publier("2.68")
    premierdemarrage(scene, fournis)
    jouer(scene, joueur)
    if suite:
        (fournis / "listes" / AUTRE).write_bytes(b"AB;BA\r\n")
        publier("2.69")
        apresmiseajour(scene, fournis, joueur)


def main(programme, captures, joueur, *suite):
    with SceneInstallee(programme, "", captures) as scene:
        fournis = pathlib.Path(programme).parent.parent / "share" / "games" / "orvane"
        if suite == ("--apres",):
            apresmiseajour(scene, fournis, joueur)
        elif suite == ("--revient",):
            revenir(scene, joueur)
        else:
            premierefois(scene, programme, fournis, joueur, suite)
    print("installé : bon")


if __name__ == "__main__":
    main(*sys.argv[1:])
