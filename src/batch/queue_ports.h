// The ports of the batch program: message boxes and file dialogs that a queue answers, a clock that can be set, a yield
// that lets one waiting command in.
#pragma once

#include <deque>
#include <functional>
#include <optional>
#include <utility>

#include <QJsonArray>

#include "toolkit/end_signals.h"
#include "toolkit/ports.h"

namespace vanzer::batch {

/// What came up while a command ran, for its answer.
class ShownList {
  public:
    /// Starts another list and hands out the one so far.
    [[nodiscard]] QJsonArray exchange(const QJsonArray& other) { return std::exchange(shown_, other); }

  protected:
    void shown(const QJsonObject& entry) { shown_.append(entry); }

  private:
    QJsonArray shown_;
};

class QueuedBoxes : public MessageBoxes, public ShownList {
  public:
    void enqueue(int answer) { answers_.push_back(answer); }
    /// With no answer queued: OK, no where no can be said, cancel where that is offered too.
    [[nodiscard]] int show(const MessageBox& box) override;

  private:
    std::deque<int> answers_;
};

class QueuedDialogs : public FileDialogs, public ShownList {
  public:
    /// An empty path is a cancel.
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

/// A visitor waits for a yield that suits it and comes in once.
class VisitedYield : public EventYield {
  public:
    /// True if it came in. It may not come in again while it is inside.
    using Visitor = std::function<bool()>;
    /// Takes the place of one that still waits; none sends that one away.
    void expect(Visitor visitor) { visitor_ = std::move(visitor); }
    void yield() override {
        if (SegnaliDiFine::arrived() != 0 && onEnd)
            onEnd();
        if (visitor_)
            letIn();
    }
    /// Runs at each yield once the program is to end.
    std::function<void()> onEnd;

  private:
    void letIn();
    Visitor visitor_;
};

} // namespace vanzer::batch
