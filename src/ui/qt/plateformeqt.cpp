#include "plateformeqt.h"

#include <filesystem>

#include <QApplication>
#include <QDateTime>
#include <QDesktopServices>
#include <QDir>
#include <QUrl>

#include "coquille.h"
#include "hautparleur.h"
#include "messages.h"
#include "programme.h"
#include "texteqt.h"

namespace ui::qt {
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

void PlateformeQt::sonner() {
    QApplication::beep();
}

void PlateformeQt::ouvrir(std::string_view cible) {
    const auto texte = versqt(cible);
    if (texte.contains(QLatin1String("://")))
        QDesktopServices::openUrl(QUrl(texte));
    else
        ouvrirfichier(QDir::current().absoluteFilePath(fenetrier_.chemin(cible)));
}

bool PlateformeQt::telecharger(std::string_view adresse, std::string_view chemin,
                               const Exigence& exigence) {
    fenetrier_.rafraichir();
    return telechargement_.enregistrer(adresse, fenetrier_.chemin(chemin), exigence);
}

std::string PlateformeQt::dossierprogramme() {
    if (installee_)
        return {};
    std::error_code oubli;  // without a working folder none is the same
    return common::dossierprogramme(
        common::appelsdusysteme(),
        std::filesystem::path(QCoreApplication::applicationDirPath().toStdU16String()),
        std::filesystem::current_path(oubli));
}

Reponse PlateformeQt::demander(std::string_view texte, Icone icone, bool ouinon) {
    return qt::demander(fenetrier_, texte, icone, ouinon);
}

void PlateformeQt::jouer(std::string_view fichier) {
    fenetrier_.rafraichir();
    qt::jouer(fenetrier_.minuteur(), fenetrier_.chemin(fichier));
}

void PlateformeQt::pomper() {
    fenetrier_.rafraichir();
    // The player's own events wait: they must not find a list or a login half done.
    QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
}

void PlateformeQt::rapporter(std::string_view rapport) {
    qt::rapporter(fenetrier_, rapport);
}

void PlateformeQt::arreter(int statut) {
    QCoreApplication::exit(statut);
}

}  // namespace ui::qt
