#include "bureauqt.h"

#include <QApplication>
#include <QTest>

namespace essais {

using ui::Genre;

BureauQt::BureauQt()
    : fenetrier(std::make_unique<ui::qt::Fenetrier>(
          plateforme, ui::qt::Fenetrier::Reglages{.minuteries = false, .dossier = {}})),
      forme(std::make_unique<ui::Formulaire>(plateforme, "Form1")) {
    plateforme.pompe = [this] { fenetrier->rafraichir(); };
    forme->texte = "Essai";
    forme->largeur = 600 * twips;
    forme->hauteur = 400 * twips;
    cadre = &poser(Genre::Cadre, "Frame1", 0, {10, 300, 200, 90});
    etiquette = &poser(Genre::Etiquette, "Label1", -1, {20, 10, 200, 24});
    etiquette->texte = "Série";
    for (int i = 0; i < 3; ++i) {
        tirage.push_back(&poser(Genre::Boite, "tirage", i, {20, 50 + 50 * i, 150, 40}));
        tirage.back()->verrou = true;
        tirage.back()->fond = ui::couleurs::tirageaurepos;
        solution.push_back(&poser(Genre::Boite, "solution", i, {180, 50 + 50 * i, 150, 40}));
        solution.back()->fond = ui::couleurs::solutionaurepos;
        solution.back()->taille = 18;
        solution.back()->alignement = ui::Alignement::Centre;
        solution.back()->aspect = ui::Aspect::Case;
    }
    valider = &poser(Genre::Bouton, "valider", -1, {350, 50, 120, 40});
    valider->texte = "Valider";
    tuile = &poser(Genre::Bouton, "Command1", 0, {350, 100, 56, 56});
    tuile->aspect = ui::Aspect::Tuile;
    tuile->fond = ui::couleurs::tuile;
    tuile->texte = "A";
    app = &poser(Genre::Case, "app", -1, {350, 170, 150, 30});
    app->texte = "Apprentissage";
    user = &poser(Genre::Liste, "user", -1, {350, 210, 200, 30});
    user->choix = {"Anne", "Zoé & fils"};
    notes = &poser(Genre::Boite, "InfoSourisText", -1, {350, 250, 200, 100});
    notes->multiligne = true;
    marque = &poser(Genre::Image, "Image1", 0, {250, 10, 28, 28});
    ligne = &poser(Genre::Ligne, "Line1", -1, {20, 40, 500, 1});
    ajouter = &forme->ajouter(Genre::Entree, "addrevmenu");
    ajouter->texte = "Ajouter au fichier de révision";
    retirer = &forme->ajouter(Genre::Entree, "supprevmenu");
    retirer->texte = "Supprimer du fichier de révision";
    retirer->actif = false;
    menu = &forme->ajoutermenu("MenuContextuel");
    menu->entrees = {ajouter, retirer};
    for (auto* entree : menu->entrees)
        suivre(*entree);
    forme->mettredefaut(*valider);
    forme->tabulation({solution[0], solution[1], solution[2], valider, tuile, app, user, notes});
}

BureauQt::~BureauQt() {
    laisser();
}

void BureauQt::SetUp() {
    fenetrier->accueillir(*forme);
    montrer(*forme);
    fenetre().resize(600, 400);
    laisser();
    journal.clear();
}

ui::Controle& BureauQt::poser(Genre genre, std::string_view nom, int index, const QRect& place) {
    auto& controle = forme->ajouter(genre, nom, index);
    controle.placer(
        {place.x() * twips, place.y() * twips, place.width() * twips, place.height() * twips});
    suivre(controle);
    return controle;
}

void BureauQt::suivre(ui::Controle& controle) {
    const auto noter = [this, nom = controle.nomcomplet()](const char* quoi) {
        return [this, nom, quoi] { journal.push_back(nom + quoi); };
    };
    controle.entree = noter("+");
    controle.sortie = noter("-");
    controle.clic = noter("!");
    controle.relache = noter("^");
}

void BureauQt::montrer(ui::Formulaire& autre) {
    autre.visible = true;
    fenetrier->rafraichir();
    ASSERT_TRUE(QTest::qWaitForWindowActive(fenetrier->fenetre(autre)));
    laisser();
}

QWidget& BureauQt::widget(const ui::Controle& controle) const {
    auto* trouve = fenetrier->widget(controle);
    EXPECT_NE(trouve, nullptr) << controle.nomcomplet();
    return *trouve;
}

void BureauQt::laisser() {
    QCoreApplication::sendPostedEvents();
    QCoreApplication::processEvents();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

void BureauQt::taper(const QString& texte) const {
    QTest::keyClicks(fenetre().focusWidget(), texte);
}

void BureauQt::touche(int cle, Qt::KeyboardModifiers avec) const {
    QTest::keyClick(fenetre().focusWidget(), static_cast<Qt::Key>(cle), avec);
}

void BureauQt::cliquer(const ui::Controle& controle, Qt::MouseButton bouton) const {
    QTest::mouseClick(&widget(controle), bouton);
}

void BureauQt::cliquer(const ui::Controle& controle, const QPoint& place,
                       Qt::KeyboardModifiers avec) const {
    QTest::mouseClick(&widget(controle), Qt::LeftButton, avec, place);
}

void BureauQt::doublecliquer(const ui::Controle& controle) const {
    auto& cible = widget(controle);
    QTest::mouseClick(&cible, Qt::LeftButton);
    QTest::mouseDClick(&cible, Qt::LeftButton);
    QTest::mouseRelease(&cible, Qt::LeftButton);
}

QImage BureauQt::image(const ui::Controle& controle) const {
    return fenetre().grab(widget(controle).geometry()).toImage();
}

QColor BureauQt::couleur(const ui::Controle& controle, QPoint place) const {
    const auto vue = image(controle);
    if (place.x() < 0)
        place.rx() += vue.width();
    if (place.y() < 0)
        place.ry() += vue.height();
    return vue.pixelColor(place);
}

}  // namespace essais
