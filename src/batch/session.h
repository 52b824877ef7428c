// SPDX-License-Identifier: MIT
// The window and its surroundings for a whole run of the batch program. The window can be started, left and started
// again.
#pragma once

#include <memory>

#include <QJsonObject>

#include "batch/batch_printer.h"
#include "batch/queue_ports.h"
#include "toolkit/program_starter.h"
#include "window/form.h"

namespace vanzer::batch {

class Session {
  public:
    explicit Session(Ambiente surroundings);
    Session(const Session&) = delete;
    Session& operator=(const Session&) = delete;

    QueuedBoxes boxes;
    QueuedDialogs dialogs;
    SetClock clock;
    VisitedYield events;
    BatchPrinter printer;

    /// Leaves the window, if any, and starts a new one. Must not be called while a handler of the window runs.
    void start();
    /// Closes window and archive. Must not be called while a handler of the window runs.
    void close() { form_.reset(); }

    /// The window of the last start, even if it was left; null before the first start.
    [[nodiscard]] const Form* last() const { return form_.get(); }
    /// The open window; null before the first start and after the window was left.
    [[nodiscard]] Form* window() const { return form_ && !form_->chiusa ? form_.get() : nullptr; }

    /// The records of a stored table, from the open archive, or from the file if the window was left.
    [[nodiscard]] QJsonObject table(const QString& name) const;
    /// The lines of a text file. A relative path starts at the program's directory.
    [[nodiscard]] QJsonObject textFile(const QString& name) const;

  private:
    Ambiente surroundings_;
    DetachedStarter programs_;
    Ports ports_{boxes, dialogs, clock, events, programs_, &printer};
    std::unique_ptr<Form> form_;
};

} // namespace vanzer::batch
