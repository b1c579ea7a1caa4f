#include "notes.h"

#include <algorithm>
#include <tuple>

#include "texte.h"

namespace atelier {
namespace {

/// A word commoner than this needs no synonym.
constexpr std::uint32_t frequencesansnote = 60;
constexpr std::size_t synonymesparnote = 3;
constexpr std::string_view debutsynonymes = "= ";

bool ecrivable(std::string_view texte) {
    const auto lettres = points(texte);
    return lettres && std::all_of(lettres->begin(), lettres->end(),
                                  [](char32_t l) { return common::code1252(l).has_value(); });
}

/// A verb that grammars call defective. Others lack forms for a reason of their own: they are
/// reciprocal and have no "je" nor "tu", or the lexicon knows them by a few forms only.
bool ditdefectif(const Lemme& lemme, const CodeVerbe& code) {
    if (!lemme.defectif() || code.groupe == '1' || code.groupe == '2')
        return false;
    constexpr Traits jeettu{present | imparfait | passesimple | futur | conditionnel | subjonctif |
                                subjonctifimparfait | imperatif,
                            je | tu};
    return code.decrit && lemme.cases != infinitif && (lemme.manquantes() & ~cases(jeettu)) != 0;
}

/// Gathers the parts of the notes, each once.
class Redacteur {
  public:
    Redacteur(const Vocabulaire& v, const Thesaurus& thesaurus) : v_(v), thesaurus_(thesaurus) {}

    std::string note(const Mot& mot, bool atypique) {
        parties_.clear();
        for (const auto& l : v_.lectures(mot))
            verbe(l, atypique);
        for (const auto& l : v_.lectures(mot))
            pluriel(mot, l);
        // The noun or adjective comes before the verb of which the word is a form.
        if (mot.frequence <= frequencesansnote && !synonymes(mot, true))
            static_cast<void>(synonymes(mot, false));
        std::string texte;
        for (const auto& partie : parties_)
            texte += (texte.empty() ? "" : " ; ") + partie;
        return texte;
    }

  private:
    void ajouter(std::string partie) {
        if (std::find(parties_.begin(), parties_.end(), partie) == parties_.end())
            parties_.push_back(std::move(partie));
    }

    void verbe(const Lecture& l, bool atypique) {
        if (l.nature != Nature::verbe)
            return;
        const auto& lemme = v_.lemme(l);
        if (ditdefectif(lemme, l.code))
            ajouter("verbe défectif " + lemme.capitales);
        else if (atypique)
            ajouter("v. " + lemme.capitales);
    }

    /// "chevaux": a plural that is not the singular and a letter.
    void pluriel(const Mot& mot, const Lecture& l) {
        if (!l.nonverbale() || !l.aunnombre(Nombre::pluriel))
            return;
        const auto& lemme = v_.lemme(l);
        if (lemme.texte.empty() || lemme.capitales == mot.texte())
            return;
        const auto* singulier = v_.chercher(mot.texte().substr(0, mot.taille() - 1));
        if (singulier != nullptr &&
            v_.une(*singulier, [&](const Lecture& s) { return s.lemme == l.lemme; }))
            return;
        ajouter("pl. de " + lemme.texte);
    }

    /// Quotes the first reading, verbal or not, that has synonyms to give; false if none has.
    bool synonymes(const Mot& mot, bool nonverbale) {
        const auto lectures = v_.lectures(mot);
        return std::any_of(lectures.begin(), lectures.end(), [&](const Lecture& l) {
            return l.nonverbale() == nonverbale && synonymes(mot, l);
        });
    }

    /// False if this reading of the word has no synonym to give.
    bool synonymes(const Mot& mot, const Lecture& l) {
        if (l.finie() || l.aunnombre(Nombre::pluriel))
            return false;
        std::string liste;
        std::size_t cites = 0;
        for (const auto synonyme : thesaurus_.synonymes(v_.lemme(l).texte)) {
            if (!ecrivable(synonyme) || encapitales(synonyme) == mot.texte())
                continue;
            liste += (liste.empty() ? "" : ", ") + std::string(synonyme);
            if (++cites == synonymesparnote)
                break;
        }
        if (liste.empty())
            return false;
        const bool participe = l.al(participepasse | participepresent);
        if (participe)
            ajouter((l.al(participepasse) ? "p. p. de " : "p. pr. de ") + v_.lemme(l).capitales);
        if (!participe || !nominal(mot))
            ajouter(std::string(debutsynonymes) + liste);
        return true;
    }

    /// A noun or adjective of its own, as LOBE is, and no mere plural: what its verb means would be
    /// taken for what it means.
    [[nodiscard]] bool nominal(const Mot& mot) const {
        return v_.une(
            mot, [](const Lecture& l) { return l.nonverbale() && !l.aunnombre(Nombre::pluriel); });
    }

    const Vocabulaire& v_;
    const Thesaurus& thesaurus_;
    std::vector<std::string> parties_;
};

}  // namespace

std::vector<Note> notes(const Vocabulaire& v, const Thesaurus& thesaurus,
                        const std::set<std::uint32_t>& demandes,
                        const std::set<std::uint32_t>& atypiques) {
    struct Candidate {
        bool synonymes = false;
        std::uint32_t frequence = 0;
        Note note;
    };
    std::vector<Candidate> candidates;
    Redacteur redacteur(v, thesaurus);
    for (const auto place : demandes) {
        const auto& mot = v.mot(place);
        auto texte = redacteur.note(mot, atypiques.contains(place));
        if (texte.empty())
            continue;
        const bool synonymes = texte.starts_with(debutsynonymes);
        candidates.push_back(
            {synonymes, mot.frequence, {std::string(mot.texte()), std::move(texte)}});
    }
    const auto utilite = [](const Candidate& c) {
        return std::tie(c.synonymes, c.frequence, c.note.mot);
    };
    std::sort(candidates.begin(), candidates.end(),
              [&](const Candidate& a, const Candidate& b) { return utilite(a) < utilite(b); });
    candidates.resize(std::min(candidates.size(), notesmax));
    std::vector<Note> choisies;
    choisies.reserve(candidates.size());
    for (auto& candidate : candidates)
        choisies.push_back(std::move(candidate.note));
    std::sort(choisies.begin(), choisies.end(),
              [](const Note& a, const Note& b) { return a.mot < b.mot; });
    return choisies;
}

}  // namespace atelier
