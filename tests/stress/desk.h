// SPDX-License-Identifier: MIT
// A program at work in a folder, and the commands to run there.
#pragma once

#include <string>

#include <QStringList>

#include "support/desk.h"

namespace vanzer::stress {

/// The lines of a section of a file in this folder.
[[nodiscard]] QStringList section(const char* file, const QString& name);
/// The text after "KEY: " in a section. Empty if there is none.
[[nodiscard]] QString entry(const QStringList& section, const QString& key);
/// The command lines of a script; scripts.txt explains its language. "{}" stands for the folder.
[[nodiscard]] QStringList script(const QString& text, const QString& folder = {});
/// Prepares a folder by such lines.
void prepare(const QString& folder, const QStringList& lines);

[[nodiscard]] std::string text(const QStringList& lines);
/// Those of the boxes that report a failure without telling what was kept or not done.
[[nodiscard]] std::string unclearWords(QStringList boxes);

class Desk : public vanzer::Desk {
  public:
    using vanzer::Desk::Desk;

    /// Closes the archive.
    void leave() { static_cast<void>(program().run(u"stop"_s)); }

    /// All records of all tables, one a line, without the guide's marks of use, which change at each load. A program
    /// that was never started reads them from the file.
    [[nodiscard]] QStringList records();
};

} // namespace vanzer::stress
