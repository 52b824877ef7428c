// One script: its lines given to the program, each answer looked at, and what holds whatever is given.
#pragma once

#include <functional>
#include <set>

#include <QFile>
#include <QJsonObject>
#include <QStringList>

#include "hostile/folders.h"
#include "hostile/promises.h"

namespace vanzer::hostile {

struct Totals {
    long scripts = 0;
    long lines = 0;
    long refused = 0;
    long notUnderstood = 0;
    long boxes = 0;
    std::set<QString> worked; ///< controls with a command that was not refused
    Looks looks;
};

/// The lines of the script that runs, on the disk.
class ScriptFile {
  public:
    explicit ScriptFile(const QString& path);
    void begin();
    void add(const QString& line) { file_.write(line.toUtf8() + '\n'); }
    void remove() { file_.remove(); }
    [[nodiscard]] QString path() const { return file_.fileName(); }

  private:
    QFile file_;
};

using NextLine = std::function<QString(const Form* window)>;
struct Script {
    quint64 number = 0;
    int folder = 0;          ///< the one that it begins with
    bool typesMarks = false; ///< marks of the first and last destination may come in as texts
    /// The next line for the window as it stands; null behind the last one.
    NextLine next;
};

/// These lines, whatever the window is like.
[[nodiscard]] NextLine linesOf(const QStringList& lines);

/// What broke; empty if all held.
[[nodiscard]] QString run(const Script& script, const Folders& folders, ScriptFile& file, Totals& totals);

} // namespace vanzer::hostile
