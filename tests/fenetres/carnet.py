"""The carnet by real keys: a list searched, saved, and played in the trainer to "BRAVO!"; a dictionary
of the player's own looked at, made into lists, and taken back."""

import pathlib
import subprocess
import sys

from joueur import (connecternouveau, lancerladerniere, ouvrirpanneau, tous, tuiles, verifier,
                    visible)
from scene import Scene, attendre

CARNET = "Carnet d'Orvane"
VOISINS = {"mon dictionnaire.txt": ["nez", "zen", "wok", "xyste", "porte-clé"],
           "edition 2008.txt": ["nez", "wok"], "edition 2012.txt": ["nez", "wok", "xyste"]}


def dit(scene, debut, titre=CARNET):
    """A text on show that begins so."""
    for objet in tous(scene.fenetre(titre)):
        if objet.name.startswith(debut) and scene.etat(objet, "SHOWING"):
            return objet
    return None


def attendredit(scene, debut, titre=CARNET):
    return attendre(lambda: dit(scene, debut, titre), f"« {debut} »")


def attendrefocus(scene, nom, titre=CARNET):
    attendre(lambda: scene.etat(visible(scene, nom, titre), "FOCUSED"), f"le focus sur {nom}")


def etiquettes(scene):
    return [objet.name for objet in tous(scene.fenetre(CARNET)) if scene.etat(objet, "SHOWING")]


def chercherparlesclavier(scene):
    """Criteria are typed from the first field on, and the count follows."""
    attendredit(scene, "17 mots")
    attendrefocus(scene, "Longueur")
    scene.taper("3")
    attendredit(scene, "3 mots")
    scene.touche("Tab")
    attendrefocus(scene, "Lettres exactes")
    scene.taper("ze?")
    attendredit(scene, "2 mots")
    scene.photographier("resultats")
    scene.touche("Tab", "Tab")
    attendrefocus(scene, "Motif")
    scene.taper("n[")
    attendredit(scene, "Critère à corriger")
    attendredit(scene, "motif : il manque « ] »")
    scene.photographier("critere")
    scene.touche("BackSpace")
    scene.taper("*")
    attendredit(scene, "1 mot")


def enregistrer(scene):
    """A name of the program's own is refused; another one is taken."""
    scene.touche("ctrl+s")
    scene.devant("Enregistrer la liste")
    scene.taper("3lc")
    scene.touche("Return")
    attendredit(scene, "Ce nom est celui d'une liste du programme.", "Attention")
    scene.touche("Return")
    scene.devant("Enregistrer la liste")
    scene.touche("ctrl+a")
    scene.taper("mienne")
    scene.touche("Return")
    attendre(lambda: scene.lire("listes\\mienne.txt") == ["(N)EZ;NEZ"], "la liste enregistrée")
    attendredit(scene, "mienne.txt : 1 tirage enregistré.")


def effacer(scene):
    scene.touche("ctrl+shift+n")
    attendredit(scene, "17 mots")


def envigueur(scene):
    return scene.lire("listes\\dictionnaire.dat")


def fairelesiennes(scene):
    """A file of words is read and shown; then its lists are made, with marks of an edition."""
    scene.touche("ctrl+2")
    attendredit(scene, "En vigueur : le lexique libre, 17 mots.")
    attendrefocus(scene, "Choisir un fichier de mots…")
    avant = envigueur(scene)
    scene.touche("space")
    scene.devant("Votre fichier de mots")
    scene.taper(str(scene.dossier / "mon dictionnaire.txt"))
    scene.touche("Return")
    lu = attendre(lambda: visible(scene, "Ce qui a été lu", CARNET), "l'examen")
    texte = attendre(lambda: scene.texte(lu), "le texte de l'examen")
    for morceau in ("4 mots", "Inconnus du lexique libre : 1 mot (25,0 %) : XYSTE",
                    "ligne 5, « porte-clé » : un trait d'union", "3 lettres : 3 mots"):
        verifier(morceau in texte, f"« {morceau} » dans « {texte} »")
    verifier(envigueur(scene) == avant, "rien ne change avant « Faire les listes »")
    scene.photographier("examen")
    attendrefocus(scene, "Faire les listes")
    for edition in ("2008", "2012"):
        scene.cliquer(visible(scene, f"Édition de {edition}", CARNET))
        attendrefocus(scene, f"Édition de {edition}")
        scene.taper(str(scene.dossier / f"edition {edition}.txt"))
    scene.touche("alt+f")
    attendredit(scene, "En vigueur : votre dictionnaire mon dictionnaire.txt, 4 mots. Marques : 2012")
    verifier(envigueur(scene)[:3] == ["perso", "4", "mon dictionnaire.txt"], envigueur(scene))
    verifier(scene.lire("listes\\ods6.txt") == ["XYSTE"], "les mots nouveaux de 2012")
    verifier(scene.lire("listes\\mienne.txt") == ["(N)EZ;NEZ"], "la liste du joueur est restée")
    scene.photographier("dictionnaire")


def revenir(scene):
    scene.touche("ctrl+1")
    attendredit(scene, "4 mots")
    scene.touche("ctrl+2")
    attendrefocus(scene, "Choisir un fichier de mots…")
    scene.touche("alt+r")
    attendredit(scene, "En vigueur : le lexique libre, 17 mots.")
    verifier(envigueur(scene)[0] == "libre", envigueur(scene))


def jouer(scene, entraineur):
    """The list of the search on the personal row of the trainer."""
    scene.programme = str(pathlib.Path(entraineur).resolve())
    scene.demarrer()
    connecternouveau(scene, "Zoé")
    ouvrirpanneau(scene, "AUTRES LISTES", "Listes diverses")
    nom = visible(scene, "Fichier personnel")
    scene.cliquer(nom, fois=2)
    scene.touche("ctrl+a")
    scene.taper("mienne.txt")
    attendre(lambda: scene.texte(nom) == "mienne.txt", "le nom tapé")
    scene.cliquer(visible(scene, "OK"))
    attendre(lambda: visible(scene, "Le fichier personnel semble valide."), "le fichier accepté")
    serie = lancerladerniere(scene)
    serie.focus("Réponse 1")
    verifier(serie.tirage(1) == "(N)EZ", serie.tirage(1))
    scene.taper("nez")
    serie.corriger()
    attendre(lambda: "".join(o.name[-1] for o in tuiles(scene)) == "BRAVO!", "BRAVO!")
    scene.photographier("bravo")
    attendre(lambda: scene.lire("Zoé\\hist.dat")[-1].endswith(" - 100% - T - mienne.txt"),
             "le résultat")


def main(carnet, jeu, captures, entraineur, listes, petit):
    with Scene(carnet, jeu, captures) as scene:
        petit = pathlib.Path(petit).resolve()
        sources = ["--lexique", f"{petit}/petit.dic", "--affixes", f"{petit}/petit.aff",
                   "--thesaurus", f"{petit}/petit.dat", "--sans-ajouts"]
        subprocess.run([listes, "--sortie", str(scene.dossier), *sources], check=True)
        for nom, mots in VOISINS.items():
            scene.ecrire(nom, *mots)
        scene.demarrer(*sources)
        scene.devant(CARNET)
        chercherparlesclavier(scene)
        enregistrer(scene)
        effacer(scene)
        fairelesiennes(scene)
        revenir(scene)
        scene.touche("ctrl+q")
        scene.fini()
        jouer(scene, entraineur)
    print("carnet : bon")


if __name__ == "__main__":
    main(*sys.argv[1:])
