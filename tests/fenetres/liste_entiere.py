"""A player's whole evening with a small list, by real keys and mouse: login, menu, typing to the end
of the list, and back. What is true is read from the files and from the accessibility tree."""

import sys

from joueur import (MENU, REFERENCES, SERIE, connecternouveau, lancer, ouvrirpanneau, tous, tuiles,
                    verifier)
from scene import Scene, attendre

PANNEAU7 = ["7up", "7v6", "7v0", "7v5", "7v1", "7v4", "7v2", "7v3"]
SOLUTIONS = {"AABC": "CABA", "EIRST": "TIERS", "AGINS": "GAINS"}


def preparer(scene):
    for liste in PANNEAU7:
        scene.ecrire(f"listes\\{liste}.txt", "AB;BA")
    scene.ecrire("listes\\7v6.txt", *(f"{t};{s}" for t, s in SOLUTIONS.items()))
    for liste in REFERENCES:
        scene.ecrire(f"listes\\{liste}.txt")
    scene.ecrire("listes\\inv.txt", "GAINS")
    scene.ecrire("infosouris.txt", "TIERS", "Troisième partie")


def parcourir(scene, serie):
    """The walk: Enter, arrows, round both ends."""
    serie.focus("Réponse 1")
    scene.touche("Return")
    serie.focus("Réponse 2")
    scene.touche("Down")
    serie.focus("Réponse 3")
    scene.touche("Up", "Up", "Up")
    serie.focus("Réponse 30")
    scene.touche("Down")
    serie.focus("Réponse 1")


def saisirassiste(scene, serie):
    """Letters come off the rack; one that it lacks is refused; erasing gives them back."""
    rack = serie.tirage(1)
    mot = SOLUTIONS[rack]
    scene.taper(mot[0].lower() + "z" + "7")
    serie.attendre("Réponse 1", mot[0])
    serie.attendre("Tirage 1", rack.replace(mot[0], "", 1))
    scene.touche("BackSpace")
    serie.attendre("Tirage 1", rack)
    scene.taper(mot.lower())
    serie.attendre("Réponse 1", mot)
    serie.attendre("Tirage 1", "")
    scene.touche("Return")
    serie.attendre("Tirage 1", rack)
    serie.focus("Réponse 2")


def echangertuiles(scene):
    avant = [o.name for o in tuiles(scene)]
    scene.cliquer(tuiles(scene)[0])
    scene.cliquer(tuiles(scene)[-1])
    attendre(lambda: [o.name for o in tuiles(scene)] == [avant[-1], *avant[1:-1], avant[0]],
             "les tuiles échangées")


def faireunepause(scene, serie):
    scene.cliquer(serie.objets["Pause"])
    attendre(lambda: scene.objets(SERIE).get("Reprendre"), "le bouton Reprendre")
    fige = serie.lire("Temps restant de la série")
    scene.cliquer(serie.objets["Réponse 3"])
    scene.taper("aei")
    verifier(serie.reponse(3) == "", "une boîte verrouillée ne prend pas de lettre")
    scene.cliquer(scene.objets(SERIE)["Reprendre"])
    attendre(lambda: scene.objets(SERIE).get("Pause"), "le bouton Pause")
    verifier(serie.lire("Temps restant de la série") <= fige, "le temps ne repart pas de plus haut")


def validerparlaligne(scene, serie):
    """The second line of entry puts a wrong answer in the current box."""
    scene.cliquer(serie.objets["Réponse 2"])
    serie.focus("Réponse 2")
    faux = serie.tirage(2)
    scene.cliquer(serie.objets["Ligne de saisie"])
    serie.focus("Ligne de saisie")
    scene.taper(faux.lower())
    scene.touche("Return")
    serie.attendre("Réponse 2", faux)
    serie.focus("Ligne de saisie")
    return faux


def corriger(scene, serie, faux):
    bon, manque = serie.tirage(1), serie.tirage(3)
    serie.corriger()
    serie.actif("Nouvelle série(F8)")
    serie.attendre("Tirage 1", bon)
    serie.attendre("Tirage 2", SOLUTIONS[faux])
    serie.attendre("Tirage 3", SOLUTIONS[manque])
    serie.attendre("Réponse 3", manque)
    lignes = {f"{t};{SOLUTIONS[t]}" for t in (faux, manque)}
    attendre(lambda: set(scene.lire("Anne\\rev-7v6.txt") or []) == lignes, "les fautes en révision")
    verifier(scene.lire("Anne\\hist.dat") == [], "pas de résultat avant la fin de la liste")


def menudumot(scene, serie, faux):
    """The word menu takes the row out of the revision file."""
    avant = scene.nombrefenetres()
    scene.cliquer(serie.objets["Tirage 2"], fois=2)
    attendre(lambda: scene.nombrefenetres() > avant, "le menu du mot")
    # The row is in the file: "Définition", then "Supprimer", "Ajouter" being disabled.
    scene.touche("Down", "Down", "Return")
    attendre(lambda: f"{faux};{SOLUTIONS[faux]}" not in scene.lire("Anne\\rev-7v6.txt"),
             "la ligne supprimée")
    attendre(lambda: any("a été effacé du fichier de révision" in o.name
                         for o in tous(scene.fenetre("Orvane"))), "le message")
    scene.touche("Return")
    attendre(lambda: scene.nombrefenetres() == avant, "le message fermé")


def finir(scene, serie):
    """Series after series until no rack is left."""
    scene.touche("F8")
    serie.actif("Corriger (F12)")
    verifier(serie.lire("Tirages restants") == "2", "deux tirages restent")
    serie.focus("Réponse 1")
    for rang in (1, 2):
        scene.taper(SOLUTIONS[serie.tirage(rang)].lower())
        scene.touche("Return")
    scene.touche("F12")
    attendre(lambda: scene.lire("Anne\\hist.dat"), "le résultat dans hist.dat")
    record = scene.lire("Anne\\hist.dat")
    verifier(len(record) == 1 and record[0].endswith(" - 33.3% - T - 7v6.txt"), f"résultat {record}")
    verifier("".join(o.name[-1] for o in tuiles(scene)) == "BRAVO!", "BRAVO! sur les tuiles")
    serie.attendre("Tirages restants", "0")
    serie.actif("Nouvelle série(F8)", False)
    scene.photographier("bravo")


def main(programme, jeu, captures):
    with Scene(programme, jeu, captures) as scene:
        preparer(scene)
        scene.demarrer()
        connecternouveau(scene, "Anne")
        verifier(scene.lire("users.dat") == ["Anne"], "users.dat")
        verifier(scene.lire("Anne\\hist.dat") == [], "hist.dat vide")
        ouvrirpanneau(scene, "SCRABBLES UNIQUES", "7 lettres")
        serie = lancer(scene, "Tout", "7L poids 6")
        parcourir(scene, serie)
        saisirassiste(scene, serie)
        echangertuiles(scene)
        faireunepause(scene, serie)
        faux = validerparlaligne(scene, serie)
        corriger(scene, serie, faux)
        scene.photographier("corrigee")
        menudumot(scene, serie, faux)
        finir(scene, serie)
        scene.fermer(SERIE)
        scene.devant(MENU)
        attendre(lambda: any("33.3% - T" in o.name for o in tous(scene.fenetre(MENU))),
                 "le résultat dans le tableau")
        scene.photographier("menu")
        scene.cliquer(scene.objets(MENU)["Quitter"])
        scene.fini()
    print("liste entière : bon")


if __name__ == "__main__":
    main(*sys.argv[1:])
