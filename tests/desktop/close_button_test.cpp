// SPDX-License-Identifier: MIT
// The window's close button in every state of the window.
#include <QScreen>

#include "desktop_fixture.h"

namespace vanzer::desktop {
namespace {

using CloseButton = DesktopTest;

/// One press closes all that is open, each with its own question, and then asks to leave.
TEST_F(CloseButton, AsksToLeaveWhateverIsOpen) {
    constexpr const char* legs = "?Hai chiesto di uscire dalla funzione 'Itinerari'";
    constexpr const char* stretch = "?Vuoi salvare le modifiche";
    storeTrip(8);
    const std::pair<const char*, const char*> cases[] = {
        {"", ""},
        {"<n>", ""},
        {"<r>", ""},
        {"<i>", legs},
        {"<i><e>", legs},
        {"<i>;click cmdDuplica", legs},
        {"<i>;click cmdDuplica;row mfgCopia 1", legs},
        {"<t>", ""},
        {"<t>;row mfgTab 3;click cmdTappaSEl(0);click cmdTappaSEl(1);click cmdTappaSEl(2)", stretch},
        {"<g>", ""},
        {"<g><e>", ""},
        {"<g>;click cmdStampaGuidaCitta", ""},
        {"<g>;click cmdStampaGuidaCitta;click cmdStampaGuida(0)", ""},
        {"click cmdExport;click cmdImportExport(0)", ""},
        {"click cmdExport", ""},
        {"<c>", ""},
        {"<c><p>", ""},
        {"<c>;click cmdModStrada", ""},
        {"click cmdStampa", ""},
        {"click cmdStampa;click cmdEsegui(0)", ""},
    };
    for (const auto& [state, asked] : cases) {
        SCOPED_TRACE(state);
        open();
        work(state);
        boxes.forget();
        if (*asked != '\0')
            boxes.expect(Qt::Key_N);
        EXPECT_FALSE(window().close()) << "Esc in the question to leave is no";
        sees(asked); // before the question to leave
        sees("?Vuoi chiudere la procedura?");
        EXPECT_TRUE(boxes.none());
        for (const int frame : {1, 12, 16, 17, 18, 19, 22, 23, 24, 25})
            EXPECT_FALSE(form().frmframe(frame).visible()) << "frame " << frame;
        sees("-cmbRicerca;-cmbRicercaTappa");
        boxes.expect(Qt::Key_Return);
        EXPECT_TRUE(window().close());
        EXPECT_FALSE(window().isVisible());
    }
}

TEST_F(CloseButton, WaitsForACommandThatCannotBeStoppedAndStopsAtACancel) {
    storeTrip(3);
    open(everyStep);
    inside([this] {
        EXPECT_FALSE(window().close());
        EXPECT_TRUE(boxes.none());
    });
    story({{"<r>", "?Vuoi chiudere la procedura?;-cmbRicerca"}, {"<i><e>", "+cmbRicercaTappa"}});
    EXPECT_FALSE(window().close());
    story({{"", "?;-cmbRicercaTappa;+frmframe_12"}}); // Esc in the box cancels
}

TEST_F(CloseButton, KeepsTheWindowsPlaceOnTheScreen) {
    open();
    const QRect screen = window().screen()->availableGeometry();
    for (const QSize size : {QSize(1400, 900), screen.size() * 2}) {
        window().resize(size);
        boxes.expect(Qt::Key_Return);
        EXPECT_TRUE(window().close());
        open();
        EXPECT_TRUE(window().size() == size || size.width() > screen.width()) << "the window remembers its size";
        EXPECT_TRUE(screen.contains(window().frameGeometry()));
    }
}

} // namespace
} // namespace vanzer::desktop
