#include <algorithm>

#include "core/code_page.h"
#include "core/text_file.h"
#include "fuzz_target.h"
#include "reports/text_files.h"
#include "scribolo/trip.h"

namespace vanzer::fuzz {

namespace {

using namespace Qt::StringLiterals;
using scribolo::Trip;

constexpr qsizetype longestName = 240; // bytes of UTF-8

bool sameTrip(const Trip& a, const Trip& b) {
    return a.name == b.name && a.start == b.start && a.end == b.end && a.days == b.days;
}

void checkTrip(const Trip& trip) {
    promise(trip.days >= 1 && trip.days <= scribolo::longestTrip, "a trip has days, but no more than a logbook");
    promise(scribolo::dayDate(trip, trip.days) == trip.end, "the last day is the end");
    promise(!trip.name.isEmpty() && std::ranges::none_of(trip.name, [](QChar c) { return c < u' '; }),
            "a name is one line");
    for (int day = 1; day <= trip.days; ++day)
        promise(!scribolo::dateWithWeekday(scribolo::dayDate(trip, day)).isEmpty() &&
                    !scribolo::shortDate(scribolo::dayDate(trip, day)).isEmpty(),
                "each day has its date");
    const QString file = scribolo::fileName(trip.name);
    promise(file.toUtf8().size() <= longestName &&
                std::ranges::none_of(file, [](QChar c) { return c < u' ' || QStringView(u"\\/:*?\"<>|").contains(c); }),
            "file systems take the name");
}

/// What Vanzer writes for that trip is read as it.
void checkWrittenAgain(const Trip& trip) {
    const auto date = [](QDate day) {
        return std::array{day.toString(u"dd"_s), day.toString(u"MM"_s), day.toString(u"yyyy"_s)};
    };
    const QString word = viaggioPerModuli(trip.name, date(trip.start), date(trip.end));
    const QByteArray written = contenutoTesto({comandoModuli(u"C:\\Vanzer"_s, word)});
    promise(sameTrip(scribolo::tripOf(scribolo::wordOfCommand(written)), trip), "a trip comes back as it was written");
}

} // namespace

void readCommandFile(const QByteArray& input) {
    try {
        checkTrip(scribolo::tripOf(QString::fromUtf8(input)));
    } catch (const scribolo::Problem& problem) {
        promise(*problem.what() != '\0', "a problem has a text");
    }
    try {
        const Trip trip = scribolo::tripOf(scribolo::wordOfCommand(input));
        checkTrip(trip);
        if (!trip.name.contains(u"\\Scribolo.exe "_s, Qt::CaseInsensitive))
            checkWrittenAgain(trip);
    } catch (const scribolo::Problem& problem) {
        promise(*problem.what() != '\0', "a problem has a text");
    }
}

} // namespace vanzer::fuzz
