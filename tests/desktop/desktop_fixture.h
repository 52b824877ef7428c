// The whole program with its real window, on an archive of its own, worked by keys and clicks alone.
#pragma once

#include <deque>
#include <functional>
#include <memory>
#include <span>
#include <vector>

#include <QTemporaryDir>
#include <QTest>
#include <gtest/gtest.h>

#include "desktop/program.h"

namespace vanzer::desktop {

class FixedClock : public Clock {
  public:
    [[nodiscard]] QDateTime now() const override { return {QDate(2026, 6, 1), QTime(9, 10)}; }
};

/// Opens nothing and keeps what it was to open.
class KeptOpener : public FileOpener {
  public:
    [[nodiscard]] bool open(const QString& path) override {
        opened << path;
        return true;
    }
    QStringList opened;
};

/// A message box that came up.
struct ShownBox {
    QString text;
    QString title;
    QStringList buttons;
    QFont font;
    int lines = 0;     ///< that its text takes in the window
    bool plain = true; ///< nothing in its texts is taken for a mark-up
};

/// Presses keys in each message box that shows up, in the order told; Esc when none is told.
class BoxKeys : public QObject {
  public:
    BoxKeys();
    ~BoxKeys() override;
    void expect(Qt::Key key) { keys_.push_back(key); }
    [[nodiscard]] const std::vector<ShownBox>& shown() const { return shown_; }
    void forget() { shown_.clear(); }
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    std::deque<Qt::Key> keys_;
    std::vector<ShownBox> shown_;
};

struct TypedLeg {
    const char* place;
    const char* road;
    const char* km;
};

class DesktopTest : public ::testing::Test {
  protected:
    void SetUp() override;
    void TearDown() override;

    /// Starts the program on the test's archive; events run inside commands at the given pace.
    void open(Pace pace = {});
    void close() { program_.reset(); }
    /// The window is left, and archive and copies are gone.
    void forgetArchive();
    /// All frames come up and go again: their forms are made when they are first seen.
    void seeAllFrames();

    [[nodiscard]] Program& program() { return *program_; }
    [[nodiscard]] Form& form() { return program_->form(); }
    [[nodiscard]] MainWindow& window() { return program_->window(); }
    template<typename T = QWidget> T* find(const char* name) {
        T* const found = window().template findChild<T*>(QLatin1StringView(name));
        EXPECT_NE(found, nullptr) << name;
        return found;
    }
    /// A form that was never seen isn't there yet.
    [[nodiscard]] bool isSeen(const char* name);
    [[nodiscard]] QString focusName();
    [[nodiscard]] QString textOf(const char* name);
    /// By a screen reader.
    [[nodiscard]] static QString spokenName(QWidget& widget);

    /// To whatever has the focus.
    void key(int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier);
    /// Each character with its own key, as on a keyboard that has one for it.
    void write(const char* text);
    /// An Alt letter.
    void letter(char c) { key(QChar(QLatin1Char(c)).toUpper().unicode(), Qt::AltModifier); }
    void tab(int times = 1);
    /// Tab until the widget of that name has the focus; a failure when it never gets it.
    void tabTo(const char* name);

    /// In a table, and then the button of that name.
    void chooseRow(const char* table, int row, const char* button);
    /// As the mouse's own wheel, one step down.
    static void turnWheel(QWidget& over);
    /// Does `hand` once, as soon as `holds` does: mostly inside what is at work then. A failure if that never comes.
    void once(const std::function<bool()>& holds, const std::function<void()>& hand);
    /// Does `hand` once, inside the next command.
    void inside(const std::function<void()>& hand);
    /// Does `work`; the file dialog that it opens gets this path.
    void withFile(const QString& path, const std::function<void()>& work);

    /// A destination and its legs, put into the archive with the models alone.
    void storeTrip(int legs);
    /// Keys alone: a new destination, saved.
    void typeDestination(const char* place, const char* nation);
    /// In the leg editor, with the focus where it stands when a row is open.
    void typeLegs(std::span<const TypedLeg> legs);

    BoxKeys boxes;
    KeptOpener opener;
    QTemporaryDir directory;

  private:
    FixedClock clock_;
    int awaited_ = 0; ///< what is to be done once
    std::unique_ptr<Program> program_;
};

} // namespace vanzer::desktop
