"""What a player does over and over, and how a window of the program is read, for the tests of the
real windows."""

from scene import Echec, attendre

BIENVENUE = "Bienvenue"
MENU = "Orvane - Menu"
SERIE = "ENTRAINEMENT AU SCRABBLE - Orvane"
MULTI = "ENTRAINEMENT SCRABBLE"
REFERENCES = ["ods5", "ods6", "ods7", "vbi", "vbt4-10", "inv"]


def verifier(condition, quoi):
    if not condition:
        raise Echec(quoi)


def tous(objet):
    yield objet
    for enfant in objet:
        if enfant is not None:
            yield from tous(enfant)


def connecternouveau(scene, nom):
    """A first start: a new player is made, then logs in."""
    scene.devant(BIENVENUE)  # the window manager moves a window until it is there
    scene.cliquer(scene.objets(BIENVENUE)["Nouvel utilisateur ?"])
    boite = attendre(lambda: scene.objets(BIENVENUE).get("Nom du nouvel utilisateur"),
                     "la boîte du nom")
    attendre(lambda: scene.etat(boite, "FOCUSED"), "le focus dans la boîte du nom")
    scene.taper(nom)
    scene.touche("Return")
    attendre(lambda: scene.etat(scene.objets(BIENVENUE)["COMMENCER"], "ENABLED"), "COMMENCER actif")
    scene.cliquer(scene.objets(BIENVENUE)["COMMENCER"])
    scene.devant(MENU)


def visible(scene, nom, titre=MENU):
    """A control that is on show, by accessible name."""
    for objet in tous(scene.fenetre(titre)):
        if objet.name == nom and scene.etat(objet, "SHOWING"):
            return objet
    return None


def ouvrirpanneau(scene, *boutons):
    """Clicks the buttons that lead to a panel, one after the other."""
    for bouton in boutons:
        scene.cliquer(attendre(lambda nom=bouton: visible(scene, nom), f"le bouton {bouton}"))


def lancer(scene, bouton, liste, titre=SERIE):
    """Clicks a button of a list's row, and waits for the series."""
    def trouver():
        for objet in tous(scene.fenetre(MENU)):
            if objet.name.startswith(bouton) and objet.name.endswith(liste) \
                    and scene.etat(objet, "SHOWING"):
                return objet
        return None

    scene.cliquer(attendre(trouver, f"{bouton} de {liste}"))
    scene.devant(titre)
    return Serie(scene, titre)


def tuiles(scene, titre=SERIE):
    """The tiles that show a letter, from left to right."""
    liste = [o for o in tous(scene.fenetre(titre)) if o.name.startswith("Tuile ") and " : " in o.name]
    return sorted(liste, key=lambda o: o.queryComponent().getExtents(0).x)


def verifierbravo(scene, joueur, liste):
    """A whole list, found to its last rack, is in the player's history."""
    chemin = joueur + "\\hist.dat"
    attendre(lambda: scene.lire(chemin), "le résultat dans hist.dat")
    verifier(scene.lire(chemin)[0].endswith(" - 100% - T - " + liste), "le résultat")
    scene.photographier("bravo")


class Serie:
    """The window of a series. Controls are found once, what they show is read at each look."""

    def __init__(self, scene, titre=SERIE):
        self.scene = scene
        self.titre = titre
        self.objets = scene.objets(titre)

    def lire(self, nom):
        return self.scene.texte(self.objets[nom])

    def tirage(self, rang):
        return self.lire(f"Tirage {rang}")

    def reponse(self, rang):
        return self.lire(f"Réponse {rang}")

    def attendre(self, nom, valeur):
        attendre(lambda: self.lire(nom) == valeur, f"{nom} = « {valeur} » (lu « {self.lire(nom)} »)")

    def focus(self, nom):
        attendre(lambda: self.scene.etat(self.objets[nom], "FOCUSED"), f"le focus sur {nom}")

    def actif(self, nom, oui=True):
        attendre(lambda: self.scene.etat(self.objets[nom], "ENABLED") == oui,
                 f"{nom} {'actif' if oui else 'inactif'}")

    def corriger(self):
        self.scene.touche("F12")
        self.actif("Corriger (F12)", False)

    def quitter(self):
        self.scene.cliquer(self.objets["Retour au sommaire"])
        self.scene.devant(MENU)


def lancerladerniere(scene):
    """Launches the list of the lowest row, the user's own."""
    boutons = [objet for objet in tous(scene.fenetre(MENU))
               if objet.name.startswith("Tout") and scene.etat(objet, "SHOWING")]
    scene.cliquer(max(boutons, key=lambda objet: objet.queryComponent().getExtents(0).y))
    scene.devant(SERIE)
    return Serie(scene)
