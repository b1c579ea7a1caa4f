#include "application.h"

#include <functional>
#include <utility>

#include "dialog.h"
#include "dialog1.h"
#include "dialog2.h"
#include "form1.h"
#include "form2.h"
#include "form3.h"
#include "miseajour.h"
#include "multi.h"

namespace application {
namespace {

/// A form that is made and loaded when it is first used. After it has been unloaded, the next use
/// makes a new one.
template <class F>
class Piece {
  public:
    Piece(ui::Plateforme& plateforme, std::function<std::unique_ptr<F>()> fabrique)
        : plateforme_(plateforme), fabrique_(std::move(fabrique)) {}

    F& operator()() {
        if (!form_) {
            form_ = fabrique_();
            plateforme_.accueillir(*form_);
            if constexpr (requires { form_->charger(); })
                form_->charger();
        }
        return *form_;
    }
    /// Forgets the form at once, and destroys it after the running event, which may be its own.
    void decharger() {
        plateforme_.apres([partant = std::shared_ptr<F>(std::move(form_))] {});
    }

  private:
    ui::Plateforme& plateforme_;
    std::function<std::unique_ptr<F>()> fabrique_;
    std::unique_ptr<F> form_;
};

template <class F>
class Serie final : public ui::FaceSerie {
  public:
    explicit Serie(Piece<F>& form) : form_(form) {}
    void patienter() override { form_().pointeur = ui::Pointeur::Attente; }
    void coloration() override { form_().coloration(); }
    void montrer() override { form_().visible = true; }
    void commencer(std::string_view chemin) override { form_().commencer(chemin); }
    void activerseuil(bool actif) override { form_().activerseuil(actif); }
    void donnerfond(ui::Couleur couleur) override { form_().fond = couleur; }

  private:
    Piece<F>& form_;
};

class Menu final : public ui::FaceMenu {
  public:
    explicit Menu(Piece<menu::Form3>& form) : form_(form) {}
    void montrer() override { form_().montrer(); }
    void maj() override { form_().maj(); }
    ui::Couleur fond() override { return form_().fond(); }
    void donnerfond(ui::Couleur couleur) override { form_().donnerfond(couleur); }
    bool app() override { return form_().app(); }
    void aide(std::string_view texte) override { form_().aide(texte); }
    void patienter(bool attente) override { form_().patienter(attente); }

  private:
    Piece<menu::Form3>& form_;
};

class Options final : public ui::FaceOptions {
  public:
    explicit Options(Piece<dialogs::Dialog2>& form) : form_(form) {}
    bool check1() override { return form_().check1(); }
    void choisircouleur(std::string_view nom) override { form_().choisircouleur(nom); }
    void ouvrir() override { form_().ouvrir(); }

  private:
    Piece<dialogs::Dialog2>& form_;
};

class Historique final : public ui::FaceHistorique {
  public:
    explicit Historique(Piece<dialogs::Dialog>& form) : form_(form) {}
    void montrer(std::string_view titre) override { form_().montrer(titre); }
    void ajouter(std::span<const std::string> lignes) override { form_().ajouter(lignes); }

  private:
    Piece<dialogs::Dialog>& form_;
};

class Apropos final : public ui::FaceApropos {
  public:
    Apropos(Piece<dialogs::Dialog1>& form, ui::Plateforme& plateforme,
            const common::VariablesForm3& form3, ui::FaceMenu& menu)
        : form_(form), miseajour_(plateforme, form3, menu) {}
    void apropos() override { form_().montrertexte(); }
    void montrerimage(int index) override { form_().montrerimage(index); }
    void verifiermiseajour() override { miseajour_.verifier(); }

  private:
    Piece<dialogs::Dialog1>& form_;
    dialogs::MiseAJour miseajour_;
};

}  // namespace

class Application::Salle {
  public:
    explicit Salle(ui::Plateforme& plateforme)
        : form2(plateforme,
                [&] {
                    return std::make_unique<profiles::Form2>(plateforme, variablesform3, facemenu,
                                                             faceform1);
                }),
          form3(plateforme,
                [&] {
                    return std::make_unique<menu::Form3>(
                        plateforme,
                        menu::Form3::Voisins{variablesform3, variablesdialog2, faceoptions,
                                             faceform1, facemulti, facehistorique, faceapropos});
                }),
          form1(plateforme,
                [&] { return std::make_unique<series::Form1>(plateforme, voisinsdeserie()); }),
          multi(plateforme,
                [&] { return std::make_unique<multi::Multi>(plateforme, voisinsdeserie()); }),
          dialog2(plateforme,
                  [&] {
                      return std::make_unique<dialogs::Dialog2>(
                          plateforme,
                          dialogs::Dialog2::Voisins{variablesform3, variablesdialog2, facemenu,
                                                    facemulti},
                          [this] { dialog2.decharger(); });
                  }),
          dialog(plateforme,
                 [&] {
                     return std::make_unique<dialogs::Dialog>(plateforme,
                                                              [this] { dialog.decharger(); });
                 }),
          dialog1(plateforme,
                  [&] { return std::make_unique<dialogs::Dialog1>(plateforme, variablesform3); }),
          facemenu(form3),
          faceoptions(dialog2),
          faceform1(form1),
          facemulti(multi),
          facehistorique(dialog),
          faceapropos(dialog1, plateforme, variablesform3, facemenu),
          voisins{variablesform3, variablesdialog2, facemenu,       faceoptions,
                  faceform1,      facemulti,        facehistorique, faceapropos} {}

    [[nodiscard]] series::Formserie::Voisins voisinsdeserie() {
        return {variablesform3, variablesdialog2, facemenu, faceoptions, journalenattente};
    }

    common::VariablesForm3 variablesform3;
    common::VariablesDialog2 variablesdialog2;
    std::string journalenattente;
    Piece<profiles::Form2> form2;
    Piece<menu::Form3> form3;
    Piece<series::Form1> form1;
    Piece<multi::Multi> multi;
    Piece<dialogs::Dialog2> dialog2;
    Piece<dialogs::Dialog> dialog;
    Piece<dialogs::Dialog1> dialog1;
    Menu facemenu;
    Options faceoptions;
    Serie<series::Form1> faceform1;
    Serie<multi::Multi> facemulti;
    Historique facehistorique;
    Apropos faceapropos;
    ui::Voisins voisins;
};

Application::Application(ui::Plateforme& plateforme)
    : salle_(std::make_unique<Salle>(plateforme)) {}

Application::~Application() = default;

void Application::demarrer() {
    salle_->form2().visible = true;
}

ui::Voisins& Application::voisins() {
    return salle_->voisins;
}

}  // namespace application
