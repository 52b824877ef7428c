// Pictures of the window for the README: screenshots ARCHIVE-FOLDER EMPTY-FOLDER PICTURE-FOLDER. The archive holds one
// trip at least. Drives the real widgets; docs/screenshots/make prepares the folders.

#include <cstdio>

#include <QApplication>
#include <QDir>
#include <QMessageBox>
#include <QPushButton>
#include <QTest>

#include "desktop/program.h"

namespace {

using namespace vanzer;

class FixedClock : public Clock {
  public:
    [[nodiscard]] QDateTime now() const override { return {QDate(2026, 6, 1), QTime(9, 10)}; }
};

class Photographer {
  public:
    Photographer(const QString& archive, QString pictures)
        : program_({.directory = archive, .decimalMark = u'.', .versione = {}}, clock_),
          pictures_(std::move(pictures)) {}

    bool start(QSize size) {
        const bool started = program_.start();
        program_.window().showNormal();
        program_.window().resize(size);
        program_.window().activateWindow();
        return started && QTest::qWaitForWindowActive(&program_.window());
    }

    void press(const char* button) {
        if (auto* const found = program_.window().findChild<QPushButton*>(QLatin1StringView(button)))
            QTest::mouseClick(found, Qt::LeftButton);
    }

    void press(QWidget* widget, Qt::Key key) { QTest::keyClick(widget, key); }

    bool take(const char* name) {
        QCoreApplication::processEvents();
        const QString file = QDir(pictures_).filePath(QLatin1StringView(name) + QStringLiteral(".png"));
        const bool saved = program_.window().grab().save(file);
        std::printf("%s %s\n", saved ? "made" : "NOT MADE:", file.toLocal8Bit().constData());
        return saved;
    }

    QWidget& window() { return program_.window(); }

  private:
    FixedClock clock_;
    desktop::Program program_;
    QString pictures_;
};

/// Answers every message box with its default button as soon as it shows.
class YesMan : public QObject {
  public:
    bool eventFilter(QObject* watched, QEvent* event) override {
        auto* const box = qobject_cast<QMessageBox*>(watched);
        if (box != nullptr && event->type() == QEvent::Show)
            QMetaObject::invokeMethod(box->defaultButton(), &QPushButton::click, Qt::QueuedConnection);
        return false;
    }
};

} // namespace

int main(int argc, char** argv) {
    QApplication application(argc, argv);
    QApplication::setApplicationName(QStringLiteral("Vanzer screenshots"));
    YesMan yes;
    application.installEventFilter(&yes);
    if (argc != 5)
        return 2;
    const QString archive = QString::fromLocal8Bit(argv[1]);
    const QString empty = QString::fromLocal8Bit(argv[2]);
    const QString pictures = QString::fromLocal8Bit(argv[3]);
    const QString suffix = QString::fromLocal8Bit(argv[4]);
    const auto named = [&suffix](const char* name) { return (QLatin1StringView(name) + suffix).toLocal8Bit(); };
    bool good = true;
    {
        Photographer first(empty, pictures);
        good = first.start({1280, 720}) && first.take(named("primo_avvio")) && good;
    }
    Photographer trip(archive, pictures);
    good = trip.start({1280, 720}) && trip.take(named("meta")) && good;
    trip.press("cmdRicerca");
    good = trip.take(named("ricerca")) && good;
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Escape);
    trip.press("cmdItinerario");
    good = trip.take(named("tappe")) && good;
    trip.press("cmdFine");
    trip.press("cmdCalcola");
    good = trip.take(named("viandoria")) && good;
    trip.window().resize(1600, 960);
    good = trip.take(named("viandoria_larga")) && good;
    trip.press("cmdCalcola");
    trip.window().resize(1280, 720);
    trip.press("cmdGuidaCitta");
    good = trip.take(named("guida")) && good;
    return good ? 0 : 1;
}
