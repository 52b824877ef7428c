#include "desktop/program.h"

#include <QSettings>
#include <QTimer>

#include "window/startup.h"

namespace vanzer::desktop {

namespace {

constexpr int slowStart = 300; // ms; a start that takes longer shows its window before the end

/// The user's choice in the leg editor, which holds to the next start.
const QString totalsKey = QStringLiteral("tappe/kmProgressivi");

} // namespace

Program::Program(const Ambiente& surroundings, Clock& clock, Pace pace, FileOpener* opener)
    : boxes_(opener != nullptr ? *opener : opener_),
      events_(pace), ports_{boxes_, dialogs_, clock, events_, programs_, &printer_},
      form_(nuovaFinestra(surroundings, ports_)), window_(std::make_unique<MainWindow>(*form_)),
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
}

bool Program::start() {
    window_->restorePlace();
    QTimer::singleShot(slowStart, window_.get(), &QWidget::show);
    caricaFinestra(*form_);
    window_->binder().flush();
    if (!form_->chiusa)
        window_->show();
    return !form_->chiusa;
}

void Program::openTrips(const QString& path) {
    window_->binder().input([this, &path] { apreViaggi(*form_, path); });
}

} // namespace vanzer::desktop
