# The installer and the archive for Windows, made twice and once newer, and tried under Wine: installed,
# played, upgraded, closed meanwhile, cut, uninstalled; unpacked on a stick. Read by essayer-paquets.

outils/installer paquetwindows
outils/installer essayerwindows
# shellcheck source=outils/essai/wine.sh
source outils/essai/wine.sh
# shellcheck source=outils/essai/wineessais.sh
source outils/essai/wineessais.sh
afinir+=(quitterwine)
premier=$travail/windows/premier
recent=$travail/windows/recent
LISTE=7v6.txt    # which the player changes
AUTRE=7v5.txt    # which a newer version changes
ABANDON=vb45.txt # which a newer version has no more

# The same programs under another number, with other lists.
vieillir() {
    local natif=$travail/windows/natif
    rm -rf "$natif"
    mkdir -p "$natif"
    cp -r build/natif/{jeu,src,assets} "$natif"
    printf 'AB;BA\r\n' >"$natif/jeu/listes/$AUTRE"
    rm "$natif/jeu/listes/$ABANDON"
    SOURCE_DATE_EPOCH=$(git -c safe.directory="$racine" log -1 --format=%ct) \
        paquet/windows/assembler build/windows "$natif" "$recent" 2.69
    rm -rf "$natif"
}
if [ "$construit" -eq 0 ]; then
    fabriquer windows
    essai "windows : version plus récente" vieillir
    essai "windows : essais construits" construireessais
fi
essai "windows : sommes" sommes "$premier"
allumer

installer() { rend 0 wine "$1/orvane_setup.exe" /S "${@:2}"; } # installer PACKAGES [OPTION]
desinstaller() { # desinstaller [OPTION]: it goes on in a copy of itself
    wine "$programme/desinstaller.exe" /S "$@"
    jusqua test ! -e "$programme/desinstaller.exe"
    wineserver -w
}
attendus() { # the files that are to be in the folder of programs, of the list that stands there
    tr -d '\r' <"$programme/fichiers.txt" | tr '\\' / | sort
}
complet() { # all that belongs there is there, and nothing else
    [ "$(attendus | wc -l)" -gt 200 ]
    diff <(attendus) <(cd "$programme" && find . -type f -printf '%P\n' | sort)
}
fournis() { # fournis PACKAGES: the lists and all are those of that version
    rm -rf "$travail/windows/zip"
    unzip -q "$1"/*.zip -d "$travail/windows/zip"
    diff -r -x "à moi.txt" "$travail/windows/zip/Orvane/listes" "$programme/fournis/listes"
    cmp "$travail/windows/zip/Orvane/inventaire.txt" "$programme/fournis/inventaire.txt"
}
raccourcis() { # each leads into the folder of programs
    local nom
    for nom in "Orvane:orvane.exe" "Carnet d'Orvane:orvane-carnet.exe" "Manuel d'Orvane:manuel.html" \
        "Désinstaller Orvane:desinstaller.exe"; do
        grep -qa "Programs.Orvane.*${nom#*:}" "$profil/$menu/${nom%%:*}.lnk"
    done
}
declaree() { # declaree VERSION: what the list of programs tells
    enregistre DisplayName Orvane
    enregistre DisplayVersion "$1"
    enregistre NoModify 0x1
    enregistre NoRepair 0x1
    wine reg query "$CLE" | grep -q 'QuietUninstallString.*desinstaller.exe" /S'
    wine reg query "$CLE" | grep -qE 'EstimatedSize +REG_DWORD +0x[0-9a-f]{4,}'
    wine reg query "$CLE" | grep -q 'DisplayIcon.*orvane.exe'
    wine reg query "$CLE" | grep -qE 'Publisher +REG_SZ +.'
}
demarrer() { # the trainer, up to its first window and to its end
    ouvrir "$programme/orvane.exe" Bienvenue
    fermer Bienvenue
}
carnet() {
    ouvrir "$programme/orvane-carnet.exe" "Carnet d'Orvane"
    fermer "Carnet d'Orvane"
}
refaites() { # the lists that the program makes there from its own lexicon are those that came with it
    local la="$WINEPREFIX/drive_c/Listes d'été"
    (cd "$WINEPREFIX/drive_c" && wine "$programme/orvane-listes.exe" --sortie "C:\\Listes d'été")
    diff -r "$programme/fournis/listes" "$la/listes"
    rm -rf "$la"
}
apportees() { diff -r "$programme/fournis/listes" "$donnees/listes"; }
garnir() { # what players have made; and files of theirs in the folder of programs
    mkdir -p "$donnees/Zoé"
    printf 'TIERS;EIRST\r\n' >"$donnees/listes/$LISTE"
    printf '24/08/2019 - 14:35 - 95.3%% - T - 7v5.txt\r\n' >"$donnees/Zoé/hist.dat"
    printf 'Zo\xe9\r\n' >"$donnees/users.dat"
    echo moi >"$programme/à moi.txt"
    echo moi >"$programme/fournis/listes/à moi.txt"
}
gardees() { # they are as they were
    [ "$(cat "$donnees/listes/$LISTE")" = $'TIERS;EIRST\r' ]
    grep -q 95.3 "$donnees/Zoé/hist.dat"
    [ "$(cat "$programme/à moi.txt" "$programme/fournis/listes/à moi.txt")" = $'moi\nmoi' ]
}
sansjoueur() { rm -f "$programme/à moi.txt" "$programme/fournis/listes/à moi.txt"; }
nouvelles() { # the lists of the newer version come with the next start
    demarrer
    cmp "$programme/fournis/listes/$AUTRE" "$donnees/listes/$AUTRE"
}
pendant() { # a newer version while the program is open: it is closed
    ouvrir "$programme/orvane.exe" Bienvenue
    installer "$recent"
    wait "$lance"
    sansfenetre Bienvenue
}
arrete() { # a program that does not close: nothing changes, and the installer says so
    local avant
    ouvrir "$programme/orvane.exe" Bienvenue
    avant=$(empreinte "$programme")
    kill -STOP "$lance"
    rend 3 wine "$premier/orvane_setup.exe" /S || {
        kill -CONT "$lance"
        return 1
    }
    kill -CONT "$lance"
    jusqua sansfenetre Bienvenue # it was asked to
    wait "$lance"
    diff <(echo "$avant") <(empreinte "$programme")
}
impossible() { # a version that cannot be written: nothing changes, and the installer says so
    local avant
    touch "$programme/.orvane-nouveau"
    avant=$(empreinte "$programme")
    rend 4 wine "$recent/orvane_setup.exe" /S
    diff <(echo "$avant") <(empreinte "$programme")
    rm "$programme/.orvane-nouveau"
}
pris() { # a file that cannot be replaced: what was replaced before it is put back
    local avant
    avant=$(empreinte "$programme")
    mkdir "$programme/.orvane-ancien"
    touch "$programme/.orvane-ancien/manuel" # where the older manual has to wait
    rend 4 wine "$premier/orvane_setup.exe" /S
    diff <(echo "$avant") <(empreinte "$programme")
}
echange() { # cut between the two moves of the folder that programs are filled from
    mkdir "$programme/.orvane-ancien"
    mv "$programme/fournis" "$programme/.orvane-ancien"
    cp "$programme/fichiers.txt" "$programme/.orvane-ancien/liste.txt"
    mkdir -p "$programme/.orvane-nouveau/fournis"
    installer "$premier"
    complet
}
tuer() { # killed while it writes the new version: the older one is whole and starts
    local avant installeur
    avant=$(empreinte "$programme")
    wine "$recent/orvane_setup.exe" /S &
    installeur=$!
    jusqua test -e "$programme/.orvane-nouveau/fournis/APP05.WAV"
    kill -KILL "$installeur"
    wait "$installeur" || true
    wineserver -k || true
    diff <(echo "$avant") <(empreinte "$programme" | grep -v '  ./\.orvane-nouveau/')
    demarrer
    installer "$recent"
    complet
    fournis "$recent"
}
parti() { # nothing of the program is left, all of the players is
    [ ! -e "$programme/orvane.exe" ]
    [ "$(cd "$programme" && find . -type f | sort)" = $'./fournis/listes/à moi.txt\n./à moi.txt' ]
    gardees
    [ ! -e "$profil/$menu" ]
    pasenregistre
}
toutparti() {
    [ ! -e "$programme" ]
    [ ! -e "$donnees" ]
    [ ! -e "$profil/$menu" ]
    pasenregistre
}
ailleurs() { # in a folder that the command line names; the next version goes there by itself
    local la="$WINEPREFIX/drive_c/Jeux d'été/Orvane à moi"
    # In pieces: Wine puts quotes around one that has blanks.
    installer "$premier" '/D=C:\Jeux' "d'été\\Orvane" à moi
    cmp "$la/orvane.exe" <(unzip -p "$premier"/*.zip Orvane/orvane.exe)
    installer "$recent"
    grep -q '^2.69 ' "$la/fournis/inventaire.txt"
    [ ! -e "$programme" ]
    wine "$la/desinstaller.exe" /S
    jusqua test ! -e "$la"
    pasenregistre
}
deballer() { # on a stick, in the folder named after it
    rm -rf "$cle"
    mkdir -p "$cle"
    unzip -q "$premier"/*.zip -d "$cle"
}
surcle() { # it works where it is: nothing goes to the player's own folder
    ouvrir "$cle/Orvane/orvane.exe" Bienvenue
    fermer Bienvenue
    [ ! -e "$donnees" ]
}
rajeunir() { # the installer in that folder, where the program downloads it, brings it up to date
    local la=$cle/Orvane
    mkdir "$la/Zoé"
    echo moi >"$la/Zoé/hist.dat"
    printf 'TIERS;EIRST\r\n' >"$la/listes/$LISTE"
    cp "$recent/orvane_setup.exe" "$la"
    rend 0 wine "$la/orvane_setup.exe" /S
    [ "$(cat "$la/listes/$LISTE")" = $'TIERS;EIRST\r' ]
    [ "$(cat "$la/Zoé/hist.dat")" = moi ]
    [ "$(cat "$la/listes/$AUTRE")" = $'AB;BA\r' ]
    grep -q '^2.69 ' "$la/inventaire.txt"
    [ -z "$(find "$la" -name '.orvane-*' -o -name fournis -o -name 'desinstaller*')" ]
    pasenregistre
    [ ! -e "$profil/$menu" ]
}
cliquer() { # cliquer TITLE: the default button of the window of that title
    jusqua fenetre "$1"
    xdotool windowactivate --sync "$(fenetre "$1")" key --clearmodifiers Return
}
parlespages() { # by hand: two clicks, and the program is there
    wine "$premier/orvane_setup.exe" &
    jusqua fenetre "Installation d'Orvane"
    photographier dossier
    cliquer "Installation d'Orvane"
    jusqua test -e "$profil/$menu/Orvane.lnk"
    jusqua arrivee dossier fin
    cliquer "Installation d'Orvane"
    jusqua fenetre Bienvenue
    jusqua fermee Bienvenue
    wineserver -w
}
arrivee() { # arrivee PAGE NEXT: what shows is no longer that page, and stands still
    photographier "$2"
    ! cmp -s "$travail/captures/windows-$1.png" "$travail/captures/windows-$2.png" || return 1
    photographier "$2-bis"
    cmp -s "$travail/captures/windows-$2.png" "$travail/captures/windows-$2-bis.png"
}
otermain() { # the uninstaller by hand: the box is not ticked
    wine "$programme/desinstaller.exe" &
    jusqua fenetre "Désinstallation"
    photographier desinstaller
    cliquer "Désinstallation"
    jusqua test ! -e "$programme"
    jusqua arrivee desinstaller desinstallee
    cliquer "Désinstallation"
    wineserver -w
    [ -e "$donnees/listes" ]
}

essai "windows : Windows neuf" neuf
essai "windows : installation silencieuse" installer "$premier"
essai "windows : tout est là" complet
essai "windows : listes de cette version" fournis "$premier"
essai "windows : menu" raccourcis
essai "windows : liste des programmes" declaree 2.68
essai "windows : démarrage" demarrer
essai "windows : listes apportées au joueur" apportees
essai "windows : carnet" carnet
essai "windows : listes refaites par le programme" refaites
essai "windows : joueurs" garnir
essai "windows : version plus récente par-dessus" installer "$recent"
essai "windows : numéro de la version" declaree 2.69
essai "windows : listes de la version plus récente" fournis "$recent"
essai "windows : données et listes changées gardées" gardees
essai "windows : listes nouvelles au démarrage" nouvelles
essai "windows : données et listes changées gardées ensuite" gardees
sansjoueur
essai "windows : rien de l'ancienne version ne reste" complet
essai "windows : installée pendant que le programme est ouvert" pendant
essai "windows : programme qui ne se ferme pas" arrete
essai "windows : disque où rien ne s'écrit" impossible
essai "windows : fichier qui ne se remplace pas" pris
essai "windows : installation coupée pendant l'écriture" tuer
essai "windows : installation coupée pendant l'échange" echange
essai "windows : joueurs encore" garnir
essai "windows : désinstallation" desinstaller
essai "windows : rien ne reste, sauf ce qui est aux joueurs" parti
rm -rf "$programme"
essai "windows : réinstallation" installer "$premier"
essai "windows : désinstallation avec les données" desinstaller /DONNEES
essai "windows : rien ne reste" toutparti
essai "windows : dans un autre dossier" ailleurs
essai "windows : par les pages de l'installeur" parlespages
essai "windows : par les pages de la désinstallation" otermain
rm -rf "$donnees"
essai "windows : installation pour jouer" installer "$premier"
essai "windows : liste jouée jusqu'au bout" jouer Anne
essai "windows : joueur qui revient" jouer Anne --revient
essai "windows : programme plus ancien" ancienne
essai "windows : mise à jour par le programme" misajour
essai "windows : numéro de la version mise à jour" declaree 2.69
essai "windows : joueur après la mise à jour" jouer Anne --revient
essai "windows : désinstallation du jeu" desinstaller /DONNEES
cle="$travail/windows/Clé d'été"
essai "windows : archive déballée sur une clé" deballer
essai "windows : démarrage sur la clé" surcle
essai "windows : mise à jour de la clé" rajeunir
essayertout
quitterwine || true
