// SPDX-License-Identifier: MIT
// A trip of many legs in a window without a display, with its own archive.
#pragma once

#include <vector>

#include <QTemporaryDir>

#include "batch/session.h"
#include "big_archive.h"

namespace vanzer::bench {

class BigTrip {
  public:
    /// A trip through places of the guide, in a copy of the archive in a folder.
    explicit BigTrip(int legs, const QString& folder = bigArchive());

    [[nodiscard]] Form& form() { return *session_.window(); }
    [[nodiscard]] int legs() const { return legs_; }
    [[nodiscard]] QString folder() const { return directory_.path(); }
    [[nodiscard]] QString file(const char* name) const { return directory_.filePath(QLatin1StringView(name)); }
    /// The places of the legs, as the guide names them.
    [[nodiscard]] std::vector<QString> places();

    void answer(int button) { session_.boxes.enqueue(button); }
    void choose(const QString& file) { session_.dialogs.enqueue(file); }

    /// Wants so many days that no factor reaches them. A calculation then runs all its tests.
    void wantTheImpossible() { form().cmbGiorni.setText(QStringLiteral("997")); }
    /// Leaves the window, which frees the archive.
    void close() { session_.close(); }
    void reopen() { session_.start(); }
    /// Loads the stored legs into the table.
    void reload();

  private:
    void storeLegs();

    int legs_;
    QTemporaryDir directory_;
    batch::Session session_;
};

/// A route list for an import, with a time, kilometres and an instruction on each line.
[[nodiscard]] QByteArray routeList(int rows);

} // namespace vanzer::bench
