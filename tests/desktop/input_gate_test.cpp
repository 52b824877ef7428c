// SPDX-License-Identifier: MIT
// What the user does during a command waits for its end. What stops the command gets through.
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
        press("<n>"); // a new trip, then its name
        QTest::keyClick(place, Qt::Key_X);
        QTest::keyClick(place, 'd', Qt::AltModifier); // this button is disabled by then
        QTest::mouseClick(window().windowHandle(), Qt::LeftButton, {},
                          nation->mapTo(&window(), nation->rect().center()));
        QTest::keyClick(nation, Qt::Key_Y);
        sees("txtLocalita=PROVA");
        EXPECT_FALSE(nation->hasFocus());
    });
    find<QAbstractButton>("cmdRicerca")->click();
    sees("txtNazione=Y;txtLocalita=X;@txtNazione;-cmbRicerca");

    auto* const month = find("cmbInizio_1"); // a turn of the wheel isn't kept for later
    month->setFocus();
    const std::string before = textOf("cmbInizio_1");
    inside([month] { turnWheel(*month); });
    find<QAbstractButton>("cmdRicerca")->click();
    QTest::qWait(60);
    EXPECT_EQ(textOf("cmbInizio_1"), before);
}

} // namespace
} // namespace vanzer::desktop
