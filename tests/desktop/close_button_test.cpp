// The window's own close button, in whatever state the window is.
#include <QAbstractButton>
#include <QTimer>

#include "desktop_fixture.h"

namespace vanzer::desktop {
namespace {

class CloseButton : public DesktopTest {
  protected:
    void press(const char* letters) {
        for (const char* c = letters; *c != 0; ++c)
            *c == ' ' ? key(Qt::Key_Return) : letter(*c);
    }
};

/// One press closes what is open, each thing with its own question, and then asks to leave.
TEST_F(CloseButton, AsksToLeaveWhateverIsOpen) {
    constexpr const char* legs = "Hai chiesto di uscire dalla funzione 'Itinerari'";
    constexpr const char* stretch = "Vuoi salvare le modifiche";
    storeTrip(8);
    struct Case {
        const char* state;
        std::function<void()> reach;
        std::vector<const char*> asked; ///< before the question to leave
    };
    const auto letters = [this](const char* keys) { return [this, keys] { press(keys); }; };
    const Case cases[] = {
        {"plain", letters(""), {}},
        {"a new destination", letters("n"), {}},
        {"the search", letters("r"), {}},
        {"the legs", letters("i"), {legs}},
        {"the search of a leg", letters("ie"), {legs}},
        {"the source of a copy",
         [this] {
             press("i");
             form().cmdDuplica.click();
         },
         {legs}},
        {"a copy",
         [this] {
             press("i");
             form().cmdDuplica.click();
             form().mfgCopia.clickRow(1);
         },
         {legs}},
        {"a stretch", letters("t"), {}},
        {"a changed stretch",
         [this] {
             press("t");
             form().mfgTab.clickRow(3);
             for (const int i : {0, 1, 2})
                 form().cmdTappaSEl(i).click();
         },
         {stretch}},
        {"the guide", letters("g"), {}},
        {"the search of the guide", letters("ge"), {}},
        {"the print of the guide",
         [this] {
             press("g");
             form().cmdStampaGuidaCitta.click();
         },
         {}},
        {"a printer for the guide",
         [this] {
             press("g");
             form().cmdStampaGuidaCitta.click();
             form().cmdStampaGuida(0).click();
         },
         {}},
        {"the exchange",
         [this] {
             form().cmdExport.click();
             form().cmdImportExport(0).click();
         },
         {}},
        {"the choice of the exchange", [this] { form().cmdExport.click(); }, {}},
        {"a schedule", letters("c"), {}},
        {"a schedule and its line", letters("cp"), {}},
        {"a stretch beside a schedule",
         [this] {
             press("c");
             form().cmdModStrada.click();
         },
         {}},
        {"the print", [this] { form().cmdStampa.click(); }, {}},
        {"a printer",
         [this] {
             form().cmdStampa.click();
             form().cmdEsegui(0).click();
         },
         {}},
    };
    for (const Case& c : cases) {
        open();
        c.reach();
        window().binder().flush();
        boxes.forget();
        for (std::size_t i = 0; i < c.asked.size(); ++i)
            boxes.expect(Qt::Key_N);
        EXPECT_FALSE(window().close()) << c.state << ": Esc in the question to leave is no";
        ASSERT_EQ(boxes.shown().size(), c.asked.size() + 1) << c.state;
        for (std::size_t i = 0; i < c.asked.size(); ++i)
            EXPECT_TRUE(boxes.shown()[i].text.startsWith(QLatin1StringView(c.asked[i]))) << c.state;
        EXPECT_EQ(boxes.shown().back().text, QStringLiteral("Vuoi chiudere la procedura?")) << c.state;
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
    bool running = false;
    QTimer::singleShot(0, &window(), [&] {
        running = form().comandoInCorso;
        EXPECT_FALSE(window().close());
        EXPECT_TRUE(boxes.shown().empty());
    });
    find<QAbstractButton>("cmdRicerca")->click();
    EXPECT_TRUE(running);
    ASSERT_EQ(boxes.shown().size(), 1U);
    EXPECT_EQ(boxes.shown()[0].text, QStringLiteral("Vuoi chiudere la procedura?"));
    EXPECT_FALSE(isSeen("cmbRicerca"));
}

TEST_F(CloseButton, ACancelOnTheWayStopsThere) {
    storeTrip(3);
    open();
    letter('i');
    letter('e');
    EXPECT_FALSE(window().close());
    ASSERT_EQ(boxes.shown().size(), 1U);
    EXPECT_FALSE(isSeen("cmbRicercaTappa"));
    EXPECT_TRUE(isSeen("frmframe_12")) << "Esc in the box cancels";
}

} // namespace
} // namespace vanzer::desktop
