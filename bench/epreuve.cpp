#include "epreuve.h"

#include <cstdlib>
#include <fstream>
#include <iostream>
#include <random>

namespace bench {

std::string mot(std::size_t numero, std::size_t longueur) {
    constexpr std::uint64_t alphabet = 26;
    std::minstd_rand generateur(static_cast<std::uint32_t>(numero * 97 + longueur));
    std::string lettres(longueur, 'A');
    for (auto& lettre : lettres)
        lettre = static_cast<char>('A' + generateur() % alphabet);
    return lettres;
}

Epreuve::Epreuve() {
    banc::garnir(dossier_.chemin(), ORVANE_JEU);
    std::filesystem::create_directory(dossier_.chemin() / "Essai");
    ecrire("Essai/hist.dat", "");
    ecrire("Essai/rev-x.txt", "");
    ecrire("Essai/settings.dat",
           "95\r\n80\r\n8\r\n5\r\n1\r\nPar d\xE9"
           "faut\r\n1\r\n");
}

void Epreuve::ecrire(const std::string& fichier, const std::string& octets) const {
    std::ofstream(dossier_.chemin() / fichier, std::ios::binary) << octets;
}

void Epreuve::garnirreferences(const Tailles& tailles) const {
    constexpr std::size_t nombredenotes = referencesdescorrections.size() - 1;
    for (std::size_t i = 0; i < tailles.size(); ++i) {
        std::string octets;
        for (std::size_t ligne = 0; ligne < tailles[i]; ++ligne) {
            // Words of 6 to 9 letters; every second line of the notes is a note.
            const bool note = i == nombredenotes && ligne % 2 == 1;
            octets += mot(ligne, 6 + ligne % 4);
            octets += note ? ", mot d'essai dont voici la note\r\n" : "\r\n";
        }
        ecrire(referencesdescorrections[i], octets);
    }
}

std::vector<std::string> Epreuve::fichierslus() const {
    std::vector<std::string> chemins;
    chemins.reserve(referencesdescorrections.size() + 1);
    for (const auto* fichier : referencesdescorrections)
        chemins.push_back(chemin(fichier));
    chemins.push_back(chemin("Essai/rev-x.txt"));
    return chemins;
}

void Epreuve::lancer(bool multi) {
    executer([&] {
        auto& voisins = programme_.voisins();
        voisins.form3.util = "Essai";
        voisins.form3.toue = "T";
        voisins.form3.nombase = "Essai";
        static_cast<void>(voisins.menu.fond());  // makes the menu, which reads the settings
        auto& serie = multi ? voisins.multi : voisins.form1;
        serie.montrer();
        serie.commencer("listes\\x.txt");
    });
    form_ = plateforme_.bureau.trouver(multi ? "Multi" : "Form1");
}

void Epreuve::montrermenu() {
    executer([&] {
        voisins().form3.util = "Essai";
        voisins().menu.montrer();
    });
    form_ = plateforme_.bureau.trouver("Form3");
}

void Epreuve::cliquer(std::string_view controle, int index) {
    executer([&] { form_->cliquer(form_->controle(controle, index)); });
}

void Epreuve::executer(const std::function<void()>& evenement) {
    plateforme_.executer(evenement);
    if (plateforme_.rapport()) {
        std::cerr << *plateforme_.rapport() << '\n';
        std::exit(EXIT_FAILURE);
    }
}

void Epreuve::seconde() {
    plateforme_.avancer(1);
}

void Epreuve::touche(int code) {
    executer([&] { form_->enfoncer({code}); });
    executer([&] { form_->relacher(code); });
}

void Epreuve::taper(char lettre) {
    executer([&] { form_->enfoncer({lettre}, static_cast<char32_t>(lettre)); });
    executer([&] { form_->relacher(lettre); });
}

}  // namespace bench
