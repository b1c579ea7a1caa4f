#include "lettres.h"

#include <algorithm>

#include "texte.h"

namespace series {
namespace {

constexpr std::string_view annotations = "+()12345678";

std::string sansannotations(std::string_view texte) {
    std::string net;
    std::copy_if(texte.begin(), texte.end(), std::back_inserter(net),
                 [](char c) { return annotations.find(c) == std::string_view::npos; });
    return net;
}

}  // namespace

bool Lettres::lirelettres(std::string_view texte) {
    const auto tiret = texte.find('-');
    tiragenet_ = tiret == std::string_view::npos ? sansannotations(texte)
                                                 : std::string(texte.substr(0, tiret));
    const auto lettres = common::caracteres(tiragenet_);
    if (lettres.size() > limite)
        return false;
    const auto suite = std::copy(lettres.begin(), lettres.end(), lettrestirage_.begin());
    std::fill(suite, lettrestirage_.end(), std::string());
    return true;
}

void Lettres::annoncer(std::string_view texte) {
    tiragenet_ = texte;
    lettrestirage_.fill({});
}

bool Lettres::prendre(std::string_view lettre) {
    const auto place = std::find(lettrestirage_.begin(), lettrestirage_.end(), lettre);
    if (place == lettrestirage_.end() || lettre.empty())
        return false;
    place->clear();
    return true;
}

void Lettres::recalculer(std::string_view reponse) {
    const auto net = tiragenet_;
    // A rack that was cut at a "-" may still hold mark-up: reading it again removes that.
    static_cast<void>(lirelettres(net));
    for (const auto& lettre : common::caracteres(reponse))
        prendre(lettre);
}

std::string Lettres::restantes() const {
    std::string texte;
    for (const auto& lettre : lettrestirage_)
        texte += lettre;
    return texte;
}

}  // namespace series
