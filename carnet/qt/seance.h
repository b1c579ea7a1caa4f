#pragma once

// What the pages share: the play folder, the words in force, and the one long work.

#include <filesystem>
#include <memory>

#include <QObject>

#include "arguments.h"
#include "disquereel.h"
#include "motsenvigueur.h"
#include "tache.h"

namespace carnet {

class Seance : public QObject {
    Q_OBJECT
  public:
    explicit Seance(const Options& options);

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

    /// Reads the words of the folder, in the thread of the long work.
    void relire();

  signals:
    /// The words in force, or why there are none.
    void motschanges();

  private:
    std::filesystem::path dossier_;
    common::DisqueReel disque_;
    atelier::Chemins chemins_;
    Motsenvigueur mots_;
    QString ennui_;
    Tache tache_;
};

}  // namespace carnet
