// SPDX-License-Identifier: MIT
#include "scribolo/trip.h"

#include <algorithm>

#include <QLocale>

#include "core/code_page.h"

namespace vanzer::scribolo {

namespace {

using namespace Qt::StringLiterals;

constexpr QStringView program = u"\\Scribolo.exe ";
/// File systems allow 255 bytes. The temporary file needs some of them for its ending.
constexpr int longestFileName = 240; // bytes of UTF-8

QLocale italian() {
    return {QLocale::Italian, QLocale::Italy};
}

QDate dateOf(const QString& text) {
    const QDate date = QDate::fromString(text.trimmed(), u"dd/MM/yyyy"_s);
    if (!date.isValid())
        throw Problem(u"\"%1\" non è una data (gg/mm/aaaa)."_s.arg(text.trimmed()));
    return date;
}

/// The text on one line, without characters that can't be printed.
QString printable(QString text) {
    std::replace_if(
        text.begin(), text.end(), [](QChar c) { return c.category() == QChar::Other_Control; }, u' ');
    return text.simplified();
}

} // namespace

Trip tripOf(const QString& word) {
    const qsizetype second = word.lastIndexOf(u',');
    const qsizetype first = second > 0 ? word.lastIndexOf(u',', second - 1) : -1;
    if (first < 0)
        throw Problem(u"Il viaggio va indicato come NOME,gg/mm/aaaa,gg/mm/aaaa e non come \"%1\"."_s.arg(word));
    Trip trip{.name = printable(word.first(first)),
              .start = dateOf(word.sliced(first + 1, second - first - 1)),
              .end = dateOf(word.sliced(second + 1))};
    if (trip.name.isEmpty())
        throw Problem(u"Manca il nome del viaggio."_s);
    if (trip.end < trip.start)
        throw Problem(u"Il viaggio finisce prima di cominciare."_s);
    const qint64 days = trip.start.daysTo(trip.end) + 1;
    if (days > longestTrip)
        throw Problem(
            u"Il viaggio dura %1 giorni: il diario di bordo ne contiene al massimo %2."_s.arg(days).arg(longestTrip));
    trip.days = static_cast<int>(days);
    return trip;
}

QString wordOfCommand(const QByteArray& file) {
    qsizetype end = 0;
    while (end < file.size() && file.at(end) != '\r' && file.at(end) != '\n')
        ++end;
    const QString line = fromCodePage(QByteArrayView(file).first(end));
    const qsizetype found = line.lastIndexOf(program, -1, Qt::CaseInsensitive);
    if (found < 0)
        throw Problem(u"CommandLine.txt non contiene il comando del diario di bordo."_s);
    return line.sliced(found + program.size());
}

QString fileName(const QString& tripName) {
    const QString before = u"Diario di bordo - "_s;
    const QString after = u".pdf"_s;
    QString name = tripName;
    std::replace_if(
        name.begin(), name.end(),
        [](QChar c) { return c.category() == QChar::Other_Control || QStringView(u"\\/:*?\"<>|").contains(c); }, u'_');
    const auto bytes = [&] { return (before + name + after).toUtf8().size(); };
    while (bytes() > longestFileName)
        name.chop(name.back().isLowSurrogate() ? 2 : 1);
    return before + name + after;
}

QDate dayDate(const Trip& trip, int day) {
    return trip.start.addDays(day - 1);
}

QString dateWithWeekday(QDate date) {
    QString text = italian().toString(date, u"dddd d MMMM yyyy"_s);
    text[0] = text.at(0).toUpper();
    return text;
}

QString shortDate(QDate date) {
    return italian().toString(date, u"ddd dd/MM"_s);
}

QString period(const Trip& trip) {
    const auto text = [](QDate date) { return italian().toString(date, u"d MMMM yyyy"_s); };
    return trip.start == trip.end ? text(trip.start) : text(trip.start) + u" – "_s + text(trip.end);
}

QString length(const Trip& trip) {
    return trip.days == 1 ? u"1 giorno"_s : u"%1 giorni"_s.arg(trip.days);
}

} // namespace vanzer::scribolo
