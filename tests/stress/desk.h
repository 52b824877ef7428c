// A program at work in a folder, and what is done there.
#pragma once

#include <string>

#include <QStringList>

#include "support/desk.h"

namespace vanzer::stress {

/// Lines of a section of a file beside this one.
[[nodiscard]] QStringList section(const char* file, const QString& name);
/// What stands behind "KEY: " there; empty if nothing does.
[[nodiscard]] QString entry(const QStringList& section, const QString& key);
/// Lines to give, of a script as scripts.txt explains it. "{}" in them is the folder.
[[nodiscard]] QStringList script(const QString& text, const QString& folder = {});
/// Makes a folder ready, by such lines too.
void prepare(const QString& folder, const QStringList& lines);

[[nodiscard]] std::string text(const QStringList& lines);
/// Boxes on a failure that don't say what was kept or not done.
[[nodiscard]] std::string unclearWords(QStringList boxes);

class Desk : public vanzer::Desk {
  public:
    using vanzer::Desk::Desk;

    /// Lets go of the archive.
    void leave() { static_cast<void>(program().run(u"stop"_s)); }

    /// All records of all tables, a line each, without the guide's marks of use, which are made anew at each load. A
    /// program that was never started reads them from the file.
    [[nodiscard]] QStringList records();
};

} // namespace vanzer::stress
