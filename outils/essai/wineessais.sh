# The tests of the tree on the Windows of wine.sh, and the program played there by real keys. Read by
# windows.sh.

essais=build/windows-essais

# Of a program that asks for its updates at a port of this machine.
construireessais() {
    local port
    port=$(/usr/bin/python3 -c 'import socket
s = socket.socket()
s.bind(("127.0.0.1", 0))
print(s.getsockname()[1])')
    cmake --preset windows --fresh -B "$essais" -DCMAKE_PREFIX_PATH="$(outils/qt-windows)" \
        -DORVANE_NATIF="$racine/build/natif" -DORVANE_ADRESSE_MISEAJOUR="http://127.0.0.1:$port"
    cmake --build "$essais"
}
port() { sed -n 's/^ORVANE_ADRESSE_MISEAJOUR:.*:\([0-9]*\)$/\1/p' "$essais/CMakeCache.txt"; }
unessai() { ctest --test-dir "$essais" --output-on-failure --no-tests=error -R "^${1//./\\.}\$"; } # unessai NAME
essayertout() { # each program of tests, and each folder of scenarios
    local nom
    for nom in $(ctest --test-dir "$essais" -N | sed -n 's/^ *Test *#[0-9]*: //p'); do
        essai "windows : essais $nom" unessai "$nom"
    done
}

jouer() { # jouer PLAYER [OPTION...]: see tests/fenetres/windows.py; it has a screen of its own
    wineserver -w
    /usr/bin/python3 tests/fenetres/windows.py "$programme/orvane.exe" "$travail/captures/windows-jeu" "$@"
    wineserver -w
}
ancienne() { # an older program, which finds the newer one on this machine
    cp "$essais/src/orvane.exe" "$programme/orvane.exe"
}
misajour() {
    jouer Anne --misajour "$(port)" "$recent/orvane_setup.exe" 2.69
    cmp "$programme/orvane.exe" <(unzip -p "$recent"/*.zip Orvane/orvane.exe)
}
