#include "fichier.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstring>

#include "faute.h"
#include "texte.h"

namespace common {
namespace {

/// A line that lies in it whole is short enough.
constexpr std::size_t bloc = limiteligne;
constexpr std::string_view findeligne = "\r\n";
/// What makes an item other than a whole line, a blank at its start aside.
constexpr std::string_view signes = ",\"";

std::unique_ptr<Flux> ouvrirsur(Disque& disque, std::string_view chemin, std::string_view action) {
    std::unique_ptr<Flux> flux;
    if (const auto erreur = disque.ouvrir(chemin, flux))
        throw Faute(rapportfichier(action, chemin, raison(erreur)));
    return flux;
}

std::size_t liresur(Flux& flux, std::span<char> tampon, std::string_view chemin,
                    std::string_view action) {
    std::size_t lus = 0;
    if (const auto erreur = flux.lire(tampon, lus))
        throw Faute(rapportfichier(action, chemin, raison(erreur)));
    return lus;
}

std::string octets(std::span<const std::string> lignes, std::string_view chemin,
                   std::string_view action, std::size_t limite) {
    std::string resultat;
    for (const auto& ligne : lignes) {
        const auto avant = resultat.size();
        resultat.append(vers1252(ligne)).append(findeligne);
        if (resultat.size() - avant > limite)
            throw Faute(rapportfichier(action, chemin, lignetroplongue(limite)));
    }
    return resultat;
}

class Ennuis : public std::error_category {
  public:
    [[nodiscard]] const char* name() const noexcept override { return "orvane"; }
    [[nodiscard]] std::string message(int code) const override {
        switch (static_cast<Ennui>(code)) {
            case Ennui::PasUnFichier:
                return "ce n'est pas un fichier ordinaire";
            case Ennui::Retenu:
                return "un autre programme le retient ; la limite d'attente est de 5 secondes. "
                       "Fermez "
                       "l'autre programme et recommencez";
            case Ennui::LigneTropLongue:
                break;
        }
        return "une ligne est trop longue";
    }
};

/// The bytes of a file, as long as `admettre` likes what has come.
template <class Admettre>
std::error_code lire(Disque& disque, std::string_view chemin, std::string& contenu,
                     const Admettre& admettre) {
    contenu.clear();
    std::unique_ptr<Flux> flux;
    auto erreur = disque.ouvrir(chemin, flux);
    std::size_t lus = 1;
    while (!erreur && lus > 0) {
        const auto place = contenu.size();
        contenu.resize(place + bloc);
        lus = 0;
        erreur = flux->lire(std::span(contenu).subspan(place), lus);
        contenu.resize(place + lus);
        if (!admettre())
            return Ennui::LigneTropLongue;
    }
    return erreur;
}

/// Looks at the lines from the place `ligne` on, which goes to where the last one begins. False if
/// one is too long: `contenu` then ends before it.
bool mesurer(std::string& contenu, std::size_t& ligne, std::size_t limite) {
    while (true) {
        const auto saut = contenu.find('\n', ligne);
        if (std::min(saut, contenu.size()) - ligne >= limite) {
            contenu.resize(ligne);
            return false;
        }
        if (saut == std::string::npos)
            return true;
        ligne = saut + 1;
    }
}

}  // namespace

std::string lignetroplongue(std::size_t limite) {
    return "la ligne est trop longue ; la limite est de " + std::to_string(limite) + " octets";
}

std::error_code make_error_code(Ennui ennui) {
    static const Ennuis categorie;
    return {static_cast<int>(ennui), categorie};
}

std::string raison(const std::error_code& erreur) {
    if (erreur.category() == make_error_code(Ennui::Retenu).category())
        return erreur.message();
    struct Cas {
        std::errc code;
        const char* texte;
    };
    static constexpr std::array cas{
        Cas{std::errc::no_such_file_or_directory, "fichier introuvable"},
        Cas{std::errc::permission_denied, "accès refusé"},
        Cas{std::errc::operation_not_permitted, "opération refusée par le système"},
        Cas{std::errc::no_space_on_device, "le disque est plein"},
        Cas{static_cast<std::errc>(EDQUOT), "votre part du disque est pleine"},
        Cas{std::errc::file_too_large, "fichier trop grand pour ce disque"},
        Cas{std::errc::read_only_file_system, "le disque est en lecture seule"},
        Cas{std::errc::is_a_directory, "c'est un dossier et non un fichier"},
        Cas{std::errc::not_a_directory, "un des dossiers du chemin n'en est pas un"},
        Cas{std::errc::filename_too_long, "nom trop long pour le système"},
        Cas{std::errc::file_exists, "un fichier de ce nom existe déjà"},
        Cas{std::errc::directory_not_empty, "un dossier de ce nom existe déjà"},
        Cas{std::errc::too_many_files_open, "trop de fichiers ouverts"},
        Cas{std::errc::io_error, "erreur du disque"},
        Cas{std::errc::invalid_argument, "nom refusé par le système"},
    };
    const auto* trouve =
        std::find_if(cas.begin(), cas.end(), [&](const Cas& c) { return erreur == c.code; });
    if (trouve != cas.end())
        return trouve->texte;
    return "erreur du système n° " + std::to_string(erreur.value());
}

std::string rapportfichier(std::string_view action, std::string_view chemin,
                           std::string_view ennui) {
    return std::string(action) + " : fichier « " + std::string(chemin) +
           " » : " + std::string(ennui) + ".";
}

std::string rapportligne(std::string_view action, std::string_view chemin, std::size_t ligne,
                         std::string_view ennui) {
    return std::string(action) + " : fichier « " + std::string(chemin) + " », ligne " +
           std::to_string(ligne) + " : " + std::string(ennui) + ".";
}

Lignes::Lignes(Disque& disque, std::string_view chemin, std::string_view action, std::size_t limite)
    : chemin_(chemin),
      action_(action),
      flux_(ouvrirsur(disque, chemin, action)),
      limite_(limite),
      capacite_(bloc),
      tampon_(std::make_unique_for_overwrite<char[]>(capacite_)) {}

Lignes::Lignes(std::string_view contenu)
    : capacite_(contenu.size()),
      tampon_(std::make_unique_for_overwrite<char[]>(capacite_)),
      fin_(contenu.size()),
      fini_(true) {
    std::copy(contenu.begin(), contenu.end(), tampon_.get());
}

/// Reads more bytes behind what is left of the buffer; false at the end of the file.
bool Lignes::remplir() {
    if (fini_)
        return false;
    if (fin_ - debut_ >= limite_)
        troplong(numero_ + 1);
    if (fin_ - debut_ == capacite_) {
        capacite_ = std::min(2 * capacite_, limite_);
        auto plusgrand = std::make_unique_for_overwrite<char[]>(capacite_);
        std::copy_n(tampon_.get(), fin_, plusgrand.get());
        tampon_ = std::move(plusgrand);
    }
    std::memmove(tampon_.get(), tampon_.get() + debut_, fin_ - debut_);
    fin_ -= debut_;
    debut_ = 0;
    const auto lus =
        liresur(*flux_, std::span(tampon_.get() + fin_, capacite_ - fin_), chemin_, action_);
    fini_ = lus == 0;
    fin_ += lus;
    const std::string_view contenu(tampon_.get(), fin_);
    sanssigne_ = std::none_of(signes_.begin(), signes_.end(), [&](char signe) {
        return contenu.find(signe) != std::string_view::npos;
    });
    return !fini_;
}

void Lignes::troplong(std::size_t ligne) const {
    throw Faute(rapportligne(action_, chemin_, ligne, lignetroplongue(limite_)));
}

bool Lignes::lirepuissuivante(std::string_view& ligne) {
    const char* saut = nullptr;
    std::size_t dejavu = fin_ - debut_;
    while (saut == nullptr && remplir()) {
        saut = sautdeligne(debut_ + dejavu);
        dejavu = fin_ - debut_;
    }
    if (saut != nullptr) {
        prendre(ligne, saut);
        return true;
    }
    if (debut_ == fin_)
        return false;
    ligne = std::string_view(tampon_.get() + debut_, fin_ - debut_);
    terminee_ = ligne.back() == '\r';
    if (terminee_)
        ligne.remove_suffix(1);
    debut_ = fin_;
    ++numero_;
    return true;
}

Items::Items(Disque& disque, std::string_view chemin, std::string_view action, std::size_t limite)
    : lignes_(disque, chemin, action, limite) {
    lignes_.guetter(signes);
}

Items::Items(std::string_view contenu, std::string_view chemin, std::string_view action)
    : lignes_(contenu) {
    lignes_.chemin_ = chemin;
    lignes_.action_ = action;
}

/// The next item of the line that is under way.
bool Items::lirereste(std::string_view& item) {
    numero_ = lignes_.numero();
    sauterblancs(reste_);
    if (!reste_.empty() && reste_.front() == '"') {
        lireguillemets(item);
        return true;
    }
    const auto virgule = reste_.find(',');
    item = reste_.substr(0, virgule);
    ouverte_ = virgule != std::string_view::npos;
    if (ouverte_) {
        reste_.remove_prefix(virgule);
        passervirgule();
    }
    return true;
}

void Items::passervirgule() {
    reste_.remove_prefix(1);
    ouverte_ = !reste_.empty() || lignes_.terminee();
}

void Items::lireguillemets(std::string_view& item) {
    reste_.remove_prefix(1);
    item_.clear();
    auto fin = reste_.find('"');
    while (fin == std::string_view::npos) {
        item_.append(reste_);
        if (!lignes_.suivante(reste_)) {
            reste_ = {};
            ouverte_ = false;
            item = item_;
            return;
        }
        item_.append(findeligne);
        if (item_.size() >= lignes_.limite_)
            lignes_.troplong(numero_);
        fin = reste_.find('"');
    }
    item_.append(reste_.substr(0, fin));
    reste_.remove_prefix(fin + 1);
    sauterblancs(reste_);
    if (reste_.empty())
        ouverte_ = false;
    else if (reste_.front() == ',')
        passervirgule();
    item = item_;
}

std::error_code essayerliretexte(Disque& disque, std::string_view chemin, std::string& contenu,
                                 std::size_t limite) {
    std::size_t ligne = 0;
    return lire(disque, chemin, contenu, [&] { return mesurer(contenu, ligne, limite); });
}

std::string liretexte(Disque& disque, std::string_view chemin, std::string_view action,
                      std::size_t limite) {
    std::string contenu;
    const auto erreur = essayerliretexte(disque, chemin, contenu, limite);
    if (erreur == Ennui::LigneTropLongue) {
        const auto lignes = std::count(contenu.begin(), contenu.end(), '\n');
        throw Faute(rapportligne(action, chemin, static_cast<std::size_t>(lignes) + 1,
                                 lignetroplongue(limite)));
    }
    if (erreur)
        throw Faute(rapportfichier(action, chemin, raison(erreur)));
    return contenu;
}

std::string lirefichier(Disque& disque, std::string_view chemin, std::string_view action) {
    std::string contenu;
    if (const auto erreur = lire(disque, chemin, contenu, [] { return true; }))
        throw Faute(rapportfichier(action, chemin, raison(erreur)));
    return contenu;
}

void ajouterlignes(Disque& disque, std::string_view chemin, std::span<const std::string> lignes,
                   std::string_view action, std::size_t limite) {
    if (const auto erreur = disque.ajouter(chemin, octets(lignes, chemin, action, limite)))
        throw Faute(rapportfichier(action, chemin, raison(erreur)));
}

void remplacerlignes(Disque& disque, std::string_view chemin, std::span<const std::string> lignes,
                     std::string_view action, std::size_t limite) {
    if (const auto erreur = disque.remplacer(chemin, octets(lignes, chemin, action, limite)))
        throw Faute(rapportfichier(action, chemin, raison(erreur)));
}

void toucher(Disque& disque, std::string_view chemin, std::string_view action) {
    if (const auto erreur = disque.ajouter(chemin, {}))
        throw Faute(rapportfichier(action, chemin, raison(erreur)));
}

}  // namespace common
