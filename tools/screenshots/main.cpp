// Pictures of the window for the README: screenshots ARCHIVE-FOLDER EMPTY-FOLDER PICTURE-FOLDER [NAME...] takes those
// named, else all of them. The archive holds some trips, the current one with legs and a guide. Drives the real
// widgets; docs/screenshots/make prepares the folders.

#include <array>
#include <cstdio>

#include <QApplication>
#include <QDir>
#include <QMessageBox>
#include <QPushButton>
#include <QStyle>
#include <QStyleFactory>
#include <QTest>

#include "desktop/program.h"

namespace {

using namespace vanzer;

class FixedClock : public Clock {
  public:
    [[nodiscard]] QDateTime now() const override { return {QDate(2026, 6, 1), QTime(9, 10)}; }
};

/// Presses the default button of every message box as soon as it shows.
class Agreeable : public QObject {
  public:
    bool eventFilter(QObject* watched, QEvent* event) override {
        auto* const box = qobject_cast<QMessageBox*>(watched);
        if (box != nullptr && event->type() == QEvent::Show)
            QMetaObject::invokeMethod(box->defaultButton(), &QPushButton::click, Qt::QueuedConnection);
        return false;
    }
};

/// The window at work.
class Scene {
  public:
    Scene(const QString& folder, QSize size)
        : program_({.directory = folder, .decimalMark = u'.', .versione = {}}, clock_) {
        started_ = program_.start();
        program_.form().lblPath.setCaption(QStringLiteral("/home/anna/Vanzer/Vanzer.mdb"));
        window().showNormal();
        window().resize(size);
        window().activateWindow();
        started_ = started_ && QTest::qWaitForWindowActive(&window());
    }

    [[nodiscard]] bool started() const { return started_; }
    QWidget& window() { return program_.window(); }

    void press(const char* button) {
        if (auto* const found = window().findChild<QPushButton*>(QLatin1StringView(button)))
            QTest::mouseClick(found, Qt::LeftButton);
    }
    void choose(const char* control, const char* text) {
        if (auto* const list = dynamic_cast<ListControl*>(program_.form().find(QLatin1StringView(control))))
            list->setText(QLatin1StringView(text));
    }
    void click(int row) {
        program_.window().binder().input([this, row] { program_.form().mfgTab.clickRow(row); });
    }
    void scrollTo(int row) {
        program_.window().binder().input([this, row] { program_.form().mfgTab.setTopRow(row); });
    }
    void scrollToEnd() { scrollTo(program_.form().mfgTab.rows() - 1); }

  private:
    FixedClock clock_;
    desktop::Program program_;
    bool started_ = false;
};

struct Shot {
    const char* name;
    QSize size;
    bool emptyArchive;
    bool dark;
    void (*play)(Scene&);
};

void calculate(Scene& scene) {
    scene.choose("cmbGiorni", "036");
    scene.press("cmdCalcola");
}

constexpr QSize smallest{1280, 720};
constexpr QSize usual{1440, 900};

const std::array shots{
    Shot{"primo_avvio", smallest, true, false, [](Scene&) {}},
    Shot{"meta", smallest, false, false, [](Scene&) {}},
    Shot{"ricerca", smallest, false, false, [](Scene& scene) { scene.press("cmdRicerca"); }},
    Shot{"tappe", usual, false, false,
         [](Scene& scene) {
             scene.press("cmdItinerario");
             scene.click(14);
         }},
    Shot{"viandoria", smallest, false, false, calculate},
    Shot{"totali", usual, false, false,
         [](Scene& scene) {
             calculate(scene);
             scene.scrollToEnd();
         }},
    Shot{"guida", smallest, false, false,
         [](Scene& scene) {
             scene.press("cmdGuidaCitta");
             scene.scrollTo(42);
             scene.click(44);
         }},
    Shot{"scuro", usual, false, true, calculate},
};

QPalette darkPalette() {
    QPalette palette(QColor(0x35, 0x35, 0x35), QColor(0x2a, 0x2d, 0x31));
    palette.setColor(QPalette::Base, QColor(0x1e, 0x20, 0x23));
    palette.setColor(QPalette::Highlight, QColor(0x2a, 0x6f, 0xb5));
    palette.setColor(QPalette::HighlightedText, Qt::white);
    return palette;
}

bool take(const Shot& shot, const QStringList& folders) {
    QApplication::setPalette(shot.dark ? darkPalette() : QApplication::style()->standardPalette());
    Scene scene(folders[shot.emptyArchive ? 1 : 0], shot.size);
    if (!scene.started())
        return false;
    shot.play(scene);
    QCoreApplication::processEvents();
    const QString file = QDir(folders[2]).filePath(QLatin1StringView(shot.name) + QStringLiteral(".png"));
    const bool saved = scene.window().grab().save(file);
    std::printf("%s %s\n", saved ? "made" : "NOT MADE:", file.toLocal8Bit().constData());
    return saved;
}

} // namespace

int main(int argc, char** argv) {
    QApplication application(argc, argv);
    QApplication::setStyle(QStyleFactory::create(QStringLiteral("Fusion")));
    QApplication::setApplicationName(QStringLiteral("Vanzer screenshots"));
    Agreeable agreeable;
    application.installEventFilter(&agreeable);
    const QStringList arguments = QApplication::arguments().mid(1);
    if (arguments.size() < 3) {
        std::fputs("screenshots ARCHIVE-FOLDER EMPTY-FOLDER PICTURE-FOLDER [NAME...]\n", stderr);
        return 2;
    }
    bool good = true;
    for (const Shot& shot : shots) {
        if (arguments.size() == 3 || arguments.mid(3).contains(QLatin1StringView(shot.name)))
            good = take(shot, arguments) && good;
    }
    return good ? 0 : 1;
}
