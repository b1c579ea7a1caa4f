#include "licences.h"

namespace atelier {
namespace {

constexpr std::string_view deslistes =
    R"(Les listes de mots du dossier « listes », et les images de tirages qui en sont faites, sont tirées du
lexique de hunspell-fr-comprehensive (fr.dic et fr.aff, « toutes variantes »), d'Olivier R. et des
contributeurs de Dicollecte.

This Source Code Form is subject to the terms of the Mozilla Public License, v. 2.0. If a copy of the
MPL was not distributed with this file, You can obtain one at http://mozilla.org/MPL/2.0/.

Source : https://grammalecte.net/, et le paquet source hunspell-fr de Debian (apt-get source
hunspell-fr). Les mots ajoutés ou ôtés à la main et les règles des listes sont dans le dossier
« atelier » des sources d'Orvane, dont le programme orvane-listes refait les listes.
)";

constexpr std::string_view desnotes =
    R"(Les notes du fichier infosouris.txt citent les synonymes du thésaurus de mythes-fr (thes_fr.dat), de
Kevin Hendricks, Frederic Labbé et Laurent Godard.

This library is free software; you can redistribute it and/or modify it under the terms of the GNU
Lesser General Public License as published by the Free Software Foundation; either version 2.1 of the
License, or (at your option) any later version. It is distributed in the hope that it will be useful,
but WITHOUT ANY WARRANTY; without even the implied warranty of MERCHANTABILITY or FITNESS FOR A
PARTICULAR PURPOSE. See the GNU Lesser General Public License for more details:
https://www.gnu.org/licenses/.

Source : le paquet source libreoffice-dictionaries de Debian (apt-get source libreoffice-dictionaries),
fichier thes_fr.dat. Les verbes et les pluriels que disent les notes viennent du lexique des listes :
voir listes-LICENCE.txt.
)";

}  // namespace

std::array<Licence, 2> licences() {
    return {Licence{"listes-LICENCE.txt", deslistes}, Licence{"infosouris-LICENCE.txt", desnotes}};
}

}  // namespace atelier
