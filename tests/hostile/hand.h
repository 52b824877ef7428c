// A user who does anything: sensible work, every control, texts of every kind. The same number is the same user.
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
    explicit Hand(std::uint64_t number) : chance_(number) {}

    /// The next command line for the window as it stands; null where there is none.
    [[nodiscard]] QString next(const Form* window);

    [[nodiscard]] int below(std::size_t limit) { return static_cast<int>(chance_() % limit); }

  private:
    template<typename List> [[nodiscard]] auto& oneOf(List& list) {
        return list[static_cast<typename List::size_type>(below(static_cast<std::size_t>(list.size())))];
    }
    [[nodiscard]] bool oneIn(std::size_t cases) { return below(cases) == 0; }

    void plan(const QStringList& lines);
    void planWork(const Form& window);
    void planTrip();
    void planLeg();
    void planExchange();
    void planGuide();
    void planStretch();
    void planCopy();
    void planRoute();
    void planAnswers();
    [[nodiscard]] QString onControl(const Control& control);
    [[nodiscard]] QString anything(const Form& window);
    [[nodiscard]] QString word();

    [[nodiscard]] QString text();
    [[nodiscard]] QString place();
    [[nodiscard]] QString number();
    [[nodiscard]] QString file();
    [[nodiscard]] QString answers();

    std::mt19937_64 chance_;
    std::deque<QString> planned_;
};

} // namespace vanzer::hostile
