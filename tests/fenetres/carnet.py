"""The carnet by real keys: a list searched, saved, and played in the trainer to "BRAVO!"; a dictionary
of the player's own looked at, made into lists, and taken back; what was missed made into the list of the
day and played; progress saved as picture and table; the player's data copied and brought back."""

import datetime
import pathlib
import subprocess
import sys

from joueur import (BIENVENUE, MENU, SERIE, connecternouveau, lancerladerniere, ouvrirpanneau, tous,
                    tuiles, verifier, visible)
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
    attendre(lambda: any(objet.name == nom and scene.etat(objet, "FOCUSED")
                         for objet in tous(scene.fenetre(titre))), f"le focus sur {nom}")


def tableau(scene, nom):
    """The table of that name, on show; a choice may bear the same name."""
    for objet in tous(scene.fenetre(CARNET)):
        if objet.name == nom and objet.getRoleName() in ("table", "tree table") \
                and scene.etat(objet, "SHOWING"):
            return objet
    return None


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


def sortir(scene):
    """What is found is copied, made a PDF, printed; the saved list is checked."""
    scene.touche("ctrl+shift+c")
    attendredit(scene, "1 mot copié.")
    enregistrersous(scene, "Enregistrer en PDF", "ctrl+shift+p", "liste.pdf")
    verifier((scene.dossier / "liste.pdf").read_bytes().startswith(b"%PDF-"), "un PDF")
    scene.touche("ctrl+p")
    scene.devant("Imprimer la liste")
    scene.photographier("impression")
    scene.touche("Escape")
    scene.devant(CARNET)
    scene.touche("ctrl+o")
    scene.devant("Vérifier une liste")
    scene.taper(str(scene.dossier / "listes" / "mienne.txt"))
    scene.touche("Return")
    scene.devant("Vérification de mienne.txt")
    attendredit(scene, "Aucune faute : cette liste se joue.", "Vérification de mienne.txt")
    verifier(not dit(scene, "Annuler"), "le travail est fini")
    scene.touche("Escape")
    scene.devant(CARNET)


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


def jouer(scene, entraineur, fichier, tirage, mot, connecter):
    """A list of the carnet on the personal row of the trainer."""
    scene.programme = str(pathlib.Path(entraineur).resolve())
    scene.demarrer()
    connecter(scene)
    ouvrirpanneau(scene, "AUTRES LISTES", "Listes diverses")
    nom = visible(scene, "Fichier personnel")
    scene.cliquer(nom, fois=2)
    scene.touche("ctrl+a")
    scene.taper(fichier)
    attendre(lambda: scene.texte(nom) == fichier, "le nom tapé")
    scene.cliquer(visible(scene, "OK"))
    attendre(lambda: visible(scene, "Le fichier personnel semble valide."), "le fichier accepté")
    serie = lancerladerniere(scene)
    serie.focus("Réponse 1")
    verifier(serie.tirage(1) == tirage, serie.tirage(1))
    scene.taper(mot)
    serie.corriger()
    attendre(lambda: "".join(o.name[-1] for o in tuiles(scene)) == "BRAVO!", "BRAVO!")
    scene.photographier("bravo")
    attendre(lambda: scene.lire("Zoé\\hist.dat")[-1].endswith(f" - 100% - T - {fichier}"),
             "le résultat")
    scene.fermer(SERIE)
    scene.devant(MENU)
    scene.fermer(MENU)
    scene.fini()


def reconnecter(scene):
    """The player who came last is proposed."""
    scene.cliquer(scene.objets(BIENVENUE)["COMMENCER"])
    scene.devant(MENU)


def revoir(scene):
    """What was missed yesterday is due; Alt+P makes the list of the day."""
    hier = (datetime.date.today() - datetime.timedelta(days=1)).strftime("%d/%m/%Y")
    debut = f"{hier} - 10:00:00;"
    scene.ecrire("Zoé\\journal.txt", debut + "3lc.txt;T;KOW;WOK;0;", debut + "3lc.txt;T;AEX;AXE;1;AXE",
                 debut + "rallonge_av_7a8L.txt;T;ABC;D;0;")
    scene.touche("ctrl+3")
    attendredit(scene, "2 tirages à revoir aujourd'hui")
    attendredit(scene, "1 laissé de côté : rallonges et benjamins")
    attendrefocus(scene, "Préparer la liste")
    scene.touche("alt+p")
    attendredit(scene, "dujour.txt : 1 tirage. Pour la jouer : dans Orvane, AUTRES LISTES")
    verifier(scene.lire("listes\\dujour.txt") == ["KOW;WOK"], "la liste du jour")
    verifier(scene.lire("listes\\dujour-multi.txt") is None, "rien à plusieurs solutions")
    scene.photographier("revoir")


def enregistrersous(scene, titre, raccourci, fichier):
    """Typed without its extension."""
    scene.touche(raccourci)
    scene.devant(titre)
    scene.touche("ctrl+a")
    scene.taper(str(scene.dossier / pathlib.Path(fichier).stem))
    scene.touche("Return")
    attendredit(scene, str(scene.dossier / fichier) + " est écrit")


def progresser(scene):
    """Each view by the keyboard; a picture and a table are saved, the hardest become a list."""
    scene.touche("ctrl+4")
    attendrefocus(scene, "Le calendrier")  # a choice is named by what it shows
    table = attendre(lambda: tableau(scene, "Tirages corrigés, par jour"), "le calendrier")
    verifier(table.queryTable().nRows == 1, "le jour joué")
    scene.photographier("calendrier")
    enregistrersous(scene, "Enregistrer l'image", "ctrl+s", "progres.png")
    verifier((scene.dossier / "progres.png").read_bytes().startswith(b"\x89PNG"), "une image")
    for vue in ("Les trente jours qui viennent", "Les paliers", "Toutes les listes"):
        scene.touche("Down")
        attendre(lambda vue=vue: tableau(scene, vue), vue)
    enregistrersous(scene, "Enregistrer le tableau", "ctrl+shift+s", "progres.csv")
    verifier("mienne.txt;1;100 %;100 %" in (scene.dossier / "progres.csv").read_text("utf-8-sig"),
             "le tableau des listes")
    attendrefocus(scene, "Toutes les listes")
    scene.touche("Down", "Down")
    attendre(lambda: tableau(scene, "Les tirages les plus durs"), "les plus durs")
    scene.touche("alt+f")
    attendredit(scene, "1 tirage mis en liste. 1 laissé de côté")
    verifier(scene.lire("listes\\difficiles.txt") == ["KOW;WOK"], "la liste des plus durs")
    scene.photographier("durs")


def choisirdossier(scene, titre, dossier):
    scene.devant(titre)
    scene.touche("ctrl+a")
    scene.taper(str(dossier))
    scene.touche("Return")


def sauver(scene):
    """The data are copied; newer ones are given up only when the player says so, and stay."""
    ailleurs = scene.dossier / "ailleurs"
    ailleurs.mkdir()
    scene.touche("ctrl+5")
    attendrefocus(scene, "Copier mes données…")
    avant = scene.lire("Zoé\\hist.dat")
    scene.touche("alt+p")
    choisirdossier(scene, "Où copier vos données", ailleurs)
    attendredit(scene, "4 fichiers copiés dans")
    date = datetime.date.today().isoformat()
    copie = ailleurs / f"Orvane {date}" / "Zoé"
    verifier(sorted(p.name for p in copie.iterdir()) == sorted(
        p.name for p in (scene.dossier / "Zoé").iterdir()), "tous les fichiers")
    scene.photographier("donnees")
    neufs = avant + [avant[-1].replace("mienne", "autre")]
    scene.ecrire("Zoé\\hist.dat", *neufs)
    for bouton in ("Annuler", "Remettre"):
        scene.touche("alt+r")
        choisirdossier(scene, "La copie à remettre", copie)
        scene.devant("Confirmer")
        scene.photographier("question")
        scene.cliquer(visible(scene, bouton, "Confirmer"))
        if bouton == "Annuler":
            scene.devant(CARNET)
            verifier(scene.lire("Zoé\\hist.dat") == neufs, "rien n'a changé")
    attendredit(scene, "4 fichiers copiés dans")
    verifier(scene.lire("Zoé\\hist.dat") == avant, "la copie est revenue")
    verifier(scene.lire(f"Zoé avant le {date}\\hist.dat") == neufs, "ce qui y était est resté")


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
        sortir(scene)
        effacer(scene)
        fairelesiennes(scene)
        revenir(scene)
        scene.touche("ctrl+q")
        scene.fini()
        jouer(scene, entraineur, "mienne.txt", "(N)EZ", "nez",
              lambda s: connecternouveau(s, "Zoé"))
        scene.programme = str(pathlib.Path(carnet).resolve())
        scene.demarrer(*sources)
        scene.devant(CARNET)
        attendredit(scene, "17 mots")
        revoir(scene)
        progresser(scene)
        sauver(scene)
        scene.touche("ctrl+q")
        scene.fini()
        jouer(scene, entraineur, "dujour.txt", "KOW", "wok", reconnecter)
    print("carnet : bon")


if __name__ == "__main__":
    main(*sys.argv[1:])
