// SPDX-License-Identifier: MIT
// Ends of the program that the user didn't ask for, and the next start.
#include <csignal>

#include <QFile>
#include <QMessageBox>
#include <QProcess>
#include <QTimer>

#include "desktop_fixture.h"

namespace vanzer::desktop {
namespace {

class Drafts : public DesktopTest {
  protected:
    const QString draft = inFolder("Vanzer.bozza");
    /// Runs `task` in the program's event loop until that ends.
    void runToTheEnd(const std::function<void()>& task) {
        QTimer::singleShot(0, &window(), task);
        QTimer late;
        late.callOnTimeout([] { QCoreApplication::exit(); });
        late.start(20000);
        QApplication::exec();
        EXPECT_TRUE(form().chiusa);
    }
};

TEST_F(Drafts, TypedLegsComeBackWithEnter) {
    open();
    press("<n>roma<Tab>italia[Return]<v><i>asti<i>alba<Tab>a21<Tab>30<i>cuneo");
    boxes.forget();
    runToTheEnd([this] { program().end(); });
    EXPECT_TRUE(QFile::exists(draft));
    boxes.expect(Qt::Key_Return);
    open();
    const ShownBox asked = boxes.take();
    EXPECT_EQ(asked.text.toStdString(), "Riprendere il lavoro non salvato a «ROMA» (2 tappe, 09:10)?");
    EXPECT_EQ(asked.buttons, (QStringList{QStringLiteral("Sì"), QStringLiteral("No")}));
    story({{"", "@txtTappa;txtTappa=CUNEO;mfgTab:2:1=ALBA"},
           {"[N][N]<f>", "?;?"}}); // stores the leg, then the legs, then the rest
    EXPECT_TRUE(QTest::qWaitFor([this] { return !QFile::exists(draft); })) << "left by the usual questions";
}

/// An answer that was given in the user's place isn't the user's choice.
TEST_F(Drafts, AnOpenQuestionGoesAndTheWorkStays) {
    storeTrip(3);
    open();
    work("<t>;row mfgTab 1;option optTStrada(3);click cmdTappaSEl(0);click cmdTappaSEl(1);click cmdTappaSEl(2)");
    qApp->removeEventFilter(&boxes);
    QTimer::singleShot(100, &window(), [this] {
        EXPECT_NE(qobject_cast<QMessageBox*>(QApplication::activeModalWidget()), nullptr);
        program().end();
    });
    runToTheEnd([this] { work("click cmdTappaSEl(3)"); });
    qApp->installEventFilter(&boxes);
    boxes.expect(Qt::Key_Return);
    open();
    sees("mfgTab:1:4=L;+frmframe_1");
}

TEST_F(Drafts, ACalculationIsStoppedWithNoQuestion) {
    storeTrip(30);
    open(everyStep);
    work("set cmbGiorni 009");
    once([this] { return form().comandoInCorso && textOf("cmdEsce") == "&Stop"; },
         [this] {
             program().end();
             EXPECT_FALSE(form().chiusa) << "the command comes first";
         });
    runToTheEnd([this] { press("<c>"); });
    EXPECT_TRUE(boxes.none());
    open();
    sees("?Riprendere il lavoro non salvato a «PROVA» (30 tappe, 09:10)?");
    EXPECT_FALSE(QFile::exists(draft)) << "Esc is no";
    EXPECT_TRUE(QFile::exists(draft + QStringLiteral(".precedente")));
}

TEST_F(Drafts, ASecondProgramOnTheSameArchiveIsToldSo) {
    storeTrip(2);
    open();
    SystemClock clock;
    Program second({.directory = directory.path(), .decimalMark = u'.', .versione = {}}, clock);
    EXPECT_FALSE(second.start());
    EXPECT_FALSE(second.window().isVisible());
    sees("?Errore apertura database ;txtLocalita=PROVA");
}

/// The program in a process of its own, with a real signal. It closes the archive properly, which removes the journal.
TEST_F(Drafts, ASignalEndsTheProgramInOrder) {
    const QString journal = inFolder("Vanzer.mdb-journal");
    for (const int signal : {SIGTERM, SIGINT, SIGHUP}) {
        QFile::remove(inFolder("Vanzer.mdb"));
        QProcess program;
        program.setProcessChannelMode(QProcess::ForwardedChannels);
        // The parent of the tests may ignore some signals, and the program would then ignore them too.
        program.setChildProcessModifier([signal] { std::signal(signal, SIG_DFL); });
        program.start(QStringLiteral(VANZER_PROGRAM), {QStringLiteral("--dir"), directory.path()});
        ASSERT_TRUE(QTest::qWaitFor([&] { return QFile::exists(journal); }, 20000));
        ASSERT_EQ(::kill(static_cast<pid_t>(program.processId()), signal), 0);
        ASSERT_TRUE(program.waitForFinished());
        EXPECT_EQ(program.exitStatus(), QProcess::CrashExit);
        EXPECT_EQ(program.exitCode(), signal);
        EXPECT_FALSE(QFile::exists(journal));
    }
}

} // namespace
} // namespace vanzer::desktop
