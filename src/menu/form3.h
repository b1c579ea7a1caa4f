#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "acces.h"
#include "faces.h"
#include "formulaire.h"
#include "lancement.h"
#include "resultats.h"
#include "tableau.h"

namespace menu {

/// Form3: the menu. Group and second-level buttons (`Command1` to `Command5`, `Command7` to
/// `Command9`, `Command15`) open a panel of up to eight rows: name, number of words, date and
/// result (`Label1`, `Label4`, `Label5`, `Label6`), and the buttons that launch a series
/// (`Command14` "Tout", `coma` to `comd` its parts, `Command6` "Echantillon", `Command22`
/// "Révision"). `Text2` and `Command16` take the user's own list; `Label11` is the help box,
/// `Label13` the message line.
class Form3 : public ui::Formulaire {
  public:
    /// What it reads and sets, and the other forms that it calls.
    struct Voisins {
        common::VariablesForm3& form3;
        common::VariablesDialog2& dialog2;
        ui::FaceOptions& options;
        ui::FaceSerie& form1;
        ui::FaceSerie& multi;
        ui::FaceHistorique& historique;
        ui::FaceApropos& apropos;
    };
    Form3(ui::Plateforme& plateforme, const Voisins& voisins);

    /// Sets the menu up for the user whose name stands in `util`. Throws `Faute` if there is no
    /// readable `settings.dat` for that name.
    void charger();
    /// Refreshes the results of the panel on show from `hist.dat`; does nothing without a panel.
    void maj();
    /// Hides everything that belongs to a group or a panel.
    void effacerpanneau();
    /// The file exists.
    [[nodiscard]] bool Verification(std::string_view chemin);

    void montrer() { visible = true; }
    void donnerfond(ui::Couleur couleur);
    /// The check box `app` ("Apprentissage") is ticked.
    [[nodiscard]] bool app() const { return app_.coche(); }
    /// Shows a text in the help box.
    void aide(std::string_view texteaide);
    /// The busy pointer, or the normal one.
    void patienter(bool attente);

  private:
    using Controles = std::vector<ui::Controle*>;
    /// The controls of a row of the table.
    struct Ligne {
        ui::Controle& nom;
        ui::Controle& nombre;
        ui::Controle& date;
        ui::Controle& resultat;
        ui::Controle& tout;
        ui::Controle& echantillon;
        ui::Controle& revision;
        Controles parties;  ///< `coma` to `comd`
    };

    // The design (form3_ecran.cpp).
    Controles poseracces();
    Controles poserentetes();
    std::vector<Ligne> poserlignes();
    Ligne poserligne(int rangee);
    Controles poserinsignes(std::string_view nom, std::size_t combien, std::string_view image,
                            std::string_view accessible);
    Controles poserimages();
    void dresser();
    void ordonner();
    void preparerlignes();
    void placerinsigne(ui::Controle& insigne, std::size_t rangee) const;
    void placerparties(std::size_t index, std::size_t rangee);
    void placernombre(std::size_t rangee, bool decale);
    void placertout(std::size_t rangee, bool partages);

    // What the events do (form3_evenements.cpp).
    void brancher();
    void brancherligne(std::size_t rangee);
    void brancheraides();

    // The panels (form3_panneau.cpp).
    void ouvrir(const Acces& acces, ui::Controle& bouton);
    void remplir(const Panneau& panneau);
    void remplirrangee(std::size_t rangee, std::string_view libelle);
    std::size_t compterrangee(std::size_t rangee);
    void montrerparties(std::size_t rangee);
    void montrerinsignes(const Panneau& panneau);
    void verifierpersonnel();
    void ecrireresultat(std::size_t rangee, const Resultat& resultat);
    static void decrire(ui::Controle& resultat);
    void annoncer(std::string_view annonce);
    void historique(std::size_t rangee);

    // The launches (form3_lancement.cpp).
    void jouertout(std::size_t rangee);
    void jouerrevision(std::size_t rangee);
    void jouerpartie(std::size_t index, std::size_t partie);
    void jouerechantillon(std::size_t rangee);
    std::string preparerrevision(std::size_t rangee);
    void lancer(Ecran ecran, std::string_view chemin);

    Voisins voisins_;
    Controles acces_;    ///< in the order of `lesacces`
    Controles entetes_;  ///< shown with every panel
    std::vector<Ligne> lignes_;
    Controles verbes_;  ///< badges, as many of each kind as a panel can need
    Controles cheres_;
    Controles images_;  ///< `Command11`
    ui::Controle& perso_;
    ui::Controle& persook_;
    ui::Controle& total_;
    ui::Controle& cadrepied_;
    ui::Controle& aide_;
    ui::Controle& fondmessage_;  ///< hides the end of the help box behind the message line
    ui::Controle& message_;
    ui::Controle& app_;
    ui::Controle& options_;
    ui::Controle& apropos_;
    ui::Controle& miseajour_;
    ui::Controle& quitter_;

    const Panneau* panneau_ = nullptr;  ///< the panel on show, or the last one
    std::vector<Liste> listes_;         ///< of that panel
    bool ouvert_ = false;               ///< the rows of that panel are on show
};

}  // namespace menu
