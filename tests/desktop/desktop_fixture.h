// The whole program with its real window, on an archive of its own, worked by keys and clicks alone.
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
    /// The next one that came up; a failure if there is none.
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
    /// What is pressed, and what the window shows then, as `press` and `sees` know them.
    struct Step {
        const char* keys;
        const char* seen;
    };

    void SetUp() override;
    void TearDown() override;

    /// Starts the program on the test's archive; events run inside commands at the given pace.
    void open(Pace pace = {});
    void close() { program_.reset(); }
    /// The window is left, and archive and copies are gone.
    void forgetArchive();
    /// All frames come up and go again: their forms are made when they are first seen.
    void seeAllFrames();
    /// The window as it stands, then with one frame after the other open.
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
    /// All that a table of the archive holds.
    [[nodiscard]] auto records(const char* table) { return form().archivio.tabella(QString::fromLatin1(table)).record; }
    /// A form that was never seen isn't there yet.
    [[nodiscard]] bool isSeen(const QString& name);
    [[nodiscard]] static std::string focusName();
    /// Of a widget, or of a cell: "mfgTab:row:column".
    [[nodiscard]] std::string textOf(const QString& name);
    /// By a screen reader.
    [[nodiscard]] static QString spokenName(QWidget& widget);

    /// Keys for whatever has the focus. Characters are typed, each with its own key. In "<>" stand Alt letters ("<n>"),
    /// other keys ("<Tab>", "<Ctrl+A>", "<Down*4>") and tabs up to a widget ("<@txtKm>"); in "[]" the key for a box
    /// that will come up.
    void press(const char* keys);
    /// What the window shows, between ";": "@x" has the focus, "+x" is there, "-x" isn't, "*x" is on, "/x" is off,
    /// "x=y" has this text, "?x" is the begin of the next message box.
    void sees(const char* looks);
    /// Steps, each without any other message box.
    void story(std::initializer_list<Step> steps);
    /// Commands of vanzer-batch on controls, between ";", or keys.
    void work(const char* commands);
    void write(const QString& text);

    /// As the mouse's own wheel, one step down.
    static void turnWheel(QWidget& over);
    /// Does `hand` once, as soon as `holds` does: mostly inside what is at work then. A failure if that never comes.
    void once(const std::function<bool()>& holds, const std::function<void()>& hand);
    /// Does `hand` once, inside the next command.
    void inside(const std::function<void()>& hand);
    /// Presses keys that open a file dialog, which gets this path.
    void pressFor(const QString& path, const char* keys);

    /// A destination and its legs, put into the archive with the models alone. The window is closed.
    void storeTrip(int legs);

    BoxKeys boxes;
    KeptOpener opener;
    QTemporaryDir directory;

  private:
    batch::SetClock clock_;
    int awaited_ = 0; ///< what is to be done once
    std::unique_ptr<Program> program_;
};

/// So that events run inside commands as often as can be.
inline constexpr Pace everyStep{.patience = 0, .yields = 0, .frames = 0};

/// What another program says of a file.
[[nodiscard]] QString output(const char* program, const QStringList& arguments);
[[nodiscard]] QByteArray contents(const QString& path);
void writeFile(const QString& path, const QByteArray& bytes);

} // namespace vanzer::desktop
