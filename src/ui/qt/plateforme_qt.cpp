#include "plateforme_qt.h"

#include <memory>

#include <QApplication>
#include <QDateTime>
#include <QDesktopServices>
#include <QDir>
#include <QMessageBox>
#include <QPointer>
#include <QPushButton>
#include <QUrl>

#include "fenetre.h"
#include "hautparleur.h"
#include "texteqt.h"

namespace ui::qt {
namespace {

const QString programme = QStringLiteral("Orvane");

QMessageBox::Icon iconeqt(Icone icone) {
    switch (icone) {
        case Icone::Information:
            return QMessageBox::Information;
        case Icone::Exclamation:
            return QMessageBox::Warning;
        case Icone::Question:
            return QMessageBox::Question;
        default:
            return QMessageBox::NoIcon;
    }
}

/// A message box over a window; it lives until it is answered, or with its window.
QMessageBox* boitedemessage(QWidget* parent, QMessageBox::Icon icone, std::string_view texte) {
    auto* boite = new QMessageBox(icone, programme, versqt(texte), QMessageBox::NoButton, parent);
    boite->setTextFormat(Qt::PlainText);
    boite->setTextInteractionFlags(Qt::TextSelectableByMouse);
    boite->setWindowModality(Qt::ApplicationModal);
    return boite;
}

}  // namespace

PlateformeQt::PlateformeQt(Telechargement::Limites limites)
    : fenetrier_(*this), telechargement_(fenetrier_.minuteur(), limites) {}

common::Instant PlateformeQt::maintenant() {
    const auto instant = QDateTime::currentDateTime();
    return {.annee = instant.date().year(),
            .mois = instant.date().month(),
            .jour = instant.date().day(),
            .heure = instant.time().hour(),
            .minute = instant.time().minute(),
            .seconde = instant.time().second()};
}

void PlateformeQt::bip() {
    QApplication::beep();
}

void PlateformeQt::ouvrir(std::string_view cible) {
    const auto texte = versqt(cible);
    const bool adresse = texte.contains(QLatin1String("://"));
    QDesktopServices::openUrl(
        adresse ? QUrl(texte)
                : QUrl::fromLocalFile(QDir::current().absoluteFilePath(fenetrier_.chemin(cible))));
}

bool PlateformeQt::telecharger(std::string_view adresse, std::string_view chemin) {
    fenetrier_.rafraichir();
    const auto contenu = telechargement_.lire(adresse);
    return contenu && !disque_.remplacer(chemin, *contenu);
}

Reponse PlateformeQt::demander(std::string_view texte, Icone icone, bool ouinon) {
    fenetrier_.rafraichir();
    const QPointer<QMessageBox> boite = boitedemessage(fenetrier_.enavant(), iconeqt(icone), texte);
    const auto* oui = boite->addButton(ouinon ? QStringLiteral("Oui") : QStringLiteral("OK"),
                                       QMessageBox::YesRole);
    if (ouinon)
        boite->setEscapeButton(boite->addButton(QStringLiteral("Non"), QMessageBox::NoRole));
    boite->exec();
    if (boite.isNull())
        return ouinon ? Reponse::Non : Reponse::Ok;
    const std::unique_ptr<QMessageBox> fin(boite.data());
    if (!ouinon)
        return Reponse::Ok;
    return fin->clickedButton() == oui ? Reponse::Oui : Reponse::Non;
}

void PlateformeQt::jouer(std::string_view fichier) {
    fenetrier_.rafraichir();
    qt::jouer(fenetrier_.minuteur(), fenetrier_.chemin(fichier));
}

void PlateformeQt::pomper() {
    fenetrier_.rafraichir();
    QCoreApplication::processEvents();
}

void PlateformeQt::rapporter(std::string_view rapport) {
    const QPointer<QMessageBox> boite =
        boitedemessage(fenetrier_.enavant(), QMessageBox::Critical, rapport);
    boite->addButton(QStringLiteral("OK"), QMessageBox::AcceptRole);
    boite->exec();
    delete boite.data();
}

void PlateformeQt::arreter(int statut) {
    QCoreApplication::exit(statut);
}

}  // namespace ui::qt
