#pragma once

// The lines and the items of text files, read from start to end as bytes of Windows-1252.

#include <cstddef>
#include <cstring>
#include <memory>
#include <string>
#include <string_view>

#include "disque.h"

namespace common {

/// Most bytes in a line, its end included, and in a quoted item. It is twice the range of the
/// 16-bit positions of the rules, and a window shows that much without delay.
inline constexpr std::size_t limiteligne = 65536;
/// The same for a row of a list or of a revision file, whose solution may be a megabyte: it is laid
/// out only once it is answered wrong.
inline constexpr std::size_t limiterangee = 2UL * 1024 * 1024;

/// Splits bytes in memory into lines: the one place that knows what a line is. A line ends with LF
/// or CR LF, neither of which belongs to it; the last line may lack its end. A final CR without LF
/// also ends its line. The lines are views of the bytes.
class Decoupage {
  public:
    Decoupage() = default;
    /// `numero`: how many lines stand before these bytes.
    explicit Decoupage(std::string_view octets, std::size_t numero = 0)
        : debut_(octets.data()), fin_(octets.data() + octets.size()), numero_(numero) {}

    /// The next line; false at the end of the bytes.
    [[nodiscard]] bool suivante(std::string_view& ligne) {
        if (debut_ == fin_)
            return false;
        const auto reste = static_cast<std::size_t>(fin_ - debut_);
        const auto* saut = static_cast<const char*>(std::memchr(debut_, '\n', reste));
        const auto* fin = saut == nullptr ? fin_ : saut;
        const bool retour = fin != debut_ && fin[-1] == '\r';
        ligne = {debut_, static_cast<std::size_t>(fin - debut_) - (retour ? 1 : 0)};
        debut_ = saut == nullptr ? fin_ : saut + 1;
        ++numero_;
        return true;
    }
    /// Number of the line last given, from 1.
    [[nodiscard]] std::size_t numero() const { return numero_; }
    /// The line last given had a line end.
    [[nodiscard]] bool terminee() const { return debut_[-1] == '\n' || debut_[-1] == '\r'; }
    /// What has not been given yet.
    [[nodiscard]] std::string_view reste() const {
        return {debut_, static_cast<std::size_t>(fin_ - debut_)};
    }

  private:
    const char* debut_ = nullptr;
    const char* fin_ = nullptr;
    std::size_t numero_ = 0;
};

/// A file, or bytes in memory, as a run of slices of whole lines. Memory for a file: one buffer,
/// which grows only for a line longer than a block where the limit allows one.
class Tranches {
  public:
    /// Throws `Faute` if the file cannot be opened.
    Tranches(Disque& disque, std::string_view chemin, std::string_view action, std::size_t limite);
    /// One slice, `contenu`. A fault in it names the file `chemin`.
    Tranches(std::string_view contenu, std::string_view chemin, std::string_view action);

    /// Puts the lines of the next slice in the place of `lignes`, which has given all of its own,
    /// and goes on counting; false at the end. Throws `Faute` if the file cannot be read or a line
    /// is too long.
    [[nodiscard]] bool suivante(Decoupage& lignes);
    /// Most bytes in a line.
    [[nodiscard]] std::size_t limite() const { return limite_; }
    /// Throws the `Faute` of a line, or of an item that begins on it, that is too long.
    [[noreturn]] void troplong(std::size_t ligne) const;

  private:
    [[nodiscard]] std::size_t remplir(std::size_t ligne);
    void agrandir();

    std::string chemin_;
    std::string action_;
    std::unique_ptr<Flux> flux_;  ///< none for bytes in memory
    std::size_t limite_ = limiteligne;
    std::size_t capacite_ = 0;
    std::unique_ptr<char[]> tampon_;
    std::string_view reste_;  ///< behind the last slice: the start of a line
    bool fini_ = false;
};

/// The lines of a file or of bytes in memory. Throws `Faute` ("<action> : <path>...") if the file
/// cannot be read or a line is too long.
class Lignes {
  public:
    Lignes(Disque& disque, std::string_view chemin, std::string_view action,
           std::size_t limite = limiteligne)
        : tranches_(disque, chemin, action, limite) {}
    /// Lines of any length, as views of `contenu`.
    explicit Lignes(std::string_view contenu) : tranches_(contenu, {}, {}) {}

    /// The next line, valid until the next call; false at the end.
    [[nodiscard]] bool suivante(std::string_view& ligne) {
        return lignes_.suivante(ligne) || (tranches_.suivante(lignes_) && lignes_.suivante(ligne));
    }
    /// Calls `voir` with each remaining line and its number.
    template <class Voir>
    void chaque(Voir&& voir) {
        do {
            // A local copy stays in registers, and large files spend their time here.
            auto lignes = lignes_;
            for (std::string_view ligne; lignes.suivante(ligne);)
                voir(ligne, lignes.numero());
            lignes_ = lignes;
        } while (tranches_.suivante(lignes_));
    }
    /// Number of the line last given, from 1.
    [[nodiscard]] std::size_t numero() const { return lignes_.numero(); }
    /// The line last given had a line end.
    [[nodiscard]] bool terminee() const { return lignes_.terminee(); }

  private:
    Tranches tranches_;
    Decoupage lignes_;
};

/// The items of a text file or of bytes in memory. Blanks at the start of an item are skipped. An
/// item that begins with a double quote runs to the next double quote, across line ends too; blanks
/// and one comma or line end behind it are consumed. Any other item ends at a comma or a line end.
/// A comma at the very end of the file begins no item.
class Items {
  public:
    Items(Disque& disque, std::string_view chemin, std::string_view action,
          std::size_t limite = limiteligne)
        : tranches_(disque, chemin, action, limite) {}
    /// The items of bytes in memory, which have to outlive them; a fault names the file `chemin`.
    explicit Items(std::string_view contenu, std::string_view chemin = {},
                   std::string_view action = {})
        : tranches_(contenu, chemin, action) {}

    /// The next item (`lireitem`), valid until the next call; false at the end.
    [[nodiscard]] bool lireitem(std::string_view& item) {
        if (ouverte_)
            return lirereste(item);
        if (!lignesuivante(item))
            return false;
        if (!nues_) {
            ouverte_ = true;
            reste_ = item;
            return lirereste(item);
        }
        sauterblancs(item);
        numero_ = lignes_.numero();
        return true;
    }
    /// Calls `voir` with each remaining item and the number of its line.
    template <class Voir>
    void chaque(Voir&& voir) {
        for (std::string_view item; lireitem(item);) {
            voir(item, numero_);
            if (ouverte_ || !nues_)
                continue;
            // A local copy stays in registers, and large files spend their time here.
            auto lignes = lignes_;
            while (lignes.suivante(item)) {
                sauterblancs(item);
                voir(item, lignes.numero());
            }
            lignes_ = lignes;
        }
    }
    /// Number of the line on which the item last given begins, from 1.
    [[nodiscard]] std::size_t numero() const { return numero_; }

  private:
    static void sauterblancs(std::string_view& texte) {
        while (!texte.empty() && (texte.front() == ' ' || texte.front() == '\t'))
            texte.remove_prefix(1);
    }
    [[nodiscard]] bool lignesuivante(std::string_view& ligne) {
        return lignes_.suivante(ligne) || (tranchesuivante() && lignes_.suivante(ligne));
    }
    [[nodiscard]] bool tranchesuivante();
    bool lirereste(std::string_view& item);
    void lireguillemets(std::string_view& item);
    void passervirgule();

    Tranches tranches_;
    Decoupage lignes_;
    std::string_view reste_;  ///< of the line under way
    std::string item_;
    std::size_t numero_ = 0;
    bool nues_ = false;     ///< no comma or quote in this slice: each line is one item
    bool ouverte_ = false;  ///< the line under way has more items
};

}  // namespace common
