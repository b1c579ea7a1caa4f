"""What only a real desktop shows of the menu: which window lies over which, what a window hides of
another and a control of the next, and what assistive technologies read and write."""

import subprocess
import sys

from joueur import MENU, SERIE, connecternouveau, lancer, ouvrirpanneau, tous, verifier, visible
from programme_entier import JOUEUR, UNIQUES, preparer
from scene import Scene, attendre

OPTIONS = "Options"
APROPOS = "A propos de Orvane"


def x(*commande):
    return subprocess.run(commande, check=True, capture_output=True, text=True).stdout


def numero(titre):
    return int(x("xdotool", "search", "--onlyvisible", "--name", f"^{titre}").split()[0])


def propriete(titre, nom):
    return x("xprop", "-id", str(numero(titre)), nom)


def proprietaire(titre):
    valeur = propriete(titre, "WM_TRANSIENT_FOR")
    return int(valeur.split("#")[1], 16) if "#" in valeur else None


def pile():
    """The numbers of the windows, the one in front last."""
    valeur = x("xprop", "-root", "_NET_CLIENT_LIST_STACKING")
    return [int(n, 16) for n in valeur.split("#")[1].split(",")]


def place(titre):
    return x("xdotool", "getwindowgeometry", str(numero(titre)))


def devantelles(titre, *autres):
    ordre = pile()
    return all(ordre.index(numero(titre)) > ordre.index(numero(a)) for a in autres)


def survoler(scene, objet):
    """The mouse comes from elsewhere in the window."""
    boite = objet.queryComponent().getExtents(0)
    milieu = [str(round(boite.x + boite.width / 2)), str(round(boite.y + boite.height / 2))]
    scene.xdotool("mousemove", milieu[0], str(boite.y + 2), "mousemove", *milieu)


def aide(scene, debut):
    return attendre(lambda: next((o for o in tous(scene.fenetre(MENU))
                                  if o.name.startswith(debut) and scene.etat(o, "SHOWING")), None),
                    f"l'aide « {debut} »")


def resteendessus(scene):
    """The options stay over the window that is clicked, also when it is active already."""
    scene.cliquer(visible(scene, "Options"))
    scene.devant(OPTIONS)
    attendre(lambda: proprietaire(OPTIONS) == numero(MENU), "les options au menu")
    genre = propriete(OPTIONS, "_NET_WM_WINDOW_TYPE")
    verifier("DIALOG" in genre, f"genre de la fenêtre : {genre}")
    for groupe in ("AUTRES LISTES", "BASES TECHNIQUES", "AUTRES LISTES"):
        ouvrirpanneau(scene, groupe)
        attendre(lambda nom=groupe: scene.etat(visible(scene, nom), "FOCUSED"), groupe)
        scene.devant(MENU)
        verifier(devantelles(OPTIONS, MENU), f"les options couvertes par le menu ({groupe})")
    scene.photographier("options_devant")
    scene.cliquer(visible(scene, "Options"))
    scene.devant(OPTIONS)


def suitlapropos(scene):
    """So they do over a window that is opened after them."""
    avant = place(OPTIONS)
    scene.cliquer(visible(scene, "A propos de Orvan"))
    scene.devant(APROPOS)
    attendre(lambda: proprietaire(OPTIONS) == numero(APROPOS), "les options à l'à propos")
    texte = visible(scene, "A propos d'Orvane", APROPOS)
    for _ in range(2):
        bord = texte.queryComponent().getExtents(0)
        scene.xdotool("mousemove", str(bord.x + 12), str(bord.y + 12), "click", "1")
        attendre(lambda: scene.etat(texte, "FOCUSED"), "le focus dans l'à propos")
        scene.devant(APROPOS)
        attendre(lambda: devantelles(OPTIONS, APROPOS), "les options devant l'à propos")
    scene.touche("Escape")
    scene.devant(MENU)
    attendre(lambda: proprietaire(OPTIONS) == numero(MENU), "les options de nouveau au menu")
    verifier(place(OPTIONS) == avant, f"les options ont bougé : {avant} {place(OPTIONS)}")


def suitlaserie(scene):
    ouvrirpanneau(scene, "BASES TECHNIQUES")
    # Where it hides none of the buttons to come.
    scene.xdotool("windowmove", "--sync", str(numero(OPTIONS)), "4", "190")
    avant = place(OPTIONS)
    serie = lancer(scene, "Tout", "Lettre Chère 3L")
    attendre(lambda: proprietaire(OPTIONS) == numero(SERIE), "les options à la série")
    verifier(place(OPTIONS) == avant, f"les options ont bougé : {avant} {place(OPTIONS)}")
    serie.focus("Réponse 1")
    for rang in (2, 1):
        scene.cliquer(serie.objets[f"Réponse {rang}"])
        serie.focus(f"Réponse {rang}")
        verifier(devantelles(OPTIONS, SERIE), "les options couvertes par la série")
    return serie


def dituneserie(scene, serie):
    """What the colours of a corrected series say is read out."""
    dites = lambda *noms: [serie.objets[nom].description for nom in noms]
    verifier(dites("Tirage 1", "Tirage 2") == ["Tirage en cours", ""], "le tirage en cours")
    scene.taper(UNIQUES[serie.tirage(1)].lower())
    serie.corriger()
    attendre(lambda: dites("Réponse 1", "Réponse 2", "Tirage 2") == ["Juste", "Faux", "Solution"],
             "le verdict de chaque boîte")
    serie.quitter()


def annuler(scene):
    """Escape leaves the options from any of their controls."""
    attendre(lambda: proprietaire(OPTIONS) == numero(MENU), "les options au menu après la série")
    son = visible(scene, "Son", OPTIONS)
    scene.cliquer(son)
    scene.devant(OPTIONS)
    scene.touche("Escape")
    scene.devant(MENU)
    verifier(scene.lire(f"{JOUEUR}\\settings.dat")[4] == "1", "le son a été rangé")


def messageseul(scene):
    """Nothing of the help shows through the message line, whichever help lies under it."""
    ouvrirpanneau(scene, "BASES TECHNIQUES")
    scene.cliquer(attendre(lambda: visible(scene, "Echantillon : Lettre Chère 3L"), "Echantillon"))
    message = aide(scene, "La taille de l'échantillon")
    cadre = message.queryComponent().getExtents(0)
    vues = []
    for bouton, debut in (("Partie a : Verbes 6L", "Boutons a/b/c/d"), ("Quitter", "Reprendre")):
        survoler(scene, visible(scene, bouton))
        aide(scene, debut)
        scene.photographier("message_" + bouton.split()[0])
        vues.append(subprocess.run(
            ["import", "-window", "root", "-crop",
             f"{cadre.width}x{cadre.height + 3}+{cadre.x}+{cadre.y - 3}", "-depth", "8", "rgb:-"],
            check=True, capture_output=True).stdout)
    verifier(len(set(vues[0])) > 2, "rien n'est écrit sur la ligne de message")
    verifier(vues[0] == vues[1], "l'aide se voit sous le message")


def resultatdit(scene):
    scene.ecrire(f"{JOUEUR}\\hist.dat", "24/08/2019 - 14:35 - 50% - T - 3lc.txt")
    ouvrirpanneau(scene, "BASES TECHNIQUES")
    resultat = attendre(lambda: visible(scene, "50% - T"), "le résultat")
    verifier(resultat.description == "Rouge", f"le résultat dit « {resultat.description} »")


def ecritparassistance(scene):
    """A text that an assistive technology writes is the program's."""
    ouvrirpanneau(scene, "AUTRES LISTES", "Listes diverses")
    boite = attendre(lambda: visible(scene, "Fichier personnel"), "la boîte du fichier")
    scene.ecrire("listes\\autre.txt", "AEZ;ZEA")
    boite.queryEditableText().setTextContents("autre.txt")
    attendre(lambda: scene.texte(boite) == "autre.txt", "le texte écrit")
    attendre(lambda: scene.etat(boite, "FOCUSED"), "le focus dans la boîte")
    scene.touche("Return")
    aide(scene, "Le fichier personnel semble valide.")
    case = visible(scene, "Apprentissage")
    survoler(scene, visible(scene, "Quitter"))
    aide(scene, "Reprendre")
    scene.cliquer(case)
    attendre(lambda: scene.etat(case, "FOCUSED"), "le focus sur Apprentissage")
    survoler(scene, visible(scene, "Quitter"))
    aide(scene, "Reprendre")
    scene.touche("Return", "space")
    attendre(lambda: not scene.etat(case, "CHECKED"), "la case décochée")
    aide(scene, "Reprendre")


def main(programme, jeu, captures):
    with Scene(programme, jeu, captures) as scene:
        preparer(scene)
        scene.demarrer()
        connecternouveau(scene, JOUEUR)
        resteendessus(scene)
        suitlapropos(scene)
        dituneserie(scene, suitlaserie(scene))
        annuler(scene)
        resultatdit(scene)
        messageseul(scene)
        ecritparassistance(scene)
        scene.cliquer(visible(scene, "Quitter"))
        scene.fini()
    print("menu et options : bon")


if __name__ == "__main__":
    main(*sys.argv[1:])
