// Users who do anything, and what holds whatever they do.
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

/// Does sensible work, uses every control, types texts of every kind. Chance comes from one generator alone, and always
/// in the same order.
class Hand {
  public:
    explicit Hand(std::mt19937_64& chance) : chance_(chance), typesMarks_(oneIn(8)), route_(below(3)) {}

    /// The next command line for the window as it stands.
    [[nodiscard]] QString next(const Form* window);

    [[nodiscard]] int below(std::size_t limit) { return static_cast<int>(chance_() % limit); }
    /// Some users write the marks of the first and the last destination into the names of places themselves.
    [[nodiscard]] bool typesMarks() const { return typesMarks_; }

  private:
    template<typename List> [[nodiscard]] auto& oneOf(const List& list) {
        return list[static_cast<typename List::size_type>(below(static_cast<std::size_t>(list.size())))];
    }
    /// One line of a section of users.txt.
    [[nodiscard]] QString drawn(const char* list);
    [[nodiscard]] bool oneIn(std::size_t cases) { return below(cases) == 0; }
    [[nodiscard]] QString count(std::size_t limit) { return QString::number(below(limit)); }

    /// Lines of the plan, in the language of users.txt, for the window as it stands.
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
    int route_; ///< of the planner's three the one that this user brings in
    std::deque<QString> planned_;
};

/// Of an answer: what is wrong with it, or nothing; and so with all that follows.
[[nodiscard]] QString wrongAnswer(const QString& line, const std::optional<QJsonObject>& answer);

/// In the open archive.
[[nodiscard]] QString brokenInArchive(store::Archive& archive);

/// In one that nobody has open. Throws StoreError if it can't be opened.
[[nodiscard]] QString brokenInFile(const QString& path);

/// One window, from its first command to its last.
class Promises {
  public:
    /// With `marksRepeated` a mark may stand in more than one row.
    explicit Promises(bool marksRepeated) : marksRepeated_(marksRepeated) {}

    void before(const QString& line, const Form* window);
    [[nodiscard]] QString brokenBehind(const Form& window);
    /// A row that a schedule writes between the legs never becomes a leg.
    [[nodiscard]] QString scheduleRowIn(store::Archive& archive) const;

  private:
    [[nodiscard]] QString takenMark(const Form& window) const;
    void seeScheduleRows(const Form& window);

    bool marksRepeated_;
    std::array<bool, 2> wantedMarks_{}; ///< of the leg that is put in
    std::set<QString> scheduleRows_;
};

} // namespace vanzer::stress
