#pragma once

// What the pages share: the play folder, the words in force, the player and the player's work, and
// the long-running tasks.

#include <filesystem>
#include <functional>
#include <memory>

#include <QObject>
#include <QStringList>

#include "arguments.h"
#include "disquereel.h"
#include "motsenvigueur.h"
#include "suivi.h"
#include "tache.h"

namespace carnet {

class Seance : public QObject {
    Q_OBJECT
  public:
    /// `jour` returns the present day.
    explicit Seance(const Options& options, std::function<Jour()> jour = aujourdhui);

    [[nodiscard]] common::Disque& disque() { return disque_; }
    [[nodiscard]] const std::filesystem::path& dossier() const { return dossier_; }
    [[nodiscard]] const atelier::Chemins& chemins() const { return chemins_; }
    [[nodiscard]] Tache& tache() { return tache_; }
    /// Null before the words are read, and where there are none.
    [[nodiscard]] const std::shared_ptr<const recherche::Glossaire>& glossaire() const {
        return mots_.glossaire;
    }
    [[nodiscard]] const recherche::Envigueur& envigueur() const { return mots_.envigueur; }
    /// Why there are no words, in French; empty while they are read and where there are some.
    [[nodiscard]] const QString& ennui() const { return ennui_; }

    /// The players of the folder; `joueur` is the one looked at, empty if there is none.
    [[nodiscard]] const QStringList& joueurs() const { return joueurs_; }
    [[nodiscard]] const QString& joueur() const { return joueur_; }
    void choisirjoueur(const QString& nom);
    /// The player's work; null until it has been read, and if there is no player.
    [[nodiscard]] const std::shared_ptr<const Suivi>& suivi() const { return suivi_; }
    [[nodiscard]] Jour jour() const { return jour_(); }
    /// The task that reads the player's work.
    [[nodiscard]] Tache& lecture() { return lecture_; }
    /// Looks for players and for the work of the chosen one, and reads what has changed.
    void relirejoueurs();

    /// Reads the words of the folder, in the thread of the long work.
    void relire();

  signals:
    /// The words in force, or why there are none.
    void motschanges();
    void joueurschanges();
    void suivichange();

  private:
    void liresuivi();
    [[nodiscard]] std::string signature() const;

    std::filesystem::path dossier_;
    common::DisqueReel disque_;
    atelier::Chemins chemins_;
    Motsenvigueur mots_;
    QString ennui_;
    std::function<Jour()> jour_;
    QStringList joueurs_;
    QString joueur_;
    std::shared_ptr<const Suivi> suivi_;
    std::string lu_;  ///< signature of the files that `suivi_` was read from
    Tache tache_;
    Tache lecture_;
};

}  // namespace carnet
