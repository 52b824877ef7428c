// The window's own close button, in whatever state the window is.
#include <QAbstractButton>

#include "desktop_fixture.h"

namespace vanzer::desktop {
namespace {

class CloseButton : public DesktopTest {
  protected:
    /// A letter is an Alt letter; a row of a table stands behind a colon; all else are buttons that are clicked.
    void reach(const char* steps) {
        for (const QString& step : QString::fromLatin1(steps).split(u' ', Qt::SkipEmptyParts)) {
            Control* const control = form().find(step.section(u':', 0, 0));
            if (step.size() == 1)
                letter(step[0].toLatin1());
            else if (auto* const table = dynamic_cast<Grid*>(control))
                table->clickRow(step.section(u':', 1).toInt());
            else
                dynamic_cast<Button&>(*control).click();
        }
        window().binder().flush();
    }
};

/// One press closes what is open, each thing with its own question, and then asks to leave.
TEST_F(CloseButton, AsksToLeaveWhateverIsOpen) {
    constexpr const char* leave = "Vuoi chiudere la procedura?";
    constexpr const char* legs = "Hai chiesto di uscire dalla funzione 'Itinerari'";
    constexpr const char* stretch = "Vuoi salvare le modifiche";
    storeTrip(8);
    const struct {
        const char* state;
        const char* steps;
        const char* asked = nullptr; ///< before the question to leave
    } cases[] = {
        {"plain", ""},
        {"a new destination", "n"},
        {"the search", "r"},
        {"the legs", "i", legs},
        {"the search of a leg", "i e", legs},
        {"the source of a copy", "i cmdDuplica", legs},
        {"a copy", "i cmdDuplica mfgCopia:1", legs},
        {"a stretch", "t"},
        {"a changed stretch", "t mfgTab:3 cmdTappaSEl(0) cmdTappaSEl(1) cmdTappaSEl(2)", stretch},
        {"the guide", "g"},
        {"the search of the guide", "g e"},
        {"the print of the guide", "g cmdStampaGuidaCitta"},
        {"a printer for the guide", "g cmdStampaGuidaCitta cmdStampaGuida(0)"},
        {"the exchange", "cmdExport cmdImportExport(0)"},
        {"the choice of the exchange", "cmdExport"},
        {"a schedule", "c"},
        {"a schedule and its line", "c p"},
        {"a stretch beside a schedule", "c cmdModStrada"},
        {"the print", "cmdStampa"},
        {"a printer", "cmdStampa cmdEsegui(0)"},
    };
    for (const auto& c : cases) {
        open();
        reach(c.steps);
        boxes.forget();
        if (c.asked != nullptr)
            boxes.expect(Qt::Key_N);
        EXPECT_FALSE(window().close()) << c.state << ": Esc in the question to leave is no";
        ASSERT_EQ(boxes.shown().size(), c.asked != nullptr ? 2U : 1U) << c.state;
        EXPECT_TRUE(boxes.shown()[0].text.startsWith(QLatin1StringView(c.asked != nullptr ? c.asked : leave)));
        EXPECT_EQ(boxes.shown().back().text, QLatin1StringView(leave)) << c.state;
        for (const int frame : {1, 12, 16, 17, 18, 19, 22, 23, 24, 25})
            EXPECT_FALSE(form().frmframe(frame).visible()) << c.state << ", frame " << frame;
        EXPECT_FALSE(form().cmbRicerca.visible() || form().cmbRicercaTappa.visible()) << c.state;
        boxes.expect(Qt::Key_Return);
        EXPECT_TRUE(window().close()) << c.state;
        EXPECT_FALSE(window().isVisible()) << c.state;
    }
}

TEST_F(CloseButton, WaitsForACommandThatCannotBeStopped) {
    storeTrip(3);
    open({.patience = 0, .yields = 0, .frames = 0});
    inside([this] {
        EXPECT_FALSE(window().close());
        EXPECT_TRUE(boxes.shown().empty());
    });
    find<QAbstractButton>("cmdRicerca")->click();
    ASSERT_EQ(boxes.shown().size(), 1U);
    EXPECT_EQ(boxes.shown()[0].text, QStringLiteral("Vuoi chiudere la procedura?"));
    EXPECT_FALSE(isSeen("cmbRicerca"));
}

TEST_F(CloseButton, ACancelOnTheWayStopsThere) {
    storeTrip(3);
    open();
    reach("i e");
    EXPECT_FALSE(window().close());
    ASSERT_EQ(boxes.shown().size(), 1U);
    EXPECT_FALSE(isSeen("cmbRicercaTappa"));
    EXPECT_TRUE(isSeen("frmframe_12")) << "Esc in the box cancels";
}

} // namespace
} // namespace vanzer::desktop
