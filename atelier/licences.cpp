#include "licences.h"

namespace atelier {

std::array<Licence, 2> licences() {
    return {
        Licence{
            "listes-LICENCE.txt",
            "Les listes de mots du dossier « listes » et les deux images de tirages qui en sont "
            "faites\r\n"
            "sont tirées du lexique de hunspell-fr-comprehensive (fr.dic et fr.aff, version "
            "7.0,\r\n"
            "« toutes variantes »), d'Olivier R.\r\n"
            "\r\n"
            "This Source Code Form is subject to the terms of the Mozilla Public License, "
            "v. 2.0.\r\n"
            "If a copy of the MPL was not distributed with this file, You can obtain one at\r\n"
            "http://mozilla.org/MPL/2.0/.\r\n"
            "\r\n"
            "Source : https://grammalecte.net/, et le paquet source hunspell-fr de Debian (apt-get "
            "source\r\n"
            "hunspell-fr). Les règles qui choisissent les mots sont dans le\r\n"
            "dossier « atelier » des sources d'Orvane, dont le programme orvane-listes "
            "refait les listes.\r\n"},
        Licence{
            "infosouris-LICENCE.txt",
            "Les notes du fichier infosouris.txt citent les synonymes du thésaurus de mythes-fr "
            "(thes_fr.dat).\r\n"
            "\r\n"
            "This library is free software; you can redistribute it and/or modify it under "
            "the terms of\r\n"
            "the GNU Lesser General Public License as published by the Free Software "
            "Foundation; either\r\n"
            "version 2.1 of the License, or (at your option) any later version. It is "
            "distributed in the\r\n"
            "hope that it will be useful, but WITHOUT ANY WARRANTY; without even the implied "
            "warranty of\r\n"
            "MERCHANTABILITY or FITNESS FOR A PARTICULAR PURPOSE. See the GNU Lesser General "
            "Public License\r\n"
            "for more details: https://www.gnu.org/licenses/.\r\n"
            "\r\n"
            "Source : le paquet source libreoffice-dictionaries de Debian (apt-get source\r\n"
            "libreoffice-dictionaries), fichier thes_fr.dat. Les verbes et les pluriels que disent "
            "les notes "
            "viennent du lexique\r\n"
            "des listes : voir listes-LICENCE.txt.\r\n"},
    };
}

}  // namespace atelier
