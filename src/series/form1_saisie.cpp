// Form1: focus and keys of the answer boxes, and the second line of entry.

#include "form1.h"
#include "listes.h"
#include "saisie.h"
#include "texte.h"

namespace series {

void Form1::branchersaisie() {
    for (int i = 0; i < common::tiragesform1; ++i) {
        const auto place = static_cast<std::size_t>(i);
        tirage[place]->doubleclic = [this, i] { ouvrirmenu(i, true); };
        solution[place]->doubleclic = [this, i] { ouvrirmenu(i, false); };
    }
    recherche.change = [this] {
        const auto entrop = lettresentrop(serie_, boite_, recherche.texte());
        if (entrop == 0)
            return;
        // One beep for each letter that is cut; the box is written once.
        if (voisins_.options.check1()) {
            for (auto reste = entrop; reste > 0; --reste)
                plateforme().bip();
        }
        recherche.texte =
            common::debut(recherche.texte(), common::longueur(recherche.texte()) - entrop);
    };
    recherche.entree = [this] {
        mettredefaut(valider);
        if (!serie_.ouverte)
            return;
        peindreautres(boite_);
        peindrecourante(boite_);
    };
    recherche.clic = [this] { cliquerrecherche(0); };
}

}  // namespace series
