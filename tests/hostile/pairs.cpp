#include "hostile/pairs.h"

#include <numeric>

#include <QDir>

#include "batch/interpreter.h"

namespace vanzer::hostile {

using namespace Qt::StringLiterals;

namespace {

constexpr int full = Folders::choices - 1;
constexpr int old = 1;

struct Place {
    int folder;
    QStringList lines;
};

/// The ways into the windows, with all that their commands need.
std::vector<Place> windows() {
    const QStringList trip{u"start"_s, u"click cmdRicerca"_s, u"pick cmbRicerca ROMA"_s};
    const QStringList schedule = trip + QStringList{u"set cmbGiorni 003"_s, u"click cmdCalcola"_s};
    const QStringList leg{u"set txtTappa RIVA"_s, u"set txtKm 700"_s};
    const QStringList printer{u"pick lstStampanti PDF"_s, u"file nuovo.pdf"_s};
    const QStringList emptyTrip{
        u"start"_s,    u"click cmdNuovo"_s, u"set txtLocalita GIRO"_s, u"set txtNazione ITALIA"_s,
        u"answer 6"_s, u"click cmdSalva"_s, u"click cmdItinerario"_s};
    return {
        {full, trip + QStringList{u"set txtNazione X"_s}},
        {full, trip + QStringList{u"set cmbGiorni 003"_s}},
        {full, trip + QStringList{u"click cmdItinerario"_s, u"row mfgTab 2"_s} + leg},
        {full, schedule},
        {full, schedule + QStringList{u"click cmdStampa"_s, u"check chkTabella 1"_s}},
        {full, schedule + QStringList{u"click cmdStampa"_s, u"click cmdEsegui(0)"_s} + printer},
        {full, trip + QStringList{u"click cmdGuidaCitta"_s, u"row mfgTab 1"_s, u"set txtGDescr Duomo"_s}},
        {full, trip +
                   QStringList{u"click cmdGuidaCitta"_s, u"click cmdStampaGuidaCitta"_s, u"click cmdStampaGuida(0)"_s} +
                   printer},
        {full, trip + QStringList{u"click cmdExport"_s, u"click cmdImportExport(0)"_s, u"click cmdTutto(0)"_s,
                                  u"file nuovo.iei"_s}},
        {full, trip + QStringList{u"click cmdExport"_s, u"file giri.iei"_s, u"click cmdImportExport(1)"_s,
                                  u"click cmdTutto(1)"_s}},
        {full, trip + QStringList{u"click cmdDuplica"_s, u"row mfgCopia 1"_s, u"row mfgCopia 2"_s,
                                  u"click cmdAssegna(0)"_s, u"row mfgCopia 3"_s, u"click cmdAssegna(1)"_s}},
        {full, trip + QStringList{u"click cmdModStrada"_s, u"row mfgTab 2"_s, u"click cmdTappaSEl(0)"_s,
                                  u"row mfgTab 4"_s, u"click cmdTappaSEl(1)"_s, u"click cmdTappaSEl(2)"_s}},
        {full, emptyTrip + QStringList{u"file scozia.txt"_s}},
        {full, emptyTrip + QStringList{u"file scozia.txt"_s, u"click cmdMapPoint"_s, u"file scozia.csv"_s}},
        {old, {u"start"_s}},
    };
}

QStringList buttonCommands(const Form& window, bool reachable) {
    QStringList commands;
    for (const auto& control : window.controls()) {
        if (qobject_cast<const Button*>(control.get()) != nullptr && (!reachable || control->reachable()))
            commands += u"click "_s + control->name();
    }
    return commands;
}

} // namespace

Pairs::Pairs(const Folders& folders) {
    const QStringList others{u"row mfgTab 2"_s, u"dblclick mfgTab"_s, u"pick cmbRicerca CASA"_s};
    for (const Place& place : windows()) {
        batch::Interpreter program({.directory = folders.lay(place.folder), .decimalMark = u'.', .versione = {}});
        program.setClock(Folders::moment());
        for (const QString& line : place.lines)
            static_cast<void>(program.run(line));
        for (const QString& command : buttonCommands(*program.window(), true) + others)
            doors_.push_back({place.folder, place.lines, command});
        inside_ = buttonCommands(*program.window(), false) + others +
                  QStringList{u"set txtTappa X"_s, u"set txtLocalita X"_s, u"start"_s, u"stop"_s};
    }
}

Script Pairs::script(quint64 number) const {
    quint64 step = 7919;
    while (std::gcd(step, count()) != 1)
        ++step;
    const quint64 pair = number * step % count();
    const Door& door = doors_[pair / static_cast<quint64>(inside_.size())];
    QStringList lines = door.lines;
    // Behind the command its user stores all that he can, and has it calculated.
    lines += {u"answer 6 6 6"_s,
              u"during "_s + inside_[static_cast<qsizetype>(pair) % inside_.size()],
              door.command,
              u"answer 6 6"_s,
              u"click cmdFine"_s,
              u"click cmdCalcola"_s,
              u"click cmdItinerario"_s,
              u"answer 6 6"_s,
              u"click cmdFine"_s};
    return {number, door.folder, false, linesOf(lines)};
}

} // namespace vanzer::hostile
