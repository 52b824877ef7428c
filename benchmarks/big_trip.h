// A trip of many legs with a guide entry at every place, in a window without a display.
#pragma once

#include <QTemporaryDir>

#include "batch/session.h"

namespace vanzer::bench {

class BigTrip {
  public:
    explicit BigTrip(int legs);

    [[nodiscard]] Form& form() { return *session_.window(); }
    [[nodiscard]] int legs() const { return legs_; }
    [[nodiscard]] QString archive() const { return directory_.filePath(QStringLiteral("Vanzer.mdb")); }
    void answer(int button) { session_.boxes.enqueue(button); }

    /// Wanted days that no multiplier reaches, so that a calculation runs all its tests.
    void wantTheImpossible();
    /// Leaves the window: the archive is free for others.
    void close() { session_.close(); }
    void reopen() { session_.start(); }

  private:
    void storeLegs();
    void storeGuide();

    int legs_;
    QTemporaryDir directory_;
    batch::Session session_;
};

} // namespace vanzer::bench
