#!/usr/bin/env bash
# The layering rules that the link lines can't see, read from the include lines. Prints each line that breaks one.
set -uo pipefail
cd "$(dirname "$0")/../.." || exit 1

broken=0

# forbid WHY PATTERN FILE...: no include line of the files matches the pattern.
forbid() {
    local why=$1 pattern=$2 hits
    shift 2
    [ $# -eq 0 ] && return
    hits=$(grep -nHE "^[[:space:]]*#[[:space:]]*include[[:space:]]*[<\"]($pattern)" "$@") || return
    printf '%s:\n%s\n' "$why" "$hits"
    broken=1
}

# sources [FIND-ARGUMENT...]: the source files under src that pass.
sources() {
    find src \( -name '*.cpp' -o -name '*.h' \) "$@" | sort
}

upper='window|itinerary|schedule|guide|reports|exchange|help|desktop|batch|scribolo'
screen_classes='Application|GuiApplication|Widget|Painter|PainterPath|Print[A-Za-z]*|PdfWriter|PagedPaintDevice|Font[A-Za-z]*'
screen_classes+='|Color|Brush|Pen|Image|Pixmap|Icon|Picture|Dialog|MainWindow|MessageBox|FileDialog|Action|Shortcut|Clipboard'
screen_classes+='|TableView|LineEdit|ComboBox|PushButton|[A-Za-z]*Event[A-Z][A-Za-z]*Widget|UiLoader|Style[A-Za-z]*|Palette'

mapfile -t files < <(sources -not -path 'src/store/*')
forbid 'Only the store knows SQLite' 'sqlite3' "${files[@]}"

mapfile -t files < <(sources -not -path 'src/paper/*')
forbid 'Only the paper knows fonts and surfaces' 'cairo|hb[.-]|fontconfig/|ft2build|freetype|paper/(face|painter)\.h' "${files[@]}"

mapfile -t files < <(sources -not -path 'src/desktop/*')
forbid 'Only the desktop draws on the screen' "(QtGui|QtWidgets|QtPrintSupport|QtUiTools)[/>]|Q($screen_classes)>" "${files[@]}"

mapfile -t files < <(sources -path 'src/core/*')
forbid 'core stands on nothing' "($upper|toolkit|store|paper)/" "${files[@]}"
mapfile -t files < <(sources -path 'src/toolkit/*')
forbid 'toolkit stands on core alone' "($upper|store|paper)/" "${files[@]}"
mapfile -t files < <(sources -path 'src/store/*')
forbid 'store stands on core alone' "($upper|toolkit|paper)/" "${files[@]}"
mapfile -t files < <(sources -path 'src/paper/*')
forbid 'paper stands on core alone' "($upper|toolkit|store)/" "${files[@]}"

mapfile -t files < <(sources -path 'src/scribolo/*')
forbid 'The logbook stands on paper and core' "(${upper%|scribolo}|toolkit|store)/" "${files[@]}"

mapfile -t files < <(sources -not -path 'src/desktop/*' -not -path 'src/batch/*' -not -path 'src/scribolo/*')
forbid 'No room knows the programs on top of it' '(desktop|batch|scribolo)/' "${files[@]}"

mapfile -t files < <(sources -not -name '*_screen.*' -not -path 'src/window/*' -not -path 'src/desktop/*' -not -path 'src/batch/*')
forbid 'An engine knows no screen and no window' '([a-z_/]*_screen\.h|window/)' "${files[@]}"

mapfile -t files < <(sources -path 'src/desktop/*')
forbid 'The desktop draws and knows no handler' '(store|batch)/|[a-z_/]*_screen\.h' "${files[@]}"

# No circle between files: the include graph can be sorted. Project paths are given from src.
if ! circle=$(grep -rHoE --include='*.h' --include='*.cpp' '^#include "[a-z_0-9]+/[a-z_0-9]+\.h"' src |
    sed -E 's|^src/([^:]*):#include "(.*)"|\1 \2|' | tsort 2>&1 >/dev/null); then
    printf 'Files that include each other:\n%s\n' "$circle"
    broken=1
fi

exit $broken
