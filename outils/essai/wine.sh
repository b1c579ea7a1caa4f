# A Windows to try programs on: Wine, in a fresh folder whose name has a blank and an accent. Read by
# windows.sh.

export WINEDEBUG=-all WINEDLLOVERRIDES="mscoree=;mshtml=" # asks for no download
menu="AppData/Roaming/Microsoft/Windows/Start Menu/Programs/Orvane"
CLE='HKCU\Software\Microsoft\Windows\CurrentVersion\Uninstall\Orvane'

export WINEPREFIX="$travail/windows/Zoé d'été"
profil="$WINEPREFIX/drive_c/users/$(id -un)"
programme="$profil/AppData/Local/Programs/Orvane"
donnees="$profil/AppData/Local/Orvane"

neuf() { # a fresh Windows 10
    rm -rf "$WINEPREFIX"
    mkdir -p "$WINEPREFIX"
    timeout 300 wineboot -i
    timeout 60 wine winecfg /v win10
    [ -d "$profil" ]
}
quitterwine() { wineserver -k; }

jusqua() { # jusqua COMMAND...: waits a minute at most until it succeeds
    local fin=$((SECONDS + 60))
    until "$@"; do
        [ $SECONDS -lt $fin ] || {
            echo "attendu en vain : $*" >&2
            return 1
        }
        sleep .1
    done
}
fenetre() { xdotool search --onlyvisible --name "$1" 2>/dev/null | tail -n 1 | grep .; } # fenetre TITLE
sansfenetre() { ! fenetre "$1" >/dev/null; }

ouvrir() { # ouvrir PROGRAM TITLE: starts it, up to its window
    wine "$1" &
    lance=$!
    jusqua fenetre "$2"
}
fermee() { # fermee TITLE: its window is no more; as long as it is there it is asked to close
    local numero
    numero=$(fenetre "$1") || return 0
    timeout 10 xdotool windowactivate --sync "$numero" key --clearmodifiers alt+F4 || true
    return 1
}
fermer() { # fermer TITLE: closes its window; the program that was started ends well
    jusqua fermee "$1" # a window manager that has just started may miss the first keys
    wait "$lance"
}
enregistre() { # enregistre NAME VALUE: the list of programs says so
    local ligne
    ligne=$(wine reg query "$CLE" /v "$1" | tr -d '\r' | grep "^ *$1 ")
    [ "$(sed -E 's/^ *[^ ]+ +REG_[A-Z]+ +//' <<<"$ligne")" = "$2" ] || {
        echo "$ligne" >&2
        return 1
    }
}
pasenregistre() { ! wine reg query "$CLE" >/dev/null 2>&1; }
rend() { # rend STATUS COMMAND...: that is its exit status
    local statut=0 voulu=$1
    shift
    timeout 120 "$@" || statut=$?
    [ $statut -eq "$voulu" ] || {
        echo "statut $statut au lieu de $voulu" >&2
        return 1
    }
}
empreinte() { (cd "$1" && find . -type f -exec sha256sum {} + | sort -k2); } # empreinte FOLDER
photographier() { import -window root "$travail/captures/windows-$1.png"; }
