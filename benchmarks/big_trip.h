// A trip of many legs in a window without a display, in an archive of its own.
#pragma once

#include <vector>

#include <QTemporaryDir>

#include "batch/session.h"
#include "big_archive.h"

namespace vanzer::bench {

class BigTrip {
  public:
    /// Through places that the guide knows, in a copy of the archive of a folder.
    explicit BigTrip(int legs, const QString& folder = bigArchive());

    [[nodiscard]] Form& form() { return *session_.window(); }
    [[nodiscard]] int legs() const { return legs_; }
    [[nodiscard]] QString folder() const { return directory_.path(); }
    [[nodiscard]] QString file(const char* name) const { return directory_.filePath(QLatin1StringView(name)); }
    /// Places of the legs as the guide knows them.
    [[nodiscard]] std::vector<QString> places();

    void answer(int button) { session_.boxes.enqueue(button); }
    void choose(const QString& file) { session_.dialogs.enqueue(file); }

    /// Wanted days that no multiplier reaches, so that a calculation runs all its tests.
    void wantTheImpossible() { form().cmbGiorni.setText(QStringLiteral("997")); }
    /// Leaves the window: the archive is free for others.
    void close() { session_.close(); }
    void reopen() { session_.start(); }
    /// The table as it is stored.
    void reload();

  private:
    void storeLegs();

    int legs_;
    QTemporaryDir directory_;
    batch::Session session_;
};

/// Legs as text, for an import: a time, the kilometres and an instruction on each line.
[[nodiscard]] QByteArray routeList(int rows);

} // namespace vanzer::bench
