// SPDX-License-Identifier: MIT
// The whole program with its real window on an archive of its own, used by keys and clicks.
#pragma once

#include <deque>
#include <functional>
#include <initializer_list>
#include <memory>

#include <QTemporaryDir>
#include <QTest>
#include <gtest/gtest.h>

#include "batch/queue_ports.h"
#include "desktop/program.h"

namespace vanzer::desktop {

/// Opens nothing and notes what it was asked to open.
class KeptOpener : public FileOpener {
  public:
    [[nodiscard]] bool open(const QString& path) override {
        opened << path;
        return true;
    }
    QStringList opened;
};

/// A message box that was shown.
struct ShownBox {
    QString text;
    QString title;
    QStringList buttons;
    QFont font;
    int lines = 0;     ///< lines of its text in the window
    bool plain = true; ///< none of its texts is read as mark-up
};

/// Presses the noted keys in each message box that appears, in order. Presses Esc when no keys are left.
class BoxKeys : public QObject {
  public:
    BoxKeys();
    ~BoxKeys() override;
    void expect(Qt::Key key) { keys_.push_back(key); }
    /// The next box that appeared. Fails if there is none.
    ShownBox take();
    [[nodiscard]] bool none() const { return shown_.empty(); }
    void forget() { shown_.clear(); }
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    std::deque<Qt::Key> keys_;
    std::deque<std::shared_ptr<ShownBox>> shown_;
};

class DesktopTest : public ::testing::Test {
  protected:
    /// The keys to press, for `press`, and the expected looks, for `sees`.
    struct Step {
        const char* keys;
        const char* seen;
    };

    void SetUp() override;
    void TearDown() override;

    /// Starts the program on the test's archive. Events run inside commands at this pace.
    void open(Pace pace = {});
    void close() { program_.reset(); }
    /// Closes the window and removes archive and copies.
    void forgetArchive();
    /// Opens and closes every frame. A frame's form is made when it is first shown.
    void seeAllFrames();
    /// Calls `look` with the present window, then with one frame after the other open.
    void withEachFrame(const std::function<void(const std::string& where)>& look);
    void show(Frame& frame, bool on);

    [[nodiscard]] Program& program() { return *program_; }
    [[nodiscard]] Form& form() { return program_->form(); }
    [[nodiscard]] MainWindow& window() { return program_->window(); }
    [[nodiscard]] QString inFolder(const char* name) const { return directory.filePath(QString::fromUtf8(name)); }
    template<typename T = QWidget> T* find(const QString& name) {
        T* const found = window().template findChild<T*>(name);
        EXPECT_NE(found, nullptr) << name.toStdString();
        return found;
    }
    /// All records of a table of the archive.
    [[nodiscard]] auto records(const char* table) { return form().archivio.tabella(QString::fromLatin1(table)).record; }
    /// Whether a widget is visible. The form of a frame that was never shown doesn't exist.
    [[nodiscard]] bool isSeen(const QString& name);
    [[nodiscard]] static std::string focusName();
    /// The text of a widget, or of a cell as "mfgTab:row:column".
    [[nodiscard]] std::string textOf(const QString& name);
    /// The name that a screen reader speaks.
    [[nodiscard]] static QString spokenName(QWidget& widget);

    /// Presses keys in the widget with the focus. Characters are typed one by one. "<>" holds Alt letters ("<n>"),
    /// other keys ("<Tab>", "<Ctrl+A>", "<Down*4>") or tabs up to a widget ("<@txtKm>"). "[]" holds the key for a box
    /// that will appear.
    void press(const char* keys);
    /// Checks what the window shows. Items are separated by ";": "@x" has the focus, "+x" is visible, "-x" isn't, "*x"
    /// is enabled, "/x" is disabled, "x=y" has this text, "?x" begins the text of the next message box.
    void sees(const char* looks);
    /// Runs steps. Any other message box is a failure.
    void story(std::initializer_list<Step> steps);
    /// Runs commands of vanzer-batch on controls, or keys, separated by ";".
    void work(const char* commands);
    void write(const QString& text);

    /// Turns the mouse wheel one step down.
    static void turnWheel(QWidget& over);
    /// Runs `hand` once, as soon as `holds` is true, mostly inside a running command. Fails if that never happens.
    void once(const std::function<bool()>& holds, const std::function<void()>& hand);
    /// Runs `hand` once, inside the next command.
    void inside(const std::function<void()>& hand);
    /// Presses keys that open a file dialog, and chooses this path in it.
    void pressFor(const QString& path, const char* keys);

    /// Stores a destination and its legs without the window, which must be closed.
    void storeTrip(int legs);

    BoxKeys boxes;
    KeptOpener opener;
    QTemporaryDir directory;

  private:
    batch::SetClock clock_;
    int awaited_ = 0; ///< calls of once() that are still open
    std::unique_ptr<Program> program_;
};

/// Makes events run inside commands as often as possible.
inline constexpr Pace everyStep{.patience = 0, .yields = 0, .frames = 0};

/// The output of another program.
[[nodiscard]] QString output(const char* program, const QStringList& arguments);
[[nodiscard]] QByteArray contents(const QString& path);
void writeFile(const QString& path, const QByteArray& bytes);

} // namespace vanzer::desktop
