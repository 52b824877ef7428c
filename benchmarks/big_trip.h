// A trip of many legs in a window without a display, with its guide.
#pragma once

#include <vector>

#include <QTemporaryDir>

#include "batch/session.h"

namespace vanzer::bench {

struct GuideEntry {
    QString place;
    QString category;
    QString group;
    QString description;
    QString time;
};

class BigTrip {
  public:
    /// Numbered places with one entry of the guide each.
    explicit BigTrip(int legs);
    BigTrip(const std::vector<QString>& places, const std::vector<GuideEntry>& guide);

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
    void storeLegs(const std::vector<QString>& places);
    void storeGuide(const std::vector<GuideEntry>& guide);

    int legs_;
    QTemporaryDir directory_;
    batch::Session session_;
};

} // namespace vanzer::bench
