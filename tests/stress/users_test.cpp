// SPDX-License-Identifier: MIT
// Random users, and each command inside each other one. The promises hold after every line.
#include <functional>
#include <numeric>

#include <unistd.h>

#include <QDir>
#include <QTemporaryDir>

#include "store/error.h"
#include "stress/attempts.h"
#include "stress/desk.h"
#include "stress/system_calls.h"
#include "stress/users.h"

namespace vanzer::stress {
namespace {

const QDate today(2026, 5, 20);

/// The next line for the present window. Null after the last line.
using NextLine = std::function<QString(const Form* window)>;

NextLine linesOf(const QStringList& lines) {
    return [lines, i = qsizetype(0)](const Form* /*window*/) mutable { return lines.value(i++); };
}

class UsersTest : public testing::Test {
  protected:
    struct Script {
        int number = 0;
        QString folder;          ///< the folder to begin with
        bool typesMarks = false; ///< marks of the first and last destination may be typed as texts
        NextLine next;
    };

    /// A folder of users.txt, made once for all tests.
    const Disk& ready(const QString& name) {
        Disk& disk = ready_[name];
        if (disk.names.empty()) {
            Disk().lay(folder);
            prepare(folder, script(entry(section("users.txt", u"folders"_s), name)));
            disk = Disk::of(folder);
        }
        return disk;
    }

    /// Runs the try. If it is the one asked for and breaks the program, prints the few lines that do so.
    void attemptOn(const Script& wanted) {
        ready(wanted.folder);
        const End end = attempt(wanted.number, [&] { return run(wanted); });
        if (options().number == 0 || end == End::Held || end == End::Told)
            return;
        QFile file(home_.filePath(u"righe"_s));
        ASSERT_TRUE(file.open(QIODevice::ReadOnly));
        QStringList needed = QString::fromUtf8(file.readAll()).split(u'\n', Qt::SkipEmptyParts);
        for (qsizetype part = needed.size(); part > 0; part /= 2) {
            for (qsizetype at = 0; at < needed.size();) {
                Script fewer = wanted;
                QStringList lines = needed;
                lines.remove(at, std::min(part, lines.size() - at));
                fewer.next = linesOf(lines);
                const End again = inChild([&] { return run(fewer); }, true);
                if (again == End::Held || again == End::Told)
                    at += part;
                else
                    needed = lines;
            }
        }
        std::printf("%s\n", ::vanzer::stress::text(needed).c_str());
    }

    const QTemporaryDir home_;
    const QString folder = home_.filePath(u"viaggi"_s);

  private:
    /// True if the user was told something.
    bool run(const Script& wanted) {
        const Disk& before = ready_[wanted.folder];
        before.lay(folder);
        QDir::setCurrent(folder);
        bool told = false;
        QString broken = brokenByLines(wanted, told);
        const Disk after = Disk::of(folder);
        if (broken.isEmpty() && wanted.folder == u"broken"_s)
            broken = after["Vanzer.mdb"] == before["Vanzer.mdb"] ? QString() : u"a damaged archive was touched"_s;
        else if (broken.isEmpty())
            broken = brokenInFile(folder + u"/Vanzer.mdb"_s);
        EXPECT_EQ(broken.toStdString(), "");
        EXPECT_EQ(::vanzer::stress::text(QDir(folder).entryList(
                      {u"*-journal"_s, u"*-wal"_s, u"DBTemp*"_s, u"*.parte"_s}, QDir::Files | QDir::Hidden)),
                  "");
        return told;
    }

    QString brokenByLines(const Script& wanted, bool& told) {
        constexpr int archiveEach = 20;          // lines
        QFile lines(home_.filePath(u"righe"_s)); // the lines that were run
        EXPECT_TRUE(lines.open(QIODevice::WriteOnly | QIODevice::Unbuffered));
        Promises promises(wanted.typesMarks);
        Desk desk(folder, today);
        const NextLine next = wanted.next;
        const auto brokenInStore = [&]() -> QString {
            Form* const window = desk.program().window();
            if (window == nullptr || window->archivio.Db(0) == nullptr)
                return {};
            const QString found = brokenInArchive(window->archivio);
            return found.isEmpty() ? promises.scheduleRowIn(window->archivio) : found;
        };
        for (int i = 1; !desk.program().finished(); ++i) {
            QString line = next(desk.program().window());
            const bool last = line.isNull();
            if (last)
                line = u"stop"_s;
            QString broken = last || i % archiveEach == 0 ? brokenInStore() : QString();
            lines.write(line.toUtf8() + '\n');
            promises.before(line, desk.program().window());
            alarm(longestTry);
            const auto answer = desk.program().run(line);
            told = told || answer.value_or(QJsonObject()).contains(u"boxes"_s);
            if (broken.isEmpty())
                broken = wrongAnswer(line, answer);
            Form* const window = desk.program().window();
            if (broken.isEmpty() && window != nullptr) {
                window->interattiva = wanted.number % 2 == 1; // asks more questions if a user is present
                broken = promises.brokenBehind(*window);
            }
            if (!broken.isEmpty())
                return line + u": "_s + broken;
        }
        return {};
    }

    std::map<QString, Disk> ready_;
};

class Users : public UsersTest {};

TEST_F(Users, DoAnything) {
    constexpr int longest = 60; // lines
    static const QStringList folders = u"nothing old other broken nothing old"_s.split(u' ');
    eachDrawn(
        [this](int number, std::mt19937_64& chance) {
            Hand hand(chance);
            const QString begin = folders.value(hand.below(24), u"full"_s);
            attemptOn({number, begin, hand.typesMarks(), [&hand, lines = longest](const Form* window) mutable {
                           return lines-- > 0 ? hand.next(window) : QString();
                       }});
        },
        10);
}

QStringList buttonCommands(const Form& window, bool reachable) {
    QStringList commands;
    for (const auto& control : window.controls()) {
        if (qobject_cast<const Button*>(control.get()) != nullptr && (!reachable || control->reachable()))
            commands += u"click "_s + control->name();
    }
    return commands;
}

class Pairs : public UsersTest {};

TEST_F(Pairs, OfCommandsOneInsideTheOther) {
    // Folders, and scripts that lead to a command. After the command, its user stores everything and calculates.
    std::vector<std::pair<QString, QString>> doors;
    const QString around = u"%1; answer 6 6 6; during {}; %2; answer 6 6; click cmdFine; click cmdCalcola; "
                           "click cmdItinerario; answer 6 6; click cmdFine"_s;
    const QStringList others{u"row mfgTab 2"_s, u"dblclick mfgTab"_s, u"pick cmbRicerca CASA"_s};
    QStringList inside{u"set txtTappa X"_s, u"set txtLocalita X"_s, u"start"_s, u"stop"_s};
    for (const QString& window : section("users.txt", u"windows"_s)) {
        const QString name = window.section(u": "_s, 0, 0);
        const QString lines = window.section(u": "_s, 1);
        ready(name).lay(folder);
        Desk desk(folder, today);
        desk.run(script(lines));
        if (doors.empty())
            inside += buttonCommands(*desk.program().window(), false) + others;
        for (const QString& command : buttonCommands(*desk.program().window(), true) + others)
            doors.emplace_back(name, around.arg(lines, command));
    }
    const auto count = doors.size() * static_cast<std::size_t>(inside.size());
    // Neighbouring numbers belong to different windows and commands, so that a few hundred are a fair sample.
    std::size_t step = 7919;
    while (std::gcd(step, count) != 1)
        ++step;
    eachDrawn(
        [&](int number, std::mt19937_64& /*chance*/) {
            const auto first = (options().seed - 1) * static_cast<unsigned>(options().tries) * 10;
            const std::size_t pair = (first + static_cast<std::size_t>(number)) * step % count;
            const auto& [name, lines] = doors[pair / static_cast<std::size_t>(inside.size())];
            attemptOn(
                {number, name, false, linesOf(script(lines, inside[static_cast<qsizetype>(pair) % inside.size()]))});
        },
        10);
}

} // namespace
} // namespace vanzer::stress
