#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# scribolo.sh BUILD-FOLDER: checks the logbook as its users get it. That is the pages and texts of the PDF, an older
# file that survives a failure, the error messages, and the viewer on a display.
set -uo pipefail
cd "$(dirname "$0")/../.." || exit 1
program=$(realpath "${1:?the build folder}")/Scribolo
[ -x "$program" ] || { echo "no $program"; exit 1; }
scratch=$(mktemp -d)
trap 'rm -rf "$scratch"' EXIT
cd "$scratch" || exit 1
unset DISPLAY WAYLAND_DISPLAY QT_QPA_PLATFORM
broken=0

complain() {
    printf '%s\n' "$*"
    broken=1
}

# pages FILE COUNT: the file must be an A4 document of so many pages.
pages() {
    local shown
    shown=$(pdfinfo "$1" | sed -nE 's/^(Pages|Page size): *//p' | paste -sd' ')
    [[ $shown == "$2 595"*"(A4)" ]] || complain "$1: '$shown' instead of $2 pages A4"
}

# holds FILE PAGE TEXT...: the page must have all these texts.
holds() {
    local file=$1 page=$2 shown text
    shift 2
    shown=$(pdftotext -f "$page" -l "$page" -layout "$file" - | tr -s ' ')
    for text in "$@"; do
        grep -qF -- "$text" <<<"$shown" || complain "page $page of $file lacks '$text'"
    done
}

# refuses STATUS MESSAGE ARGUMENT...: must fail with the status and one message that holds this, and print nothing.
refuses() {
    local status=$1 message=$2 got
    shift 2
    "$program" "$@" >shown 2>errors
    got=$?
    [ "$got" -eq "$status" ] || complain "Scribolo $*: status $got instead of $status"
    [ ! -s shown ] || complain "Scribolo $*: says '$(cat shown)'"
    grep -qF -- "$message" errors || complain "Scribolo $*: '$(cat errors)' instead of '$message'"
}

# A short trip. Its name was split by a shell, and has a comma and letters outside the code page.
short="$scratch/Diario di bordo - Elba, Łódź -e ritorno.pdf"
shown=$("$program" Elba, Łódź -e ritorno,31/05/2026,02/06/2026 2>/dev/null) || complain "the short trip: status $?"
[ "$shown" = "$short" ] || complain "the short trip: '$shown'"
pages "$short" 5
holds "$short" 1 'Elba, Łódź -e ritorno' '31 maggio 2026 – 2 giugno 2026' '3 giorni'
holds "$short" 2 'Domenica 31 maggio 2026' 'giorno 1 di 3' Partenza Arrivo Contachilometri 'Km del giorno' \
    'Luoghi della giornata' Carburante Litri 'Dove abbiamo dormito' camping area libera Voto Pedaggi Traghetti Ingressi \
    Pasti Spesa Altro Totale Meteo Note 'pagina 2 di 5'
holds "$short" 4 'Martedì 2 giugno 2026' 'giorno 3 di 3'
holds "$short" 5 Riepilogo 'dom 31/05' 'mar 02/06' 'Totale del viaggio' 'pagina 5 di 5'

# A long trip from the command file, into another folder.
mkdir 'I miei viaggi'
printf '/home/anna/I miei viaggi\\Scribolo.exe Capo Nord, l\x92estate: \x80/giorno,20/06/2026,29/07/2026\r\n' \
    >'I miei viaggi/CommandLine.txt'
long='I miei viaggi/Diario di bordo - Capo Nord, l’estate_ €_giorno.pdf'
"$program" --dir 'I miei viaggi' >/dev/null 2>&1 || complain "the long trip: status $?"
pages "$long" 43
holds "$long" 1 '40 giorni'
holds "$long" 2 'Capo Nord, l’estate: €/giorno' 'giorno 1 di 40'
holds "$long" 41 'Mercoledì 29 luglio 2026' 'giorno 40 di 40'
holds "$long" 42 'giorni 1–27' 'gio 16/07' 'Da riportare'
holds "$long" 43 'giorni 28–40' Riporto 'ven 17/07' 'Totale del viaggio' 'pagina 43 di 43'

# Requests that can't be fulfilled.
refuses 1 'CommandLine.txt non può essere letto'
refuses 1 'Il viaggio va indicato come' Elba
refuses 1 '"31/06/2026" non è una data' Elba,31/06/2026,02/07/2026
refuses 1 'finisce prima di cominciare' Elba,02/06/2026,01/06/2026
refuses 1 'non esiste' --dir "$scratch/nessuna" Elba,01/06/2026,02/06/2026
touch file
refuses 1 'non esiste' --dir file Elba,01/06/2026,02/06/2026
ln -s Vanzer.mdb 'Diario di bordo - Lipari.pdf'
refuses 1 'un collegamento a un altro file' Lipari,01/06/2026,02/06/2026
[ ! -e Vanzer.mdb ] || complain 'a link led to the archive'
mkdir 'Diario di bordo - Giglio.pdf'
refuses 1 'non può essere scritto' Giglio,01/06/2026,02/06/2026
refuses 2 CARTELLA --dir
refuses 2 CARTELLA --altro

# No room for most of the file, or not for its end. The old file stays, and no half-written file is left beside it.
cp "$short" before
touch names && ls >names
for room in 8 $((($(stat -c %s "$short") - 1) / 1024)); do # KiB
    (
        trap '' XFSZ
        ulimit -f "$room"
        exec "$program" 'Elba, Łódź -e ritorno,31/05/2026,02/06/2026'
    ) >shown 2>errors && complain "a disk with room for $room KiB is not noticed"
    grep -qF 'il disco è pieno' errors || complain "room for $room KiB: '$(cat errors)'"
    cmp "$short" before || complain "room for $room KiB: the older file is lost"
done
diff names <(ls) || complain 'something is left over'

# With a display, the platform's viewer opens the file.
mkdir tools
printf '#!/bin/sh\nprintf %%s "$1" >"%s/given"\n' "$scratch" >tools/xdg-open
chmod +x tools/xdg-open
PATH="$scratch/tools:$PATH" xvfb-run -a "$program" Elba,01/06/2026,02/06/2026 >/dev/null 2>&1 || complain "on a display: status $?"
for _ in {1..50}; do
    [ -s given ] && break
    sleep 0.1
done
[[ $(cat given) == file://*'/Diario%20di%20bordo%20-%20Elba.pdf' ]] || complain "the viewer got '$(cat given)'"

exit $broken
