#include "seance.h"

#include "textesqt.h"

namespace carnet {

Seance::Seance(const Options& options)
    : dossier_(options.dossier.empty() ? std::filesystem::path(".") : options.dossier),
      disque_(dossier_),
      chemins_(options.chemins),
      tache_(this) {}

void Seance::relire() {
    using Lus = std::variant<Motsenvigueur, std::string>;
    const auto lus = std::make_shared<Lus>();
    tache_.lancer(
        [this, lus](const Avance& avance) {
            avance(0, "Lecture des mots");
            *lus = lire(disque_, chemins_);
        },
        [this, lus](const QString& faute) {
            mots_ = {};
            ennui_ = faute;
            if (auto* mots = std::get_if<Motsenvigueur>(lus.get()))
                mots_ = std::move(*mots);
            else
                ennui_ = qt(std::get<std::string>(*lus));
            emit motschanges();
        });
}

}  // namespace carnet
