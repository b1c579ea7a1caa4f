#pragma once

// Programs beside the one that tests: ended at once, running at the same time, or run to their end.

#include <cstdint>
#include <filesystem>
#include <functional>
#include <string>
#include <vector>

namespace essais {

using Mots = std::vector<std::string>;

constexpr int tue = 42;  ///< exit status of a program that was killed

/// What a program of its own does; its answer is the exit status. It knows nothing but its
/// arguments: on Windows it is the test program, started anew.
using Action = int (*)(const Mots& mots);

/// A program that runs beside this one.
class Enfant {
  public:
    Enfant(Action action, const Mots& mots);
    Enfant(const Enfant&) = delete;
    Enfant& operator=(const Enfant&) = delete;
    ~Enfant();
    /// Waits for its end. Its exit status; -1 if it ended otherwise.
    [[nodiscard]] int attendre();

  private:
    std::intptr_t programme_;
};

/// Runs an action in a program of its own, to its end. The exit status.
[[nodiscard]] int enfant(Action action, const Mots& mots);

/// Runs an action in a copy of this program, with all that it has in memory, and gives its exit
/// status. Windows copies no program: there the action runs in this one, and one that dies
/// (`mourir`) goes on with a disk that does nothing any more (`mort`).
[[nodiscard]] int encopie(const std::function<int()>& action);

/// `encopie` leaves this program as it was.
[[nodiscard]] bool copiable();

/// Ends this program at once, as if it were killed; inside `encopie` on Windows it returns.
void mourir(int statut = tue);
/// This program should have ended.
[[nodiscard]] bool mort();

/// Waits for a file that another program makes.
void attendrefichier(const std::filesystem::path& chemin);

/// Most memory that this process has held so far, in bytes.
[[nodiscard]] std::size_t memoire();

/// What a program left when it ended.
struct Fin {
    int etat = -1;
    std::string sortie;
    std::string erreurs;
};

/// Runs a program to its end, without a screen, in the folder `ici`.
[[nodiscard]] Fin lancer(const std::string& programme, const Mots& arguments,
                         const std::filesystem::path& ici);

}  // namespace essais
