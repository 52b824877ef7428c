// SPDX-License-Identifier: MIT
// Holds inputs back while a command runs: keys and clicks wait for its end, in their order. Inputs that interrupt the
// command pass.
#pragma once

#include <deque>
#include <memory>

#include <QEvent>
#include <QObject>
#include <QPointer>
#include <QTimer>

namespace vanzer::desktop {

class MainWindow;

class InputGate : public QObject {
    Q_OBJECT
  public:
    /// Filters all input of the application. Inputs for other windows pass.
    explicit InputGate(MainWindow& window);
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    struct Waiting {
        QPointer<QObject> receiver;
        std::unique_ptr<QEvent> event;
    };

    [[nodiscard]] bool closed() const;
    [[nodiscard]] bool interrupts(QObject* watched, const QEvent& event) const;
    void deliver();

    MainWindow& window_;
    std::deque<Waiting> waiting_;
    QTimer soon_;
    bool delivering_ = false;
};

} // namespace vanzer::desktop
