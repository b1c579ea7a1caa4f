#include "fauxprogramme.h"

#include <sstream>

#include "faute.h"
#include "fichier.h"
#include "formulaire.h"
#include "pilotemodele.h"
#include "scenario.h"

namespace banc {
namespace {

using ui::Genre;

class FauxForm1 : public ui::Formulaire {
  public:
    explicit FauxForm1(ui::Plateforme& p) : Formulaire(p, "Form1") {
        auto& boite0 = ajouter(Genre::Boite, "solution", 0);
        auto& boite1 = ajouter(Genre::Boite, "solution", 1);
        auto& etat = ajouter(Genre::Etiquette, "etat");
        auto& defautbouton = ajouter(Genre::Bouton, "valider");
        ajouter(Genre::Bouton, "cache").visible = false;
        ajouter(Genre::Bouton, "grise").actif = false;
        auto& liste = ajouter(Genre::Liste, "liste");
        liste.choix = {"Jaune", "Vert"};
        tabulation({&boite0, &boite1, &defautbouton});
        mettredefaut(defautbouton);
        defautbouton.clic = [&etat] { etat.texte = "validé"; };
        boite0.caractere = [](int& code) {
            if (code >= 'a' && code <= 'z')
                code -= 'a' - 'A';
        };
        etat.survol = [&etat] { etat.texte = "survolé"; };
        etat.relache = [&etat] { etat.texte = etat.texte() + "+relâché"; };
        etat.clic = [&etat] { etat.texte = "cliqué"; };
        etat.doubleclic = [&etat] { etat.infobulle = "double"; };
        menuetactions();
        chronos();
    }

  private:
    void action(std::string_view nomducontrole, std::function<void()> faire) {
        ajouter(Genre::Bouton, nomducontrole).clic = std::move(faire);
    }
    void ecrireetat(const std::string& texteecrit) { controle("etat").texte = texteecrit; }

    void menuetactions() {
        auto& menu = ajoutermenu("menumot");
        menu.entrees = {&ajouter(Genre::Entree, "un"), &ajouter(Genre::Entree, "deux")};
        menu.entrees[0]->clic = [this] { ecrireetat("un"); };
        menu.entrees[1]->actif = false;
        controle("solution", 1).doubleclic = [this, &menu] { ouvrirmenu(menu); };
        action("question",
               [this] { ecrireetat(plateforme().question("Deux\r\nlignes ?") ? "oui" : "non"); });
        action("message", [this] { plateforme().message("Bonjour"); });
        action("bruit", [this] {
            plateforme().bip();
            plateforme().jouerson("APP05.WAV");
            plateforme().ouvrir("https://exemple.invalid/mot");
        });
        action("fautif", [] { throw common::Faute("Essai : première ligne\nseconde"); });
        action("finir", [] { ui::Plateforme::terminer(0); });
        action("ecrire", [this] {
            const std::string ligne = "CD;DC";
            common::ajouterlignes(plateforme().disque(), "Essai\\suite.txt", {&ligne, 1}, "Essai");
        });
        action("telecharger", [this] {
            ecrireetat(plateforme().telecharger("https://x.invalid/a/version.txt", "recu.txt",
                                                {.sure = true, .taille = 100})
                           ? "reçu"
                           : "échec");
        });
        action("tirer", [this] {
            plateforme().hasard().amorcer(plateforme().maintenant().secondesdepuisminuit());
            ecrireetat(std::to_string(plateforme().hasard().tirer()));
        });
        action("date", [this] {
            ecrireetat(plateforme().maintenant().date() + " " +
                       plateforme().maintenant().heuredujour());
        });
    }

    void chronos() {
        auto& premier = ajouterminuterie("Timer1");
        auto& second = ajouterminuterie("Timer2");
        auto& troisieme = ajouterminuterie("Timer3");
        const auto noter = [this](const char* lettre) {
            ecrireetat(controle("etat").texte() + lettre);
        };
        premier.tic = [noter, &troisieme] {
            noter("1");
            troisieme.actif = true;
        };
        second.tic = [noter] { noter("2"); };
        troisieme.tic = [noter] { noter("3"); };
        action("chrono", [this, &premier, &second] {
            ecrireetat("");
            second.actif = true;
            premier.actif = true;
        });
        action("retardement", [&premier, &second] {
            premier.tic = [] { ui::Plateforme::terminer(3); };
            second.tic = [] { throw common::Faute("un tic de trop"); };
            second.actif = true;
            premier.actif = true;
        });
    }
};

class FauxForm2 : public ui::Formulaire {
  public:
    FauxForm2(ui::Plateforme& p, ui::Voisins& voisins) : Formulaire(p, "Form2") {
        auto& user = ajouter(Genre::Liste, "user");
        user.texte = "Votre nom";
        auto& entrer = ajouter(Genre::Bouton, "Command1");
        entrer.actif = false;
        user.change = [&entrer] { entrer.actif = true; };
        entrer.clic = [this, &user, &voisins] {
            voisins.form3.util = user.texte();
            voisins.menu.montrer();
            visible = false;
        };
        fermeture = [] { ui::Plateforme::terminer(0); };
    }
};

class FauxForm3 : public ui::Formulaire {
  public:
    explicit FauxForm3(ui::Plateforme& p) : Formulaire(p, "Form3") {
        ajouter(Genre::Case, "app");
        auto& trace = ajouter(Genre::Etiquette, "trace");
        const auto bouton = [this, &trace](std::string_view nomdubouton, int index) {
            auto& b = ajouter(Genre::Bouton, nomdubouton, index);
            b.clic = [&trace, &b] { trace.texte = trace.texte() + b.nomcomplet() + " "; };
        };
        for (const auto* nomdubouton : {"Command1", "Command3", "Command8"})
            bouton(nomdubouton, -1);
        for (const int index : {2, 4})
            bouton("Command7", index);
    }
};

/// All the faces at once, on forms made at their first touch.
class FauxProgramme : public Programme,
                      public ui::FaceMenu,
                      public ui::FaceSerie,
                      public ui::FaceOptions,
                      public ui::FaceHistorique,
                      public ui::FaceApropos {
  public:
    explicit FauxProgramme(ui::Plateforme& p) : plateforme_(p) {}

    void demarrer() override { formulaire2().visible = true; }
    ui::Voisins& voisins() override { return voisins_; }

    void montrer() override {  // of the menu and of a series: one of them is busy
        if (attend_)
            formulaire1().visible = true;
        else
            formulaire3().visible = true;
    }
    void maj() override {}
    ui::Couleur fond() override { return formulaire3().fond(); }
    void donnerfond(ui::Couleur /*couleur*/) override {}
    bool app() override { return formulaire3().controle("app").coche(); }
    void aide(std::string_view /*texte*/) override {}
    void patienter(bool /*attente*/) override {}

    void patienter() override {
        attend_ = true;
        appels_ = "patienter ";
    }
    void coloration() override { appels_ += "coloration "; }
    void commencer(std::string_view chemin) override {
        const auto& v = voisins_.form3;
        appels_ += std::string(chemin) + "|" + v.toue + "|" + v.typ + "|" + v.nombase + "|" +
                   v.util + "|" + (app() ? "1" : "0");
        formulaire1().controle("etat").texte = appels_;
        formulaire1().donnerfocus(formulaire1().controle("solution", 0));
        attend_ = false;
    }
    void activerseuil(bool /*actif*/) override {}

    bool check1() override { return false; }
    void choisircouleur(std::string_view /*nom*/) override {}
    void ouvrir() override {}
    void montrer(std::string_view /*titre*/) override {}
    void ajouter(std::span<const std::string> /*lignes*/) override {}
    void apropos() override {}
    void montrerimage(int /*index*/) override {}
    void verifiermiseajour() override {}

  private:
    template <class F, class... A>
    F& assurer(std::unique_ptr<F>& place, A&&... arguments) {
        if (place == nullptr) {
            place = std::make_unique<F>(plateforme_, std::forward<A>(arguments)...);
            plateforme_.accueillir(*place);
        }
        return *place;
    }
    FauxForm1& formulaire1() { return assurer(form1_); }
    FauxForm2& formulaire2() { return assurer(form2_, voisins_); }
    FauxForm3& formulaire3() { return assurer(form3_); }

    ui::Plateforme& plateforme_;
    common::VariablesForm3 variables3_;
    common::VariablesDialog2 variables2_;
    ui::Voisins voisins_{variables3_, variables2_, *this, *this, *this, *this, *this, *this};
    std::unique_ptr<FauxForm1> form1_;
    std::unique_ptr<FauxForm2> form2_;
    std::unique_ptr<FauxForm3> form3_;
    std::string appels_;
    bool attend_ = false;
};

}  // namespace

Fabrique fauxprogramme() {
    return [](ui::Plateforme& plateforme) { return std::make_unique<FauxProgramme>(plateforme); };
}

std::string jouerfaux(const std::string& scenario) {
    Reglages reglages;
    reglages.programme = fauxprogramme();
    reglages.fabriquepilote = [](PlateformeSimulee& plateforme) {
        return std::make_unique<PiloteModele>(plateforme);
    };
    std::istringstream entree(scenario);
    std::ostringstream sortie;
    Bilan bilan;
    jouer(entree, "essai", reglages, sortie, bilan);
    return sortie.str();
}

}  // namespace banc
