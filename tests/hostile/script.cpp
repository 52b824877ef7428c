#include "hostile/script.h"

#include <optional>

#include <unistd.h>

#include <QDir>
#include <QJsonArray>
#include <QJsonDocument>

#include "batch/interpreter.h"
#include "store/error.h"

namespace vanzer::hostile {

using namespace Qt::StringLiterals;

namespace {

constexpr unsigned longestLine = 60; // s; one that takes longer hangs
constexpr int archiveEach = 20;      // lines

/// What is wrong with an answer.
QString wrongAnswer(const QString& line, const std::optional<QJsonObject>& answer, Totals& totals) {
    if (!answer)
        return batch::saysNothing(line) ? QString() : u"no answer"_s;
    ++totals.looks["answers"];
    if (answer->value(u"cmd"_s).toString() != line)
        return u"another line's answer"_s;
    const QByteArray written = QJsonDocument(*answer).toJson(QJsonDocument::Compact);
    if (written.contains('\n') || QJsonDocument::fromJson(written).isNull())
        return u"an answer that nobody can read"_s;
    const bool refused = answer->contains(u"refused"_s);
    const bool notUnderstood = answer->contains(u"error"_s);
    totals.refused += refused ? 1 : 0;
    totals.notUnderstood += notUnderstood ? 1 : 0;
    totals.looks["commands inside others"] += answer->contains(u"during"_s) ? 1 : 0;
    totals.boxes += answer->value(u"boxes"_s).toArray().size();
    return {};
}

/// Remembers the control that a line worked.
void remember(const QString& line, const Form& window, std::set<QString>& worked) {
    if (const Control* const control = window.find(line.section(u' ', 1, 1)))
        worked.insert(control->name());
}

QString changed(const QString& path, const QByteArray& contents, Looks& looks) {
    ++looks["damaged archives kept"];
    QFile file(path);
    return file.open(QIODevice::ReadOnly) && file.readAll() == contents ? QString()
                                                                        : u"a damaged archive was touched"_s;
}

class Run {
  public:
    Run(const Script& script, QString folder, ScriptFile& file, Totals& totals)
        : script_(script), folder_(std::move(folder)), file_(file), totals_(totals), marksRepeated_(script.typesMarks),
          program_({.directory = folder_, .decimalMark = u'.', .versione = {}}) {
        program_.setClock(Folders::moment());
    }

    QString broken() {
        for (int i = 0; !program_.finished(); ++i) {
            QString line = script_.next(program_.window());
            if (line.isNull()) {
                line = u"stop"_s;
                if (const QString found = brokenInStore(); !found.isEmpty())
                    return found;
            }
            file_.add(line);
            if (const QString found = brokenBy(line, i); !found.isEmpty())
                return found;
        }
        return {};
    }

  private:
    QString brokenBy(const QString& line, int number) {
        // A place is copied, and driven through again on the way back, with the mark that stands in its name.
        marksRepeated_ = marksRepeated_ || line.contains(u"cmdInsEsegui", Qt::CaseInsensitive) ||
                         line.contains(u"cmdRitorno", Qt::CaseInsensitive);
        std::optional<MarkTaken> taken;
        if (line == u"click cmdInserisce" && program_.window() != nullptr)
            taken.emplace(*program_.window());
        alarm(longestLine);
        const auto answer = program_.run(line);
        alarm(0);
        ++totals_.lines;
        QString found = wrongAnswer(line, answer, totals_);
        Form* const window = program_.window();
        if (!found.isEmpty() || window == nullptr)
            return found;
        window->interattiva = script_.number % 2 == 1; // before a user, who is asked more
        if (!answer.value_or(QJsonObject()).contains(u"refused"_s))
            remember(line, *window, totals_.worked);
        found = brokenInWindow(*window, marksRepeated_, totals_.looks);
        if (found.isEmpty() && taken)
            found = taken->broken(*window, totals_.looks);
        scheduleRows_.see(*window);
        if (found.isEmpty() && number % archiveEach == archiveEach - 1)
            found = brokenInStore();
        return found;
    }

    QString brokenInStore() {
        Form* const window = program_.window();
        if (window == nullptr || window->archivio.Db(0) == nullptr)
            return {};
        const QString found = brokenInArchive(window->archivio, totals_.looks);
        return found.isEmpty() ? scheduleRows_.storedIn(window->archivio, totals_.looks) : found;
    }

    const Script& script_;
    QString folder_;
    ScriptFile& file_;
    Totals& totals_;
    bool marksRepeated_;
    ScheduleRows scheduleRows_;
    batch::Interpreter program_;
};

} // namespace

ScriptFile::ScriptFile(const QString& path) : file_(path) {
    static_cast<void>(file_.open(QIODevice::ReadWrite | QIODevice::Truncate | QIODevice::Unbuffered));
}

void ScriptFile::begin() {
    file_.resize(0);
    file_.seek(0);
}

NextLine linesOf(const QStringList& lines) {
    return [lines, i = qsizetype(0)](const Form* /*window*/) mutable { return lines.value(i++); };
}

QString run(const Script& script, const Folders& folders, ScriptFile& file, Totals& totals) {
    const QString folder = folders.lay(script.folder);
    QDir::setCurrent(folder);
    file.begin();
    file.add(u"# %1"_s.arg(script.number));
    ++totals.scripts;
    const QString broken = Run(script, folder, file, totals).broken();
    if (!broken.isEmpty())
        return broken;
    if (const QString stray = strayFile(folder, totals.looks); !stray.isEmpty())
        return u"a stray file: "_s + stray;
    const QString archive = folder + u"/Vanzer.mdb"_s;
    try {
        return script.folder == Folders::damaged ? changed(archive, Folders::damagedArchive(), totals.looks)
                                                 : brokenInFile(archive, totals.looks);
    } catch (const store::StoreError& error) {
        return u"the archive can't be opened again: "_s + error.testo();
    }
}

} // namespace vanzer::hostile
