#include "menudessai.h"

#include <charconv>
#include <sstream>

namespace essai {

Menudessai::Menudessai() {
    machine.ecrire("Léa\\settings.dat", "95\r\n80\r\n8\r\n5\r\n1\r\nVert\r\n1\r\n");
    machine.ecrire("Léa\\hist.dat", "");
    v.form3.util = util;
    charger();
    v.relever();
}

void Menudessai::charger() {
    form = std::make_unique<menu::Form3>(
        machine.plateforme, menu::Form3::Voisins{v.form3, v.dialog2, v.options, v.form1, v.multi,
                                                 v.historique, v.apropos});
    machine.plateforme.accueillir(*form);
    machine.plateforme.executer([&] { form->charger(); });
    form->visible = true;
}

void Menudessai::garnir(std::string_view cle) {
    for (const auto& rangee : rangeesde(cle)) {
        std::string lignes;
        for (std::size_t i = 0; i <= rangee.rang; ++i)
            lignes += "AB;BA\r\n";
        const auto chemin = "listes\\" + std::string(rangee.fichier);
        if (machine.lire(chemin) == "absent")
            machine.ecrire(chemin, lignes);
    }
}

void Menudessai::ouvrir(std::string_view cle) {
    garnir(cle);
    for (const auto& panneau : lespanneaux()) {
        if (panneau.cle != cle)
            continue;
        for (const auto& bouton : mots(panneau.chemin))
            cliquer(bouton);
    }
}

ui::Controle& Menudessai::controle(std::string_view nom) const {
    const auto parenthese = nom.find('(');
    int index = -1;
    if (parenthese != std::string_view::npos)
        std::from_chars(nom.data() + parenthese + 1, nom.data() + nom.size(), index);
    auto* trouve = form->trouver(nom.substr(0, parenthese), index);
    if (trouve == nullptr)
        throw std::invalid_argument("no control " + std::string(nom));
    return *trouve;
}

void Menudessai::cliquer(std::string_view nom) {
    machine.plateforme.executer([&] { form->cliquer(controle(nom)); });
}

void Menudessai::survoler(std::string_view nom) {
    machine.plateforme.executer([&] { ui::declencher(controle(nom).survol); });
}

void Menudessai::ecrirehist(const std::vector<std::string>& records) {
    std::string lignes;
    for (const auto& record : records)
        lignes += common::vers1252(record) + "\r\n";
    machine.ecrire("Léa\\hist.dat", lignes);
}

void Menudessai::maj() {
    machine.plateforme.executer([&] { form->maj(); });
}

std::string Menudessai::resultat(std::size_t rangee) const {
    const auto date = texte(avecrang("Label5", rangee));
    const auto resultat = texte(avecrang("Label6", rangee));
    return date.empty() && resultat.empty() ? "" : date + " | " + resultat;
}

std::string Menudessai::montres(std::string_view noms) const {
    std::string liste;
    for (const auto& nom : mots(noms)) {
        if (visible(nom))
            liste += (liste.empty() ? "" : " ") + nom;
    }
    return liste;
}

std::string avecrang(std::string_view nom, std::size_t rang) {
    return std::string(nom) + "(" + std::to_string(rang) + ")";
}

std::vector<std::string> mots(std::string_view texte) {
    std::istringstream flux{std::string(texte)};
    std::vector<std::string> liste;
    for (std::string mot; flux >> mot;)
        liste.push_back(mot);
    return liste;
}

std::string record(std::string_view date, std::string_view pourcentage, std::string_view suite) {
    return std::string(date) + " - 14:35 - " + std::string(pourcentage) + "% - " +
           std::string(suite);
}

}  // namespace essai
