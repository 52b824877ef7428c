#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# samples.sh BUILD: samples/make must give the exchange files of the repository, byte for byte. They are imported into
# one archive, one after the other. Each must give the schedule of the script that it came from.
set -uo pipefail
cd "$(dirname "$0")/../.." || exit 1
batch=$(realpath "$1")/vanzer-batch

trips=(capo_nord delta_po sud)
scratch=$(mktemp -d)
trap 'rm -rf "$scratch"' EXIT
mkdir "$scratch"/{made,friend}

samples/make "$1" "$scratch/made" || exit 1
for trip in "${trips[@]}"; do
    cmp "samples/$trip.iei" "$scratch/made/$trip.iei" || { echo 'Is it meant so? samples/make puts the new files in place'; exit 1; }
done

# commands FOLDER SCRIPT: prints the script's answers; fails if a command was not understood
commands() {
    "$batch" --dir "$1" --script "$2" >"$scratch/answers" && ! grep '"error"' "$scratch/answers" >&2 && cat "$scratch/answers"
}

# schedule ANSWERS: prints the cells of the last grid on one line
schedule() { grep '"cmd":"grid mfgTab"' "$1" | tail -n 1 | sed 's/"cmd":.*//'; }

# name TRIP: prints the name of the trip in its script
name() { sed -n 's/^set txtLocalita //p' "samples/$1.txt"; }

# Makes an archive with another trip, since an empty one has no button for an import. The trip goes to Munich and Oslo.
# Guide entries are imported if a leg has their place's full name, and the sample calls these legs "... [Start]" and
# "... [End]".
own_trip() {
    printf '%s\n' start 'click cmdNuovo' 'set txtLocalita OSLO IN BREVE' 'set txtNazione NORVEGIA' 'answer 6' 'click cmdSalva' \
        'click cmdItinerario' 'set txtTappa VERONA' 'click cmdInserisce' 'set txtTappa MONACO DI BAVIERA' 'set txtKm 435' \
        'click cmdInserisce' 'set txtTappa AMBURGO' 'set txtKm 780' 'click cmdInserisce' 'set txtTappa OSLO' 'set txtKm 910' \
        'click cmdInserisce' 'answer 6' 'click cmdFine'
}

import_and_calculate() {
    printf '%s\n' 'click cmdExport' "file $1.iei" 'click cmdImportExport(1)' 'click cmdTutto(1)' 'answer 6' 'click cmdImExp(0)' \
        'click cmdRicerca' "pick cmbRicerca $(name "$1")" 'click cmdCalcola' 'grid mfgTab' 'click cmdCalcola'
}

{
    own_trip
    for trip in "${trips[@]}"; do
        cp "samples/$trip.iei" "$scratch/friend"
        import_and_calculate "$trip"
    done
} >"$scratch/script"
commands "$scratch/friend" "$scratch/script" | grep '"cmd":"grid mfgTab"' >"$scratch/imported" || exit 1

number=0
for trip in "${trips[@]}"; do
    number=$((number + 1))
    mkdir "$scratch/$trip"
    commands "$scratch/$trip" "samples/$trip.txt" >"$scratch/typed" || exit 1
    schedule "$scratch/typed" >"$scratch/wanted"
    sed -n "${number}p" "$scratch/imported" >"$scratch/line"
    schedule "$scratch/line" >"$scratch/got"
    legs=$(grep -c '^click cmdInserisce$' "samples/$trip.txt")
    rows=$(grep -oE '\["[0-9]+","' "$scratch/wanted" | wc -l)
    if [ "$rows" -lt "$legs" ]; then
        echo "$trip: only $rows numbered rows of $legs legs"
        exit 1
    fi
    if ! cmp -s "$scratch/wanted" "$scratch/got"; then
        echo "$trip: the imported trip has another schedule (< typed, > imported)"
        diff <(sed 's/\],\[/\n/g' "$scratch/wanted") <(sed 's/\],\[/\n/g' "$scratch/got") | head -n 20
        exit 1
    fi
    echo "$trip: $legs legs, $rows rows numbered, typed and imported alike"
done
