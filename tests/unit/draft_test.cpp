// The draft of unsaved work: what it keeps, how it comes back, and what lies in its place.
#include <sys/stat.h>

#include <QFile>

#include "startup/unsaved_work.h"
#include "store/draft_file.h"
#include "support/window_test.h"

namespace vanzer {
namespace {

const QDateTime written(QDate(2026, 11, 24), QTime(18, 5, 7));

Bozza example() {
    return {.codice = u"000001"_s,
            .nome = u"PROVA"_s,
            .campi = {{u"txtLocalita"_s, u"PROVA \"Ü\""_s}, {u"cmbOra(3)"_s, u"08"_s}},
            .cambiati = {u"cmbOra(3)"_s},
            .tappe = {{u"ASTI\t"_s + QString(300, u'x'), u"A21"_s, {}, u"A"_s, {}, {}},
                      {u"ALBA"_s, {}, u"1.030"_s, u"S"_s, u"*00:01:30"_s, {}}},
            .tappeCambiate = true,
            .editor = true,
            .riga = 2,
            .modifiche = u"010"_s,
            .digitata = {{u"txtTappa"_s, u"CUNEO"_s}}};
}

TEST(Draft, ItsBytesHoldIt) {
    Bozza kept = example();
    kept.scritta = written;
    EXPECT_EQ(bozzaDaiByte(byteDellaBozza(example(), written)), kept);
}

TEST(Draft, WhatNoWindowWroteIsNone) {
    const QByteArray whole = R"({"bozza":1,"scritta":"2026-11-24T18:05:00"})";
    const auto with = [&whole](const QByteArray& more) { return whole.chopped(1) + ',' + more + '}'; };
    const QByteArray bytes[] = {"[1]",
                                R"({"bozza":2,"scritta":"2026-11-24T18:05:00"})",
                                R"({"bozza":1,"scritta":"ieri"})",
                                with(R"("tappe":["ASTI"])"),
                                with(R"("campi":{"txtNazione":7})"),
                                with(R"("modifiche":"0120")"),
                                with(R"("editor":"yes")"),
                                with(R"("codice":")" + QByteArray(70'000, 'x') + '"'),
                                with(R"("tappe":[)" + QByteArray("\"\",").repeated(700'000).chopped(1) + ']'),
                                byteDellaBozza(example(), written).chopped(20)};
    for (const QByteArray& some : bytes)
        EXPECT_FALSE(bozzaDaiByte(some)) << some.left(120).toStdString();
    EXPECT_TRUE(bozzaDaiByte(whole));
}

/// A window on an archive with a trip PROVA of two legs; another start is another window.
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
        form().cmbRicerca.pick(form().cmbRicerca.List(0)); // a load, as of a start before a user
        custodian.emplace(form());
        asked();
    }
    /// What is unsaved is written, if it is due.
    void keep() {
        custodian->keep();
        custodian->wait();
    }
    /// The program goes without a word of the user's, and starts again.
    void cut() {
        keep();
        ASSERT_TRUE(isThere());
        session->window()->archivio.close();
        restart();
    }
    void look() {
        custodian->look();
        custodian->wait();
    }
    bool isThere() const { return QFile::exists(path()); }
    QString path() const { return inFolder(store::nomeBozza); }
    QString legs() { return stored(u"Itinerari"_s, u"Localita"_s); }
    QString trips() { return stored(u"MeteVanzer"_s, u"Localita"_s); }

    std::optional<CustodeBozza> custodian;
};

void changeStretch(Form& f) {
    f.cmdModStrada.click();
    f.mfgTab.clickRow(1);
    f.optTStrada(3).choose();
    for (const int i : {0, 1, 2})
        f.cmdTappaSEl(i).click();
}

/// Whatever is unsaved comes back as it stood, with a yes; and the archive doesn't change by it.
TEST_F(DraftScreen, UnsavedWorkComesBackAsItStood) {
    const auto comesBack = [this](const QString& question, void (*work)(Form&)) {
        SCOPED_TRACE(question.toStdString());
        begin();
        work(form());
        std::optional<Bozza> kept = lavoroNonSalvato(form());
        ASSERT_TRUE(kept);
        const QString before = legs() + trips();
        ASSERT_NO_FATAL_FAILURE(cut());
        answer({rispostaSi});
        custodian->offer();
        EXPECT_EQ(asked(), QStringList(u"Riprendere il lavoro non salvato a "_s + question + u'?'));
        std::optional<Bozza> back = lavoroNonSalvato(form());
        ASSERT_TRUE(back);
        // The schedule is not made again: its legs are in the editor instead.
        if (kept->tappeCambiate && !kept->tratto)
            kept->editor = true;
        for (Bozza* const one : {&*kept, &*back}) // of a table that is longer by some blank rows
            one->modifiche = one->modifiche.left(2);
        kept->riga = back->riga = kept->editor ? back->riga : 0;
        EXPECT_EQ(*back, *kept) << byteDellaBozza(*back, written).toStdString()
                                << byteDellaBozza(*kept, written).toStdString();
        EXPECT_EQ(legs() + trips(), before);
        EXPECT_TRUE(isThere()) << "unsaved still";
    };
    comesBack(u"«OSLO» (nessuna tappa, 18:05)"_s, [](Form& f) {
        f.cmdNuovo.click();
        f.txtLocalita.type(u"OSLO"_s);
        f.cmbInizio(2).setText(u"2031"_s);
    });
    comesBack(u"un nuovo viaggio (nessuna tappa, 18:05)"_s, [](Form& f) {
        f.cmdNuovo.click();
        f.txtNazione.type(u"SVEZIA"_s);
    });
    comesBack(u"«PROVA» (2 tappe, 18:05)"_s, [](Form& f) {
        f.cmdItinerario.click();
        f.mfgTab.clickRow(3);
        f.txtTappa.type(u"CUNEO"_s);
        f.txtKm.type(u"70"_s);
        f.cmbSosta(1).pick(u"03"_s);
        f.optStrada(2).choose();
        f.chkEndDay.choose(true);
    });
    comesBack(u"«PROVA» (2 tappe, 18:05)"_s, changeStretch);
    comesBack(u"«PROVA» (2 tappe, 18:05)"_s, [](Form& f) {
        changeStretch(f);
        f.cmdCalcola.click();
    });
    comesBack(u"«PROVA» (3 tappe, 18:05)"_s, [](Form& f) {
        f.cmdItinerario.click();
        addLeg(f, u"CUNEO"_s);
        f.cmdRicalcola.click();
    });
    comesBack(u"«PROVA» (3 tappe, 18:05)"_s, [](Form& f) {
        f.cmbRange.pick(u"45"_s);
        f.cmbMediaKm(1).setText(u"66"_s);
        f.cmdItinerario.click();
        addLeg(f, u"CUNEO"_s);
        f.txtTappa.type(u"NIZZA"_s);
    });
}

TEST_F(DraftScreen, GoesWhenAllIsStoredOrGivenUp) {
    const std::pair<int, void (*)(Form&)> ways[] = {
        {rispostaSi, [](Form& f) { f.cmdSalva.click(); }},
        {rispostaNo, [](Form& f) { f.cmdNuovo.click(); }},
        {rispostaNo, [](Form& f) { f.txtNazione.type(u"ITALIA "_s); }}}; // typed back
    for (const auto& [wish, go] : ways) {
        begin();
        keep();
        EXPECT_FALSE(isThere()) << "nothing is unsaved";
        form().txtNazione.type(u"FRANCIA"_s);
        look();
        EXPECT_FALSE(isThere()) << "not yet";
        keep();
        ASSERT_TRUE(isThere() && QFile::remove(path()));
        keep();
        EXPECT_FALSE(isThere()) << "written only when something has changed";
        form().txtNazione.type(u"SPAGNA"_s);
        custodian->keep();
        answer({wish});
        go(form());
        look();
        EXPECT_FALSE(isThere() || QFile::exists(path() + u".parte"_s));
    }
}

TEST_F(DraftScreen, IsNeverAScriptsOwn) {
    begin();
    form().interattiva = false;
    form().txtNazione.type(u"FRANCIA"_s);
    keep();
    EXPECT_FALSE(isThere());
    store::writeDraft(path(), byteDellaBozza(example(), written));
    custodian->offer();
    EXPECT_EQ(asked(), QStringList());
}

TEST_F(DraftScreen, ARefusedOneStaysUnderAnotherName) {
    begin();
    for (const QString& nation : {u"FRANCIA"_s, u"SPAGNA"_s}) {
        session->clock.set(now);
        form().txtNazione.type(nation);
        ASSERT_NO_FATAL_FAILURE(cut());
        session->clock.set(now.addDays(1));
        custodian->offer(); // unasked is no
        EXPECT_EQ(asked(), QStringList(u"Riprendere il lavoro non salvato a «PROVA» (2 tappe, 24/11/2026 18:05)?"_s));
        EXPECT_EQ(form().txtNazione.text(), u"ITALIA "_s);
        EXPECT_FALSE(isThere());
        const QByteArray refused = store::readDraft(path() + store::bozzaRifiutata).value();
        EXPECT_EQ(bozzaDaiByte(refused)->campi.at(u"txtNazione"_s), nation);
    }
}

/// Nothing of the program that runs then is touched before the question has been answered.
TEST_F(DraftScreen, StaysUntilItIsAnswered) {
    begin();
    form().txtNazione.type(u"FRANCIA"_s);
    ASSERT_NO_FATAL_FAILURE(cut());
    custodian->look();
    custodian->finish();
    EXPECT_TRUE(isThere());
}

/// A trip that another program has changed, taken away, or put under another code.
TEST_F(DraftScreen, MeetsAnotherArchive) {
    begin();
    form().cmdItinerario.click();
    addLeg(form(), u"CUNEO"_s);
    form().txtTappa.type(u"NIZZA"_s);
    keep();
    const QByteArray draft = store::readDraft(path())->replace("\"riga\":", "\"riga\":99999"); // no row is so far down
    for (const QString& other : {u""_s, u"ROMA"_s}) { // with an empty archive, and where the code is another trip's
        const bool empty = other.isEmpty();
        for (const bool store : {true, false}) {
            SCOPED_TRACE(other.toStdString() + (store ? " stored" : " given up"));
            custodian.reset();
            startAnew();
            if (!empty)
                storeTrip(other);
            store::writeDraft(path(), draft);
            custodian.emplace(form());
            answer({rispostaSi});
            custodian->offer();
            EXPECT_EQ(form().txtLocalita.text() + form().mfgTab.cell(3, 1) + form().txtTappa.text(),
                      u"PROVACUNEONIZZA");
            EXPECT_TRUE(form().frmframe(12).visible());
            const QString before = empty ? QString() : u"ASTI|ALBA"_s;
            EXPECT_EQ(trips(), other);
            EXPECT_EQ(legs(), before);
            answer({rispostaNo}); // the leg that isn't in the table
            answer(store ? std::vector{rispostaSi} : std::vector{rispostaNo, rispostaNo});
            form().cmdFine.click();
            EXPECT_EQ(trips(), !store ? other : empty ? u"PROVA"_s : other + u"|PROVA"_s);
            EXPECT_EQ(legs(), !store ? before : (empty ? QString() : before + u'|') + u"ASTI|ALBA|CUNEO"_s);
            EXPECT_EQ(form().stato.CodiceMeta, !store && empty ? u""_s : store && !empty ? u"000002"_s : u"000001"_s);
        }
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
        custodian->offer();
        EXPECT_EQ(asked(),
                  QStringList(u"La bozza del lavoro non salvato non si può leggere. È stata messa da parte: "_s +
                              path() + store::bozzaDanneggiata));
        EXPECT_FALSE(QFileInfo(path()).exists() || QFileInfo(path()).isSymLink());
    }
}

TEST_F(DraftScreen, AFailureToWriteIsTold) {
    begin();
    ASSERT_TRUE(QDir().mkdir(path()));
    form().txtNazione.type(u"FRANCIA"_s);
    keep();
    custodian->keep();
    EXPECT_TRUE(form().lblAvviso.caption().startsWith(u"La bozza del lavoro non salvato non è scritta: "_s));
    custodian->wait();
    ASSERT_TRUE(QDir().rmdir(path()));
    keep();
    EXPECT_TRUE(isThere()) << "tried again";
}

/// The work of a command that is running, or that was ended in the user's place, counts as it stood before it.
TEST_F(DraftScreen, ACommandAtWorkDoesNotCount) {
    begin();
    changeStretch(form());
    const std::optional<Bozza> kept = lavoroNonSalvato(form());
    std::optional<QByteArray> draft;
    session->events.expect([&] {
        if (!form().comandoInCorso || form().cmdEsce.caption() != u"&Stop"_s)
            return false;
        keep();
        draft = store::readDraft(path());
        custodian->notHisChoice();
        form().stato.InterrompiCalcolo = true; // which loads the stored legs
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
