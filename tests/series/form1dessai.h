#pragma once

// Form1 on a machine of its own, with the pictures and the files that it needs.

#include <filesystem>
#include <fstream>
#include <iterator>
#include <map>
#include <memory>
#include <string>
#include <string_view>
#include <utility>

#include <gtest/gtest.h>

#include "form1.h"
#include "voisinage.h"

namespace essai {

class Form1dessai : public testing::Test {
  protected:
    /// The files of a folder and their bytes, by name.
    using Fichiers = std::map<std::string, std::string>;

    static constexpr std::string_view liste = "listes\\x.txt";

    Machine machine;
    Voisinage v;
    std::string journalenattente;
    std::unique_ptr<series::Form1> form;

    Form1dessai() {
        for (const auto* nom : {"ods5_28x28", "ods6_28x28", "ods7_28x28", "ppi_28x28", "ppi_14x28",
                                "vbt_28x28", "vbt_14x28", "inv_28x28", "inv_14x28"})
            machine.ecrire("images\\" + std::string(nom) + ".bmp", nom);
        for (const auto* nom : {"ods5", "ods6", "ods7", "vbi", "vbt4-10", "inv"})
            machine.ecrire("listes\\" + std::string(nom) + ".txt", "");
        for (const auto* nom : {"infosouris.txt", "Léa\\rev-x.txt", "Léa\\hist.dat"})
            machine.ecrire(nom, "");
        v.form3.util = "Léa";
        v.form3.toue = "T";
        v.form3.nombase = "Essai";
        form = std::make_unique<series::Form1>(
            machine.plateforme,
            series::Form1::Voisins{v.form3, v.dialog2, v.menu, v.options, journalenattente});
        machine.plateforme.accueillir(*form);
        machine.plateforme.executer([&] { form->charger(); });
        form->visible = true;
    }

    /// Launches a list of these lines.
    void commencer(std::string_view lignes) {
        machine.ecrire(liste, lignes);
        machine.plateforme.executer([&] { form->commencer(liste); });
    }
    [[nodiscard]] ui::Controle& controle(std::string_view nom, int index = -1) const {
        return form->controle(nom, index);
    }
    void cliquer(std::string_view nom) {
        machine.plateforme.executer([&] { form->cliquer(controle(nom)); });
    }
    void entrer() {
        machine.plateforme.executer([&] { form->enfoncer({.code = ui::touches::entree}); });
    }
    [[nodiscard]] std::string focus() const {
        return form->focus() == nullptr ? "" : form->focus()->nomcomplet();
    }
    [[nodiscard]] std::string rapport() const {
        return machine.plateforme.rapport().value_or("aucun");
    }
    [[nodiscard]] Fichiers fichiers() const {
        Fichiers trouves;
        for (const auto& entree :
             std::filesystem::recursive_directory_iterator(machine.dossier.chemin())) {
            if (!entree.is_regular_file())
                continue;
            std::ifstream flux(entree.path(), std::ios::binary);
            trouves[entree.path().lexically_relative(machine.dossier.chemin()).string()] = {
                std::istreambuf_iterator<char>(flux), {}};
        }
        return trouves;
    }
};

}  // namespace essai
