#include "son.h"

#include <algorithm>
#include <cmath>
#include <numbers>

#include "octets.h"

namespace assets {

namespace {

constexpr double duree = 1.8;     // seconds
constexpr double attaque = .008;  // a note rises in this time, so that it does not click
constexpr double chute = .25;     // the whole phrase fades out over its end
constexpr double crete = .8;      // loudest sample, of the largest that a file can hold

struct Note {
    double debut;      // seconds
    double frequence;  // hertz
    double force;
    double tenue;  // seconds until it has fallen to about a third
};

// Up the chord of C, a turn on its sixth, and the chord.
constexpr Note notes[] = {
    {.00, 523.25, .7, .22}, {.11, 659.26, .7, .22},  {.22, 783.99, .75, .22},
    {.33, 880.00, .7, .20}, {.44, 783.99, .7, .20},  {.58, 1046.50, 1.0, .55},
    {.58, 523.25, .6, .55}, {.58, 659.26, .55, .55}, {.58, 783.99, .55, .55},
};

struct Partiel {
    double rang;
    double force;
    double usure;  // how much faster than the note it fades
};

// A struck bar: few overtones, the high ones soon gone.
constexpr Partiel partiels[] = {{1, 1, 1}, {2, .35, 1.6}, {3, .12, 2.5}, {4.02, .1, 4}};

double timbre(const Note& note, double temps) {
    double valeur = 0;
    for (const Partiel& partiel : partiels) {
        valeur += partiel.force * std::exp(-temps * partiel.usure / note.tenue) *
                  std::sin(2 * std::numbers::pi * note.frequence * partiel.rang * temps);
    }
    return note.force * std::min(1.0, temps / attaque) * valeur;
}

std::vector<double> onde() {
    std::vector<double> valeurs(static_cast<std::size_t>(duree * cadence));
    for (std::size_t i = 0; i < valeurs.size(); ++i) {
        const double temps = static_cast<double>(i) / cadence;
        for (const Note& note : notes) {
            valeurs[i] += temps >= note.debut ? timbre(note, temps - note.debut) : 0;
        }
        valeurs[i] *= std::min(1.0, (duree - temps) / chute);
    }
    return valeurs;
}

}  // namespace

std::vector<std::int16_t> phrase() {
    const std::vector<double> valeurs = onde();
    double forte = 0;
    for (const double valeur : valeurs) {
        forte = std::max(forte, std::abs(valeur));
    }
    std::vector<std::int16_t> echantillons;
    echantillons.reserve(valeurs.size());
    for (const double valeur : valeurs) {
        echantillons.push_back(
            static_cast<std::int16_t>(std::lround(valeur / forte * crete * INT16_MAX)));
    }
    return echantillons;
}

std::string wav(const std::vector<std::int16_t>& echantillons) {
    constexpr std::uint32_t octets = sizeof(std::int16_t);
    const auto taille = static_cast<std::uint32_t>(echantillons.size()) * octets;
    std::string fichier = "RIFF";
    petitboutien(fichier, 36 + taille, 4);
    fichier += "WAVEfmt ";
    petitboutien(fichier, 16, 4);
    petitboutien(fichier, 1, 2);  // plain samples
    petitboutien(fichier, 1, 2);  // channels
    petitboutien(fichier, cadence, 4);
    petitboutien(fichier, cadence * octets, 4);
    petitboutien(fichier, octets, 2);
    petitboutien(fichier, 8 * octets, 2);
    fichier += "data";
    petitboutien(fichier, taille, 4);
    for (const std::int16_t echantillon : echantillons) {
        petitboutien(fichier, static_cast<std::uint16_t>(echantillon), octets);
    }
    return fichier;
}

}  // namespace assets
