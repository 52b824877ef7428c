// SPDX-License-Identifier: MIT
// Every control of the model and its widget.
#include <algorithm>
#include <set>

#include <QAccessible>
#include <QApplication>
#include <QClipboard>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>

#include "desktop/text_ties.h"
#include "desktop/tints.h"
#include "desktop_fixture.h"
#include "window/progress.h"

namespace vanzer::desktop {
namespace {

class Controls : public DesktopTest {
  protected:
    void SetUp() override {
        DesktopTest::SetUp();
        open();
    }

    void openEditor() {
        press("<n>roma<Tab>italia[Return]<v><i>");
        boxes.forget();
    }

    /// Controls without a widget: those of frames not made yet, pictures for paper, and the stops of a route file.
    [[nodiscard]] static bool notInTheWindow(const Control& control) {
        static const std::set<int> noForm{13, 20, 21};
        const auto* frame = dynamic_cast<const Frame*>(&control);
        for (frame = frame == nullptr ? control.frame() : frame; frame != nullptr; frame = frame->frame()) {
            if (noForm.contains(frame->index()))
                return true;
        }
        return dynamic_cast<const Picture*>(&control) != nullptr || control.name() == QStringLiteral("lstMete");
    }

    [[nodiscard]] static QString captionShown(const QWidget& widget) {
        if (const auto* const giving = qobject_cast<const ShortenedLabel*>(&widget))
            return giving->text();
        return widget.property(qobject_cast<const QGroupBox*>(&widget) != nullptr ? "title" : "text").toString();
    }

    void checkGrounds() {
        const Tints tints(window().palette());
        EXPECT_NE(tints.fillable, tints.computed);
        for (const char* name : {"txtLocalita", "txtNazione"})
            EXPECT_EQ(find(name)->palette().color(QPalette::Base), tints.fillable) << name;
        for (const char* name : {"txtCodice", "txtFine_0", "txtKmTot_4", "txtTempo_0", "txtTragh", "txtInizioGSett"}) {
            EXPECT_EQ(find(name)->palette().color(QPalette::Base), tints.computed) << name;
            EXPECT_TRUE(find<QLineEdit>(name)->isReadOnly()) << name;
        }
        for (const char* name : {"cmbOra_0", "cmbMediaKm_0", "cmbInizio_4"})
            EXPECT_EQ(find(name)->palette().color(QPalette::Button), tints.fillable) << name;
    }

    /// The fields that can be typed into at present, each with the line that receives the keys.
    [[nodiscard]] std::vector<std::pair<TextControl*, QLineEdit*>> typedInto() {
        std::vector<std::pair<TextControl*, QLineEdit*>> fields;
        for (const auto& control : form().controls()) {
            auto* const model = dynamic_cast<TextControl*>(control.get());
            QWidget* const widget = model == nullptr ? nullptr : window().binder().widget(*model);
            auto* const list = qobject_cast<QComboBox*>(widget);
            auto* const line = list == nullptr ? qobject_cast<QLineEdit*>(widget) : list->lineEdit();
            if (line != nullptr && line->isVisible() && line->isEnabled() && !line->isReadOnly())
                fields.emplace_back(model, line);
        }
        return fields;
    }
};

TEST_F(Controls, EachHasItsWidgetWithCaptionTipKeyAndName) {
    seeAllFrames();
    int checked = 0;
    for (const auto& control : form().controls()) {
        const std::string name = control->name().toStdString();
        if (notInTheWindow(*control))
            continue;
        QWidget* const widget = window().binder().widget(*control);
        ASSERT_NE(widget, nullptr) << name;
        ++checked;
        EXPECT_EQ(Binder::controlName(widget->objectName()), control->name());
        EXPECT_EQ(widget->toolTip(), control->tooltip()) << name;
        const bool emptyNotice = control.get() == &form().lblAvviso && form().lblAvviso.caption().isEmpty();
        EXPECT_EQ(widget->isHidden(), !control->visible() || emptyNotice) << name;
        if (const auto* const captioned = dynamic_cast<const Captioned*>(control.get());
            captioned != nullptr && qobject_cast<QFrame*>(widget) == nullptr) {
            EXPECT_EQ(captionShown(*widget), captioned->caption().trimmed()) << name;
            if (const auto* const button = qobject_cast<QAbstractButton*>(widget)) {
                EXPECT_EQ(button->shortcut(), QKeySequence::mnemonic(captioned->caption())) << name;
            }
        }
        const bool holdsOthers = dynamic_cast<const Frame*>(control.get()) != nullptr;
        const bool speaks = holdsOthers || !spokenName(*widget).isEmpty() || control.get() == &form().lblGNota;
        EXPECT_TRUE(speaks || qobject_cast<QLabel*>(widget) != nullptr) << name << " has no name for screen readers";
    }
    EXPECT_GT(checked, 140);
}

TEST_F(Controls, ANoticeTakesRoomAndIsSpokenWhileThereIsOne) {
    const QString text = QStringLiteral("950 letto come totale: 21 km.");
    sees("-lblAvviso");
    form().lblAvviso.setCaption(text);
    window().binder().flush();
    QCoreApplication::processEvents();
    auto* const notice = find<QLabel>("lblAvviso");
    EXPECT_TRUE(notice->isVisible() && notice->width() >= notice->sizeHint().width());
    EXPECT_EQ(spokenName(*notice), text);
    EXPECT_EQ(QAccessible::queryAccessibleInterface(notice)->role(), QAccessible::AlertMessage);
    form().lblAvviso.setCaption({});
    window().binder().flush();
    sees("-lblAvviso");
}

TEST_F(Controls, TheStatusLineTellsWhatAControlIsFor) {
    find("cmbInizio_0")->setFocus();
    auto* const line = find<ShortenedLabel>("lblElaborazione");
    const QString idle = testoInAttesa.toString();
    const QString work = QStringLiteral("Calcolo in corso");
    // widget under the mouse, caption, shown text
    const std::tuple<const char*, QString, QString> cases[] = {
        {"lblAutore", idle, form().cmbInizio(0).tooltip()},     {"cmdNuovo", idle, form().cmdNuovo.tooltip()},
        {"cmbMediaKm_0", idle, form().cmbMediaKm(0).tooltip()}, {"cmdRicerca", work, work},
        {"cmdRicerca", idle, form().cmdRicerca.tooltip()},      {"lblAutore", idle, form().cmbInizio(0).tooltip()}};
    for (const auto& [under, caption, shown] : cases) {
        QTest::mouseMove(find(under));
        form().lblElaborazione.setCaption(caption);
        window().binder().flush();
        EXPECT_TRUE(QTest::qWaitFor([&, &tells = shown] { return line->shown() == tells && !tells.isEmpty(); }, 500))
            << under << ": " << line->shown().toStdString();
    }
}

TEST_F(Controls, FieldsTellByTheirGroundWhatCanBeFilledInAlsoInTheDark) {
    const QPalette light = QApplication::palette();
    checkGrounds();
    QApplication::setPalette(QPalette(QColor(0x35, 0x35, 0x35), QColor(0x2a, 0x2d, 0x31)));
    QCoreApplication::processEvents();
    EXPECT_LT(window().palette().color(QPalette::Base).lightness(), 128);
    checkGrounds();
    QApplication::setPalette(light);
}

TEST_F(Controls, ABoxOpensTheFilesThatItTellsOf) {
    const QString file = inFolder("viaggio.iei");
    const MessageBox told{.text = QStringLiteral("<b>Fatto</b>"),
                          .detail = QStringLiteral("<i>viaggio</i>"),
                          .files = {file, inFolder("altro.iei")}};
    const std::pair<Qt::Key, QStringList> cases[] = {
        {Qt::Key_Return, {}}, {Qt::Key_Escape, {}}, {Qt::Key_P, {file}}, {Qt::Key_M, {directory.path()}}};
    for (const auto& [key, opened] : cases) {
        boxes.expect(key);
        opener.opened.clear();
        EXPECT_EQ(form().ports.messages.show(told), rispostaOk);
        EXPECT_EQ(opener.opened, opened) << key;
        const ShownBox box = boxes.take();
        EXPECT_TRUE(box.plain && box.buttons.size() == 3);
    }
}

/// In the help no line is broken, and indented lines are aligned. The focus returns afterwards.
TEST_F(Controls, TheHelpIsReadAndLeft) {
    openEditor();
    const QString blanks(37, QChar::Nbsp);
    int indented = 0;
    for (const char* const name : {"cmdHelpGenerico", "cmdHelpTotale1", "cmdHelpTotale2", "cmdHelpTt", "cmdHelpKm",
                                   "cmdHelpItin_0", "cmdHelpItin_1", "cmdHelpItin_2", "cmdHelpItin_3"}) {
        find("txtKm")->setFocus();
        QTest::mouseClick(find(name), Qt::LeftButton);
        const ShownBox box = boxes.take();
        EXPECT_EQ(box.lines, box.text.count(u'\n') + 1) << box.text.toStdString();
        const QFontMetricsF metrics(box.font);
        EXPECT_NEAR(metrics.horizontalAdvance(blanks), metrics.horizontalAdvance(QStringLiteral("RITORNO A START:  ")),
                    metrics.height());
        indented += static_cast<int>(box.text.count(u'\n' + blanks));
        EXPECT_EQ(window().focusWidget(), find("txtKm")) << name;
    }
    EXPECT_EQ(indented, 3);
}

TEST_F(Controls, TabGoesInTheOrderOfTheEye) {
    openEditor();
    for (const int index : {8, 9, 11, 6, 5, 4, 0, 15, 3, 12}) {
        const auto* const frame = find(QStringLiteral("frmframe_%1").arg(index));
        std::vector<QRect> places;
        for (QWidget* w = window().nextInFocusChain(); w != &window(); w = w->nextInFocusChain()) {
            const bool stops = (w->focusPolicy() & Qt::TabFocus) != 0 && w->parentWidget() == frame;
            if (stops && w->focusProxy() == nullptr && w->isVisible())
                places.push_back(w->geometry());
        }
        EXPECT_FALSE(places.empty()) << index;
        const auto before = [](const QRect& a, const QRect& b) {
            return a.bottom() <= b.center().y() || (std::abs(a.center().y() - b.center().y()) < 12 && a.x() < b.x());
        };
        EXPECT_TRUE(std::ranges::is_sorted(places, before)) << "frmframe(" << index << ")";
    }
}

TEST_F(Controls, PastedTextGoesThroughTheKeyHandlers) {
    openEditor();
    const std::tuple<const char*, const char*, const char*> cases[] = {
        {"txtTappa", "forlì (àè) l'aquila", "FORLÌ (ÀÈ) L'AQUILA"},
        {"txtNumStrada", "a1/e45", "A1/E45"},
        {"txtKm", "1x2-3,4", "1234"},
        {"txtTappa", "abcdefghijklmnopqrstuvwxyz0123456789", "ABCDEFGHIJKLMNOPQRSTUVWXYZ0123"},
    };
    for (const auto& [name, pasted, shown] : cases) {
        auto* const field = find<QLineEdit>(name);
        field->setFocus();
        field->selectAll();
        QApplication::clipboard()->setText(QString::fromUtf8(pasted));
        press("<Ctrl+V>");
        EXPECT_EQ(field->text().toStdString(), shown) << name;
        EXPECT_EQ(dynamic_cast<TextControl*>(form().find(QLatin1StringView(name)))->text(), field->text());
    }
    story({{"<End>x", "txtTappa=ABCDEFGHIJKLMNOPQRSTUVWXYZ0123"}, // a full field takes no more
           {"<@txtKm><Ctrl+A>x", "txtKm=1234"},                   // a dropped key leaves the selection
           {"<End><Backspace>", "txtKm=1234"}});
}

/// A character may have the same number as a key that moves. It must be typed all the same.
TEST_F(Controls, EveryCharacterIsTypedAndNothingElse) {
    storeTrip(3);
    QString characters = QStringLiteral("èéàòùçñ°§€");
    for (char16_t c = 32; c < 127; ++c)
        characters += c;
    const auto moved = [this] {
        return std::tuple(form().stato.RigaCorrente, form().mfgTab.row(), form().mfgTab.rows(),
                          records("GuidaCitta").size());
    };
    std::set<QString> met;
    for (const char* const opens : {"<i>", "<g>"}) {
        open();
        press(opens);
        form().cmbGH.setText(QStringLiteral("01")); // an entry with a description and a time can be stored
        for (const auto& [model, line] : typedInto()) {
            met.insert(model->name());
            for (const QChar c : characters) {
                SCOPED_TRACE(model->name().toStdString() + ", " + std::to_string(c.unicode()));
                model->setText(QStringLiteral("1"));
                window().binder().flush();
                const auto before = moved();
                line->setFocus();
                line->end(false);
                write(c);
                const int passed = model->filterKey(c.unicode());
                const QString expected = QStringLiteral("1") + (passed < 32 ? QString() : QString(QChar(passed)));
                ASSERT_EQ(model->text().toStdString(), expected.toStdString());
                ASSERT_EQ(line->text(), model->text());
                ASSERT_EQ(moved(), before);
            }
        }
        find("mfgTab")->setFocus();
        const auto before = moved();
        write(characters);
        EXPECT_EQ(moved(), before) << "in the table";
    }
    for (const char* const name : {"txtGDescr", "txtTappa", "cmbMediaKm(0)", "txtLocalita"})
        EXPECT_TRUE(met.contains(QLatin1StringView(name))) << name;
}

TEST_F(Controls, ListsArePickedFromAndTypedIntoAsTheirKindAllows) {
    story({{"<@cmbOra_0>3", "cmbOra_0=09"}, {"<Down><@cmbRange>", "cmbOra_0=10"}});
    auto* const hour = find<DropDown>("cmbOra_0");
    turnWheel(*hour); // the wheel passes by a list without the focus
    turnWheel(*find<DropDown>("cmbMediaKm_0")->lineEdit());
    story({{"", "@cmbRange;cmbOra_0=10"}, {"<@cmbOra_0>", ""}});
    turnWheel(*hour);
    EXPECT_EQ(form().cmbOra(0).text().toStdString(), "11");
    story({{"<@cmbMediaKm_0><Ctrl+A>1x35", "cmbMediaKm_0=135"}, {"<@cmbGiorni><Ctrl+A>998", "cmbGiorni=997"}});
    EXPECT_EQ(find<DropDown>("cmbGiorni")->currentText().toStdString(), "997");
    form().cmbOra(0).setText(QStringLiteral("99")); // a text that isn't an entry
    window().binder().flush();
    sees("cmbOra_0=99");
}

/// The arrow keys go on from the chosen entry, even if the entries have changed.
TEST_F(Controls, ListsMadeAnewKeepTheirEntry) {
    work("pick cmbInizio(0) 27;pick cmbInizio(1) 06");
    seeAllFrames();
    const std::tuple<const char*, const char*, const char*> cases[] = {
        {"cmbInizio_1", "06", "07"}, {"cmbInizio_0", "27", "28"}, {"cmbGTipo", "Ottimo", "Da vedere"}};
    for (const auto& [name, chosen, next] : cases) {
        auto& model = *dynamic_cast<ListControl*>(form().find(Binder::controlName(QLatin1StringView(name))));
        EXPECT_EQ(textOf(name), chosen);
        model.setEntries(model.entries() + QStringList(QStringLiteral("~")));
        window().binder().flush();
        QTest::keyClick(find<DropDown>(name), Qt::Key_Down);
        EXPECT_EQ(model.text().toStdString(), next);
    }
}

TEST_F(Controls, FocusThatLeavesAnHourChecksTheClock) {
    find("cmbOra_1")->setFocus();
    work("set cmbOra(1) 11;set cmbMin(1) 00;set cmbOra(0) 10;set cmbMin(0) 15");
    story({{"<Tab>", "cmbOra_0=00;cmbOra_1=11"}}); // lunch too near to the start of the day
}

TEST(FilteredEdit, KeepsTheCaretBehindWhatWasBroughtIn) {
    TextBox digits(QStringLiteral("t"), -1, nullptr);
    digits.onKeyPress = [](int& code) { code = code >= u'0' && code <= u'9' ? code : 0; };
    // old text, edited text, its caret; text and caret that remain
    const std::tuple<const char*, const char*, int, const char*, int> cases[] = {
        {"12", "1x2", 2, "12", 1},  {"12", "13x42", 4, "1342", 3}, {"", "a1b2", 4, "12", 2},
        {"1212", "12", 0, "12", 0}, {"111", "1111", 2, "1111", 2}, {"123", "12", 2, "12", 2},
        {"12", "x", 1, "", 0},      {"aa", "aab", 3, "aa", 2},
    };
    for (const auto& [old, edited, cursor, kept, caret] : cases) {
        int at = cursor;
        EXPECT_EQ(filteredEdit(digits, QString::fromUtf8(old), QString::fromUtf8(edited), at).toStdString(), kept);
        EXPECT_EQ(at, caret) << old << " -> " << edited;
    }
}

} // namespace
} // namespace vanzer::desktop
