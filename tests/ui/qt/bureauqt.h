#pragma once

#include <memory>
#include <string>
#include <vector>

#include <QColor>
#include <QImage>
#include <QPoint>
#include <QString>
#include <gtest/gtest.h>

#include "fenetre.h"
#include "fenetrier.h"
#include "plateformesimulee.h"

namespace essais {

/// A form with a control of every genre, its boxes in two columns, on a simulated machine and in a
/// real window off screen, one pixel of the window for one of the design.
class BureauQt : public testing::Test {
  protected:
    static constexpr int twips = 15;  ///< a pixel of the design

    BureauQt();
    ~BureauQt() override;

    void SetUp() override;

    /// Makes a control at a place in pixels of the design.
    ui::Controle& poser(ui::Genre genre, std::string_view nom, int index, const QRect& place);
    /// Shows a form and waits until its window is active.
    void montrer(ui::Formulaire& autre);
    [[nodiscard]] QWidget& widget(const ui::Controle& controle) const;
    [[nodiscard]] ui::qt::Fenetre& fenetre() const { return *fenetrier->fenetre(*forme); }
    /// Lets events run until none is left.
    static void laisser();

    /// Keys go to the window, as the system sends them.
    void taper(const QString& texte) const;
    void touche(int cle, Qt::KeyboardModifiers avec = Qt::NoModifier) const;
    void cliquer(const ui::Controle& controle, Qt::MouseButton bouton = Qt::LeftButton) const;
    void cliquer(const ui::Controle& controle, const QPoint& place,
                 Qt::KeyboardModifiers avec = Qt::NoModifier) const;
    void doublecliquer(const ui::Controle& controle) const;

    /// A picture of what a control shows.
    [[nodiscard]] QImage image(const ui::Controle& controle) const;
    /// The colour of a place of a control, which may be counted from its right and bottom edges.
    [[nodiscard]] QColor couleur(const ui::Controle& controle, QPoint place) const;

    banc::PlateformeSimulee plateforme{"."};
    std::unique_ptr<ui::qt::Fenetrier> fenetrier;
    std::unique_ptr<ui::Formulaire> forme;
    std::vector<std::string> journal;

    ui::Controle* etiquette = nullptr;
    std::vector<ui::Controle*> tirage;    ///< locked boxes
    std::vector<ui::Controle*> solution;  ///< boxes to type in
    ui::Controle* valider = nullptr;      ///< the default button
    ui::Controle* tuile = nullptr;
    ui::Controle* app = nullptr;   ///< check box
    ui::Controle* user = nullptr;  ///< combo box
    ui::Controle* notes = nullptr;
    ui::Controle* marque = nullptr;
    ui::Controle* cadre = nullptr;
    ui::Controle* ligne = nullptr;
    ui::Controle* ajouter = nullptr;  ///< entries of the pop-up menu
    ui::Controle* retirer = nullptr;
    ui::Menu* menu = nullptr;

  private:
    void suivre(ui::Controle& controle);
};

}  // namespace essais
