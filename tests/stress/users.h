// SPDX-License-Identifier: MIT
// Random users, and the promises that hold whatever they do.
#pragma once

#include <deque>
#include <optional>
#include <random>
#include <set>

#include <QJsonObject>
#include <QString>
#include <QStringList>

#include "window/form.h"

namespace vanzer::stress {

using namespace Qt::StringLiterals;

/// A user who works sensibly, uses every control and types texts of every kind. All chance comes from one generator, in
/// a fixed order.
class Hand {
  public:
    explicit Hand(std::mt19937_64& chance) : chance_(chance), typesMarks_(oneIn(8)), route_(below(3)) {}

    /// The next command line for the present window.
    [[nodiscard]] QString next(const Form* window);

    [[nodiscard]] int below(std::size_t limit) { return static_cast<int>(chance_() % limit); }
    /// Whether this user types the marks of the first and last destination into place names.
    [[nodiscard]] bool typesMarks() const { return typesMarks_; }

  private:
    template<typename List> [[nodiscard]] auto& oneOf(const List& list) {
        return list[static_cast<typename List::size_type>(below(static_cast<std::size_t>(list.size())))];
    }
    /// A random line of a section of users.txt.
    [[nodiscard]] QString drawn(const char* list);
    [[nodiscard]] bool oneIn(std::size_t cases) { return below(cases) == 0; }
    [[nodiscard]] QString count(std::size_t limit) { return QString::number(below(limit)); }

    /// Adds lines to the plan. They are in the language of users.txt, and depend on the present window.
    void plan(const QString& lines, const Form& window);
    [[nodiscard]] QString filled(const QString& line, const Form& window);
    [[nodiscard]] QString given(const QString& wanted, const Form& window);
    void planWork(const Form& window);

    [[nodiscard]] QString onControl(const Control& control);
    [[nodiscard]] QString onReachableControl(const Form& window);
    [[nodiscard]] QString anything(const Form& window);
    [[nodiscard]] QString word(const Form* window);

    [[nodiscard]] QString text();
    [[nodiscard]] QString place();
    [[nodiscard]] QString number() { return oneIn(5) ? drawn("texts") : count(oneIn(4) ? 2000 : 80); }
    [[nodiscard]] QString file() { return u"file "_s + drawn(oneIn(20) ? "texts" : "files"); }
    [[nodiscard]] QString answers() { return u"answer "_s + (oneIn(3) ? drawn("answers") : u"6"_s); }

    std::mt19937_64& chance_;
    bool typesMarks_;
    int route_; ///< which of the three planner files this user imports
    std::deque<QString> planned_;
};

/// What is wrong with an answer. Empty if nothing is, here and below.
[[nodiscard]] QString wrongAnswer(const QString& line, const std::optional<QJsonObject>& answer);

/// What is wrong in an open archive.
[[nodiscard]] QString brokenInArchive(store::Archive& archive);

/// What is wrong in an archive that nobody has open. Throws StoreError if it can't be opened.
[[nodiscard]] QString brokenInFile(const QString& path);

/// Checks one window, from its first command to its last.
class Promises {
  public:
    /// `marksRepeated`: a mark may stand in more than one row.
    explicit Promises(bool marksRepeated) : marksRepeated_(marksRepeated) {}

    void before(const QString& line, const Form* window);
    [[nodiscard]] QString brokenBehind(const Form& window);
    /// Rows that a schedule writes between the legs never become legs.
    [[nodiscard]] QString scheduleRowIn(store::Archive& archive) const;

  private:
    [[nodiscard]] QString takenMark(const Form& window) const;
    void seeScheduleRows(const Form& window);

    bool marksRepeated_;
    std::array<bool, 2> wantedMarks_{}; ///< marks of the leg that is being put in
    std::set<QString> scheduleRows_;
};

} // namespace vanzer::stress
