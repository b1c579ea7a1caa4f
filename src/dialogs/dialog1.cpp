#include "dialog1.h"

#include <string>

#include "adresses.h"
#include "dimensions.h"
#include "echap.h"

namespace dialogs {
namespace {

constexpr int largeurtexte = 9300;  // twips
constexpr int hauteurtexte = 4500;
constexpr int marge = 240;
constexpr int cotedeappui = 60;
constexpr int twipsparpixel = 15;

constexpr const char* images7lettres = "images\\7l_6anagrammes.png";
constexpr const char* images8lettres = "images\\8l_6anagrammes.png";

std::string textesurorvane(const common::VariablesForm3& menu) {
    using namespace common::adresses;
    std::string texte;
    const auto ligne = [&texte](std::string_view contenu) { texte.append(contenu).append("\n"); };
    ligne("Orvane - version " + menu.versionlocale + " du " + menu.dateversion);
    ligne("");
    ligne("A propos de l'auteur :");
    ligne("");
    ligne(auteur);
    ligne(contact);
    ligne("");
    ligne("Toutes vos remarques, questions, bugs, etc. sont les bienvenus.");
    ligne("");
    ligne("Merci de m'envoyer un courriel quand vous utilisez ou faites passer le logiciel.");
    ligne("Logiciel distribué gratuitement mais messages et dons de remerciements appréciés :-)");
    ligne(page);
    return texte;
}

}  // namespace

Dialog1::Dialog1(ui::Plateforme& plateforme, const common::VariablesForm3& form3)
    : Formulaire(plateforme, "Dialog1"),
      form3_(form3),
      image1_(ajouter(ui::Genre::Image, "Image1")),
      image2_(ajouter(ui::Genre::Image, "Image2")),
      appui_(ajouter(ui::Genre::Boite, "Text2")),
      texte_(ajouter(ui::Genre::Boite, "Text1")) {
    image1_.image = images7lettres;
    image1_.accessible = "Tirages de 7 lettres avec 6 anagrammes et plus";
    image2_.image = images8lettres;
    image2_.accessible = "Tirages de 8 lettres avec 6 anagrammes et plus";
    for (auto* image : {&image1_, &image2_})
        image->visible = false;
    texte_.multiligne = true;
    texte_.verrou = true;
    texte_.accessible = "A propos d'Orvane";
    texte_.placer({marge, marge, largeurtexte - 2 * marge, hauteurtexte - 2 * marge});
    appui_.verrou = true;
    appui_.accessible = "Fin du texte";
    appui_.placer({2 * marge, 2 * marge, cotedeappui, cotedeappui});  // behind the text
    tabulation({&texte_, &appui_});
    fermerparechap(*this);
    dimensionner(largeurtexte, hauteurtexte);
}

void Dialog1::dimensionner(int largeurforme, int hauteurforme) {
    largeur = largeurforme;
    hauteur = hauteurforme;
}

void Dialog1::montrertexte() {
    montrer();
    dimensionner(largeurtexte, hauteurtexte);
    texte = "A propos de Orvane";
    apropos();
}

void Dialog1::apropos() {
    image1_.visible = false;
    image2_.visible = false;
    texte_.visible = true;
    appui_.visible = true;
    texte_.texte = textesurorvane(form3_);
    donnerfocus(appui_);
}

void Dialog1::montrerimage(int index) {
    texte_.visible = false;
    appui_.visible = false;
    texte = "Tirages 7 et 8 lettres avec 6 anagrammes et plus";
    montrer();
    const bool sept = index == 1;
    auto& montree = sept ? image1_ : image2_;
    auto& cachee = sept ? image2_ : image1_;
    dimensionner(largeurtexte, hauteurtexte);
    if (const auto pixels = dimensions(plateforme().disque(), montree.image())) {
        dimensionner(pixels->largeur * twipsparpixel, pixels->hauteur * twipsparpixel);
        montree.placer({0, 0, largeur(), hauteur()});
    }
    montree.visible = true;
    cachee.visible = false;
}

}  // namespace dialogs
