// The events of the menu: what a click on each control does, and what hovering over it shows.

#include "aides.h"
#include "form3.h"

namespace menu {

void Form3::brancher() {
    for (std::size_t i = 0; i < acces_.size(); ++i) {
        auto& bouton = *acces_[i];
        const auto& acces = lesacces()[i];
        bouton.clic = [this, &acces, &bouton] { ouvrir(acces, bouton); };
    }
    for (std::size_t r = 0; r < nblignes; ++r)
        brancherligne(r);
    for (auto* image : images_)
        image->clic = [this, image] { voisins_.apropos.montrerimage(image->index()); };
    persook_.clic = [this] { verifierpersonnel(); };
    // Enter checks the personal list only while the player is naming it.
    perso_.entree = [this] { mettredefaut(persook_); };
    perso_.sortie = [this] { sansdefaut(); };
    options_.clic = [this] { voisins_.options.ouvrir(); };
    apropos_.clic = [this] { voisins_.apropos.apropos(); };
    miseajour_.clic = [this] { voisins_.apropos.verifiermiseajour(); };
    quitter_.clic = [] { ui::Plateforme::terminer(); };
    fermeture = [] { ui::Plateforme::terminer(); };
    app_.relache = [this] { voisins_.form1.activerseuil(app_.coche()); };
    brancheraides();
}

void Form3::brancherligne(std::size_t rangee) {
    auto& ligne = lignes_[rangee];
    ligne.tout.clic = [this, rangee] { jouertout(rangee); };
    ligne.echantillon.clic = [this, rangee] { jouerechantillon(rangee); };
    ligne.revision.clic = [this, rangee] { jouerrevision(rangee); };
    ligne.resultat.clic = [this, rangee] { historique(rangee); };
    ligne.resultat.repeint = [&resultat = ligne.resultat] { decrire(resultat); };
    for (std::size_t i = 0; i < nbparties; ++i)
        ligne.parties[i]->clic = [this, rangee, i] { jouerpartie(rangee, i); };
}

/// A control without a text leaves the help box as it is.
void Form3::brancheraides() {
    const auto montrer = [this](std::string_view texteaide) {
        if (!texteaide.empty())
            aide(texteaide);
    };
    for (const auto& controle : controles()) {
        const auto fixe = aidefixe(controle->nom());
        if (!fixe.empty())
            controle->survol = [montrer, fixe] { montrer(fixe); };
    }
    for (std::size_t r = 0; r < nblignes; ++r) {
        auto& ligne = lignes_[r];
        ligne.tout.survol = [this, montrer, r] {
            annoncer({});
            montrer(aidetout(panneau_, r));
        };
        ligne.nom.survol = [this, montrer, r] {
            annoncer({});
            montrer(aidelibelle(panneau_, r));
        };
        const auto fixe = ligne.revision.survol;
        ligne.revision.survol = [this, fixe] {
            annoncer({});
            fixe();
        };
    }
    perso_.survol = [this] {
        aide(aidepersonnelle);
        annoncer(messagepersonnel);
    };
}

}  // namespace menu
