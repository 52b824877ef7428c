// SPDX-License-Identifier: MIT
#include "desktop_fixture.h"

#include <QAccessible>
#include <QApplication>
#include <QFileDialog>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QProcess>
#include <QRegularExpression>
#include <QSettings>
#include <QTimer>
#include <QWheelEvent>
#include <qtestspontaneevent.h>

#include "batch/control_commands.h"
#include "batch/line.h"
#include "desktop/fields.h"

namespace vanzer::desktop {

BoxKeys::BoxKeys() {
    qApp->installEventFilter(this);
}

BoxKeys::~BoxKeys() {
    qApp->removeEventFilter(this);
}

ShownBox BoxKeys::take() {
    EXPECT_FALSE(shown_.empty()) << "no message box came up";
    const ShownBox box = shown_.empty() ? ShownBox() : *shown_.front();
    if (!shown_.empty())
        shown_.pop_front();
    return box;
}

bool BoxKeys::eventFilter(QObject* watched, QEvent* event) {
    auto* const box = qobject_cast<QMessageBox*>(watched);
    if (box == nullptr || event->type() != QEvent::Show)
        return false;
    const auto shown = std::make_shared<ShownBox>();
    shown->text = box->text();
    shown->title = box->windowTitle();
    shown->font = box->font();
    for (const QAbstractButton* button : box->buttons())
        shown->buttons << button->text().remove(u'&');
    for (const QLabel* const label : box->findChildren<QLabel*>())
        shown->plain = shown->plain && label->textFormat() == Qt::PlainText;
    shown_.push_back(shown);
    const Qt::Key key = keys_.empty() ? Qt::Key_Escape : keys_.front();
    if (!keys_.empty())
        keys_.pop_front();
    // Enter is for the default button, which has the focus once the box is open.
    QMetaObject::invokeMethod(
        box,
        [box, key, shown] {
            for (const QLabel* const label : box->findChildren<QLabel*>()) {
                if (label->text() == box->text())
                    shown->lines = label->heightForWidth(label->width()) / label->fontMetrics().height();
            }
            QTest::keyClick(key == Qt::Key_Return ? box->focusWidget() : box, key);
        },
        Qt::QueuedConnection);
    return false;
}

void DesktopTest::SetUp() {
    ASSERT_TRUE(directory.isValid());
    clock_.set({QDate(2026, 6, 1), QTime(9, 10)});
    QSettings::setDefaultFormat(QSettings::IniFormat);
    QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, inFolder("settings"));
}

void DesktopTest::TearDown() {
    EXPECT_EQ(awaited_, 0) << "what was waited for never came";
    close();
}

void DesktopTest::open(Pace pace) {
    close();
    program_ = std::make_unique<Program>(
        Ambiente{.directory = directory.path(), .decimalMark = u'.', .versione = QStringLiteral("1.0.0")}, clock_, pace,
        &opener);
    ASSERT_TRUE(program_->start());
    window().activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window()));
}

void DesktopTest::forgetArchive() {
    close();
    QFile::remove(inFolder("Vanzer.mdb"));
    QDir(inFolder("Copie")).removeRecursively();
}

void DesktopTest::show(Frame& frame, bool on) {
    frame.setVisible(on);
    window().binder().flush();
    QCoreApplication::processEvents();
}

void DesktopTest::seeAllFrames() {
    std::vector<Frame*> hidden;
    for (const auto& control : form().controls()) {
        if (auto* const frame = dynamic_cast<Frame*>(control.get()); frame != nullptr && !frame->visible())
            hidden.push_back(frame);
    }
    for (const bool on : {true, false}) {
        for (Frame* const frame : hidden)
            frame->setVisible(on);
        window().binder().flush();
    }
}

void DesktopTest::withEachFrame(const std::function<void(const std::string&)>& look) {
    look("the window");
    for (const auto& control : form().controls()) {
        auto* const frame = dynamic_cast<Frame*>(control.get());
        if (frame == nullptr || frame->frame() != nullptr || frame->visible())
            continue;
        show(*frame, true);
        look(frame->name().toStdString());
        show(*frame, false);
    }
}

bool DesktopTest::isSeen(const QString& name) {
    const auto* const widget = window().findChild<QWidget*>(name);
    return widget != nullptr && widget->isVisible();
}

std::string DesktopTest::focusName() {
    const QWidget* const focus = QApplication::focusWidget();
    return focus == nullptr || !focus->isVisible() ? std::string() : focus->objectName().toStdString();
}

std::string DesktopTest::textOf(const QString& name) {
    const QStringList cell = name.split(u':');
    if (cell.size() == 3)
        return dynamic_cast<Grid&>(*form().find(cell[0])).cell(cell[1].toInt(), cell[2].toInt()).toStdString();
    auto* const widget = find(name);
    auto* const list = qobject_cast<DropDown*>(widget);
    return (list != nullptr ? list->shownText() : widget->property("text").toString()).toStdString();
}

QString DesktopTest::spokenName(QWidget& widget) {
    QAccessibleInterface* const face = QAccessible::queryAccessibleInterface(&widget);
    return face == nullptr ? QString() : face->text(QAccessible::Name).trimmed();
}

void DesktopTest::press(const char* keys) {
    const auto click = [this](QKeyCombination key) {
        QWidget* const focus = QApplication::focusWidget();
        QTest::keyClick(focus == nullptr ? &window() : focus, key.key(), key.keyboardModifiers());
    };
    static const QRegularExpression part(
        QStringLiteral("<@(\\w+)>|<(\\w)>|<([^*>]+)(?:\\*(\\d+))?>|\\[(\\w+)\\]|([^<\\[]+)"));
    for (const QRegularExpressionMatch& one : part.globalMatch(QString::fromUtf8(keys))) {
        if (one.hasCaptured(6)) {
            write(one.captured(6));
        } else if (one.hasCaptured(5)) {
            boxes.expect(QKeySequence::fromString(one.captured(5))[0].key());
        } else if (one.hasCaptured(3)) {
            for (int n = std::max(one.captured(4).toInt(), 1); n > 0; --n)
                click(QKeySequence::fromString(one.captured(3))[0]);
        } else if (one.hasCaptured(2)) {
            click(Qt::ALT | static_cast<Qt::Key>(one.captured(2).toUpper()[0].unicode()));
        } else {
            constexpr int controls = 120;
            for (int n = 0; n < controls && focusName() != one.captured(1).toStdString(); ++n)
                click(Qt::Key_Tab);
            EXPECT_EQ(focusName(), one.captured(1).toStdString());
        }
    }
}

void DesktopTest::write(const QString& text) {
    for (const QChar c : text) {
        QWidget* const focus = QApplication::focusWidget();
        ASSERT_NE(focus, nullptr);
        QTest::sendKeyEvent(QTest::Click, focus, static_cast<Qt::Key>(c.toUpper().unicode()), c, Qt::NoModifier);
    }
}

void DesktopTest::sees(const char* looks) {
    for (const QString& look : QString::fromUtf8(looks).split(u';', Qt::SkipEmptyParts)) {
        const char16_t kind = look[0].unicode();
        const QString name = look.mid(1);
        const qsizetype equals = look.indexOf(u'=');
        if (kind == u'@')
            EXPECT_EQ(focusName(), name.toStdString());
        else if (kind == u'+' || kind == u'-')
            EXPECT_EQ(isSeen(name), kind == u'+') << look.toStdString();
        else if (kind == u'*' || kind == u'/')
            EXPECT_EQ(find(name)->isEnabled(), kind == u'*') << look.toStdString();
        else if (kind == u'?')
            EXPECT_EQ(boxes.take().text.left(name.size()).toStdString(), name.toStdString());
        else
            EXPECT_EQ(textOf(look.left(equals)), look.mid(equals + 1).toStdString()) << look.toStdString();
    }
}

void DesktopTest::story(std::initializer_list<Step> steps) {
    for (const Step& step : steps) {
        SCOPED_TRACE(step.keys);
        press(step.keys);
        sees(step.seen);
        while (!boxes.none())
            ADD_FAILURE() << boxes.take().text.toStdString();
    }
}

void DesktopTest::work(const char* commands) {
    for (const QString& command : QString::fromUtf8(commands).split(u';', Qt::SkipEmptyParts)) {
        if (command.startsWith(u'<')) {
            press(command.toUtf8().constData());
            continue;
        }
        const batch::Line line = batch::split(command);
        const batch::Line on = batch::split(line.rest);
        const auto* const known = batch::controlCommand(line.word);
        Control* const control = form().find(on.word);
        ASSERT_TRUE(known != nullptr && control != nullptr) << command.toStdString();
        EXPECT_TRUE(known->run(*control, on.rest).isEmpty()) << command.toStdString();
    }
    window().binder().flush();
}

void DesktopTest::turnWheel(QWidget& over) {
    const QPointF middle(over.rect().center());
    QWheelEvent wheel(middle, over.mapToGlobal(middle), {}, {0, -120}, Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase,
                      false);
    QSpontaneKeyEvent::setSpontaneous(&wheel);
    qApp->notify(&over, &wheel);
}

void DesktopTest::once(const std::function<bool()>& holds, const std::function<void()>& hand) {
    ++awaited_;
    auto* const looks = new QTimer(&window());
    looks->callOnTimeout([this, looks, holds, hand] {
        if (!holds())
            return;
        looks->stop();
        --awaited_;
        hand();
    });
    looks->start(0);
}

void DesktopTest::inside(const std::function<void()>& hand) {
    once([this] { return form().comandoInCorso; }, hand);
}

void DesktopTest::pressFor(const QString& path, const char* keys) {
    QTimer answer;
    answer.callOnTimeout([&answer, &path] {
        auto* const dialog = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
        if (dialog == nullptr)
            return;
        answer.stop();
        dialog->findChild<QLineEdit*>()->setText(path);
        QTest::keyClick(dialog, Qt::Key_Return);
    });
    answer.start(20);
    press(keys);
    // The dialog took the focus. Wait until the window has it again, or it misses the next keys.
    window().activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window()));
}

void DesktopTest::storeTrip(int legs) {
    open();
    boxes.expect(Qt::Key_Return);
    work("set txtLocalita PROVA;set txtNazione ITALIA;click cmdSalva;click cmdItinerario");
    for (int i = 1; i <= legs; ++i) {
        form().txtTappa.type(QStringLiteral("LUOGO %1").arg(i));
        form().txtKm.type(i == 1 ? QString() : QStringLiteral("90"));
        form().cmbSosta(1).setText(i % 3 == 0 ? QStringLiteral("03") : QStringLiteral("00"));
        form().cmdInserisce.click();
    }
    boxes.expect(Qt::Key_Return);
    work("click cmdFine");
    boxes.forget();
    close();
}

QString output(const char* program, const QStringList& arguments) {
    QProcess process;
    process.start(QLatin1StringView(program), arguments);
    EXPECT_TRUE(process.waitForFinished() && process.exitCode() == 0) << program;
    return QString::fromUtf8(process.readAllStandardOutput());
}

QByteArray contents(const QString& path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

void writeFile(const QString& path, const QByteArray& bytes) {
    QFile file(path);
    EXPECT_TRUE(file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size()) << path.toStdString();
}

} // namespace vanzer::desktop
