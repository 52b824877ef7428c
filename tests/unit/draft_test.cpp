// SPDX-License-Identifier: MIT
// The draft of unsaved work: what it keeps, how it comes back, and other files in its place.
#include <sys/stat.h>

#include <QFile>

#include "startup/unsaved_work.h"
#include "store/draft_file.h"
#include "support/window_test.h"

namespace vanzer {
namespace {

const QByteArray least = R"({"bozza":1,"scritta":"2026-11-24T18:05:00"})";
const QString legCuneo = u"row mfgTab 3; set txtTappa CUNEO; set txtKm 30; click cmdInserisce; "_s;
const QString stretch = u"click cmdModStrada; row mfgTab 1; option optTStrada(3); click cmdTappaSEl(0); "
                        "click cmdTappaSEl(1); click cmdTappaSEl(2); "_s;

TEST(Draft, WhatNoWindowWroteIsNone) {
    const auto with = [](const QByteArray& more) { return least.chopped(1) + ',' + more + '}'; };
    const QByteArray bytes[] = {"[1]",
                                R"({"bozza":2,"scritta":"2026-11-24T18:05:00"})",
                                R"({"bozza":1,"scritta":"ieri"})",
                                with(R"("tappe":["ASTI"])"),
                                with(R"("campi":{"txtNazione":7})"),
                                with(R"("modifiche":"0120")"),
                                with(R"("editor":"yes")"),
                                with(R"("codice":")" + QByteArray(70'000, 'x') + '"'),
                                with(R"("tappe":[)" + QByteArray("\"\",").repeated(700'000).chopped(1) + ']'),
                                least.chopped(1)};
    for (const QByteArray& some : bytes)
        EXPECT_FALSE(bozzaDaiByte(some)) << some.left(120).toStdString();
    EXPECT_TRUE(bozzaDaiByte(least));
}

/// A window on an archive with the trip PROVA of two legs. Each start makes another window.
class DraftScreen : public WindowTest {
  protected:
    void begin() {
        custodian.reset();
        startAnew();
        custodian.emplace(form());
        storeTrip(u"PROVA"_s);
    }
    void restart() {
        custodian.reset();
        start();
        form().cmdRicerca.click();
        form().cmbRicerca.pick(form().cmbRicerca.List(0)); // loads the trip, as a start with a user does
        custodian.emplace(form());
        asked();
    }
    /// Writes the unsaved work, if that is due.
    void keep() {
        custodian->keep();
        custodian->wait();
    }
    /// Ends the program without asking the user, and starts another one.
    void cut() {
        keep();
        ASSERT_TRUE(isThere());
        form().archivio.close();
        restart();
    }
    void look() {
        custodian->look();
        custodian->wait();
    }
    QStringList offer(const QString& answer = {}) {
        does(answer);
        custodian->offer();
        return asked();
    }
    bool isThere() const { return QFile::exists(path()); }
    QString path() const { return inFolder(store::nomeBozza); }
    /// All stored legs and trips.
    QString all() { return stored(u"Itinerari"_s, u"Localita"_s) + u'/' + stored(u"MeteVanzer"_s, u"Localita"_s); }

    std::optional<CustodeBozza> custodian;
};

/// After a yes, all unsaved work comes back as it was, and the archive is unchanged.
TEST_F(DraftScreen, UnsavedWorkComesBackAsItStood) {
    const std::pair<QString, QString> cases[] = {
        {u"«OSLO» (nessuna tappa"_s, u"click cmdNuovo; set txtLocalita OSLO; set cmbInizio(2) 2031"_s},
        {u"un nuovo viaggio (nessuna tappa"_s, u"click cmdNuovo; set txtNazione SVEZIA"_s},
        {u"«PROVA» (2 tappe"_s, u"click cmdItinerario; row mfgTab 3; set txtTappa CUNEO; set txtKm 70; "
                                "pick cmbSosta(1) 03; option optStrada(2); check chkEndDay 1"_s},
        {u"«PROVA» (2 tappe"_s, stretch},
        {u"«PROVA» (2 tappe"_s, stretch + u"click cmdCalcola"_s},
        {u"«PROVA» (3 tappe"_s, u"click cmdItinerario; "_s + legCuneo + u"click cmdRicalcola"_s},
        {u"«PROVA» (3 tappe"_s,
         u"pick cmbRange 45; set cmbMediaKm(1) 66; click cmdItinerario; "_s + legCuneo + u"set txtTappa NIZZA"_s}};
    for (const auto& [what, work] : cases) {
        SCOPED_TRACE(work.toStdString());
        begin();
        does(work);
        std::optional<Bozza> kept = lavoroNonSalvato(form());
        ASSERT_TRUE(kept);
        const QByteArray written = byteDellaBozza(*kept, now);
        EXPECT_EQ(byteDellaBozza(bozzaDaiByte(written).value(), now), written);
        EXPECT_EQ(bozzaDaiByte(written)->riga, kept->riga);
        const QString before = all();
        ASSERT_NO_FATAL_FAILURE(cut());
        EXPECT_EQ(offer(u"answer 6"_s), QStringList(u"Riprendere il lavoro non salvato a "_s + what + u", 18:05)?"_s));
        std::optional<Bozza> back = lavoroNonSalvato(form());
        ASSERT_TRUE(back);
        // The schedule isn't calculated again. Its legs are in the editor instead.
        if (kept->tappeCambiate && !kept->tratto)
            kept->editor = true;
        for (Bozza* const one : {&*kept, &*back}) // the table may be longer by some blank rows
            one->modifiche = one->modifiche.left(2);
        kept->riga = back->riga = kept->editor ? back->riga : 0;
        EXPECT_EQ(*back, *kept) << byteDellaBozza(*back, now).toStdString() << byteDellaBozza(*kept, now).toStdString();
        EXPECT_EQ(all(), before);
        EXPECT_TRUE(isThere()) << "unsaved still";
    }
}

TEST_F(DraftScreen, GoesWhenAllIsStoredOrGivenUp) {
    // The last way types the stored texts again.
    for (const QString& way : {u"answer 6; click cmdSalva"_s, u"answer 7; click cmdNuovo"_s, QString()}) {
        begin();
        keep();
        EXPECT_FALSE(isThere()) << "nothing is unsaved";
        does(u"set txtNazione FRANCIA"_s);
        look();
        EXPECT_FALSE(isThere()) << "not yet";
        keep();
        ASSERT_TRUE(isThere() && QFile::remove(path()));
        keep();
        EXPECT_FALSE(isThere()) << "written only when something has changed";
        does(u"set txtNazione SPAGNA"_s);
        custodian->keep();
        does(way.isEmpty() ? u"set txtNazione ITALIA "_s : way);
        look();
        EXPECT_FALSE(isThere() || QFile::exists(path() + u".parte"_s));
    }
}

TEST_F(DraftScreen, IsNeverAScriptsOwn) {
    begin();
    form().interattiva = false;
    does(u"set txtNazione FRANCIA"_s);
    keep();
    EXPECT_FALSE(isThere());
    store::writeDraft(path(), least);
    EXPECT_EQ(offer(), QStringList());
}

TEST_F(DraftScreen, ARefusedOneStaysUnderAnotherName) {
    begin();
    for (const QString& nation : {u"FRANCIA"_s, u"SPAGNA"_s}) {
        does(u"now 2026-11-24T18:05; set txtNazione "_s + nation);
        ASSERT_NO_FATAL_FAILURE(cut());
        does(u"now 2026-11-25T18:05"_s);
        // Without an answer it is no.
        EXPECT_EQ(offer(), QStringList(u"Riprendere il lavoro non salvato a «PROVA» (2 tappe, 24/11/2026 18:05)?"_s));
        EXPECT_EQ(form().txtNazione.text(), u"ITALIA "_s);
        EXPECT_FALSE(isThere());
        const QByteArray refused = store::readDraft(path() + store::bozzaRifiutata).value();
        EXPECT_EQ(bozzaDaiByte(refused)->campi.at(u"txtNazione"_s), nation);
    }
}

/// Until the question is answered, nothing of the killed program's draft is changed.
TEST_F(DraftScreen, StaysUntilItIsAnswered) {
    begin();
    does(u"set txtNazione FRANCIA"_s);
    ASSERT_NO_FATAL_FAILURE(cut());
    custodian->look();
    custodian->finish();
    EXPECT_TRUE(isThere());
}

/// A trip that another program has changed, removed or stored under another code.
TEST_F(DraftScreen, MeetsAnotherArchive) {
    begin();
    does(u"click cmdItinerario; "_s + legCuneo + u"set txtTappa NIZZA"_s);
    keep();
    const QByteArray draft = store::readDraft(path())->replace("\"riga\":", "\"riga\":99999"); // beyond all rows
    const struct {
        QString trip;   ///< the trip in the archive; empty for none
        QString answer; ///< the leg that isn't in the table, then whether everything is stored
        QString left, code;
    } cases[] = {{{}, u"7 6"_s, u"PROVA 0|PROVA 1|CUNEO/PROVA"_s, u"000001"_s},
                 {{}, u"7 7 7"_s, u"/"_s, {}},
                 {u"ROMA"_s, u"7 6"_s, u"ROMA 0|ROMA 1|PROVA 0|PROVA 1|CUNEO/ROMA|PROVA"_s, u"000002"_s},
                 {u"ROMA"_s, u"7 7 7"_s, u"ROMA 0|ROMA 1/ROMA"_s, u"000001"_s}};
    for (const auto& c : cases) {
        SCOPED_TRACE((c.trip + c.answer).toStdString());
        custodian.reset();
        startAnew();
        if (!c.trip.isEmpty())
            storeTrip(c.trip);
        const QString before = all();
        store::writeDraft(path(), draft);
        custodian.emplace(form());
        offer(u"answer 6"_s);
        EXPECT_EQ(form().txtLocalita.text() + form().mfgTab.cell(3, 1) + form().txtTappa.text(), u"PROVACUNEONIZZA");
        EXPECT_TRUE(form().frmframe(12).visible());
        EXPECT_EQ(all(), before);
        does(u"answer "_s + c.answer + u"; click cmdFine"_s);
        EXPECT_EQ(all(), c.left);
        EXPECT_EQ(form().stato.CodiceMeta, c.code);
    }
}

TEST_F(DraftScreen, WhatIsNoDraftIsPutAside) {
    begin();
    const std::pair<const char*, void (*)(const QString&)> things[] = {
        {"garbage", [](const QString& p) { store::writeDraft(p, "\xff\x00nothing"); }},
        {"a pipe", [](const QString& p) { ASSERT_EQ(::mkfifo(QFile::encodeName(p).constData(), 0600), 0); }},
        {"a large file",
         [](const QString& p) {
             QFile f(p);
             ASSERT_TRUE(f.open(QIODevice::WriteOnly) && f.resize(1LL << 32));
         }},
        {"a link to nothing", [](const QString& p) { ASSERT_TRUE(QFile::link(u"/nowhere"_s, p)); }},
        {"a folder",
         [](const QString& p) {
             ASSERT_TRUE(QDir().mkdir(p));
             QFile::remove(p + store::bozzaDanneggiata);
         }},
    };
    for (const auto& [what, put] : things) {
        SCOPED_TRACE(what);
        put(path());
        EXPECT_EQ(offer(),
                  QStringList(u"La bozza del lavoro non salvato non si può leggere. È stata messa da parte: "_s +
                              path() + store::bozzaDanneggiata));
        EXPECT_FALSE(QFileInfo(path()).exists() || QFileInfo(path()).isSymLink());
    }
}

TEST_F(DraftScreen, AFailureToWriteIsTold) {
    begin();
    ASSERT_TRUE(QDir().mkdir(path()));
    does(u"set txtNazione FRANCIA"_s);
    keep();
    custodian->keep();
    EXPECT_TRUE(form().lblAvviso.caption().startsWith(u"La bozza del lavoro non salvato non è scritta: "_s));
    custodian->wait();
    ASSERT_TRUE(QDir().rmdir(path()));
    keep();
    EXPECT_TRUE(isThere()) << "tried again";
}

/// During a command, and if it was ended in the user's place, the work before the command counts.
TEST_F(DraftScreen, ACommandAtWorkDoesNotCount) {
    begin();
    does(stretch);
    const std::optional<Bozza> kept = lavoroNonSalvato(form());
    std::optional<QByteArray> draft;
    atAYield([&] {
        if (!form().comandoInCorso || form().cmdEsce.caption() != u"&Stop"_s)
            return false;
        keep();
        draft = store::readDraft(path());
        custodian->notUsersChoice();
        form().stato.InterrompiCalcolo = true; // a stop loads the stored legs
        return true;
    });
    form().cmdCalcola.click();
    ASSERT_TRUE(draft);
    std::optional<Bozza> back = bozzaDaiByte(*draft);
    back->scritta = {};
    EXPECT_EQ(back, kept);
    custodian->finish();
    EXPECT_EQ(store::readDraft(path()), draft);
}

} // namespace
} // namespace vanzer
