#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# Checks the rules for includes between rooms that the linker can't check. Some rules count indirect includes as well.
# Prints each line that breaks a rule.
set -uo pipefail
cd "$(dirname "$0")/../.." || exit 1
exec python3 - <<'PYTHON'
import re
import sys
from pathlib import Path

# The rooms that each room may include, besides itself.
ROOMS = {"core": []}
ROOMS["toolkit"] = ROOMS["store"] = ROOMS["paper"] = ["core"]
ROOMS["window"] = ["core", "toolkit", "store"]
ROOMS["trip"] = ROOMS["help"] = ROOMS["window"] + ["window"]
ROOMS["itinerary"] = ROOMS["trip"] + ["trip", "help"]
ROOMS["guide"] = ROOMS["itinerary"] + ["itinerary"]
ROOMS["schedule"] = ROOMS["exchange"] = ROOMS["guide"] + ["guide"]
ROOMS["reports"] = ROOMS["guide"] + ["guide", "schedule", "exchange", "paper"]
ROOMS["startup"] = ROOMS["reports"] + ["reports"]
ROOMS["batch"] = ROOMS["startup"] + ["startup"]
ROOMS["desktop"] = [room for room in ROOMS["batch"] if room != "store"]
ROOMS["scribolo"] = ["core", "paper"]

SCREEN_CLASSES = (
    "Application GuiApplication Widget Painter PainterPath Print[A-Za-z]* PdfWriter PagedPaintDevice Font[A-Za-z]* Color"
    " Brush Pen Image Pixmap Icon Picture Dialog MainWindow MessageBox FileDialog Action Shortcut Clipboard TableView"
    " LineEdit ComboBox PushButton [A-Za-z]*Event[A-Z][A-Za-z]*Widget UiLoader Style[A-Za-z]* Palette").replace(" ", "|")
# Headers that only these rooms may include.
ONLY = [(r"sqlite3", ["store"], "Only the store knows SQLite"),
        (r"cairo|hb[.-]|fontconfig/|ft2build|freetype|paper/(face|painter)\.h", ["paper"], "Only the paper knows fonts"),
        (rf"(QtGui|QtWidgets|QtPrintSupport|QtUiTools)[/>]|Q({SCREEN_CLASSES})$", ["desktop"], "Only the desktop draws"),
        (r".*_screen\.h", ["trip", "help", "itinerary", "guide", "schedule", "exchange", "reports", "startup", "batch"],
         "The desktop knows no handler")]
# Rooms with engines. Their files are engines unless they are screens.
WORK = ["trip", "help", "itinerary", "guide", "schedule", "exchange", "reports"]

INCLUDE = re.compile(r'^\s*#\s*include\s*[<"]([^>"]+)[>"]', re.MULTILINE)
files = {str(path.relative_to("src")): INCLUDE.findall(path.read_text())
         for path in sorted(Path("src").glob("*/*")) if path.suffix in (".h", ".cpp")}
broken = []


def room(file):
    return file.split("/")[0]


def engine(file):
    return room(file) in WORK and "_screen." not in file


def forbidden(file, way, seen):
    """The ways by which an engine reaches what it may not know, each as far as that."""
    for included in files[file]:
        if included not in files or included in seen:
            continue
        seen.add(included)
        if room(included) in ("store", "window") or "_screen." in included:
            yield " > ".join(way + [included])
        else:
            yield from forbidden(included, way + [included], seen)


def circle(file, above, done):
    """A way from the file back to itself or to one above it, or nothing."""
    if file in done:
        return None
    for included in files[file]:
        if included in above + [file]:
            return above + [file, included]
        if included in files and (found := circle(included, above + [file], done)):
            return found
    done.add(file)
    return None


for file, includes in files.items():
    for included in includes:
        if included in files and room(included) not in ROOMS[room(file)] + [room(file)]:
            broken.append(f"{file} includes {included}: {room(file)} knows no {room(included)}")
        broken += [f"{file} includes {included}: {why}" for pattern, rooms, why in ONLY
                   if re.match(pattern, included) and room(file) not in rooms]
done = set()
for file in files:
    if found := circle(file, [], done):
        broken.append("in a circle: " + " > ".join(found))
        break
else:
    for file in filter(engine, files):
        broken += [f"{way}: an engine knows no archive, window or screen" for way in forbidden(file, [file], set())]
print("\n".join(broken))
sys.exit(bool(broken))
PYTHON
