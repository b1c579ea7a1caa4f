"""Takes the pictures of docs/images from the program itself, on the real lists. Not a test:

    tests/fenetres/session /usr/bin/python3 tests/fenetres/photographies.py \
        build/release/src/orvane build/release/jeu docs/images
"""

import pathlib
import shutil
import subprocess
import sys

from joueur import (BIENVENUE, MENU, MULTI, SERIE, connecternouveau, lancer, ouvrirpanneau, visible)
from scene import Scene, attendre

JOUEUR = "Camille"


def photographier(scene, nom, titre):
    """The window alone, without its decoration, in few enough colours for a small file."""
    scene.xdotool("mousemove", "2", "2")
    numero = subprocess.run(["xdotool", "search", "--onlyvisible", "--name", titre], check=True,
                            capture_output=True, text=True).stdout.split()[0]
    subprocess.run(["import", "-window", numero, "+dither", "-colors", "255",
                    f"PNG8:{scene.captures / nom}.png"], check=True, capture_output=True)


def solutions(scene, fichier):
    lignes = scene.lire(f"listes\\{fichier}.txt")
    return {tirage: mots for tirage, *mots in (ligne.split(";") for ligne in lignes)}


def une(scene):
    ouvrirpanneau(scene, "BASES TECHNIQUES")
    liste = solutions(scene, "5lc")
    serie = lancer(scene, "Tout", "Lettre Chère 5L")
    racks = [serie.tirage(rang) for rang in range(1, 13)]
    for rack in racks[:11]:
        scene.taper(liste[rack][0].lower())
        scene.touche("Return")
    scene.taper(liste[racks[11]][0][:3].lower())
    photographier(scene, "serie", SERIE)
    serie.corriger()
    photographier(scene, "correction", SERIE)
    serie.quitter()


def plusieurs(scene):
    ouvrirpanneau(scene, "SCRABBLES MULTIPLES", "Trios 7 et 8 L")
    liste = solutions(scene, "7l_trios_purs")
    serie = lancer(scene, "Tout", "Trios 7L purs", MULTI)
    for rack in [serie.tirage(rang) for rang in range(1, 4)]:
        for mot in liste[rack]:
            scene.taper(mot.lower())
            scene.touche("Return")
    photographier(scene, "trios", MULTI)
    serie.quitter()


def main(programme, jeu, captures):
    with Scene(programme, jeu, captures) as scene:
        shutil.copytree(pathlib.Path(jeu) / "listes", scene.dossier / "listes")
        shutil.copy(pathlib.Path(jeu) / "infosouris.txt", scene.dossier)
        scene.demarrer()
        scene.devant(BIENVENUE)
        photographier(scene, "connexion", BIENVENUE)
        connecternouveau(scene, JOUEUR)
        une(scene)
        plusieurs(scene)
        scene.ecrire(f"{JOUEUR}\\hist.dat", *[
            f"{date} - {resultat}" for date, resultat in (
                ("02/10/2026 - 20:14", "71.3% - T - 7up.txt"),
                ("05/10/2026 - 21:02", "88.9% - T - 7v6.txt"),
                ("09/10/2026 - 18:40", "96.4% - E - 7v0.txt"),
                ("12/10/2026 - 20:31", "93.5% - 7v5_a.txt"),
                ("13/10/2026 - 20:45", "97.2% - 7v5_b.txt"),
                ("16/10/2026 - 19:20", "98.8% - 7v1_a.txt"),
                ("19/10/2026 - 21:11", "94.2% - T - 7up.txt"))])
        ouvrirpanneau(scene, "SCRABBLES UNIQUES", "7 lettres")
        attendre(lambda: visible(scene, "94.2% - T"), "les résultats")
        photographier(scene, "menu", MENU)
        scene.cliquer(visible(scene, "94.2% - T"))
        scene.devant("Historique")
        photographier(scene, "historique", "Historique")
        scene.fermer("Historique")
        scene.devant(MENU)
        scene.cliquer(visible(scene, "A propos de Orvan"))
        scene.devant("A propos")
        photographier(scene, "apropos", "A propos")
        scene.fermer("A propos")
        scene.devant(MENU)
        scene.cliquer(visible(scene, "Options"))
        scene.devant("Options")
        photographier(scene, "options", "Options")


if __name__ == "__main__":
    main(*sys.argv[1:])
