// What the user does while a command is at work waits for its end; what stops it gets through.
#include <QLineEdit>

#include "desktop_fixture.h"

namespace vanzer::desktop {
namespace {

using InputGateTest = DesktopTest;

TEST_F(InputGateTest, KeysLettersAndClicksWaitInTheirOrder) {
    storeTrip(3);
    open(everyStep);
    auto* const place = find<QLineEdit>("txtLocalita");
    auto* const nation = find<QLineEdit>("txtNazione");
    inside([&] {
        press("<n>"); // a new trip; then its name
        QTest::keyClick(place, Qt::Key_X);
        QTest::keyClick(place, 'd', Qt::AltModifier); // a button that is off by then
        QTest::mouseClick(window().windowHandle(), Qt::LeftButton, {},
                          nation->mapTo(&window(), nation->rect().center()));
        QTest::keyClick(nation, Qt::Key_Y);
        sees("txtLocalita=PROVA");
        EXPECT_FALSE(nation->hasFocus());
    });
    find<QAbstractButton>("cmdRicerca")->click();
    sees("txtNazione=Y;txtLocalita=X;@txtNazione;-cmbRicerca");

    auto* const month = find("cmbInizio_1"); // a wheel is of the moment
    month->setFocus();
    const std::string before = textOf("cmbInizio_1");
    inside([month] { turnWheel(*month); });
    find<QAbstractButton>("cmdRicerca")->click();
    QTest::qWait(60);
    EXPECT_EQ(textOf("cmbInizio_1"), before);
}

} // namespace
} // namespace vanzer::desktop
