// SPDX-License-Identifier: MIT
// Prints a schedule into a PDF as the desktop does.
#pragma once

#include <stdexcept>
#include <utility>

#include <QFile>

#include "big_trip.h"
#include "desktop/desktop_printer.h"
#include "measure.h"

namespace vanzer::bench {

/// File dialogs that always choose the same file.
class OneFile : public FileDialogs {
  public:
    explicit OneFile(QString path) : path_(std::move(path)) {}
    QString open(const QString& /*filter*/) override { return {}; }
    QString save(const QString& /*filter*/, Ricopertura /*overwriting*/) override { return path_; }

  private:
    QString path_;
};

/// Prints the table of the trip's schedule. Returns the seconds. The schedule stays in the window.
inline double printsSchedule(BigTrip& trip) {
    Form& form = trip.form();
    const QString pdf = trip.file("viandoria.pdf");
    QFile::remove(pdf);
    OneFile file(pdf);
    const desktop::SystemClock clock;
    desktop::DesktopPrinter printer(file, clock);
    Printer* const before = std::exchange(form.ports.printer, &printer);
    form.cmdStampa.click();
    form.chkTabella.setValue(true);
    form.cmdEsegui(0).click();
    form.lstStampanti.setText(QStringLiteral("PDF"));
    const double taken = seconds([&form] { form.cmdSelStampante(0).click(); });
    form.ports.printer = before;
    if (!QFile::exists(pdf))
        throw std::runtime_error("nothing was printed");
    return taken;
}

} // namespace vanzer::bench
