#include "journal.h"

#include <algorithm>
#include <array>
#include <chrono>
#include <cstring>
#include <memory>

#include "lignes.h"
#include "nombre.h"
#include "texte.h"

namespace profiles {
namespace {

constexpr char separateur = ';';
constexpr std::size_t nombredechamps = 7;
constexpr std::string_view entredateetheure = " - ";

std::string joindre(const std::vector<std::string>& mots) {
    std::string joints;
    for (const auto& mot : mots)
        joints.append(&mot == &mots.front() ? "" : ",").append(mot);
    return joints;
}

/// What the boxes held, as the last field of a line; empty for nothing, or what cannot stand there.
std::string champsaisi(const std::vector<std::string>& saisis) {
    const auto joints = joindre(saisis);
    if (joints.find_first_not_of(',') == std::string::npos ||
        joints.find_first_of(";\r\n") != std::string::npos)
        return {};
    return common::essayervers1252(joints).value_or("");
}

/// What all lines of a correction begin with, in bytes; nothing if the file could not hold it.
std::optional<std::string> debutdeligne(const Seriejugee& serie) {
    auto debut = serie.quand.date();
    debut.append(entredateetheure).append(serie.quand.heuredujour());
    for (const auto champ : {serie.liste, serie.mode})
        debut.append(1, separateur).append(champ);
    return common::essayervers1252(debut.append(1, separateur));
}

/// The rest of the line of a rack, line end included; nothing if the file could not hold it.
std::optional<std::string> suitedeligne(const Tiragejuge& juge) {
    auto suite = juge.tirage;
    suite.append(1, separateur).append(joindre(juge.solutions));
    auto octets = common::essayervers1252(suite.append(juge.trouve() ? ";1;" : ";0;"));
    if (octets)
        octets->append(champsaisi(juge.saisis)).append(common::findeligne);
    return octets;
}

/// Digits at a place, as a number; -1 if there is another sign.
int nombre(std::string_view texte, std::size_t place, std::size_t chiffres) {
    return common::entierdechiffres(texte.substr(place, chiffres)).value_or(-1);
}

/// The day of dd/mm/yyyy, in days since 1 January 1970.
std::optional<std::int32_t> lirejour(std::string_view texte) {
    if (texte[2] != '/' || texte[5] != '/')
        return std::nullopt;
    return jourdu(nombre(texte, 6, 4), nombre(texte, 3, 2), nombre(texte, 0, 2));
}

/// The second of the day of HH:MM:SS.
std::optional<std::int32_t> lireseconde(std::string_view texte) {
    constexpr int heures = 24;
    constexpr int soixante = 60;
    if (texte[2] != ':' || texte[5] != ':')
        return std::nullopt;
    const int heure = nombre(texte, 0, 2);
    const int minute = nombre(texte, 3, 2);
    const int seconde = nombre(texte, 6, 2);
    if (heure < 0 || heure >= heures || minute < 0 || minute >= soixante || seconde < 0 ||
        seconde >= soixante)
        return std::nullopt;
    return (heure * soixante + minute) * soixante + seconde;
}

/// A date and time, and its text: the lines of a correction all have the same.
struct Moment {
    std::string texte;
    std::int32_t jour = 0;
    std::int32_t seconde = 0;
};

/// Reads a date and time, unless it is that of the line before.
bool liremoment(std::string_view texte, Moment& moment) {
    constexpr std::size_t largeurdujour = 10;  // dd/mm/yyyy
    constexpr std::size_t placeheure = largeurdujour + entredateetheure.size();
    constexpr std::size_t largeurheure = 8;  // HH:MM:SS
    if (!texte.empty() && texte == moment.texte)
        return true;
    if (texte.size() != placeheure + largeurheure ||
        texte.substr(largeurdujour, entredateetheure.size()) != entredateetheure)
        return false;
    const auto jour = lirejour(texte);
    const auto seconde = lireseconde(texte.substr(placeheure));
    if (!jour || !seconde)
        return false;
    moment = {std::string(texte), *jour, *seconde};
    return true;
}

std::optional<Lignejournal> lire(std::string_view ligne, Moment& moment) {
    std::array<std::string_view, nombredechamps> champs;
    std::size_t nombre = 0;
    for (std::size_t debut = 0; debut <= ligne.size(); ++nombre) {
        if (nombre == nombredechamps)
            return std::nullopt;
        const auto fin = std::min(ligne.find(separateur, debut), ligne.size());
        champs[nombre] = ligne.substr(debut, fin - debut);
        debut = fin + 1;
    }
    if (nombre != nombredechamps)
        return std::nullopt;
    const auto& [date, liste, mode, tirage, solutions, trouve, saisi] = champs;
    const bool sanssolution = solutions.find_first_not_of(',') == std::string_view::npos;
    if (tirage.empty() || sanssolution || (trouve != "0" && trouve != "1") ||
        !liremoment(date, moment))
        return std::nullopt;
    Lignejournal lue;
    lue.jour = moment.jour;
    lue.seconde = moment.seconde;
    lue.liste = liste;
    lue.mode = mode;
    lue.tirage = tirage;
    lue.solutions = solutions;
    lue.identifiant = {tirage.data(), tirage.size() + 1 + solutions.size()};
    lue.trouve = trouve == "1";
    lue.saisi = saisi;
    return lue;
}

/// Gives up the oldest lines that wait, past the limit.
void alleger(std::string& attente) {
    if (attente.size() <= limiteattente)
        return;
    const auto fin = attente.find('\n', attente.size() - limiteattente);
    attente.erase(0, fin == std::string::npos ? std::string::npos : fin + 1);
}

/// Reads the lines of a file in the memory of one line; one that is too long is skipped.
class Lecteur {
  public:
    Lecteur(const std::function<void(const Lignejournal&)>& voir, Lecturejournal& lecture)
        : voir_(voir), lecture_(lecture) {}

    /// Where the next bytes of the file go.
    [[nodiscard]] std::span<char> place() {
        constexpr std::size_t bloc = 256UL * 1024;
        if (tampon_.size() < fin_ + bloc)
            tampon_.resize(fin_ + bloc);
        return std::span(tampon_).subspan(fin_, bloc);
    }
    void prendre(std::size_t octets) {
        fin_ += octets;
        const std::string_view tout(tampon_.data(), fin_);
        const auto entieres = tout.rfind('\n') + 1;  // 0 if there is none
        donner(tout.substr(0, entieres));
        std::memmove(tampon_.data(), tampon_.data() + entieres, fin_ - entieres);
        fin_ -= entieres;
        if (fin_ > limitelignejournal) {
            fin_ = 0;
            trop_ = true;
        }
    }
    /// The end of the file: a last line without its line end is a line too.
    void finir() {
        if (fin_ > 0)
            donner({tampon_.data(), fin_});
        else if (trop_)
            donnerligne({});
    }

  private:
    void donner(std::string_view octets) {
        common::Decoupage lignes(octets);
        for (std::string_view ligne; lignes.suivante(ligne);)
            donnerligne(ligne);
    }
    void donnerligne(std::string_view ligne) {
        const auto lue = trop_ ? std::nullopt : lire(ligne, moment_);
        trop_ = false;
        if (lue)
            voir_(*lue);
        ++(lue ? lecture_.lues : lecture_.sautees);
    }

    const std::function<void(const Lignejournal&)>& voir_;
    Lecturejournal& lecture_;
    Moment moment_;  ///< of the line before
    std::vector<char> tampon_;
    std::size_t fin_ = 0;
    bool trop_ = false;  ///< the line under way is too long, and its beginning is gone
};

}  // namespace

std::string cheminjournal(std::string_view util) {
    return std::string(util) + "\\journal.txt";
}

bool Tiragejuge::trouve() const {
    return std::all_of(solutions.begin(), solutions.end(), [this](const std::string& mot) {
        return std::find(saisis.begin(), saisis.end(), mot) != saisis.end();
    });
}

std::string lignejournal(const Seriejugee& serie, const Tiragejuge& juge) {
    const auto debut = debutdeligne(serie);
    const auto suite = suitedeligne(juge);
    return debut && suite ? *debut + *suite : std::string();
}

void journaliser(common::Disque& disque, std::string_view util, const Seriejugee& serie,
                 std::span<const Tiragejuge> juges, std::string& attente) {
    const auto debut = debutdeligne(serie);
    for (const auto& juge : juges)
        if (const auto suite = suitedeligne(juge); debut && suite)
            attente.append(*debut).append(*suite);
    if (attente.empty())
        return;
    if (disque.deposer(cheminjournal(util), attente))
        alleger(attente);
    else
        attente.clear();
}

std::optional<std::int32_t> jourdu(int annee, int mois, int jour) {
    if (jour < 1 || mois < 1 || annee < 1)
        return std::nullopt;
    const std::chrono::year_month_day date(std::chrono::year(annee),
                                           std::chrono::month(static_cast<unsigned>(mois)),
                                           std::chrono::day(static_cast<unsigned>(jour)));
    if (!date.ok())
        return std::nullopt;
    return static_cast<std::int32_t>(std::chrono::sys_days(date).time_since_epoch().count());
}

std::optional<Lignejournal> lirelignejournal(std::string_view ligne) {
    Moment moment;
    return lire(ligne, moment);
}

std::error_code parcourirjournal(common::Disque& disque, std::string_view chemin,
                                 const std::function<void(const Lignejournal&)>& voir,
                                 Lecturejournal& lecture) {
    std::unique_ptr<common::Flux> flux;
    auto erreur = disque.ouvrir(chemin, flux);
    if (erreur)
        return erreur == std::errc::no_such_file_or_directory ? std::error_code() : erreur;
    Lecteur lecteur(voir, lecture);
    for (std::size_t lus = 1; lus > 0;) {
        const auto place = lecteur.place();
        lus = 0;
        if ((erreur = flux->lire(place, lus)))
            return erreur;
        lecteur.prendre(lus);
    }
    lecteur.finir();
    return {};
}

}  // namespace profiles
