// SPDX-License-Identifier: MIT
#include "desktop/program.h"

#include <QApplication>
#include <QDialog>
#include <QMessageBox>
#include <QSettings>

#include "startup/startup.h"
#include "startup/ways_out.h"

namespace vanzer::desktop {

namespace {

constexpr int slowStart = 300; // ms; a slower start shows the window before it has ended

constexpr int draftDelay = 9000; // ms; with the time to write it, the draft is at most ten seconds old
constexpr int endingStep = 20;   // ms between two checks whether a command has ended

/// The user's choice in the leg editor, kept in the settings.
const QString totalsKey = QStringLiteral("tappe/kmProgressivi");

} // namespace

Program::Program(const Ambiente& surroundings, Clock& clock, Pace pace, FileOpener* opener)
    : boxes_(opener != nullptr ? *opener : opener_), events_(pace),
      printer_(dialogs_, clock), ports_{boxes_, dialogs_, clock, events_, programs_, &printer_},
      form_(nuovaFinestra(surroundings, ports_)), draft_(*form_), window_(std::make_unique<MainWindow>(*form_)),
      gate_(std::make_unique<InputGate>(*window_)) {
    form_->interattiva = true;
    boxes_.setWindow(window_.get());
    dialogs_.setWindow(window_.get());
    printer_.setWindow(window_.get());
    boxes_.onOpen = dialogs_.onOpen = printer_.onOpen = [this] { window_->binder().flush(); };
    printer_.nomeRiservato = [this](const QString& path) { return nomeRiservato(*form_, path); };
    QObject::connect(&window_->binder(), &Binder::inputBegins, [this] { events_.begin(); });
    form_->stato.KmProgressivi = QSettings().value(totalsKey, true).toBool();
    form_->onKmProgressivi = [this] { QSettings().setValue(totalsKey, form_->stato.KmProgressivi); };
    keepDrafts();
    ending_.setInterval(endingStep);
    QObject::connect(&ending_, &QTimer::timeout, [this] { goOnEnding(); });
}

void Program::keepDrafts() {
    draftBehind_.setSingleShot(true);
    draftBehind_.setInterval(draftDelay);
    QObject::connect(&draftBehind_, &QTimer::timeout, [this] { draft_.keep(); });
    QObject::connect(&window_->binder(), &Binder::inputEnded, [this] {
        draft_.look();
        if (!draftBehind_.isActive())
            draftBehind_.start();
    });
    QObject::connect(&window_->binder(), &Binder::closed, [this] {
        draftBehind_.stop();
        draft_.wasLeft();
    });
    // No questions at the end of a desktop session: it may be cancelled, and then the program goes on.
    const auto keepNow = [this] {
        draft_.keep();
        draft_.wait();
    };
    QObject::connect(qApp, &QGuiApplication::commitDataRequest, window_.get(), keepNow, Qt::DirectConnection);
    QObject::connect(qApp, &QGuiApplication::saveStateRequest, window_.get(), keepNow, Qt::DirectConnection);
}

bool Program::start() {
    window_->restorePlace();
    QTimer::singleShot(slowStart, window_.get(), &QWidget::show);
    loadWindow(*form_);
    window_->binder().flush();
    if (form_->chiusa)
        return false;
    window_->show();
    if (!ending_.isActive())
        draft_.offer();
    window_->binder().flush();
    return !form_->chiusa;
}

void Program::end() {
    if (form_->chiusa || ending_.isActive())
        return;
    ending_.start();
    goOnEnding();
}

/// Closes one box at a time, since each has its own event loop. The next step handles the next box.
void Program::goOnEnding() {
    const bool working = form_->comandoInCorso;
    if (!working)
        leaveNow();
    if (QWidget* const modal = QApplication::activeModalWidget()) {
        auto* const box = qobject_cast<QMessageBox*>(modal);
        if (working && (box == nullptr || box->button(QMessageBox::Ok) == nullptr))
            draft_.notUsersChoice();
        auto* const dialog = qobject_cast<QDialog*>(modal);
        dialog != nullptr ? dialog->reject() : static_cast<void>(modal->close());
    } else if (working && interruptUnasked(*form_)) {
        draft_.notUsersChoice();
    }
}

void Program::leaveNow() {
    ending_.stop();
    draftBehind_.stop();
    draft_.finish();
    form_->archivio.close();
    form_->chiusa = true;
    QCoreApplication::exit();
}

void Program::openTrips(const QString& path) {
    window_->binder().input([this, &path] { openTripsOf(*form_, path); });
}

} // namespace vanzer::desktop
