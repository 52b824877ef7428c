// The end of the program without the user's word, and the next start.
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
    /// As the program runs: `task` in its event loop, which its end leaves.
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
           {"[N][N]<f>", "?;?"}}); // the leg, the legs, and what is left then is stored
    EXPECT_TRUE(QTest::qWaitFor([this] { return !QFile::exists(draft); })) << "left by the usual questions";
}

/// What is answered in the user's place isn't his choice.
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

/// The program itself, by a real signal: the archive is closed in order, which takes its journal away.
TEST_F(Drafts, ASignalEndsTheProgramInOrder) {
    const QString journal = inFolder("Vanzer.mdb-journal");
    for (const int signal : {SIGTERM, SIGINT, SIGHUP}) {
        QFile::remove(inFolder("Vanzer.mdb"));
        QProcess program;
        program.setProcessChannelMode(QProcess::ForwardedChannels);
        // Whoever started the tests may have chosen to ignore some, which the program would respect.
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
