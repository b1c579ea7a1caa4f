"""The whole program, as somebody new would go through it: first login, one list of each kind, a
sample, a part, a revision run, options, history, about, out, and a second start that remembers."""

import itertools
import subprocess
import sys

from joueur import (BIENVENUE, MENU, MULTI, REFERENCES, connecternouveau, lancer,
                    lancerladerniere, ouvrirpanneau, verifier, visible)
from scene import Scene, attendre

JOUEUR = "Zoé"
UNIQUES = {"EKOR": "KORE", "AEW": "WAE"}
RALLONGES = {"TIER": "S", "?ACHE": "BHLTV"}
DUO = {"AGINS": ["GAINS", "SAGIN"]}
QUINTET = {"AEGINRST": ["GANTIERS", "GRANITES", "INGRATES", "RANGIEST", "TASERING"]}
PERSONNELLE = {"AEZ": "ZEA"}
LONGUE = {"A" * n + "B": "B" + "A" * n for n in range(1, 7)}
PANNEAUX = {
    "bt": ["3lt", "vb45", "vb6", "4lc", "5lc"],
    "rallong": [f"rallonge_{s}_{l}L" for s in ("av", "ar") for l in ("7a8", "8a9", "6a7", "5a6")],
    "duos7": ["7l_duos_" + s for s in ("purs", "impurs", "purs_sel", "purs567", "purs014", "purs23",
                                       "sanstirage")],
    "quatquin": ["7l_quatuors_purs", "7l_quatuors_impurs", "8l_quatuors_purs",
                 "8l_quatuors_impurs", "7l_quintets_purs", "7l_quintets_impurs", "8l_quintets"],
    "autres": ["invar", "deseq_cons_voy", "anaverbes", "transifausses", "s_final", "benj_uni",
               "vbavb"],
}


def rangees(liste):
    return [f"{tirage};{';'.join([mots] if isinstance(mots, str) else mots)}"
            for tirage, mots in liste.items()]


def preparer(scene):
    for liste in itertools.chain(*PANNEAUX.values()):
        scene.ecrire(f"listes\\{liste}.txt", "AB;BA")
    for liste in REFERENCES:
        scene.ecrire(f"listes\\{liste}.txt")
    scene.ecrire("infosouris.txt")
    scene.ecrire("listes\\3lc.txt", *rangees(UNIQUES))
    scene.ecrire("listes\\vb6_a.txt", *rangees(UNIQUES))
    scene.ecrire("listes\\5lc.txt", *[ligne for ligne in rangees(LONGUE) for _ in range(6)])
    scene.ecrire("listes\\rallonge_ar_5a6L.txt", *rangees(RALLONGES))
    scene.ecrire("listes\\7l_duos_purs.txt", *rangees(DUO))
    scene.ecrire("listes\\8l_quintets.txt", *rangees(QUINTET))
    scene.ecrire("listes\\perso.txt", *rangees(PERSONNELLE))


def histoire(scene):
    return scene.lire(f"{JOUEUR}\\hist.dat")


def attendrerecord(scene, nombre, fin):
    attendre(lambda: len(histoire(scene)) == nombre, f"le résultat n° {nombre}")
    verifier(histoire(scene)[-1].endswith(fin), f"résultat {histoire(scene)[-1]}, attendu {fin}")


def repondre(scene, serie, liste, nombre):
    """Types the right answer in the first boxes, and corrects."""
    for rang in range(1, nombre + 1):
        serie.focus(f"Réponse {rang}")
        scene.taper(liste[serie.tirage(rang)].lower())
        scene.touche("Return")
    serie.corriger()


def listeentiere(scene):
    """A list of one solution: one rack missed, then all found."""
    ouvrirpanneau(scene, "BASES TECHNIQUES")
    serie = lancer(scene, "Tout", "Lettre Chère 3L")
    serie.focus("Réponse 1")
    manque = serie.tirage(2)
    repondre(scene, serie, UNIQUES, 1)
    attendre(lambda: scene.lire(f"{JOUEUR}\\rev-3lc.txt") == [f"{manque};{UNIQUES[manque]}"],
             "la faute en révision")
    scene.touche("F8")
    serie.actif("Corriger (F12)")
    repondre(scene, serie, UNIQUES, 1)
    attendrerecord(scene, 1, " - 50% - T - 3lc.txt")
    scene.photographier("form1")
    serie.quitter()
    attendre(lambda: visible(scene, "50% - T"), "le résultat au menu")


def revision(scene):
    serie = lancer(scene, "Révision", "Lettre Chère 3L")
    repondre(scene, serie, UNIQUES, 1)
    attendrerecord(scene, 2, " - 100% - R - 3lc.txt")
    serie.quitter()


def partie(scene):
    serie = lancer(scene, "Partie a", "Verbes 6L")
    repondre(scene, serie, UNIQUES, 2)
    attendrerecord(scene, 3, " - 100% - vb6_a.txt")
    serie.quitter()


def options(scene):
    """One series a sample, a green background, no sound."""
    scene.cliquer(scene.objets(MENU)["Options"])
    scene.devant("Options")
    boite = visible(scene, "Echantillon de base, en séries de 30 tirages", "Options")
    scene.cliquer(boite)
    attendre(lambda: scene.etat(boite, "FOCUSED"), "le focus sur l'échantillon")
    scene.touche("ctrl+a")
    scene.taper("1")
    attendre(lambda: scene.texte(boite) == "1", "une série par échantillon")
    scene.cliquer(visible(scene, "Son", "Options"))
    couleur = visible(scene, "Couleur du fond", "Options")
    scene.cliquer(couleur)
    attendre(lambda: scene.etat(couleur, "FOCUSED"), "le focus sur la couleur")
    scene.touche("ctrl+a")
    scene.taper("Vert")
    scene.photographier("options")
    scene.cliquer(visible(scene, "OK", "Options"))
    attendre(lambda: scene.lire(f"{JOUEUR}\\settings.dat") ==
             ["95", "80", "8", "1", "0", "Vert", "1"], "les options écrites")
    scene.devant(MENU)


def echantillon(scene):
    ouvrirpanneau(scene, "BASES TECHNIQUES")
    serie = lancer(scene, "Echantillon", "Lettre Chère 5L")
    verifier(serie.lire("Tirages restants") == "30", "un échantillon d'une série")
    repondre(scene, serie, LONGUE, 30)
    attendrerecord(scene, 4, " - 100% - E - 5lc.txt")
    serie.quitter()


def rallonge(scene):
    ouvrirpanneau(scene, "AUTRES LISTES", "Rallonges d'une lettre")
    serie = lancer(scene, "Tout", "Rallonges arrière 5-6")
    repondre(scene, serie, RALLONGES, 2)
    attendrerecord(scene, 5, " - 100% - T - rallonge_ar_5a6L.txt")
    serie.quitter()


def plusieurs(scene, liste, bouton, nombre, fichier):
    """A list of several solutions, typed along the row of its boxes."""
    serie = lancer(scene, "Tout", bouton, MULTI)
    serie.focus("Réponse 1")
    mots = liste[serie.tirage(1)]
    for rang, mot in enumerate(reversed(mots)):
        serie.focus(f"Réponse {1 + 10 * rang}")
        scene.taper(mot.lower())
        if rang + 1 < len(mots):
            scene.touche("Return")
    serie.corriger()
    attendrerecord(scene, nombre, f" - 100% - T - {fichier}")
    scene.photographier(fichier)
    serie.quitter()


def personnelle(scene):
    ouvrirpanneau(scene, "AUTRES LISTES", "Listes diverses", "OK")
    attendre(lambda: visible(scene, "Le fichier personnel semble valide."), "le fichier accepté")
    serie = lancerladerniere(scene)
    repondre(scene, serie, PERSONNELLE, 1)
    attendrerecord(scene, 8, " - 100% - T - perso.txt")
    serie.quitter()


def historique(scene):
    """The results of a list, the revision run among them."""
    ouvrirpanneau(scene, "BASES TECHNIQUES")
    scene.cliquer(attendre(lambda: visible(scene, "50% - T"), "le résultat de 3lc"))
    titre = "Historique des scores - Lettre Chère 3L"
    boite = attendre(lambda: visible(scene, "Résultats de la liste, du plus ancien au plus récent",
                                     titre), "l'historique")
    lignes = attendre(lambda: scene.texte(boite).split("\n")[:-1], "les lignes de l'historique")
    verifier([ligne[21:] for ligne in lignes] == ["50% - T", "100% - R"], f"historique {lignes}")
    scene.photographier("historique")
    scene.fermer(titre)
    scene.devant(MENU)


def apropos(scene):
    scene.cliquer(visible(scene, "A propos de Orvan"))
    texte = attendre(lambda: visible(scene, "A propos d'Orvane", "A propos de Orvane"), "le texte")
    attendre(lambda: scene.texte(texte).startswith("Orvane - version 2.68 du 24/08/2019"),
             "la version")
    scene.photographier("apropos")
    scene.fermer("A propos de Orvane")
    scene.devant(MENU)


def fonddelafenetre(scene, titre):
    numero = subprocess.run(["xdotool", "search", "--onlyvisible", "--name", titre], check=True,
                            capture_output=True, text=True).stdout.split()[0]
    return subprocess.run(["import", "-window", numero, "-crop", "1x1+4+4", "-depth", "8",
                           "rgb:-"], check=True, capture_output=True).stdout


def secondefois(scene):
    """The program remembers who played last, in which colour, and what was achieved."""
    scene.demarrer()
    scene.fenetre(BIENVENUE)
    attendre(lambda: fonddelafenetre(scene, BIENVENUE) == bytes.fromhex("80FF80"), "le fond vert")
    scene.touche("Return")
    scene.devant(MENU + " - " + JOUEUR)
    ouvrirpanneau(scene, "BASES TECHNIQUES")
    attendre(lambda: visible(scene, "100% - E"), "le résultat de l'échantillon")
    scene.photographier("menu")
    scene.cliquer(visible(scene, "Quitter"))
    scene.fini()


def main(programme, jeu, captures):
    with Scene(programme, jeu, captures) as scene:
        preparer(scene)
        scene.demarrer()
        connecternouveau(scene, JOUEUR)
        verifier(scene.lire("users.dat") == [JOUEUR], f"users.dat : {scene.lire('users.dat')}")
        listeentiere(scene)
        revision(scene)
        partie(scene)
        options(scene)
        echantillon(scene)
        rallonge(scene)
        ouvrirpanneau(scene, "SCRABBLES MULTIPLES", "Duos 7 lettres")
        plusieurs(scene, DUO, "Duos 7L purs", 6, "7l_duos_purs.txt")
        ouvrirpanneau(scene, "SCRABBLES MULTIPLES", "Quatuors et plus  7 et 8 L")
        plusieurs(scene, QUINTET, "Quintets 8L", 7, "8l_quintets.txt")
        personnelle(scene)
        historique(scene)
        apropos(scene)
        scene.cliquer(visible(scene, "Quitter"))
        scene.fini()
        secondefois(scene)
    print("programme entier : bon")


if __name__ == "__main__":
    main(*sys.argv[1:])
