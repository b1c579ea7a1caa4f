#include "fichier.h"

#include <algorithm>
#include <array>
#include <cstring>

#include "faute.h"
#include "texte.h"

namespace common {
namespace {

constexpr std::size_t bloc = 128UL * 1024;
constexpr std::string_view findeligne = "\r\n";

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

std::string octets(std::span<const std::string> lignes) {
    std::string resultat;
    for (const auto& ligne : lignes)
        resultat.append(vers1252(ligne)).append(findeligne);
    return resultat;
}

}  // namespace

std::string raison(const std::error_code& erreur) {
    struct Cas {
        std::errc code;
        const char* texte;
    };
    static constexpr std::array cas{
        Cas{std::errc::no_such_file_or_directory, "fichier introuvable"},
        Cas{std::errc::permission_denied, "accès refusé"},
        Cas{std::errc::operation_not_permitted, "opération refusée par le système"},
        Cas{std::errc::no_space_on_device, "le disque est plein"},
        Cas{std::errc::read_only_file_system, "le disque est en lecture seule"},
        Cas{std::errc::is_a_directory, "c'est un dossier et non un fichier"},
        Cas{std::errc::not_a_directory, "un des dossiers du chemin n'en est pas un"},
        Cas{std::errc::filename_too_long, "nom trop long pour le système"},
        Cas{std::errc::file_exists, "un fichier de ce nom existe déjà"},
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

Lignes::Lignes(Disque& disque, std::string_view chemin, std::string_view action)
    : chemin_(chemin), action_(action), flux_(ouvrirsur(disque, chemin, action)), tampon_(bloc) {}

Lignes::Lignes(std::string_view contenu)
    : tampon_(contenu.begin(), contenu.end()), fin_(contenu.size()), fini_(true) {}

/// Reads more bytes behind what is left of the buffer; false at the end of the file.
bool Lignes::remplir() {
    if (fini_)
        return false;
    if (debut_ > 0) {
        std::memmove(tampon_.data(), tampon_.data() + debut_, fin_ - debut_);
        fin_ -= debut_;
        debut_ = 0;
    }
    if (fin_ == tampon_.size())
        tampon_.resize(tampon_.size() * 2);
    const auto lus = liresur(*flux_, std::span(tampon_).subspan(fin_), chemin_, action_);
    fini_ = lus == 0;
    fin_ += lus;
    return !fini_;
}

bool Lignes::suivante(std::string_view& ligne) {
    std::size_t cherche = debut_;
    const char* saut = nullptr;
    while (true) {
        if (fin_ > cherche)
            saut = static_cast<const char*>(
                std::memchr(tampon_.data() + cherche, '\n', fin_ - cherche));
        if (saut != nullptr)
            break;
        const auto dejavu = fin_ - debut_;
        if (!remplir())
            break;
        cherche = debut_ + dejavu;
    }
    if (saut == nullptr && debut_ == fin_)
        return false;
    const auto* depart = tampon_.data() + debut_;
    auto taille = saut == nullptr ? fin_ - debut_ : static_cast<std::size_t>(saut - depart);
    debut_ += taille + (saut == nullptr ? 0 : 1);
    if (saut != nullptr && taille > 0 && depart[taille - 1] == '\r')
        --taille;
    ligne = std::string_view(depart, taille);
    terminee_ = saut != nullptr;
    ++numero_;
    return true;
}

Items::Items(Disque& disque, std::string_view chemin, std::string_view action)
    : lignes_(disque, chemin, action) {}

Items::Items(std::string_view contenu) : lignes_(contenu) {}

bool Items::lireitem(std::string_view& item) {
    if (!ouverte_) {
        if (!lignes_.suivante(reste_))
            return false;
        ouverte_ = true;
    }
    numero_ = lignes_.numero();
    reste_.remove_prefix(std::min(reste_.find_first_not_of(" \t"), reste_.size()));
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
        fin = reste_.find('"');
    }
    item_.append(reste_.substr(0, fin));
    reste_.remove_prefix(fin + 1);
    reste_.remove_prefix(std::min(reste_.find_first_not_of(" \t"), reste_.size()));
    if (reste_.empty())
        ouverte_ = false;
    else if (reste_.front() == ',')
        passervirgule();
    item = item_;
}

std::error_code essayerlire(Disque& disque, std::string_view chemin, std::string& contenu) {
    contenu.clear();
    std::unique_ptr<Flux> flux;
    auto erreur = disque.ouvrir(chemin, flux);
    std::size_t place = 0;
    std::size_t lus = 1;
    while (!erreur && lus > 0) {
        contenu.resize(std::max(contenu.size(), place + bloc));
        lus = 0;
        erreur = flux->lire(std::span(contenu).subspan(place), lus);
        place += lus;
    }
    contenu.resize(place);
    return erreur;
}

std::string lirefichier(Disque& disque, std::string_view chemin, std::string_view action) {
    std::string contenu;
    if (const auto erreur = essayerlire(disque, chemin, contenu))
        throw Faute(rapportfichier(action, chemin, raison(erreur)));
    return contenu;
}

void ajouterlignes(Disque& disque, std::string_view chemin, std::span<const std::string> lignes,
                   std::string_view action) {
    if (const auto erreur = disque.ajouter(chemin, octets(lignes)))
        throw Faute(rapportfichier(action, chemin, raison(erreur)));
}

void remplacerlignes(Disque& disque, std::string_view chemin, std::span<const std::string> lignes,
                     std::string_view action) {
    if (const auto erreur = disque.remplacer(chemin, octets(lignes)))
        throw Faute(rapportfichier(action, chemin, raison(erreur)));
}

void toucher(Disque& disque, std::string_view chemin, std::string_view action) {
    if (disque.existe(chemin))
        return;
    if (const auto erreur = disque.ajouter(chemin, {}))
        throw Faute(rapportfichier(action, chemin, raison(erreur)));
}

}  // namespace common
