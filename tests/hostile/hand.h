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
    explicit Hand(std::uint64_t number) : chance_(number), typesMarks_(oneIn(8)) {}

    /// The next command line for the window as it stands; null where there is none.
    [[nodiscard]] QString next(const Form* window);

    [[nodiscard]] int below(std::size_t limit) { return static_cast<int>(chance_() % limit); }
    /// Some users write the marks of the first and the last destination into the names of places themselves.
    [[nodiscard]] bool typesMarks() const { return typesMarks_; }

  private:
    /// Work that can be begun while its first control is there.
    struct Work {
        const Control& door;
        void (Hand::*plan)(const Form& window);
    };

    template<typename List> [[nodiscard]] auto& oneOf(List& list) {
        return list[static_cast<typename List::size_type>(below(static_cast<std::size_t>(list.size())))];
    }
    [[nodiscard]] bool oneIn(std::size_t cases) { return below(cases) == 0; }

    void plan(const QStringList& lines);
    void planAnswers();
    void planClick(const QString& button);
    void planWork(const Form& window);
    void planTrip(const Form& window);
    void planLegs(const Form& window);
    void planLeg();
    void planRow(const Form& window);
    void planWayBack(const Form& window);
    void planLegSearch(const Form& window);
    void planStops(const Form& window);
    void planEndOfLegs(const Form& window);
    void planGuide(const Form& window);
    void planEntry(const Form& window);
    void planGuidePrint(const Form& window);
    void planExport(const Form& window);
    void planImport(const Form& window);
    void planStretch(const Form& window);
    void planCopy(const Form& window);
    void planRoute(const Form& window);
    void planParameters(const Form& window);
    void planCalculation(const Form& window);
    void planPrint(const Form& window);
    void planConversion(const Form& window);
    void planSearch(const Form& window);
    void planDeletion(const Form& window);
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
    std::deque<QString> planned_;
};

} // namespace vanzer::hostile
