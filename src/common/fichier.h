#pragma once

// The disk, as the rules see it: files of bytes that are read in one pass,
// appended to by whole lines, or replaced in one step. Paths are written with a
// backslash, relative to the working folder.

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <functional>
#include <memory>
#include <span>
#include <string>
#include <string_view>
#include <system_error>
#include <vector>

namespace common {

/// Most bytes of a line, its end included, and of an item in quotes. It is twice as far as the
/// 16-bit places of the rules reach, and what a window shows without being felt.
inline constexpr std::size_t limiteligne = 65536;
/// The same for a row of a list or of a revision file, whose solution may be a megabyte: it is laid
/// out only once it is answered wrong.
inline constexpr std::size_t limiterangee = 2UL * 1024 * 1024;

/// What this program refuses of a file, beside the system's own reasons.
enum class Ennui : std::uint8_t {
    PasUnFichier = 1,  ///< a pipe, a device...: nothing that keeps bytes
    Retenu,            ///< another program has had it locked for too long
    LigneTropLongue    ///< a line is past its limit
};
[[nodiscard]] std::error_code make_error_code(Ennui ennui);

/// A file open for reading.
class Flux {
  public:
    Flux() = default;
    Flux(const Flux&) = delete;
    Flux& operator=(const Flux&) = delete;
    virtual ~Flux() = default;
    /// Fills `tampon` from the file; `lus` is how many bytes came, 0 at the end.
    [[nodiscard]] virtual std::error_code lire(std::span<char> tampon, std::size_t& lus) = 0;
};

/// A file that only one program changes as long as this lives.
class Verrou {
  public:
    Verrou() = default;
    Verrou(const Verrou&) = delete;
    Verrou& operator=(const Verrou&) = delete;
    virtual ~Verrou() = default;
};

/// What programs ask of a disk. Every operation says its failure; none leaves half a change.
class Disque {
  public:
    Disque() = default;
    Disque(const Disque&) = delete;
    Disque& operator=(const Disque&) = delete;
    virtual ~Disque() = default;

    [[nodiscard]] virtual std::error_code ouvrir(std::string_view chemin,
                                                 std::unique_ptr<Flux>& flux) = 0;
    /// Appends bytes in one step; makes the file if it is missing. If the file ends in mid-line
    /// the appended bytes start a line of their own. Waits for a program that has locked the file,
    /// up to a limit. On failure the file is as it was. Without bytes it says whether the file can
    /// be written.
    [[nodiscard]] virtual std::error_code ajouter(std::string_view chemin,
                                                  std::string_view octets) = 0;
    /// Appends whole lines in one write and waits for nothing: not for a program that has the file
    /// locked (`Ennui::Retenu`), nor for the bytes to outlive a power cut, which may leave half of
    /// them. Makes the file if it is missing; if it ends in mid-line the bytes start a line of
    /// their own. A refusal leaves the file as it was, or empty if it was missing.
    [[nodiscard]] virtual std::error_code deposer(std::string_view chemin,
                                                  std::string_view octets) {
        return ajouter(chemin, octets);
    }
    /// Puts a whole new file in the place of the old one in one step.
    [[nodiscard]] virtual std::error_code remplacer(std::string_view chemin,
                                                    std::string_view octets) = 0;
    [[nodiscard]] virtual std::error_code creerdossier(std::string_view chemin) = 0;
    [[nodiscard]] virtual std::error_code supprimer(std::string_view chemin) = 0;
    /// Gives a file or a folder another name, in one step.
    [[nodiscard]] virtual std::error_code renommer(std::string_view ancien,
                                                   std::string_view nouveau) = 0;
    /// Waits for the other programs that have locked the file of that name, or that are appending
    /// to it, up to a limit (`Ennui::Retenu`), and keeps them from it.
    [[nodiscard]] virtual std::error_code verrouiller(std::string_view /*chemin*/,
                                                      std::unique_ptr<Verrou>& verrou) {
        verrou = std::make_unique<Verrou>();
        return {};
    }
    [[nodiscard]] virtual bool existe(std::string_view chemin) = 0;
    [[nodiscard]] virtual bool estdossier(std::string_view chemin) = 0;
};

/// The system's reason for a failure, in French.
[[nodiscard]] std::string raison(const std::error_code& erreur);

/// Lines of a file, one pass, without their line end (CR LF, or a lone LF), as bytes of
/// Windows-1252. A last line without a line end is a line; a lone CR at the end of the file is half
/// of one. Memory: one buffer, grown only for a longer line where the limit is higher. Throws
/// `Faute` ("<action> : <path>...") if the file cannot be read or a line is too long.
class Lignes {
  public:
    Lignes(Disque& disque, std::string_view chemin, std::string_view action,
           std::size_t limite = limiteligne);
    /// The lines of bytes that are at hand, of which `liretexte` has seen that none is too long.
    explicit Lignes(std::string_view contenu);
    /// The next line, valid until the next call; false at the end of the file.
    [[nodiscard]] bool suivante(std::string_view& ligne) {
        const auto* saut = sautdeligne(debut_);
        if (saut == nullptr)
            return lirepuissuivante(ligne);
        prendre(ligne, saut);
        return true;
    }
    /// Gives every line that is left, with its number, to `voir`.
    template <class Voir>
    void chaque(Voir&& voir) {
        for (std::string_view ligne; suivante(ligne);) {
            voir(ligne, numero_);
            chaquepresente(voir);
        }
    }
    /// Gives the whole lines that are in memory already.
    template <class Voir>
    void chaquepresente(Voir&& voir) {
        // In variables of its own, as it is what large files take their time in.
        auto numero = numero_;
        auto debut = debut_;
        while (const auto* saut = sautdeligne(debut)) {
            const auto fin = static_cast<std::size_t>(saut - tampon_.get());
            voir(jusqua(debut, fin), ++numero);
            debut = fin + 1;
        }
        numero_ = numero;
        debut_ = debut;
    }
    /// Number of the line last given, from 1.
    [[nodiscard]] std::size_t numero() const { return numero_; }
    /// The line last given had a line end.
    [[nodiscard]] bool terminee() const { return terminee_; }

    /// Looks for these bytes at each reading of the file, once for all its lines.
    void guetter(std::string_view signes) { signes_ = signes; }
    /// None of them stands in the bytes read at once with the line last given.
    [[nodiscard]] bool sanssigne() const { return sanssigne_; }

  private:
    [[nodiscard]] const char* sautdeligne(std::size_t depuis) const {
        if (depuis == fin_)
            return nullptr;
        return static_cast<const char*>(std::memchr(&tampon_[depuis], '\n', fin_ - depuis));
    }
    /// The line that ends at the line feed `fin`.
    [[nodiscard]] std::string_view jusqua(std::size_t debut, std::size_t fin) const {
        const bool retour = fin > debut && tampon_[fin - 1] == '\r';
        return {&tampon_[debut], fin - debut - (retour ? 1 : 0)};
    }
    void prendre(std::string_view& ligne, const char* saut) {
        const auto fin = static_cast<std::size_t>(saut - tampon_.get());
        ligne = jusqua(debut_, fin);
        debut_ = fin + 1;
        terminee_ = true;
        ++numero_;
    }
    friend class Items;
    bool lirepuissuivante(std::string_view& ligne);
    bool remplir();
    [[noreturn]] void troplong(std::size_t ligne) const;

    std::string chemin_;
    std::string action_;
    std::unique_ptr<Flux> flux_;
    std::size_t limite_ = limiteligne;
    std::size_t capacite_;
    std::unique_ptr<char[]> tampon_;
    std::string_view signes_;
    std::size_t debut_ = 0;
    std::size_t fin_ = 0;
    std::size_t numero_ = 0;
    bool fini_ = false;
    bool terminee_ = false;
    bool sanssigne_ = false;
};

/// Items of a text file, one pass, as bytes of Windows-1252: blanks at the start are skipped; an
/// item that begins with a double quote runs to the next one, over line ends too, and blanks and
/// one comma or line end behind it are consumed; any other item ends at a comma or a line end.
/// Nothing follows a comma at the very end of the file.
class Items {
  public:
    Items(Disque& disque, std::string_view chemin, std::string_view action,
          std::size_t limite = limiteligne);
    /// The items of bytes that are at hand; a fault in them names the file `chemin`.
    explicit Items(std::string_view contenu, std::string_view chemin = {},
                   std::string_view action = {});
    /// The next item (`lireitem`), valid until the next call; false at the end of the file.
    [[nodiscard]] bool lireitem(std::string_view& item) {
        if (ouverte_)
            return lirereste(item);
        if (!lignes_.suivante(item))
            return false;
        // In most files every line is an item.
        if (!lignes_.sanssigne()) {
            ouverte_ = true;
            reste_ = item;
            return lirereste(item);
        }
        sauterblancs(item);
        numero_ = lignes_.numero();
        return true;
    }
    /// Gives every item that is left, with its line, to `voir`.
    template <class Voir>
    void chaque(Voir&& voir) {
        for (std::string_view item; lireitem(item);) {
            voir(item, numero_);
            if (ouverte_ || !lignes_.sanssigne())
                continue;
            lignes_.chaquepresente([&](std::string_view ligne, std::size_t numero) {
                sauterblancs(ligne);
                voir(ligne, numero);
            });
        }
    }
    /// Number of the line on which the item last given begins, from 1.
    [[nodiscard]] std::size_t numero() const { return numero_; }

  private:
    static void sauterblancs(std::string_view& texte) {
        while (!texte.empty() && (texte.front() == ' ' || texte.front() == '\t'))
            texte.remove_prefix(1);
    }
    bool lirereste(std::string_view& item);
    void lireguillemets(std::string_view& item);
    void passervirgule();

    Lignes lignes_;
    std::string_view reste_;
    std::string item_;
    std::size_t numero_ = 0;
    bool ouverte_ = false;
};

/// The bytes of a text file, for a caller that bears its failure: `contenu` is what could be read,
/// whole lines if what follows is a line that is too long.
[[nodiscard]] std::error_code essayerliretexte(Disque& disque, std::string_view chemin,
                                               std::string& contenu,
                                               std::size_t limite = limiteligne);
/// The whole text file as bytes. Throws `Faute`, for a line that is too long too.
[[nodiscard]] std::string liretexte(Disque& disque, std::string_view chemin,
                                    std::string_view action, std::size_t limite = limiteligne);
/// What is wrong with a line past a limit.
[[nodiscard]] std::string lignetroplongue(std::size_t limite);
/// The whole file as bytes, whatever it holds. Throws `Faute`.
[[nodiscard]] std::string lirefichier(Disque& disque, std::string_view chemin,
                                      std::string_view action);
/// Appends `lignes` (UTF-8), each with CR LF, in one step. Throws `Faute`, for a line that could
/// not be read again too.
void ajouterlignes(Disque& disque, std::string_view chemin, std::span<const std::string> lignes,
                   std::string_view action, std::size_t limite = limiteligne);
/// Replaces the file by `lignes` (UTF-8), each with CR LF. Throws `Faute`.
void remplacerlignes(Disque& disque, std::string_view chemin, std::span<const std::string> lignes,
                     std::string_view action, std::size_t limite = limiteligne);
/// Makes the file, empty, if it is missing; leaves it as it is otherwise. Throws `Faute`.
void toucher(Disque& disque, std::string_view chemin, std::string_view action);

/// The report of a failed file operation.
[[nodiscard]] std::string rapportfichier(std::string_view action, std::string_view chemin,
                                         std::string_view ennui);
/// The report of a fault at a line of a file.
[[nodiscard]] std::string rapportligne(std::string_view action, std::string_view chemin,
                                       std::size_t ligne, std::string_view ennui);

}  // namespace common

template <>
struct std::is_error_code_enum<common::Ennui> : std::true_type {};
