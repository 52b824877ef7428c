#include "desktop_fixture.h"

#include <QAccessible>
#include <QApplication>
#include <QFileDialog>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QSettings>
#include <QTimer>
#include <QWheelEvent>
#include <qtestspontaneevent.h>

#include "desktop/fields.h"

namespace vanzer::desktop {

BoxKeys::BoxKeys() {
    qApp->installEventFilter(this);
}

BoxKeys::~BoxKeys() {
    qApp->removeEventFilter(this);
}

bool BoxKeys::eventFilter(QObject* watched, QEvent* event) {
    auto* const box = qobject_cast<QMessageBox*>(watched);
    if (box == nullptr || event->type() != QEvent::Show)
        return false;
    QStringList buttons;
    for (const QAbstractButton* button : box->buttons())
        buttons << button->text().remove(u'&');
    shown_.push_back({box->text(), box->windowTitle(), buttons, box->font()});
    for (const QLabel* const label : box->findChildren<QLabel*>())
        shown_.back().plain = shown_.back().plain && label->textFormat() == Qt::PlainText;
    const Qt::Key key = keys_.empty() ? Qt::Key_Escape : keys_.front();
    if (!keys_.empty())
        keys_.pop_front();
    // Enter is meant for the default button, which has the focus once the box is open.
    QMetaObject::invokeMethod(
        box,
        [this, box, key, number = shown_.size() - 1] {
            for (const QLabel* const label : box->findChildren<QLabel*>()) {
                if (label->text() == box->text() && number < shown_.size())
                    shown_[number].lines = label->heightForWidth(label->width()) / label->fontMetrics().height();
            }
            QTest::keyClick(key == Qt::Key_Return ? box->focusWidget() : box, key);
        },
        Qt::QueuedConnection);
    return false;
}

void DesktopTest::SetUp() {
    ASSERT_TRUE(directory.isValid());
    QSettings::setDefaultFormat(QSettings::IniFormat);
    QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, directory.filePath(QStringLiteral("settings")));
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
    QFile::remove(directory.filePath(QStringLiteral("Vanzer.mdb")));
    QDir(directory.filePath(QStringLiteral("Copie"))).removeRecursively();
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

bool DesktopTest::isSeen(const char* name) {
    const auto* const widget = window().findChild<QWidget*>(QLatin1StringView(name));
    return widget != nullptr && widget->isVisible();
}

QString DesktopTest::focusName() {
    const QWidget* const focus = QApplication::focusWidget();
    return focus == nullptr ? QString() : focus->objectName();
}

QString DesktopTest::textOf(const char* name) {
    QWidget* const widget = find(name);
    auto* const list = qobject_cast<DropDown*>(widget);
    return list != nullptr ? list->shownText() : widget->property("text").toString();
}

QString DesktopTest::spokenName(QWidget& widget) {
    QAccessibleInterface* const face = QAccessible::queryAccessibleInterface(&widget);
    return face == nullptr ? QString() : face->text(QAccessible::Name).trimmed();
}

void DesktopTest::key(int key, Qt::KeyboardModifiers modifiers) {
    QWidget* const focus = QApplication::focusWidget();
    QTest::keyClick(focus == nullptr ? &window() : focus, static_cast<Qt::Key>(key), modifiers);
}

void DesktopTest::write(const char* text) {
    for (const QChar c : QString::fromUtf8(text)) {
        QWidget* const focus = QApplication::focusWidget();
        ASSERT_NE(focus, nullptr);
        QTest::sendKeyEvent(QTest::Click, focus, static_cast<Qt::Key>(c.toUpper().unicode()), c, Qt::NoModifier);
    }
}

void DesktopTest::tab(int times) {
    for (int i = 0; i < times; ++i)
        key(Qt::Key_Tab);
}

void DesktopTest::tabTo(const char* name) {
    constexpr int controls = 120;
    for (int i = 0; i < controls && focusName() != QLatin1StringView(name); ++i)
        key(Qt::Key_Tab);
    ASSERT_EQ(focusName().toStdString(), name);
}

void DesktopTest::chooseRow(const char* table, int row, const char* button) {
    tabTo(table);
    const auto* const grid = dynamic_cast<Grid*>(form().find(QLatin1StringView(table)));
    while (grid->rowAtHand() != row)
        key(grid->rowAtHand() < row ? Qt::Key_Down : Qt::Key_Up);
    tabTo(button);
    key(Qt::Key_Space);
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

void DesktopTest::withFile(const QString& path, const std::function<void()>& work) {
    QTimer answer;
    QObject::connect(&answer, &QTimer::timeout, [&answer, &path] {
        auto* const dialog = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
        if (dialog == nullptr)
            return;
        answer.stop();
        dialog->findChild<QLineEdit*>()->setText(path);
        QTest::keyClick(dialog, Qt::Key_Return);
    });
    answer.start(20);
    work();
    // The dialog took the focus; keys are for the window again once it has it back.
    window().activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window()));
}

void DesktopTest::storeTrip(int legs) {
    open();
    form().txtLocalita.type(QStringLiteral("PROVA"));
    form().txtNazione.type(QStringLiteral("ITALIA"));
    boxes.expect(Qt::Key_Return);
    form().cmdSalva.click();
    form().cmdItinerario.click();
    for (int i = 1; i <= legs; ++i) {
        form().txtTappa.type(QStringLiteral("LUOGO %1").arg(i));
        form().txtKm.type(i == 1 ? QString() : QStringLiteral("90"));
        form().cmbSosta(1).setText(i % 3 == 0 ? QStringLiteral("03") : QStringLiteral("00"));
        form().cmdInserisce.click();
    }
    boxes.expect(Qt::Key_Return);
    form().cmdFine.click();
    boxes.forget();
    close();
}

void DesktopTest::typeDestination(const char* place, const char* nation) {
    letter('n');
    write(place);
    tab();
    write(nation);
    boxes.expect(Qt::Key_Return);
    letter('v');
}

void DesktopTest::typeLegs(std::span<const TypedLeg> legs) {
    for (const TypedLeg& leg : legs) {
        ASSERT_EQ(focusName(), QStringLiteral("txtTappa"));
        key(Qt::Key_A, Qt::ControlModifier);
        write(leg.place);
        tab();
        key(Qt::Key_A, Qt::ControlModifier);
        write(leg.road);
        tab();
        write(leg.km);
        letter('i');
    }
}

} // namespace vanzer::desktop
