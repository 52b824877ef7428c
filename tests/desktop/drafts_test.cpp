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
    QString draft() const { return directory.filePath(QStringLiteral("Vanzer.bozza")); }
    /// As the program runs: `work` in its event loop, which its end leaves.
    void runToTheEnd(const std::function<void()>& work) {
        QTimer::singleShot(0, &window(), work);
        QTimer late;
        late.callOnTimeout([] { QCoreApplication::exit(); });
        late.start(20000);
        QApplication::exec();
        EXPECT_TRUE(form().chiusa);
    }
};

TEST_F(Drafts, TypedLegsComeBackWithEnter) {
    open();
    typeDestination("ROMA", "ITALIA");
    letter('i');
    const TypedLeg legs[] = {{"ASTI", "", ""}, {"ALBA", "A21", "30"}};
    typeLegs(legs);
    key(Qt::Key_A, Qt::ControlModifier);
    write("CUNEO");
    runToTheEnd([this] { program().end(); });
    EXPECT_TRUE(QFile::exists(draft()));
    boxes.forget();
    boxes.expect(Qt::Key_Return);
    open();
    ASSERT_EQ(boxes.shown().size(), 1U);
    EXPECT_EQ(boxes.shown()[0].text.toStdString(), "Riprendere il lavoro non salvato a «ROMA» (2 tappe, 09:10)?");
    EXPECT_EQ(boxes.shown()[0].buttons, (QStringList{QStringLiteral("Sì"), QStringLiteral("No")}));
    EXPECT_EQ(textOf("txtTappa"), QStringLiteral("CUNEO"));
    EXPECT_EQ(focusName(), QStringLiteral("txtTappa"));
    EXPECT_EQ(form().mfgTab.cell(2, 1), QStringLiteral("ALBA"));
    boxes.expect(Qt::Key_N); // the leg, the legs, and what is left then is stored
    boxes.expect(Qt::Key_N);
    letter('f');
    EXPECT_TRUE(QTest::qWaitFor([this] { return !QFile::exists(draft()); })) << "left by the usual questions";
}

/// What is answered in the user's place isn't his choice.
TEST_F(Drafts, AnOpenQuestionGoesAndTheWorkStays) {
    storeTrip(3);
    open();
    letter('t');
    form().mfgTab.clickRow(1);
    form().optTStrada(3).choose();
    for (const int i : {0, 1, 2})
        form().cmdTappaSEl(i).click();
    qApp->removeEventFilter(&boxes);
    QTimer::singleShot(100, &window(), [this] {
        EXPECT_NE(qobject_cast<QMessageBox*>(QApplication::activeModalWidget()), nullptr);
        program().end();
    });
    runToTheEnd([this] { form().cmdTappaSEl(3).click(); });
    qApp->installEventFilter(&boxes);
    boxes.expect(Qt::Key_Return);
    open();
    EXPECT_EQ(form().mfgTab.cell(1, 4), QStringLiteral("L"));
    EXPECT_TRUE(form().frmframe(1).visible());
}

TEST_F(Drafts, ACalculationIsStoppedWithNoQuestion) {
    storeTrip(30);
    open({.patience = 0, .yields = 0, .frames = 0});
    form().cmbGiorni.setText(QStringLiteral("009"));
    once([this] { return form().comandoInCorso && textOf("cmdEsce") == QStringLiteral("&Stop"); },
         [this] {
             program().end();
             EXPECT_FALSE(form().chiusa) << "the command comes first";
         });
    boxes.forget();
    runToTheEnd([this] { letter('c'); });
    EXPECT_TRUE(boxes.shown().empty());
    open();
    ASSERT_EQ(boxes.shown().size(), 1U);
    EXPECT_EQ(boxes.shown()[0].text.toStdString(), "Riprendere il lavoro non salvato a «PROVA» (30 tappe, 09:10)?");
    EXPECT_FALSE(QFile::exists(draft())) << "Esc is no";
    EXPECT_TRUE(QFile::exists(draft() + QStringLiteral(".precedente")));
}

/// The program itself, by a real signal: the archive is closed in order, which takes its journal away.
TEST_F(Drafts, ASignalEndsTheProgramInOrder) {
    const QString journal = directory.filePath(QStringLiteral("Vanzer.mdb-journal"));
    for (const int signal : {SIGTERM, SIGINT, SIGHUP}) {
        QFile::remove(directory.filePath(QStringLiteral("Vanzer.mdb")));
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
