#include <stdexcept>
#include <string>
#include <string_view>
#include <zlib.h>

#include "image.h"
#include "octets.h"

namespace assets {

namespace {

const Bytef* debut(std::string_view octets) {
    return reinterpret_cast<const Bytef*>(octets.data());
}

void bloc(std::string& fichier, std::string_view nom, std::string_view contenu) {
    grosboutien(fichier, static_cast<std::uint32_t>(contenu.size()));
    const std::string corps = std::string(nom) + std::string(contenu);
    fichier += corps;
    grosboutien(fichier, static_cast<std::uint32_t>(
                             crc32_z(crc32_z(0, nullptr, 0), debut(corps), corps.size())));
}

/// Throws `std::runtime_error` if there is no memory for it.
std::string comprimer(std::string_view octets) {
    const auto longueur = static_cast<uLong>(octets.size());  // of 32 bits on some systems
    auto taille = compressBound(longueur);
    std::string flux(taille, '\0');
    if (compress2(reinterpret_cast<Bytef*>(flux.data()), &taille, debut(octets), longueur,
                  Z_BEST_COMPRESSION) != Z_OK)
        throw std::runtime_error("zlib");
    flux.resize(taille);
    return flux;
}

/// Appends the pixels from the bottom row up: blue, green, red, opacity.
void ajouterpixels(std::string& fichier, const Image& image) {
    const std::size_t rangee = static_cast<std::size_t>(image.largeur) * 4;
    for (std::size_t debut = image.pixels.size(); debut > 0; debut -= rangee) {
        for (std::size_t i = debut - rangee; i < debut; i += 4) {
            for (const int canal : {2, 1, 0, 3}) {
                fichier += static_cast<char>(image.pixels[i + static_cast<std::size_t>(canal)]);
            }
        }
    }
}

/// Appends one bit a pixel, from the bottom row up, set where nothing is to be seen; rows are
/// filled up to four bytes.
void ajoutermasque(std::string& fichier, const Image& image) {
    const auto cote = static_cast<std::size_t>(image.largeur);
    for (std::size_t y = cote; y-- > 0;) {
        std::string rangee((cote + 31) / 32 * 4, '\0');
        for (std::size_t x = 0; x < cote; ++x) {
            if (image.pixels[(y * cote + x) * 4 + 3] == 0)
                rangee[x / 8] = static_cast<char>(rangee[x / 8] | 0x80 >> x % 8);
        }
        fichier += rangee;
    }
}

/// Appends the header of a BMP file, whose pixels stand right behind the description.
void enteter(std::string& fichier, std::uint32_t description, std::uint32_t pixels) {
    constexpr std::uint32_t entete = 14;
    fichier += "BM";
    petitboutien(fichier, entete + description + pixels, 4);
    petitboutien(fichier, 0, 4);
    petitboutien(fichier, entete + description, 4);
}

/// Appends how every description of a bitmap begins.
void decrire(std::string& fichier, std::uint32_t description, int largeur, int hauteur,
             std::uint32_t bits) {
    petitboutien(fichier, description, 4);
    petitboutien(fichier, static_cast<std::uint32_t>(largeur), 4);
    petitboutien(fichier, static_cast<std::uint32_t>(hauteur), 4);
    petitboutien(fichier, 1, 2);  // planes
    petitboutien(fichier, bits, 2);
}

/// The size of the oldest description of Windows, and what ends it: not compressed; no size,
/// density or palette need be told.
constexpr std::uint32_t descriptionancienne = 40;
constexpr std::size_t financienne = 24;

/// A bitmap as it stands in an ICO file: without file header, its height doubled for the mask.
std::string bitmapicone(const Image& image) {
    std::string octets;
    decrire(octets, descriptionancienne, image.largeur, image.hauteur * 2, 32);
    octets.append(financienne, '\0');
    ajouterpixels(octets, image);
    ajoutermasque(octets, image);
    return octets;
}

/// What stands before a row whose pixels are written as they are.
constexpr char nonfiltree = '\0';

/// A PNG file: its sides, the five bytes that tell its kind, and its rows.
std::string fichierpng(int largeur, int hauteur, const std::string& genre,
                       std::string_view lignes) {
    std::string format;
    grosboutien(format, static_cast<std::uint32_t>(largeur));
    grosboutien(format, static_cast<std::uint32_t>(hauteur));
    format += genre;
    std::string fichier = "\x89PNG\r\n\x1a\n";
    bloc(fichier, "IHDR", format);
    bloc(fichier, "IDAT", comprimer(lignes));
    bloc(fichier, "IEND", {});
    return fichier;
}

}  // namespace

std::string bmp(const Image& image) {
    constexpr std::uint32_t description = 108;
    const auto taille = static_cast<std::uint32_t>(image.pixels.size());
    std::string fichier;
    enteter(fichier, description, taille);
    decrire(fichier, description, image.largeur, image.hauteur, 32);
    petitboutien(fichier, 3, 4);  // the channels stand where the masks below say
    petitboutien(fichier, taille, 4);
    for (const std::uint32_t valeur : {3780U, 3780U, 0U, 0U}) {  // pixels a metre, no palette
        petitboutien(fichier, valeur, 4);
    }
    for (const std::uint32_t masque : {0xFF0000U, 0xFF00U, 0xFFU, 0xFF000000U}) {
        petitboutien(fichier, masque, 4);
    }
    petitboutien(fichier, 0x73524742, 4);  // sRGB
    fichier.append(48, '\0');              // end points and gammas, unused with sRGB
    ajouterpixels(fichier, image);
    return fichier;
}

std::string dib(const Image& image) {
    const auto largeur = static_cast<std::size_t>(image.largeur);
    const std::size_t rangee = (largeur * 3 + 3) / 4 * 4;
    const auto taille =
        static_cast<std::uint32_t>(rangee * static_cast<std::size_t>(image.hauteur));
    std::string fichier;
    enteter(fichier, descriptionancienne, taille);
    decrire(fichier, descriptionancienne, image.largeur, image.hauteur, 24);
    fichier.append(financienne, '\0');
    for (auto y = static_cast<std::size_t>(image.hauteur); y-- > 0;) {
        for (std::size_t x = 0; x < largeur; ++x) {
            const std::uint8_t* pixel = &image.pixels[(y * largeur + x) * 4];
            for (const int canal : {2, 1, 0})
                fichier += static_cast<char>(pixel[canal] * pixel[3] / 255);
        }
        fichier.append(rangee - largeur * 3, '\0');
    }
    return fichier;
}

std::string png(const Image& image) {
    std::string lignes;
    const std::size_t rangee = static_cast<std::size_t>(image.largeur) * 4;
    for (std::size_t debut = 0; debut < image.pixels.size(); debut += rangee) {
        lignes += nonfiltree;
        lignes.append(image.pixels.begin() + static_cast<std::ptrdiff_t>(debut),
                      image.pixels.begin() + static_cast<std::ptrdiff_t>(debut + rangee));
    }
    // 8 bits, colours with opacity, not interlaced.
    return fichierpng(image.largeur, image.hauteur, std::string("\x08\x06\x00\x00\x00", 5), lignes);
}

std::string png(const Gris& image) {
    std::string lignes;
    const auto rangee = static_cast<std::size_t>(image.largeur);
    for (std::size_t debut = 0; debut < image.niveaux.size(); debut += rangee) {
        lignes += nonfiltree;
        for (std::size_t i = 0; i < rangee; i += 2) {
            const unsigned gauche = image.niveaux[debut + i];
            const unsigned droite = i + 1 < rangee ? image.niveaux[debut + i + 1] : 0U;
            lignes += static_cast<char>(gauche << 4U | droite);
        }
    }
    // 4 bits, greys, not interlaced.
    return fichierpng(image.largeur, image.hauteur, std::string("\x04\x00\x00\x00\x00", 5), lignes);
}

std::string ico(const std::vector<Image>& images) {
    constexpr int leplusgrand = 256;
    constexpr std::uint32_t entete = 6;
    constexpr std::uint32_t entree = 16;
    std::string fichier;
    std::string corps;
    petitboutien(fichier, 0, 2);
    petitboutien(fichier, 1, 2);  // an icon
    petitboutien(fichier, static_cast<std::uint32_t>(images.size()), 2);
    for (const Image& image : images) {
        if (image.largeur != image.hauteur || image.largeur < 1 || image.largeur > leplusgrand)
            throw std::length_error("ico");
        const auto octets = image.largeur == leplusgrand ? png(image) : bitmapicone(image);
        const auto cote = static_cast<std::uint32_t>(image.largeur % leplusgrand);  // 0 is 256
        petitboutien(fichier, cote, 1);
        petitboutien(fichier, cote, 1);
        petitboutien(fichier, 0, 2);   // no palette
        petitboutien(fichier, 1, 2);   // planes
        petitboutien(fichier, 32, 2);  // bits a pixel
        petitboutien(fichier, static_cast<std::uint32_t>(octets.size()), 4);
        petitboutien(fichier,
                     static_cast<std::uint32_t>(entete + entree * images.size() + corps.size()), 4);
        corps += octets;
    }
    return fichier + corps;
}

}  // namespace assets
