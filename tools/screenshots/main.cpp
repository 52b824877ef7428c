// SPDX-License-Identifier: MIT
// Makes the pictures of the window for the README. screenshots ARCHIVE-FOLDER EMPTY-FOLDER PICTURE-FOLDER [NAME...]
// makes the named ones, or all of them. "pagine" prints the schedule to viandoria.pdf in the first folder. The archive
// holds some trips; the current one has legs and a guide. Uses the real widgets. docs/screenshots/make prepares the
// folders.

#include <array>
#include <cstdio>

#include <QApplication>
#include <QDir>
#include <QFileDialog>
#include <QLineEdit>
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

/// Presses the default button of every message box as soon as it appears. Chooses `file` in file dialogs.
class Agreeable : public QObject {
  public:
    explicit Agreeable(QString file) : file_(std::move(file)) {}
    bool eventFilter(QObject* watched, QEvent* event) override {
        if (event->type() != QEvent::Show)
            return false;
        if (auto* const box = qobject_cast<QMessageBox*>(watched)) {
            QMetaObject::invokeMethod(box->defaultButton(), &QPushButton::click, Qt::QueuedConnection);
        } else if (auto* const dialog = qobject_cast<QFileDialog*>(watched)) {
            dialog->findChild<QLineEdit*>()->setText(file_);
            QMetaObject::invokeMethod(
                dialog, [dialog] { QTest::keyClick(dialog, Qt::Key_Return); }, Qt::QueuedConnection);
        }
        return false;
    }

  private:
    QString file_;
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
    /// Opens the print options and the choice of the printer above them, with "PDF" marked.
    void choosePrinter() {
        Form& form = program_.form();
        form.chkTabella.setValue(true);
        form.chkFrontespizio.setValue(true);
        for (const int title : {0, 2})
            form.chkVociFrontespizio(title).setValue(true);
        press("cmdStampa");
        press("cmdEsegui_0");
        form.lstStampanti.setText(QStringLiteral("PDF"));
        form.txtfileTabella.setText(QStringLiteral("/home/anna/Vanzer/Vanztabl.txt"));
    }
    void click(int row) {
        program_.window().binder().input([this, row] { program_.form().mfgTab.clickRow(row); });
    }
    /// Moves the destination in that row to the other list of the exchange.
    void moveDestination(int row) {
        program_.window().binder().input([this, row] { program_.form().mfgImExp(0).clickRow(row); });
    }
    /// Picks a destination, then one of its legs, in the list for copying a stretch.
    void clickSource(int row) {
        program_.window().binder().input([this, row] { program_.form().mfgCopia.clickRow(row); });
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
    Shot{"tratto", usual, false, false,
         [](Scene& scene) {
             scene.press("cmdModStrada");
             scene.click(15);
             scene.press("cmdTappaSEl_0");
             scene.click(24);
             scene.press("cmdTappaSEl_1");
         }},
    Shot{"copia", usual, false, false,
         [](Scene& scene) {
             scene.press("cmdItinerario");
             scene.click(9);
             scene.press("cmdDuplica");
             scene.clickSource(1);
             for (const auto& [row, button] : {std::pair{27, "cmdAssegna_0"}, std::pair{21, "cmdAssegna_1"}}) {
                 scene.clickSource(row);
                 scene.press(button);
             }
         }},
    Shot{"viandoria", smallest, false, false, calculate},
    Shot{"linea", smallest, false, false,
         [](Scene& scene) {
             calculate(scene);
             scene.press("cmdLinea");
         }},
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
    Shot{"stampa", smallest, false, false,
         [](Scene& scene) {
             calculate(scene);
             scene.choosePrinter();
         }},
    Shot{"pagine", smallest, false, false, // prints the pages to the file
         [](Scene& scene) {
             calculate(scene);
             scene.choosePrinter();
             scene.press("cmdSelStampante_0");
         }},
    Shot{"scambio", smallest, false, false,
         [](Scene& scene) {
             scene.press("cmdExport");
             scene.press("cmdImportExport_0");
             for (const int row : {1, 2})
                 scene.moveDestination(row);
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
    const QStringList arguments = QApplication::arguments().mid(1);
    Agreeable agreeable(QDir(arguments.value(0)).absoluteFilePath(QStringLiteral("viandoria.pdf")));
    application.installEventFilter(&agreeable);
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
