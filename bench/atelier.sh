#!/bin/sh
# Whole processes: the time of orvane-listes over the time of `wc -l` on its sources, and the memory.
# Usage: bench/atelier.sh PROGRAM [DIC AFF DAT]
set -eu
programme=$1
dic=${2:-/usr/share/hunspell/fr.dic}
aff=${3:-/usr/share/hunspell/fr.aff}
dat=${4:-/usr/share/mythes/thes_fr.dat}
dossier=$(mktemp -d)
trap 'rm -rf "$dossier"' EXIT

# The least of five, in seconds of processor: other work on the machine only adds to it.
mesurer() {
    for _ in 1 2 3 4 5; do
        /usr/bin/time -f '%U %S %M' -o "$dossier/temps" "$@" > /dev/null
        tail -n 1 "$dossier/temps"
    done | awk '{ t = $1 + $2; if (NR == 1 || t < min) min = t; m = $3 } END { print min, m }'
}

fabrication=$(mesurer "$programme" --sortie "$dossier/jeu" --lexique "$dic" --affixes "$aff" --thesaurus "$dat")
comptage=$(mesurer sh -c 'for i in 1 2 3 4 5 6 7 8 9 10; do wc -l "$@"; done' wc "$dic" "$aff" "$dat")
echo "$fabrication $comptage" | awk '{
    printf "orvane-listes %.2f s, %.0f Mo ; wc -l %.4f s ; rapport %.0f\n", $1, $2 / 1024, $3 / 10, $1 / ($3 / 10) }'
