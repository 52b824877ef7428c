// The "?" buttons: each shows its message, to the letter, in a plain box.
#include <memory>
#include <set>
#include <vector>

#include <gtest/gtest.h>

#include <QFile>
#include <QTemporaryDir>

#include "batch/queue_ports.h"
#include "toolkit/program_starter.h"
#include "window/startup.h"

namespace vanzer {

namespace {

using namespace Qt::StringLiterals;

class KeptBoxes : public MessageBoxes {
  public:
    int show(const MessageBox& box) override {
        boxes.push_back(box);
        return rispostaOk;
    }
    std::vector<MessageBox> boxes;
};

class Help : public testing::Test {
  protected:
    QTemporaryDir directory;
    KeptBoxes messages;
    batch::QueuedDialogs dialogs;
    batch::SetClock clock;
    batch::VisitedYield events;
    DetachedStarter programs;
    Ports ports{messages, dialogs, clock, events, programs};
    std::unique_ptr<Form> form = avvia({.directory = directory.path(), .decimalMark = u'.', .versione = {}}, ports);
};

/// The message as it was written down, ended like a text file.
QByteArray promised(const QString& file) {
    QFile data(QStringLiteral(VANZER_TEST_DATA "/help/") + file + u".txt"_s);
    return data.open(QIODevice::ReadOnly) ? data.readAll() : data.errorString().toUtf8();
}

TEST_F(Help, EveryButtonShowsItsMessage) {
    const QString fields = u"Informazioni sui campi e modalità "_s; // ends with a blank
    const QString doing = u"Informazioni operative"_s;
    const QString pressing = u"Informazioni sui pulsanti"_s;
    struct Row {
        QString button, file, tooltip;
        int frame;
    };
    const std::vector<Row> rows{
        {u"cmdHelpGenerico"_s, u"cmdHelpGenerico"_s, u"Informazioni sui singoli pulsanti"_s, 28},
        {u"cmdHelpTotale1"_s, u"cmdHelpTotale1"_s, u"Informazioni generiche"_s, 7},
        {u"cmdHelpTotale2"_s, u"cmdHelpTotale2"_s, fields, 7},
        {u"cmdHelpTt"_s, u"cmdHelpTt"_s, fields, 7},
        {u"cmdHelpKm"_s, u"cmdHelpKm"_s, u"Informazioni sui campi"_s, 12},
        {u"cmdHelpItin(0)"_s, u"cmdHelpItin_0"_s, pressing, 14},
        {u"cmdHelpItin(1)"_s, u"cmdHelpItin_1"_s, pressing, 14},
        {u"cmdHelpItin(2)"_s, u"cmdHelpItin_2"_s, pressing, 14},
        {u"cmdHelpItin(3)"_s, u"cmdHelpItin_3"_s, pressing, 14},
        {u"cmdHelpItin(4)"_s, u"cmdHelpItin_4"_s, pressing, 14},
        {u"cmdHelpDuplica"_s, u"cmdHelpDuplica"_s, doing, 19},
        {u"cmdHelpExport"_s, u"cmdHelpExport"_s, doing, 22},
        {u"cmdHelpGuida(0)"_s, u"cmdHelpGuida_0"_s, doing, 24},
        {u"cmdHelpGuida(1)"_s, u"cmdHelpGuida_1"_s, doing, 24},
    };
    std::set<QString> tested;
    for (const Row& row : rows) {
        SCOPED_TRACE(row.button.toStdString());
        tested.insert(row.button);
        auto* const button = qobject_cast<Button*>(form->find(row.button));
        ASSERT_NE(button, nullptr);
        EXPECT_EQ(button->caption(), u"?");
        EXPECT_EQ(button->tooltip(), row.tooltip);
        EXPECT_EQ(button->frame(), &form->frmframe(row.frame));

        messages.boxes.clear();
        button->click();
        ASSERT_EQ(messages.boxes.size(), 1U);
        const MessageBox& box = messages.boxes.front();
        EXPECT_EQ(box.title, u"");
        EXPECT_EQ(box.buttons, Pulsanti::Ok);
        EXPECT_EQ(box.icon, Icona::Nessuna);
        QString text = box.text;
        EXPECT_GT(text.count(u'\n'), 0);
        EXPECT_EQ(text.count(u'\n'), text.count(u"\r\n"_s)) << "every line feed has its carriage return";
        text.replace(u"\r\n"_s, u"\n"_s);
        EXPECT_EQ(text.toUtf8().append('\n').toStdString(), promised(row.file).toStdString());
    }
    for (const auto& control : form->controls()) {
        const QString name = control->name();
        EXPECT_EQ(name.startsWith(u"cmdHelp"_s), tested.contains(name)) << name.toStdString();
    }
}

} // namespace

} // namespace vanzer
