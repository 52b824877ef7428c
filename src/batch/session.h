// One window with everything around it, for as long as the batch program runs: the window may be started, left and
// started again.
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

    /// Leaves the window if there is one, and starts. Must not be called while a handler of the window runs.
    void start();
    /// Lets go of window and archive. The same holds.
    void close() { form_.reset(); }

    /// The window of the last start, which may have been left; null before the first one.
    [[nodiscard]] const Form* last() const { return form_.get(); }
    /// Null before the first start and after the window was left.
    [[nodiscard]] Form* window() const { return form_ && !form_->chiusa ? form_.get() : nullptr; }

    /// The records of a stored table, from the open archive or, when the window was left, from the file.
    [[nodiscard]] QJsonObject table(const QString& name) const;
    /// The lines of a text file; a relative path is taken from the program's directory.
    [[nodiscard]] QJsonObject textFile(const QString& name) const;

  private:
    Ambiente surroundings_;
    DetachedStarter programs_;
    Ports ports_{boxes, dialogs, clock, events, programs_, &printer};
    std::unique_ptr<Form> form_;
};

} // namespace vanzer::batch
