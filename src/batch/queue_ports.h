// SPDX-License-Identifier: MIT
// The ports of the batch program. Queues answer message boxes and file dialogs. The clock can be set. A yield can run
// one waiting command.
#pragma once

#include <deque>
#include <functional>
#include <optional>
#include <utility>

#include <QJsonArray>

#include "toolkit/end_signals.h"
#include "toolkit/ports.h"

namespace vanzer::batch {

/// What was shown while a command ran, for its answer.
class ShownList {
  public:
    /// Continues with another list and returns the current one.
    [[nodiscard]] QJsonArray exchange(const QJsonArray& other) { return std::exchange(shown_, other); }

  protected:
    void shown(const QJsonObject& entry) { shown_.append(entry); }

  private:
    QJsonArray shown_;
};

class QueuedBoxes : public MessageBoxes, public ShownList {
  public:
    void enqueue(int answer) { answers_.push_back(answer); }
    /// Returns the next queued answer. Without one: cancel if the box offers it, else no if it offers that, else OK.
    [[nodiscard]] int show(const MessageBox& box) override;

  private:
    std::deque<int> answers_;
};

class QueuedDialogs : public FileDialogs, public ShownList {
  public:
    /// Queues a path; an empty path cancels the dialog.
    void enqueue(const QString& path) { paths_.push_back(path); }
    [[nodiscard]] QString open(const QString& filter) override { return next(QStringLiteral("open"), filter); }
    [[nodiscard]] QString save(const QString& filter, Ricopertura /*overwriting*/) override {
        return next(QStringLiteral("save"), filter);
    }

  private:
    [[nodiscard]] QString next(const QString& kind, const QString& filter);
    std::deque<QString> paths_;
};

class SetClock : public Clock {
  public:
    void set(const QDateTime& time) { fixed_ = time; }
    [[nodiscard]] QDateTime now() const override { return fixed_ ? *fixed_ : QDateTime::currentDateTime(); }

  private:
    std::optional<QDateTime> fixed_;
};

/// A yield that runs a visitor once, at the first yield that the visitor accepts.
class VisitedYield : public EventYield {
  public:
    /// Returns true if it accepted this yield. It isn't called again while it runs.
    using Visitor = std::function<bool()>;
    /// Sets the visitor and replaces one that is still waiting. An empty one only removes that.
    void expect(Visitor visitor) { visitor_ = std::move(visitor); }
    void yield() override {
        if (SegnaliDiFine::arrived() != 0 && onEnd)
            onEnd();
        if (visitor_)
            letIn();
    }
    /// Called at each yield after a signal that ends the program.
    std::function<void()> onEnd;

  private:
    void letIn();
    Visitor visitor_;
};

} // namespace vanzer::batch
