#include "piloteqt.h"

#include <algorithm>
#include <array>
#include <memory>
#include <utility>
#include <vector>

#include <QAbstractButton>
#include <QApplication>
#include <QMenu>
#include <QMessageBox>
#include <QPainter>
#include <QPixmap>
#include <QPushButton>
#include <QTimer>
#include <QWindow>
#include <QtTest/QTest>

#include "accordqt.h"
#include "ecranqt.h"
#include "fenetre.h"
#include "messages.h"
#include "seance.h"
#include "texteqt.h"
#include "theme.h"

namespace banc {
namespace {

using ui::qt::versqt;

std::vector<std::string>& avertissements() {
    static std::vector<std::string> liste;
    return liste;
}

/// Warnings that tell what the machine of the tests lacks, and nothing of the program.
constexpr std::array sansobjet{"This plugin does not support", "QStandardPaths: XDG_RUNTIME_DIR",
                               // Of Windows, which Wine does not have all of.
                               "EnableNonClientDpiScaling()", "QPixmap::fromWinHICON()",
                               "SetProcessDpiAwarenessContext("};

void noter(QtMsgType genre, const QMessageLogContext& /*lieu*/, const QString& texte) {
    const bool connu = std::any_of(sansobjet.begin(), sansobjet.end(), [&](const char* debut) {
        return texte.startsWith(QLatin1String(debut));
    });
    if (genre != QtDebugMsg && genre != QtInfoMsg && !connu)
        avertissements().push_back(texte.toStdString());
}

/// Where to click a control: at the end of the text of a box, so that the caret comes there.
QPoint placeduclic(const ui::Controle& controle, const QWidget& widget) {
    constexpr int bord = 3;
    if (controle.genre() == ui::Genre::Boite && !controle.multiligne)
        return {widget.width() - bord, widget.height() / 2};
    return widget.rect().center();
}

/// Picks an entry of a menu that is on screen. The mouse comes over it in several moves, as a hand
/// does: Qt takes a click without them for the end of the one that opened the menu.
void choisiraction(QMenu& menu, QAction* action) {
    if (action == nullptr || !action->isEnabled() || !action->isVisible())
        throw Refus("à l'écran, l'entrée n'est pas dans le menu, ou grisée");
    const auto place = menu.actionGeometry(action).center();
    constexpr int pas = 8;
    for (int reste = pas; reste >= 0; --reste)
        souris(menu, place - QPoint(reste, 0), QEvent::MouseMove, Qt::NoButton);
    clic(menu, place);
}

struct Cle {
    int code;
    Qt::Key cle;
};

constexpr std::array cles{
    Cle{ui::touches::entree, Qt::Key_Return},
    Cle{ui::touches::haut, Qt::Key_Up},
    Cle{ui::touches::bas, Qt::Key_Down},
    Cle{ui::touches::gauche, Qt::Key_Left},
    Cle{ui::touches::droite, Qt::Key_Right},
    Cle{ui::touches::suppr, Qt::Key_Delete},
    Cle{ui::touches::retour, Qt::Key_Backspace},
    Cle{ui::touches::tab, Qt::Key_Tab},
    Cle{ui::touches::f8, Qt::Key_F8},
    Cle{ui::touches::f12, Qt::Key_F12},
    Cle{ui::touches::echap, Qt::Key_Escape},
};

}  // namespace

std::unique_ptr<QApplication> preparerqt(int& argc, char** argv) {
    qInstallMessageHandler(noter);
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", ORVANE_ECRAN);
    ui::qt::preparer();
    auto application = std::make_unique<QApplication>(argc, argv);
    ui::qt::habiller(*application);
    QApplication::setQuitOnLastWindowClosed(false);
    return application;
}

PiloteQt::PiloteQt(PlateformeSimulee& plateforme, const std::filesystem::path& dossier)
    : plateforme_(plateforme), fenetrier_(plateforme, {.minuteries = false, .dossier = dossier}) {
    plateforme.fenetre = [this](ui::Formulaire& form) { fenetrier_.accueillir(form); };
    plateforme.pompe = [this] {
        fenetrier_.rafraichir();
        QCoreApplication::processEvents();
    };
    plateforme.boite = [this](std::string_view texte, ui::Icone icone, bool ouinon,
                              ui::Reponse reponse) {
        return repondre(texte, icone, ouinon, reponse);
    };
    plateforme.affichage = [this](std::string_view rapport) {
        QTimer::singleShot(0, [] {
            if (auto* boite = qobject_cast<QMessageBox*>(QApplication::activeModalWidget()))
                boite->accept();
        });
        ui::qt::rapporter(fenetrier_, rapport);
    };
}

PiloteQt::~PiloteQt() {
    laissercourir();
}

QWidget& PiloteQt::fenetre(ui::Formulaire& formulaire) {
    suivre();
    auto* fenetre = fenetrier_.fenetre(formulaire);
    if (fenetre == nullptr || !fenetre->isVisible())
        throw Refus("à l'écran, la fenêtre n'est pas montrée : " + formulaire.nom());
    if (auto* menu = fenetrier_.menu(formulaire); menu != nullptr)
        fermermenu(formulaire);
    fenetre->activateWindow();
    plateforme_.bureau.activer(formulaire);
    attendredevant(*fenetre);
    return *fenetre;
}

QWidget& PiloteQt::devant() {
    auto* fenetre = QApplication::activeWindow();
    const auto* actif = plateforme_.bureau.actif();
    if (fenetre == nullptr || actif == nullptr || fenetre != fenetrier_.fenetre(*actif))
        throw Refus("à l'écran, la fenêtre en avant n'est pas celle du modèle");
    return *fenetre;
}

void PiloteQt::cliquer(ui::Controle& controle) {
    auto& cadre = fenetre(controle.formulaire());
    auto& widget = *fenetrier_.widget(controle);
    clic(cadre, placelibre(cadre, widget, placeduclic(controle, widget)));
}

void PiloteQt::doublecliquer(ui::Controle& controle) {
    auto& cadre = fenetre(controle.formulaire());
    auto& widget = *fenetrier_.widget(controle);
    const auto place = placelibre(cadre, widget, placeduclic(controle, widget));
    clic(cadre, place);
    souris(cadre, place, QEvent::MouseButtonDblClick, Qt::LeftButton);
    souris(cadre, place, QEvent::MouseButtonRelease, Qt::LeftButton);
}

/// The mouse comes from outside the window, through the system.
void PiloteQt::survoler(ui::Controle& controle) {
    auto& cadre = fenetre(controle.formulaire());
    const auto place = placelibre(cadre, *fenetrier_.widget(controle), {-1, -1});
    auto* systeme = cadre.windowHandle();
    QTest::mouseMove(systeme, {-1, -1});
    QTest::mouseMove(systeme, place);
}

/// By a button that clicks nothing.
void PiloteQt::relacher(ui::Controle& controle) {
    auto& cadre = fenetre(controle.formulaire());
    clic(cadre, placelibre(cadre, *fenetrier_.widget(controle), {-1, -1}), Qt::BackButton);
}

void PiloteQt::focaliser(ui::Controle& controle) {
    static_cast<void>(fenetre(controle.formulaire()));
    fenetrier_.widget(controle)->setFocus(Qt::TabFocusReason);
}

void PiloteQt::touche(int cle, const QString& texte, Qt::KeyboardModifiers modificateurs) {
    suivre();
    auto* systeme = devant().windowHandle();
    QTest::sendKeyEvent(QTest::Press, systeme, static_cast<Qt::Key>(cle), texte, modificateurs);
    if (plateforme_.fini())
        return;
    laissercourir();
    if (auto* active = QApplication::activeWindow(); active != nullptr)
        QTest::sendKeyEvent(QTest::Release, active->windowHandle(), static_cast<Qt::Key>(cle),
                            texte, modificateurs);
}

void PiloteQt::frapper(const Frappe& frappe) {
    if (frappe.caractere) {
        const auto texte = QString::fromUcs4(&*frappe.caractere, 1);
        touche(texte.toUpper().at(0).unicode(), texte, Qt::NoModifier);
        return;
    }
    const auto* place = std::find_if(cles.begin(), cles.end(),
                                     [&](const Cle& c) { return c.code == frappe.touche.code; });
    if (place == cles.end())
        throw OrdreFaux("touche sans clé");
    if (frappe.touche.maj)
        touche(Qt::Key_Backtab, {}, Qt::ShiftModifier);
    else
        touche(place->cle, {}, Qt::NoModifier);
}

void PiloteQt::selectionner(ui::Controle& /*boite*/) {
    touche(Qt::Key_A, {}, Qt::ControlModifier);
}

void PiloteQt::choisir(ui::Controle& liste, std::string_view entree) {
    auto& cadre = fenetre(liste.formulaire());
    auto& widget = *fenetrier_.widget(liste);
    constexpr int fleche = 5;  // pixels from the right edge, on the arrow
    clic(cadre, placelibre(cadre, widget, {widget.width() - fleche, widget.height() / 2}));
    laissercourir();
    auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
    if (menu == nullptr)
        throw Refus("à l'écran, la liste ne s'est pas déroulée");
    const auto voulue = versqt(entree).replace(QLatin1String("&"), QLatin1String("&&"));
    const auto actions = menu->actions();
    const auto place = std::find_if(actions.begin(), actions.end(),
                                    [&](const QAction* a) { return a->text() == voulue; });
    choisiraction(*menu, place == actions.end() ? nullptr : *place);
}

void PiloteQt::choisirentree(ui::Controle& entree) {
    suivre();
    auto* menu = fenetrier_.menu(entree.formulaire());
    if (menu == nullptr || !menu->isVisible())
        throw Refus("à l'écran, le menu n'est pas ouvert");
    choisiraction(*menu, menu->findChild<QAction*>(versqt(entree.nomcomplet())));
}

void PiloteQt::fermermenu(ui::Formulaire& formulaire) {
    auto* menu = fenetrier_.menu(formulaire);
    if (menu == nullptr || !menu->isVisible())
        throw Refus("à l'écran, le menu n'est pas ouvert");
    QTest::sendKeyEvent(QTest::Press, menu->windowHandle(), Qt::Key_Escape, {}, Qt::NoModifier);
    laissercourir();
}

void PiloteQt::fermer(ui::Formulaire& formulaire) {
    fenetre(formulaire).close();
}

bool PiloteQt::capturer(const std::filesystem::path& fichier) {
    suivre();
    std::vector<QPixmap> images;
    QSize taille(0, 0);
    for (auto* cadre : fenetrier_.fenetres()) {
        if (!cadre->isVisible())
            continue;
        images.push_back(cadre->grab());
        taille = {taille.width() + images.back().width(),
                  std::max(taille.height(), images.back().height())};
    }
    if (images.empty())
        return false;
    QPixmap ensemble(taille);
    ensemble.fill(Qt::gray);
    QPainter peintre(&ensemble);
    int gauche = 0;
    for (const auto& image : images) {
        peintre.drawPixmap(gauche, 0, image);
        gauche += image.width();
    }
    peintre.end();
    return ensemble.save(versqt(fichier.string()));
}

ui::Reponse PiloteQt::repondre(std::string_view texte, ui::Icone icone, bool ouinon,
                               ui::Reponse reponse) {
    const QString bouton = reponse == ui::Reponse::Ok    ? QStringLiteral("OK")
                           : reponse == ui::Reponse::Oui ? QStringLiteral("Oui")
                                                         : QStringLiteral("Non");
    QTimer::singleShot(0, [bouton, voulu = versqt(texte)] {
        auto* boite = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
        if (boite == nullptr || boite->text() != voulu)
            return avertissements().emplace_back("la boîte de message n'est pas à l'écran"), void();
        for (auto* b : boite->buttons()) {
            if (b->text() == bouton)
                return clic(*boite, b->mapTo(boite, b->rect().center()));
        }
        avertissements().push_back("la boîte n'a pas le bouton " + bouton.toStdString());
        boite->reject();
    });
    return ui::qt::demander(fenetrier_, texte, icone, ouinon);
}

/// Lets the windows follow the model.
void PiloteQt::suivre() {
    fenetrier_.rafraichir();
    laissercourir();
    const auto* actif = plateforme_.bureau.actif();
    auto* cadre = actif == nullptr ? nullptr : fenetrier_.fenetre(*actif);
    if (cadre == nullptr || QApplication::activePopupWidget() != nullptr)
        return;
    // A desktop never leaves the user without a window in front; the machine without a screen does
    // once a menu or a window has gone.
    if (QApplication::activeWindow() == nullptr)
        cadre->activateWindow();
    attendredevant(*cadre);
}

std::string PiloteQt::poser() {
    suivre();
    std::string ennuis;
    for (const auto& ennui : std::exchange(avertissements(), {}))
        ennuis.append(ennuis.empty() ? "avertissement de Qt : " : " ; ").append(ennui);
    return ennuis;
}

std::string PiloteQt::desaccord(const ui::Formulaire& formulaire) {
    const auto* cadre = fenetrier_.fenetre(formulaire);
    return cadre == nullptr ? "pas de fenêtre" : banc::desaccord(formulaire, *cadre);
}

std::string PiloteQt::desaccord(const ui::Controle& controle) {
    const auto& cadre = *fenetrier_.fenetre(controle.formulaire());
    const auto* widget = fenetrier_.widget(controle);
    if (controle.genre() == ui::Genre::Entree)
        return {};
    if (widget == nullptr)
        return cadre.habillee() ? "pas de widget" : "";
    return banc::desaccord(controle, cadre, *widget);
}

}  // namespace banc
