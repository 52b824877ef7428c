// Every control of the window against its widget.
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

    /// Frames that have no form yet, and what is never seen: pictures for paper, the stops of a route file.
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

    /// Fields that can be typed into now, with the line that takes the keys.
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
    EXPECT_FALSE(isSeen("lblAvviso"));
    form().lblAvviso.setCaption(text);
    window().binder().flush();
    QCoreApplication::processEvents();
    auto* const notice = find<QLabel>("lblAvviso");
    EXPECT_TRUE(notice->isVisible());
    EXPECT_GE(notice->width(), notice->sizeHint().width());
    EXPECT_EQ(spokenName(*notice), text);
    EXPECT_EQ(QAccessible::queryAccessibleInterface(notice)->role(), QAccessible::AlertMessage);
    form().lblAvviso.setCaption({});
    window().binder().flush();
    EXPECT_FALSE(notice->isVisible());
}

TEST_F(Controls, TheStatusLineTellsWhatAControlIsFor) {
    find("cmbInizio_0")->setFocus();
    auto* const line = find<ShortenedLabel>("lblElaborazione");
    const QString work = QStringLiteral("Calcolo in corso");
    const struct {
        const char* under; ///< the mouse
        QString caption;
        QString shown;
    } cases[] = {{"lblAutore", testoInAttesa.toString(), form().cmbInizio(0).tooltip()},
                 {"cmdNuovo", testoInAttesa.toString(), form().cmdNuovo.tooltip()},
                 {"cmbMediaKm_0", testoInAttesa.toString(), form().cmbMediaKm(0).tooltip()},
                 {"cmdRicerca", work, work},
                 {"cmdRicerca", testoInAttesa.toString(), form().cmdRicerca.tooltip()},
                 {"lblAutore", testoInAttesa.toString(), form().cmbInizio(0).tooltip()}};
    for (const auto& c : cases) {
        QTest::mouseMove(find(c.under));
        form().lblElaborazione.setCaption(c.caption);
        window().binder().flush();
        EXPECT_FALSE(c.shown.isEmpty()) << c.under;
        EXPECT_TRUE(QTest::qWaitFor([&] { return line->shown() == c.shown; }, 500))
            << c.under << ": " << line->shown().toStdString();
        EXPECT_EQ(form().lblElaborazione.caption(), c.caption);
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
    const QString folder = directory.path();
    const QString file = folder + QStringLiteral("/viaggio.iei");
    const struct {
        Qt::Key key;
        QStringList opened;
    } cases[] = {{Qt::Key_Return, {}}, {Qt::Key_Escape, {}}, {Qt::Key_P, {file}}, {Qt::Key_M, {folder}}};
    for (const auto& c : cases) {
        boxes.expect(c.key);
        opener.opened.clear();
        const MessageBox box{.text = QStringLiteral("<b>Fatto</b>"),
                             .detail = QStringLiteral("<i>viaggio</i>"),
                             .files = {file, folder + QStringLiteral("/altro.iei")}};
        EXPECT_EQ(form().ports.messages.show(box), rispostaOk);
        EXPECT_EQ(opener.opened, c.opened) << c.key;
    }
    ASSERT_EQ(boxes.shown().size(), 4U);
    EXPECT_TRUE(boxes.shown()[0].plain);
    EXPECT_EQ(boxes.shown()[0].buttons.size(), 3);
}

/// No line is broken, those that blanks indent stand under each other, and the focus is back where it was.
TEST_F(Controls, TheHelpIsReadAndLeft) {
    typeDestination("roma", "italia");
    letter('i');
    const QString blanks(37, QChar::Nbsp);
    int indented = 0;
    for (const char* const name : {"cmdHelpGenerico", "cmdHelpTotale1", "cmdHelpTotale2", "cmdHelpTt", "cmdHelpKm",
                                   "cmdHelpItin_0", "cmdHelpItin_1", "cmdHelpItin_2", "cmdHelpItin_3"}) {
        find("txtKm")->setFocus();
        boxes.forget();
        QTest::mouseClick(find(name), Qt::LeftButton);
        ASSERT_EQ(boxes.shown().size(), 1U) << name;
        const ShownBox& box = boxes.shown()[0];
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
    typeDestination("roma", "italia");
    letter('i');
    for (const int index : {8, 9, 11, 6, 5, 4, 0, 15, 3, 12}) {
        const auto* const frame = find((QStringLiteral("frmframe_") + QString::number(index)).toLatin1().constData());
        std::vector<QRect> places;
        for (QWidget* w = window().nextInFocusChain(); w != &window(); w = w->nextInFocusChain()) {
            const bool stops = (w->focusPolicy() & Qt::TabFocus) != 0 && w->parentWidget() == frame;
            if (stops && w->focusProxy() == nullptr && w->isVisible())
                places.push_back(w->geometry());
        }
        ASSERT_FALSE(places.empty()) << index;
        const auto before = [](const QRect& a, const QRect& b) {
            return a.bottom() <= b.center().y() || (std::abs(a.center().y() - b.center().y()) < 12 && a.x() < b.x());
        };
        EXPECT_TRUE(std::ranges::is_sorted(places, before)) << "frmframe(" << index << ")";
    }
}

TEST_F(Controls, PastedTextGoesThroughTheKeyHandlers) {
    typeDestination("roma", "italia");
    letter('i');
    const struct {
        const char* field;
        const char* pasted;
        const char* shown;
    } cases[] = {
        {"txtTappa", "forlì (àè) l'aquila", "FORLÌ (ÀÈ) L'AQUILA"},
        {"txtTappa", "abcdefghijklmnopqrstuvwxyz0123456789", "ABCDEFGHIJKLMNOPQRSTUVWXYZ0123"},
        {"txtNumStrada", "a1/e45", "A1/E45"},
        {"txtKm", "1x2-3,4", "1234"},
    };
    for (const auto& c : cases) {
        auto* const field = find<QLineEdit>(c.field);
        field->setFocus();
        field->selectAll();
        QApplication::clipboard()->setText(QString::fromUtf8(c.pasted));
        key(Qt::Key_V, Qt::ControlModifier);
        EXPECT_EQ(field->text().toStdString(), c.shown) << c.field;
        EXPECT_EQ(dynamic_cast<TextControl*>(form().find(QLatin1StringView(c.field)))->text(), field->text());
    }
    auto* const place = find<QLineEdit>("txtTappa");
    place->setFocus();
    place->end(false);
    write("x");
    EXPECT_TRUE(place->text().endsWith(QStringLiteral("0123"))) << "a full field takes no more";
    auto* const km = find<QLineEdit>("txtKm");
    km->setFocus();
    km->selectAll();
    write("x");
    EXPECT_EQ(km->text().toStdString(), "1234") << "a dropped key leaves the selection";
    km->deselect();
    key(Qt::Key_Backspace);
    EXPECT_EQ(km->text().toStdString(), "1234");
}

/// A character that shares its number with a key that moves is a character all the same.
TEST_F(Controls, EveryCharacterIsTypedAndNothingElse) {
    storeTrip(3);
    QString characters = QStringLiteral("èéàòùçñ°§€");
    for (char16_t c = 32; c < 127; ++c)
        characters += c;
    const auto moved = [this] {
        const auto stored = form().archivio.tabella(QStringLiteral("GuidaCitta")).record.size();
        return std::tuple(form().stato.RigaCorrente, form().mfgTab.row(), form().mfgTab.rows(), stored);
    };
    std::set<QString> met;
    for (const char opens : {'i', 'g'}) {
        open();
        letter(opens);
        form().cmbGH.setText(QStringLiteral("01")); // with a time a description is an entry that can be stored
        for (const auto& [model, line] : typedInto()) {
            met.insert(model->name());
            model->setText(QStringLiteral("1"));
            window().binder().flush();
            const auto before = moved();
            for (const QChar c : characters) {
                model->setText(QStringLiteral("1"));
                window().binder().flush();
                line->setFocus();
                line->end(false);
                write(QString(c).toUtf8().constData());
                const int passed = model->filterKey(c.unicode());
                const QString expected = QStringLiteral("1") + (passed < 32 ? QString() : QString(QChar(passed)));
                ASSERT_EQ(model->text().toStdString(), expected.toStdString())
                    << model->name().toStdString() << ", " << static_cast<int>(c.unicode());
                ASSERT_EQ(line->text(), model->text());
                ASSERT_EQ(moved(), before) << model->name().toStdString() << ", " << static_cast<int>(c.unicode());
            }
        }
        find("mfgTab")->setFocus();
        const auto before = moved();
        write(characters.toUtf8().constData());
        EXPECT_EQ(moved(), before) << "in the table";
    }
    EXPECT_TRUE(met.contains(QStringLiteral("txtGDescr")) && met.contains(QStringLiteral("txtTappa")) &&
                met.contains(QStringLiteral("cmbMediaKm(0)")) && met.contains(QStringLiteral("txtLocalita")));
}

TEST_F(Controls, ListsArePickedFromAndTypedIntoAsTheirKindAllows) {
    auto* const hour = find<DropDown>("cmbOra_0");
    hour->setFocus();
    write("3");
    EXPECT_EQ(hour->shownText().toStdString(), "09");
    key(Qt::Key_Down);
    EXPECT_EQ(form().cmbOra(0).text().toStdString(), "10");
    find("cmbRange")->setFocus();
    turnWheel(*hour);
    turnWheel(*find<DropDown>("cmbMediaKm_0")->lineEdit());
    EXPECT_EQ(form().cmbOra(0).text().toStdString(), "10") << "a wheel that passes by";
    EXPECT_EQ(focusName(), QStringLiteral("cmbRange"));
    hour->setFocus();
    turnWheel(*hour);
    EXPECT_EQ(form().cmbOra(0).text().toStdString(), "11");

    auto* const speed = find<DropDown>("cmbMediaKm_0");
    speed->setFocus();
    speed->lineEdit()->selectAll();
    write("1x35");
    EXPECT_EQ(form().cmbMediaKm(0).text().toStdString(), "135");
    auto* const days = find<DropDown>("cmbGiorni");
    days->setFocus();
    days->lineEdit()->selectAll();
    write("998");
    EXPECT_EQ(days->currentText().toStdString(), "997");
    form().cmbOra(0).setText(QStringLiteral("99"));
    window().binder().flush();
    EXPECT_EQ(hour->shownText().toStdString(), "99") << "a text beside the entries";
}

/// The arrow goes on from the entry that was chosen, whatever has become of the entries.
TEST_F(Controls, ListsMadeAnewKeepTheirEntry) {
    form().cmbInizio(0).pick(QStringLiteral("27"));
    form().cmbInizio(1).pick(QStringLiteral("06"));
    const struct {
        const char* list;
        const char* chosen;
        const char* next;
    } cases[] = {{"cmbInizio_1", "06", "07"}, {"cmbInizio_0", "27", "28"}, {"cmbGTipo", "Ottimo", "Da vedere"}};
    seeAllFrames();
    for (const auto& c : cases) {
        auto& model = *dynamic_cast<ListControl*>(form().find(Binder::controlName(QLatin1StringView(c.list))));
        auto* const list = find<DropDown>(c.list);
        EXPECT_EQ(list->shownText().toStdString(), c.chosen);
        const QStringList entries = model.entries();
        model.setEntries(entries + QStringList(QStringLiteral("~")));
        window().binder().flush();
        QTest::keyClick(list, Qt::Key_Down);
        EXPECT_EQ(model.text().toStdString(), c.next);
    }
}

TEST_F(Controls, FocusThatLeavesAnHourChecksTheClock) {
    find("cmbOra_1")->setFocus();
    form().cmbOra(1).setText(QStringLiteral("11"));
    form().cmbMin(1).setText(QStringLiteral("00"));
    form().cmbOra(0).setText(QStringLiteral("10"));
    form().cmbMin(0).setText(QStringLiteral("15"));
    tab();
    EXPECT_EQ(textOf("cmbOra_0").toStdString(), "00") << "lunch too near to the start of the day";
    EXPECT_EQ(textOf("cmbOra_1").toStdString(), "11");
}

TEST(FilteredEdit, KeepsTheCaretBehindWhatWasBroughtIn) {
    TextBox digits(QStringLiteral("t"), -1, nullptr);
    digits.onKeyPress = [](int& code) { code = code >= u'0' && code <= u'9' ? code : 0; };
    const struct {
        const char* old;
        const char* edited;
        int cursor;
        const char* kept;
        int caret;
    } cases[] = {
        {"12", "1x2", 2, "12", 1},  {"12", "13x42", 4, "1342", 3}, {"", "a1b2", 4, "12", 2},
        {"1212", "12", 0, "12", 0}, {"111", "1111", 2, "1111", 2}, {"123", "12", 2, "12", 2},
        {"12", "x", 1, "", 0},      {"aa", "aab", 3, "aa", 2},
    };
    for (const auto& c : cases) {
        int cursor = c.cursor;
        EXPECT_EQ(filteredEdit(digits, QString::fromUtf8(c.old), QString::fromUtf8(c.edited), cursor).toStdString(),
                  c.kept)
            << c.old << " -> " << c.edited;
        EXPECT_EQ(cursor, c.caret) << c.old << " -> " << c.edited;
    }
}

} // namespace
} // namespace vanzer::desktop
