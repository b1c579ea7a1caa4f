// orvane-carnet: what stands beside the trainer, in one window.

#include <exception>
#include <filesystem>
#include <iostream>
#include <vector>

#include <QApplication>
#include <QIcon>
#include <QLocale>
#include <QMessageBox>
#include <QPalette>

#include "arguments.h"
#include "console.h"
#include "disquereel.h"
#include "faute.h"
#include "fenetrecarnet.h"
#include "preparation.h"
#include "reponses.h"
#include "textesqt.h"
#include "traduction.h"

namespace {

enum Etat { bien = 0, enfaute = 1, mauvaisusage = 2 };

/// Goes to the play folder, unless one was named; false once the player has read why not.
bool aller(const carnet::Options& options) {
    try {
        if (options.dossier.empty())
            installation::sinstaller(QApplication::applicationDirPath().toStdU16String());
        return true;
    } catch (const common::Faute& faute) {
        std::cerr << faute.what() << '\n';
        QMessageBox::critical(nullptr, QApplication::applicationDisplayName(),
                              carnet::qt(faute.what()));
        return false;
    }
}

/// The icon of the trainer, of the play folder.
QIcon icone(const carnet::Options& options) {
    QIcon icone;
    for (const int cote : {16, 32, 48, 128})
        icone.addFile(carnet::qt((options.dossier / "images").string()) +
                      QStringLiteral("/orvane_%1.png").arg(cote));
    return icone;
}

int ouvrir(const carnet::Options& options, int& nombre, char** arguments) {
    const QApplication application(nombre, arguments);
    QApplication::setApplicationName(QStringLiteral("orvane-carnet"));
    QApplication::setApplicationDisplayName(QStringLiteral("Orvane"));
    QGuiApplication::setDesktopFileName(QStringLiteral("orvane-carnet"));
    QLocale::setDefault(QLocale(QLocale::French, QLocale::France));
    carnet::traduire();
    // Some themes leave this one out: a grey that reads on light and on dark.
    QPalette palette;
    palette.setColor(QPalette::PlaceholderText, QColor(128, 128, 128));
    QApplication::setPalette(palette);
    if (!aller(options))
        return enfaute;
    QApplication::setWindowIcon(icone(options));
    carnet::Seance seance(options);
    carnet::Fenetrecarnet fenetre(seance);
    fenetre.show();
    seance.relire();
    seance.relirejoueurs();
    return QApplication::exec();
}

int repondre(const carnet::Options& options, int& nombre, char** arguments) {
    const QCoreApplication application(nombre, arguments);
    if (options.dossier.empty())
        installation::sinstaller(QCoreApplication::applicationDirPath().toStdU16String());
    common::DisqueReel disque(options.dossier);
    std::string avis;
    const auto reponse =
        options.action == carnet::Action::progres
            ? carnet::progres(disque, options.util)
            : carnet::echeances(disque, options.util, options.jour.value_or(carnet::aujourdhui()),
                                options.plafond, avis);
    if (!avis.empty())
        std::cerr << avis << '\n';
    if (const auto* refus = std::get_if<carnet::Refus>(&reponse)) {
        std::cerr << refus->raison << '\n';
        return enfaute;
    }
    std::cout << std::get<std::string>(reponse) << std::flush;
    if (!std::cout) {
        std::cerr << "La réponse n'a pas pu s'écrire.\n";
        return enfaute;
    }
    return bien;
}

}  // namespace

int main(int nombre, char** arguments) {
    try {
        common::preparerconsole();
        const auto options = carnet::lireoptions(common::arguments(nombre, arguments));
        if (options.action == carnet::Action::aide) {
            std::cout << carnet::aide();
            return bien;
        }
        if (options.action == carnet::Action::version) {
            std::cout << "orvane-carnet " ORVANE_VERSION "\n";
            return bien;
        }
        if (!options.dossier.empty() && !std::filesystem::is_directory(options.dossier)) {
            std::cerr << options.dossier.string() << " : ce n'est pas un dossier.\n";
            return enfaute;
        }
        if (options.action != carnet::Action::fenetre)
            return repondre(options, nombre, arguments);
        return ouvrir(options, nombre, arguments);
    } catch (const carnet::MauvaisUsage& usage) {
        std::cerr << usage.what() << "\nVoir orvane-carnet --help.\n";
        return mauvaisusage;
    } catch (const std::exception& faute) {
        std::cerr << faute.what() << '\n';
        return enfaute;
    }
}
