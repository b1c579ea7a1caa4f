#include "lignes.h"

#include <algorithm>

#include "faute.h"
#include "fichier.h"
#include "texte.h"

namespace common {
namespace {

/// Read at once. No limit is lower, so a line that lies whole in a block is short enough.
constexpr std::size_t bloc = limiteligne;

/// What makes an item other than a whole line, a blank at its start aside.
bool sanssigne(std::string_view octets) {
    return octets.find(',') == std::string_view::npos && octets.find('"') == std::string_view::npos;
}

}  // namespace

Tranches::Tranches(Disque& disque, std::string_view chemin, std::string_view action,
                   std::size_t limite)
    : chemin_(chemin),
      action_(action),
      limite_(limite),
      capacite_(bloc),
      tampon_(std::make_unique_for_overwrite<char[]>(capacite_)) {
    if (const auto erreur = disque.ouvrir(chemin, flux_))
        throw Faute(rapportfichier(action, chemin, raison(erreur)));
}

Tranches::Tranches(std::string_view contenu, std::string_view chemin, std::string_view action)
    : chemin_(chemin), action_(action), reste_(contenu), fini_(true) {}

bool Tranches::suivante(Decoupage& lignes) {
    auto fin = std::string_view::npos;
    while (fin == std::string_view::npos && !fini_) {
        const auto lus = remplir(lignes.numero() + 1);
        const auto neufs = reste_.size() - lus;  // what stood before them holds no line end
        fin = reste_.substr(neufs).rfind('\n');
        if (fin != std::string_view::npos)
            fin += neufs;
    }
    const auto tranche = reste_.substr(0, fin == std::string_view::npos ? fin : fin + 1);
    reste_.remove_prefix(tranche.size());
    lignes = Decoupage(tranche, lignes.numero());
    return !tranche.empty();
}

/// Moves the rest to the start of the buffer and reads behind it: how many bytes, 0 at the end of
/// the file. `ligne` is the number of the line that the rest begins.
std::size_t Tranches::remplir(std::size_t ligne) {
    if (reste_.size() >= limite_)
        troplong(ligne);
    if (reste_.size() == capacite_)
        agrandir();
    else if (!reste_.empty())
        std::memmove(tampon_.get(), reste_.data(), reste_.size());
    std::size_t lus = 0;
    const std::span libre(tampon_.get() + reste_.size(), capacite_ - reste_.size());
    if (const auto erreur = flux_->lire(libre, lus))
        throw Faute(rapportfichier(action_, chemin_, raison(erreur)));
    fini_ = lus == 0;
    // Not every system lets a file be replaced that is still open.
    if (fini_)
        flux_.reset();
    reste_ = {tampon_.get(), reste_.size() + lus};
    return lus;
}

void Tranches::agrandir() {
    capacite_ = std::min(2 * capacite_, limite_);
    auto plusgrand = std::make_unique_for_overwrite<char[]>(capacite_);
    std::copy(reste_.begin(), reste_.end(), plusgrand.get());
    tampon_ = std::move(plusgrand);
}

void Tranches::troplong(std::size_t ligne) const {
    throw Faute(rapportligne(action_, chemin_, ligne, lignetroplongue(limite_)));
}

bool Items::tranchesuivante() {
    const bool suite = tranches_.suivante(lignes_);
    nues_ = sanssigne(lignes_.reste());
    return suite;
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
        if (!lignesuivante(reste_)) {
            reste_ = {};
            ouverte_ = false;
            item = item_;
            return;
        }
        item_.append(findeligne);
        if (item_.size() >= tranches_.limite())
            tranches_.troplong(numero_);
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

}  // namespace common
