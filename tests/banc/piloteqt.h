#pragma once

#include <memory>

#include <QString>

#include "fenetrier.h"
#include "pilote.h"
#include "plateformesimulee.h"

class QApplication;

namespace banc {

/// Creates the application object of Qt, without a screen unless QT_QPA_PLATFORM names one. From
/// then on the next `poser` returns the warnings of Qt.
[[nodiscard]] std::unique_ptr<QApplication> preparerqt(int& argc, char** argv);

/// Drives the real windows: mouse events go to the widget under the mouse, keys to the window in
/// front, and message boxes are answered with their buttons.
class PiloteQt : public Pilote {
  public:
    PiloteQt(PlateformeSimulee& plateforme, const std::filesystem::path& dossier);
    PiloteQt(const PiloteQt&) = delete;
    PiloteQt& operator=(const PiloteQt&) = delete;
    ~PiloteQt() override;

    void cliquer(ui::Controle& controle) override;
    void doublecliquer(ui::Controle& controle) override;
    void survoler(ui::Controle& controle) override;
    void relacher(ui::Controle& controle) override;
    void focaliser(ui::Controle& controle) override;
    void frapper(const Frappe& frappe) override;
    void selectionner(ui::Controle& boite) override;
    void choisir(ui::Controle& liste, std::string_view entree) override;
    void choisirentree(ui::Controle& entree) override;
    void fermermenu(ui::Formulaire& formulaire) override;
    void fermer(ui::Formulaire& formulaire) override;
    [[nodiscard]] bool capturer(const std::filesystem::path& fichier) override;
    [[nodiscard]] std::string poser() override;
    [[nodiscard]] std::string desaccord(const ui::Formulaire& formulaire) override;
    [[nodiscard]] std::string desaccord(const ui::Controle& controle) override;

  private:
    void suivre();
    /// The window of a form, brought to the front as by a click on it.
    QWidget& fenetre(ui::Formulaire& formulaire);
    /// The window in front, which gets the keys.
    QWidget& devant();
    void touche(int cle, const QString& texte, Qt::KeyboardModifiers modificateurs);
    ui::Reponse repondre(std::string_view texte, ui::Icone icone, bool ouinon, ui::Reponse reponse);

    PlateformeSimulee& plateforme_;
    ui::qt::Fenetrier fenetrier_;
};

}  // namespace banc
