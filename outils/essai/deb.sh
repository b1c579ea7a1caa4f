# The package of Debian, made twice and once newer, and tried in fresh copies of roots of Debian 12 and 13:
# installed, played by two users, upgraded, removed, purged. Read by essayer-paquets.

[ "$(id -u)" -eq 0 ] || {
    echo "essayer-paquets: root is needed" >&2
    exit 1
}
outils/installer paquet
outils/installer ailleurs
outils/installer essayerpaquet
oterracines() { rm -rf --one-file-system "$travail/racines"; }
afinir+=(oterracines)

if [ "$construit" -eq 0 ]; then
    fabriquer deb
    essai "deb : paquet plus récent" construire deb "$travail/copie" \
        $'-DORVANE_VERSION=2.69\n-DORVANE_LISTES_OPTIONS=--sans-ajouts'
    garder deb "$travail/copie" recent
fi
ancien=$(echo "$travail"/deb/premier/*.deb)
recent=$(echo "$travail"/deb/recent/*.deb)

# What tells of a package without installing it.
depaqueter() { rm -rf "$travail/contenu" && dpkg-deb -x "$ancien" "$travail/contenu"; }
essai "deb : sommes" sommes "$travail/deb/premier"
essai "lintian" lintian --allow-root --fail-on error "$ancien"
essai "dépaqueté" depaqueter
essai "appstreamcli" appstreamcli validate --no-net "$travail"/contenu/usr/share/metainfo/*.xml
essai "entrées de bureau" desktop-file-validate "$travail"/contenu/usr/share/applications/*.desktop

# The screen of this machine, on which programs show that have nothing but what the package asks for.
allumer

dans() { ORVANE_PARTAGE="$travail:/tmp/.X11-unix" outils/racine --dans "$place" "$@"; }
comme() { # comme USER COMMAND...: as that user, in his home, where /usr cannot be written
    # shellcheck disable=SC2016  # expanded inside
    dans bash -c 'mount --bind /usr /usr && mount -o remount,ro,bind /usr
        qui=$1
        maison=$(getent passwd "$qui" | cut -d: -f6)
        shift
        mkdir -m 700 /tmp/execution && chown "$qui" /tmp/execution
        cd "$maison" && exec runuser -u "$qui" -- env HOME="$maison" XDG_RUNTIME_DIR=/tmp/execution \
            DISPLAY='"$DISPLAY"' PATH=/usr/local/bin:/usr/bin:/bin:/usr/local/games:/usr/games "$@"' \
        bash "$@"
}
apt() { dans env DEBIAN_FRONTEND=noninteractive apt-get -qq -y --no-install-recommends "$@"; }
completes() { # every library that the programs name is there
    # shellcheck disable=SC2016  # expanded inside
    dans bash -c 'ldd /usr/games/orvane* /usr/bin/orvane-listes /usr/lib/games/orvane/*.so \
        /usr/lib/*/qt6/plugins/platforms/libqxcb.so >/tmp/ldd && ! grep "not found" /tmp/ldd'
}
demarrages() { # both users' programs at once, each up to its window; then the windows are closed
    local qui numeros attendus=0 statut=0
    local programmes=()
    for qui in anne zoe; do
        comme "$qui" timeout 300 "$1" &
        programmes+=($!)
        attendus=$((attendus + 1))
        timeout 120 bash -c 'until [ "$(xdotool search --onlyvisible --name "$1" 2>/dev/null |
            wc -l)" -ge "$2" ]; do sleep .1; done' bash "$2" "$attendus" || statut=1
    done
    numeros=$(xdotool search --onlyvisible --name "$2")
    for qui in $numeros; do
        xdotool windowactivate --sync "$qui" key --clearmodifiers alt+F4 || statut=1
    done
    for qui in "${programmes[@]}"; do
        wait "$qui" || statut=1
    done
    return $statut
}
apportees() { # the folders of both users hold what came with the package
    local maison nom
    for maison in "/home/anne" "/home/zoé d'été"; do
        for nom in listes images infosouris.txt APP05.WAV; do
            diff -r "$place/usr/share/games/orvane/$nom" "$place$maison/.local/share/orvane/$nom"
        done
        rm -r "$place$maison/.local/share/orvane"
    done
}
jouer() { # jouer USER PLAYER [--apres|--revient]: the list played by real keys, see tests/fenetres
    mkdir -p "$travail/captures/$suite-$1"
    chmod 777 "$travail/captures/$suite-$1"
    comme "$1" dbus-run-session -- python3 "$travail/fenetres/installe.py" /usr/games/orvane \
        "$travail/captures/$suite-$1" "${@:2}"
}
versionest() { [ "$(dans dpkg-query -W -f '${Version}' orvane)" = "$1" ]; }
manuels() { # the pages of all programs, in both languages
    local page
    for page in man6/orvane.6 man6/orvane-carnet.6 man1/orvane-listes.1; do
        gzip -t "$place/usr/share/man/$page.gz" "$place/usr/share/man/fr/$page.gz"
    done
}
restes() { # nothing of the package is left, all of the players is
    ! dans dpkg-query -W orvane 2>/dev/null &&
        [ -z "$(find "$place/usr" "$place/etc" "$place/var/lib/dpkg/info" -iname '*orvane*' \
            ! -path '*/etc/orvane-pret')" ] &&
        [ -s "$place/home/anne/.local/share/orvane/Anne/hist.dat" ] &&
        [ -s "$place/home/zoé d'été/.local/share/orvane/Zoe/hist.dat" ]
}
comptes() {
    dans useradd -m anne && dans useradd -m -d "/home/zoé d'été" zoe
}

essayersuite() {
    local fraiche
    fraiche=$(outils/racine "$suite")
    place=$travail/racines/$suite
    rm -rf --one-file-system "$place"
    mkdir -p "$travail/racines"
    cp -a "$fraiche" "$place"
    rm -rf "$place/srv/orvane"
    rm -rf "$travail/fenetres"
    cp -r tests/fenetres "$travail/fenetres"
    essai "$suite : comptes" comptes
    essai "$suite : listes d'apt" apt update
    essai "$suite : installation par apt, avec ses dépendances" apt install "$ancien"
    essai "$suite : rien d'abîmé ni de changé" dans dpkg --verify orvane
    essai "$suite : bibliothèques au complet" completes
    essai "$suite : pages de manuel" manuels
    essai "$suite : deux joueurs à la fois" demarrages orvane Bienvenue
    essai "$suite : listes apportées chez chacun" apportees
    essai "$suite : carnets de deux joueurs" demarrages orvane-carnet "Carnet d'Orvane"
    essai "$suite : orvane-listes" comme anne orvane-listes --verifier .local/share/orvane
    essai "$suite : listes du carnet apportées" apportees
    # The keys and eyes of a player, which the program itself does not need.
    essai "$suite : outils de l'essai" apt install xvfb xauth openbox xdotool x11-utils x11-xkb-utils \
        dbus at-spi2-core python3 python3-pyatspi imagemagick
    essai "$suite : liste jouée par le premier joueur" jouer anne Anne
    essai "$suite : liste jouée par le second" jouer zoe Zoe
    essai "$suite : mise à jour par apt" apt install "$recent"
    essai "$suite : version nouvelle" versionest 2.69
    essai "$suite : premier joueur après la mise à jour" jouer anne Anne --apres
    essai "$suite : second joueur après la mise à jour" jouer zoe Zoe --apres
    essai "$suite : retrait" apt remove orvane
    essai "$suite : rien ne reste après le retrait" restes
    essai "$suite : réinstallation" apt install "$recent"
    essai "$suite : premier joueur après la réinstallation" jouer anne Anne --revient
    essai "$suite : purge" apt purge orvane
    essai "$suite : rien ne reste après la purge" restes
    rm -rf --one-file-system "$place"
}
for suite in ${ORVANE_SUITES:-bookworm trixie}; do
    essayersuite
done
