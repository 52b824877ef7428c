// A user who does anything: sensible work, every control, texts of every kind. The same number is the same user, on
// every machine: chance comes from one generator alone, and always in the same order.
#pragma once

#include <cstdint>
#include <deque>
#include <random>

#include <QString>
#include <QStringList>

#include "window/form.h"

namespace vanzer::hostile {

class Hand {
  public:
    explicit Hand(std::uint64_t number) : chance_(number), typesMarks_(oneIn(8)), route_(below(3)) {}

    /// The next command line for the window as it stands; null where there is none.
    [[nodiscard]] QString next(const Form* window);

    [[nodiscard]] int below(std::size_t limit) { return static_cast<int>(chance_() % limit); }
    /// Some users write the marks of the first and the last destination into the names of places themselves.
    [[nodiscard]] bool typesMarks() const { return typesMarks_; }

  private:
    template<typename List> [[nodiscard]] auto& oneOf(List& list) {
        return list[static_cast<typename List::size_type>(below(static_cast<std::size_t>(list.size())))];
    }
    [[nodiscard]] bool oneIn(std::size_t cases) { return below(cases) == 0; }

    /// Lines of the plan, in the language of work.cpp, for the window as it stands.
    void plan(const QString& lines, const Form& window);
    [[nodiscard]] QString filled(const QString& line, const Form& window);
    [[nodiscard]] QString given(const QString& wanted, const Form& window);
    void planWork(const Form& window);
    void planWayOut(const Form& window);

    [[nodiscard]] QString onControl(const Control& control);
    [[nodiscard]] QString onGrid(const Grid& grid);
    [[nodiscard]] QString onText(const Control& control);
    [[nodiscard]] QString onAnyControl(const Form& window);
    [[nodiscard]] QString onReachableControl(const Form& window);
    [[nodiscard]] QString anything(const Form& window);
    [[nodiscard]] QString word(const Form* window);

    [[nodiscard]] QString text();
    [[nodiscard]] QString place();
    [[nodiscard]] QString number();
    [[nodiscard]] QString file();
    [[nodiscard]] QString answers();
    [[nodiscard]] QString count(std::size_t limit) { return QString::number(below(limit)); }

    std::mt19937_64 chance_;
    bool typesMarks_;
    int route_; ///< of the planner's three the one that this user brings in
    std::deque<QString> planned_;
};

} // namespace vanzer::hostile
