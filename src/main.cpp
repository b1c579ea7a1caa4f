#include <QApplication>

#include "application.h"
#include "fontessysteme.h"
#include "plateformeqt.h"
#include "preparation.h"
#include "theme.h"

int main(int argc, char** argv) {
    ui::qt::preparer();
    ui::qt::lirefontes();
    QApplication qt(argc, argv);
    QApplication::setApplicationName(QStringLiteral("Orvane"));
    QGuiApplication::setDesktopFileName(QStringLiteral("orvane"));
    ui::qt::habiller(qt);

    ui::qt::PlateformeQt plateforme;
    application::Application programme(plateforme);
    plateforme.fenetrier().executer([&] {
        const auto dossier = QApplication::applicationDirPath().toStdU16String();
        plateforme.installee(!installation::sinstaller(dossier).fournis.empty());
        programme.demarrer();
    });
    // A program that ends while it starts never enters the loop.
    return plateforme.fini() ? plateforme.statut() : QApplication::exec();
}
