// Form1: focus and keys of the answer boxes, and the second line of entry.

#include "form1.h"
#include "listes.h"
#include "texte.h"

namespace series {

void Form1::branchersaisie() {
    for (int i = 0; i < common::tiragesform1; ++i) {
        for (auto* boites : {&tirage, &solution}) {
            auto& boite = *(*boites)[static_cast<std::size_t>(i)];
            boite.doubleclic = [this, i, &boite] { ouvrirmenu(i, boite); };
        }
    }
    recherche.change = [this] {
        const auto limite = common::longueur(tirage[static_cast<std::size_t>(boite_)]->texte());
        const auto longueur = common::longueur(recherche.texte());
        if (rallonges(nature_) || longueur <= limite)
            return;
        // One beep a letter that is cut, in one write.
        if (voisins_.options.check1()) {
            for (auto trop = longueur - limite; trop > 0; --trop)
                plateforme().bip();
        }
        recherche.texte = common::debut(recherche.texte(), limite);
    };
    recherche.entree = [this] {
        mettredefaut(valider);
        if (!serieouverte())
            return;
        peindreautres(boite_);
        peindrecourante(boite_);
    };
    recherche.clic = [this] { cliquerrecherche(0); };
}

std::optional<int> Form1::boitevoisine(int rang, int code) const {
    switch (code) {
        case ui::touches::entree:
        case ui::touches::bas:
            return (rang + 1) % common::tiragesform1;
        case ui::touches::haut:
            return (rang + common::tiragesform1 - 1) % common::tiragesform1;
        default:
            return std::nullopt;
    }
}

void Form1::rendreletirage(int place) {
    auto& rack = *tirage[static_cast<std::size_t>(place)];
    if (rangee(place) >= 0)
        rack.texte = tiragedelarangee(place);
    else if (!lettres_.tiragenet().empty())
        rack.texte = lettres_.tiragenet();
}

/// A box passes if it is right and was left in time.
void Form1::juger(int rang, std::string_view atemps) {
    const bool juste =
        solution[static_cast<std::size_t>(rang)]->texte() == rangees_.suite(rangee(rang));
    retenirrapide(rang, juste && seuil() > chronos.tempsmot(), atemps);
}

}  // namespace series
