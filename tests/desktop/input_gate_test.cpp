// What the user does while a command is at work waits for its end; what stops it gets through.
#include <QLineEdit>

#include "desktop_fixture.h"

namespace vanzer::desktop {
namespace {

using InputGateTest = DesktopTest;

TEST_F(InputGateTest, KeysLettersAndClicksWaitInTheirOrder) {
    storeTrip(3);
    open({.patience = 0, .yields = 0, .frames = 0});
    auto* const place = find<QLineEdit>("txtLocalita");
    auto* const nation = find<QLineEdit>("txtNazione");
    inside([&] {
        letter('n'); // a new trip; then its name
        QTest::keyClick(place, Qt::Key_X);
        QTest::keyClick(place, 'd', Qt::AltModifier); // a button that is off by then
        QTest::mouseClick(window().windowHandle(), Qt::LeftButton, {},
                          nation->mapTo(&window(), nation->rect().center()));
        QTest::keyClick(nation, Qt::Key_Y);
        EXPECT_EQ(form().txtLocalita.text(), QStringLiteral("PROVA"));
        EXPECT_FALSE(nation->hasFocus());
    });
    find<QAbstractButton>("cmdRicerca")->click();
    EXPECT_EQ(form().txtNazione.text(), QStringLiteral("Y"));
    EXPECT_EQ(form().txtLocalita.text(), QStringLiteral("X"));
    EXPECT_TRUE(nation->hasFocus());
    EXPECT_FALSE(isSeen("cmbRicerca"));
}

TEST_F(InputGateTest, AWheelInsideACommandIsGone) {
    storeTrip(3);
    open({.patience = 0, .yields = 0, .frames = 0});
    auto* const month = find("cmbInizio_1");
    month->setFocus();
    const QString before = textOf("cmbInizio_1");
    inside([month] { turnWheel(*month); });
    find<QAbstractButton>("cmdCalcola")->click();
    QTest::qWait(60);
    EXPECT_EQ(textOf("cmbInizio_1"), before);
}

} // namespace
} // namespace vanzer::desktop
