// The keys of a form: preview, default button, Tab, and the editing of text boxes.

#include <algorithm>

#include "formulaire.h"
#include "texte.h"

namespace ui {
namespace {

/// Leaves nothing collected in a box, also where a handler throws.
class Amas {
  public:
    explicit Amas(Controle& boite) : boite_(boite) {}
    Amas(const Amas&) = delete;
    Amas& operator=(const Amas&) = delete;
    ~Amas() { boite_.oublieramas(); }

  private:
    Controle& boite_;
};

bool editable(const Controle& controle) {
    return controle.genre() == Genre::Boite || controle.genre() == Genre::Liste;
}

}  // namespace

void Formulaire::enfoncer(Touche touche, std::optional<char32_t> caractere) {
    survenir(*this, toucheenfoncee, touche);
    if (touche.avalee)
        return;
    if (touche.code == touches::tab) {
        tabuler(touche.maj);
        return;
    }
    auto* controle = focus_;
    if (controle == nullptr || touchedebouton(*controle, touche))
        return;
    survenir(*controle, controle->toucheenfoncee, touche);
    if (touche.avalee || focus_ != controle || !editable(*controle))
        return;
    editer(*controle, touche);
    if (caractere && !touche.ctrl)
        taper(*controle, *caractere);
}

/// Enter clicks the button that has the focus, or from elsewhere the default button; the blank
/// clicks a button or a check box.
bool Formulaire::touchedebouton(Controle& controle, const Touche& touche) {
    const bool bouton = controle.genre() == Genre::Bouton;
    Controle* cible = nullptr;
    if (touche.code == touches::entree && !controle.multiligne)
        cible = bouton ? &controle : defaut_;
    if (touche.code == touches::espace && (bouton || controle.genre() == Genre::Case))
        cible = &controle;
    if (cible == nullptr || !accessible(*cible))
        return false;
    if (cible == &controle)
        cliquer(controle);
    else
        survenir(*cible, cible->clic);
    return true;
}

void Formulaire::relacher(int code) {
    if (focus_ != nullptr)
        survenir(*focus_, focus_->toucherelachee, code);
}

/// Keys that move the caret, select or erase.
void Formulaire::editer(Controle& controle, const Touche& touche) {
    const auto bout = common::longueur(controle.texte());
    const auto place = controle.curseur();
    const auto deplacer = [&](std::size_t curseur) {
        controle.selectionner(touche.maj ? controle.ancre() : curseur, curseur);
    };
    switch (touche.code) {
        case touches::gauche:
            deplacer(place > 0 ? place - 1 : 0);
            break;
        case touches::droite:
            deplacer(std::min(place + 1, bout));
            break;
        case touches::origine:
            deplacer(0);
            break;
        case touches::fin:
            deplacer(bout);
            break;
        case 'A':
            if (touche.ctrl)
                controle.toutselectionner();
            break;
        case touches::suppr:
            if (!controle.verrou())
                controle.effacer(false);
            break;
        case touches::retour: {
            if (controle.verrou())
                break;
            int code = touches::retour;
            survenir(controle, controle.caractere, code);
            if (code == touches::retour)
                controle.effacer(true);
            break;
        }
        default:
            break;
    }
}

/// What a typed character writes: the handler may change or drop it. One that the Western code page
/// lacks is refused, as no file could hold it.
std::string Formulaire::accepter(Controle& controle, char32_t caractere) {
    if (controle.verrou())
        return {};
    const auto numero = common::code1252(caractere);
    if (!numero) {
        plateforme_.bip();
        return {};
    }
    int code = *numero;
    survenir(controle, controle.caractere, code);
    constexpr int premiervisible = 32;
    if (controle.multiligne && code == touches::entree)
        return "\n";
    if (code < premiervisible || code > 0xFF)
        return {};
    return common::utf8(common::caractere1252(static_cast<unsigned char>(code)));
}

void Formulaire::taper(Controle& controle, char32_t caractere) {
    const auto accepte = accepter(controle, caractere);
    if (!accepte.empty())
        controle.inserer(accepte);
}

void Formulaire::tabuler(bool enarriere) {
    if (ordre_.empty())
        return;
    const auto* repere = focus_ != nullptr ? focus_ : repere_;
    const auto place = std::find(ordre_.begin(), ordre_.end(), repere);
    const auto n = ordre_.size();
    // From outside the order, Tab enters at its start and Shift+Tab at its end.
    auto i = static_cast<std::size_t>(place - ordre_.begin());
    if (place == ordre_.end())
        i = enarriere ? 0 : n - 1;
    for (std::size_t pas = 0; pas < n; ++pas) {
        i = enarriere ? (i + n - 1) % n : (i + 1) % n;
        if (!accessible(*ordre_[i]))
            continue;
        donnerfocus(*ordre_[i]);
        return;
    }
}

void Formulaire::coller(std::string_view texteacoller) {
    auto* controle = focus_;
    if (controle == nullptr || !editable(*controle) || controle->verrou() ||
        !controle->pressepapiers)
        return;
    const Amas amas(*controle);
    plateforme_.unseulbip([&] {
        for (const auto& lettre : common::caracteres(texteacoller)) {
            if (focus_ != controle)
                break;
            controle->amasser(accepter(*controle, common::premier(lettre)));
        }
        controle->deposer();
    });
}

std::string Formulaire::couper() {
    auto* controle = focus_;
    if (controle == nullptr || !editable(*controle) || controle->verrou() ||
        !controle->pressepapiers || controle->selection() == 0)
        return {};
    auto coupe = controle->texteselectionne();
    controle->effacer(false);
    survenir(*controle, controle->toucherelachee, touches::suppr);
    return coupe;
}

}  // namespace ui
