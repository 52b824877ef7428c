// What holds whatever a user does.
#pragma once

#include <array>
#include <map>
#include <set>
#include <string>

#include <QString>

#include "window/form.h"

namespace vanzer::hostile {

/// How often each promise was looked at.
using Looks = std::map<std::string, long>;

/// What is broken in the window as it stands, between two commands; empty if nothing is. With `marksRepeated` a mark
/// may stand in more than one row.
[[nodiscard]] QString brokenInWindow(const Form& window, bool marksRepeated, Looks& looks);

/// A leg that is put in as the first or the last real destination takes the mark from all others, however many had it.
class MarkTaken {
  public:
    /// Before a leg is put in.
    explicit MarkTaken(const Form& window);
    /// What is broken behind it.
    [[nodiscard]] QString broken(const Form& window, Looks& looks) const;

  private:
    std::array<bool, 2> wanted_;
};

/// The rows that schedules write between the legs: none of them ever becomes a leg.
class ScheduleRows {
  public:
    void see(const Form& window);
    /// One that is stored as a leg; empty if none is.
    [[nodiscard]] QString storedIn(store::Archive& archive, Looks& looks) const;

  private:
    std::set<QString> places_;
};

/// What is broken in the open archive.
[[nodiscard]] QString brokenInArchive(store::Archive& archive, Looks& looks);

/// A file that the program should have taken away; null if there is none.
[[nodiscard]] QString strayFile(const QString& folder, Looks& looks);

/// What is broken in an archive that nobody has open. Throws StoreError if it can't be opened.
[[nodiscard]] QString brokenInFile(const QString& path, Looks& looks);

} // namespace vanzer::hostile
