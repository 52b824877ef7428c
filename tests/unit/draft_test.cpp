// The draft of unsaved work: what it keeps, how it comes back, and what lies in its place.
#include <gtest/gtest.h>

#include <sys/stat.h>

#include <QFile>
#include <QJsonArray>
#include <QTemporaryDir>

#include "batch/session.h"
#include "store/draft_file.h"
#include "window/unsaved_work.h"

namespace vanzer {
namespace {

using namespace Qt::StringLiterals;

const QDateTime now(QDate(2026, 11, 24), QTime(18, 5, 7));

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
    kept.scritta = now;
    EXPECT_EQ(bozzaDaiByte(byteDellaBozza(example(), now)), kept);
}

TEST(Draft, WhatNoWindowWroteIsNone) {
    QByteArray huge = R"({"bozza":1,"scritta":"2026-11-24T18:05:00","tappe":[)";
    for (int i = 0; i < 700000; ++i)
        huge += "\"\",";
    huge.back() = ']';
    const QByteArray bytes[] = {"",
                                "bozza",
                                "[1]",
                                R"({"bozza":2,"scritta":"2026-11-24T18:05:00"})",
                                R"({"bozza":1})",
                                R"({"bozza":1,"scritta":"ieri"})",
                                R"({"bozza":1,"scritta":"2026-11-24T18:05:00","tappe":["ASTI"]})",
                                R"({"bozza":1,"scritta":"2026-11-24T18:05:00","tappe":{}})",
                                R"({"bozza":1,"scritta":"2026-11-24T18:05:00","campi":{"txtNazione":7}})",
                                R"({"bozza":1,"scritta":"2026-11-24T18:05:00","modifiche":"0120"})",
                                R"({"bozza":1,"scritta":"2026-11-24T18:05:00","editor":"yes"})",
                                R"({"bozza":1,"scritta":"2026-11-24T18:05:00","codice":")" + QByteArray(70000, 'x') +
                                    "\"}",
                                QByteArray(100000, '['),
                                byteDellaBozza(example(), now).chopped(20),
                                huge + '}'};
    for (const QByteArray& some : bytes)
        EXPECT_FALSE(bozzaDaiByte(some)) << some.left(120).toStdString();
    EXPECT_TRUE(bozzaDaiByte(R"({"bozza":1,"scritta":"2026-11-24T18:05:00"})"));
}

/// A window before a user, on an archive with a trip PROVA of two legs; another start is another window.
class DraftScreen : public testing::Test {
  protected:
    void begin() {
        custodian.reset();
        session.reset();
        folder_.emplace();
        start();
        storeTrip(u"PROVA"_s);
    }
    void start() {
        custodian.reset();
        session.reset();
        session.emplace(Ambiente{.directory = folder_->path(), .decimalMark = u'.', .versione = {}});
        session->clock.set(now);
        session->start();
        form().interattiva = true;
        form().cmdRicerca.click();
        if (!form().cmbRicerca.List(0).isEmpty())
            form().cmbRicerca.pick(form().cmbRicerca.List(0)); // a load, as of a start before a user
        custodian.emplace(form());
        asked();
    }
    void storeTrip(const QString& name) {
        form().cmdNuovo.click();
        form().txtLocalita.type(name);
        form().txtNazione.type(u"ITALIA"_s);
        answer({rispostaSi});
        form().cmdSalva.click();
        form().cmdItinerario.click();
        for (const QString& place : {u"ASTI"_s, u"ALBA"_s})
            addLeg(form(), place);
        answer({rispostaSi});
        form().cmdFine.click();
        asked();
    }
    static void addLeg(Form& f, const QString& place) {
        f.mfgTab.clickRow(f.stato.NumeroTappe + 1);
        f.txtTappa.type(place);
        f.txtKm.type(u"30"_s);
        f.cmdInserisce.click();
    }
    /// The program goes without a word of the user's, and starts again.
    void cut() {
        custodian->tiene();
        custodian->aspetta();
        ASSERT_TRUE(QFile::exists(path()));
        session->window()->archivio.chiudi();
        start();
        asked();
    }
    Form& form() { return *session->window(); }
    void answer(const std::vector<int>& answers) {
        for (const int one : answers)
            session->boxes.enqueue(one);
    }
    std::string asked() {
        QStringList texts;
        for (const QJsonValue box : session->boxes.exchange({}))
            texts << box[u"text"].toString();
        return texts.join(u'|').toStdString();
    }
    QString path() const { return folder_->filePath(store::nomeBozza); }
    QString path(QLatin1String ending) const { return path() + ending; }
    std::string stored(const QString& table, int field) {
        QStringList texts;
        for (const auto& record : form().archivio.tabella(table).record)
            texts << std::get<QString>(record[static_cast<std::size_t>(field)]).trimmed();
        return texts.join(u'|').toStdString();
    }

    std::optional<QTemporaryDir> folder_;
    std::optional<batch::Session> session;
    std::optional<CustodeBozza> custodian;
};

/// Whatever is unsaved comes back as it stood, with a yes; and the archive doesn't change by it.
TEST_F(DraftScreen, UnsavedWorkComesBackAsItStood) {
    struct Case {
        const char* what;
        void (*work)(Form&);
        const char16_t* question;
    };
    const Case cases[] = {
        {"fields",
         [](Form& f) {
             f.txtNazione.type(u"FRANCIA"_s);
             f.cmbMediaKm(1).setText(u"66"_s);
             f.cmbOra(0).pick(u"08"_s);
         },
         u"«PROVA» (2 tappe, 18:05)"},
        {"a new trip",
         [](Form& f) {
             f.cmdNuovo.click();
             f.txtLocalita.type(u"OSLO"_s);
             f.cmbInizio(2).setText(u"2031"_s);
         },
         u"«OSLO» (nessuna tappa, 18:05)"},
        {"a new trip without a name",
         [](Form& f) {
             f.cmdNuovo.click();
             f.txtNazione.type(u"SVEZIA"_s);
         },
         u"un nuovo viaggio (nessuna tappa, 18:05)"},
        {"legs",
         [](Form& f) {
             f.cmdItinerario.click();
             addLeg(f, u"CUNEO"_s);
             f.mfgTab.clickRow(2);
         },
         u"«PROVA» (3 tappe, 18:05)"},
        {"a typed leg",
         [](Form& f) {
             f.cmdItinerario.click();
             f.mfgTab.clickRow(3);
             f.txtTappa.type(u"CUNEO"_s);
             f.txtKm.type(u"70"_s);
             f.cmbSosta(1).pick(u"03"_s);
             f.optStrada(2).choose();
             f.chkEndDay.choose(true);
         },
         u"«PROVA» (2 tappe, 18:05)"},
        {"a stretch",
         [](Form& f) {
             f.cmdModStrada.click();
             f.mfgTab.clickRow(1);
             f.optTStrada(3).choose();
             for (const int i : {0, 1, 2})
                 f.cmdTappaSEl(i).click();
         },
         u"«PROVA» (2 tappe, 18:05)"},
        {"a stretch beside a schedule",
         [](Form& f) {
             f.cmdModStrada.click();
             f.mfgTab.clickRow(1);
             f.optTStrada(3).choose();
             for (const int i : {0, 1, 2})
                 f.cmdTappaSEl(i).click();
             f.cmdCalcola.click();
         },
         u"«PROVA» (2 tappe, 18:05)"},
        {"legs behind their schedule",
         [](Form& f) {
             f.cmdItinerario.click();
             addLeg(f, u"CUNEO"_s);
             f.cmdRicalcola.click();
         },
         u"«PROVA» (3 tappe, 18:05)"},
        {"all at once",
         [](Form& f) {
             f.cmbRange.pick(u"45"_s);
             f.cmdItinerario.click();
             addLeg(f, u"CUNEO"_s);
             f.txtTappa.type(u"NIZZA"_s);
         },
         u"«PROVA» (3 tappe, 18:05)"},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.what);
        begin();
        c.work(form());
        std::optional<Bozza> kept = lavoroNonSalvato(form());
        ASSERT_TRUE(kept);
        const std::string before = stored(u"Itinerari"_s, 2) + stored(u"MeteVanzer"_s, 2);
        asked();
        ASSERT_NO_FATAL_FAILURE(cut());
        answer({rispostaSi});
        custodian->offre();
        EXPECT_EQ(asked(),
                  (u"Riprendere il lavoro non salvato a "_s + QString::fromUtf16(c.question) + u'?').toStdString());
        std::optional<Bozza> back = lavoroNonSalvato(form());
        ASSERT_TRUE(back);
        // The schedule is not made again: its legs are in the editor instead.
        if (kept->tappeCambiate && !kept->tratto)
            kept->editor = true;
        for (Bozza* const one : {&*kept, &*back}) // of a table that is longer by some blank rows
            one->modifiche = one->modifiche.left(2);
        kept->riga = back->riga = kept->editor ? back->riga : 0;
        EXPECT_EQ(*back, *kept) << byteDellaBozza(*back, now).toStdString() << byteDellaBozza(*kept, now).toStdString();
        EXPECT_EQ(stored(u"Itinerari"_s, 2) + stored(u"MeteVanzer"_s, 2), before);
        EXPECT_TRUE(QFile::exists(path())) << "unsaved still";
    }
}

TEST_F(DraftScreen, GoesWhenAllIsStoredOrGivenUp) {
    struct Way {
        const char* what;
        int answer;
        void (*go)(Form&);
    };
    const Way ways[] = {{"stored", rispostaSi, [](Form& f) { f.cmdSalva.click(); }},
                        {"given up", rispostaNo, [](Form& f) { f.cmdNuovo.click(); }},
                        {"typed back", rispostaNo, [](Form& f) { f.txtNazione.type(u"ITALIA "_s); }}};
    for (const Way& way : ways) {
        SCOPED_TRACE(way.what);
        begin();
        custodian->tiene();
        custodian->aspetta();
        EXPECT_FALSE(QFile::exists(path())) << "nothing is unsaved";
        form().txtNazione.type(u"FRANCIA"_s);
        custodian->guarda();
        custodian->aspetta();
        EXPECT_FALSE(QFile::exists(path())) << "not yet";
        custodian->tiene();
        custodian->aspetta();
        ASSERT_TRUE(QFile::exists(path()));
        ASSERT_TRUE(QFile::remove(path()));
        custodian->tiene();
        custodian->aspetta();
        EXPECT_FALSE(QFile::exists(path())) << "written only when something has changed";
        form().txtNazione.type(u"SPAGNA"_s);
        custodian->tiene();
        answer({way.answer});
        way.go(form());
        custodian->guarda();
        custodian->aspetta();
        EXPECT_FALSE(QFile::exists(path()));
        EXPECT_FALSE(QFile::exists(path() + u".parte"_s));
    }
}

TEST_F(DraftScreen, IsNeverAScriptsOwn) {
    begin();
    form().interattiva = false;
    form().txtNazione.type(u"FRANCIA"_s);
    custodian->tiene();
    custodian->aspetta();
    EXPECT_FALSE(QFile::exists(path()));
    store::scriveBozza(path(), byteDellaBozza(example(), now));
    custodian->offre();
    EXPECT_EQ(asked(), "");
}

TEST_F(DraftScreen, ARefusedOneStaysUnderAnotherName) {
    begin();
    for (const QString& nation : {u"FRANCIA"_s, u"SPAGNA"_s}) {
        session->clock.set(now);
        form().txtNazione.type(nation);
        ASSERT_NO_FATAL_FAILURE(cut());
        session->clock.set(now.addDays(1));
        custodian->offre(); // unasked is no
        EXPECT_EQ(asked(),
                  (u"Riprendere il lavoro non salvato a «PROVA» (2 tappe, 24/11/2026 18:05)?"_s).toStdString());
        EXPECT_EQ(form().txtNazione.text(), u"ITALIA "_s);
        EXPECT_FALSE(QFile::exists(path()));
        QFile refused(path(store::bozzaRifiutata));
        ASSERT_TRUE(refused.open(QIODevice::ReadOnly));
        EXPECT_EQ(bozzaDaiByte(refused.readAll())->campi.at(u"txtNazione"_s), nation);
    }
}

/// Nothing of the program that runs then is touched before the question has been answered.
TEST_F(DraftScreen, StaysUntilItIsAnswered) {
    begin();
    form().txtNazione.type(u"FRANCIA"_s);
    ASSERT_NO_FATAL_FAILURE(cut());
    custodian->guarda();
    custodian->finisce();
    EXPECT_TRUE(QFile::exists(path()));
}

/// A trip that another program has changed, taken away, or put under another code.
TEST_F(DraftScreen, MeetsAnotherArchive) {
    begin();
    form().cmdItinerario.click();
    addLeg(form(), u"CUNEO"_s);
    form().txtTappa.type(u"NIZZA"_s);
    custodian->tiene();
    custodian->aspetta();
    const QByteArray draft = store::leggeBozza(path())->replace("\"riga\":", "\"riga\":99999"); // no row is so far down
    for (const std::string other : {"", "ROMA"}) { // with an empty archive, and where the code is another trip's
        for (const bool store : {true, false}) {
            SCOPED_TRACE(other + (store ? " stored" : " given up"));
            custodian.reset();
            session.reset();
            folder_.emplace();
            start();
            if (!other.empty())
                storeTrip(QString::fromStdString(other));
            store::scriveBozza(path(), draft);
            answer({rispostaSi});
            custodian->offre();
            asked();
            EXPECT_EQ(form().txtLocalita.text(), u"PROVA"_s);
            EXPECT_EQ(form().mfgTab.cell(3, 1), u"CUNEO"_s);
            EXPECT_EQ(form().txtTappa.text(), u"NIZZA"_s);
            EXPECT_TRUE(form().frmframe(12).visible());
            const std::string legs = other.empty() ? "" : "ASTI|ALBA";
            EXPECT_EQ(stored(u"MeteVanzer"_s, 1), other);
            EXPECT_EQ(stored(u"Itinerari"_s, 2), legs);
            answer({rispostaNo}); // the leg that isn't in the table
            answer(store ? std::vector{rispostaSi} : std::vector{rispostaNo, rispostaNo});
            form().cmdFine.click();
            const std::string wanted = (other.empty() ? "ASTI|ALBA|CUNEO" : "ASTI|ALBA|ASTI|ALBA|CUNEO");
            EXPECT_EQ(stored(u"MeteVanzer"_s, 1), !store ? other : other.empty() ? "PROVA" : other + "|PROVA");
            EXPECT_EQ(stored(u"Itinerari"_s, 2), store ? wanted : legs);
            EXPECT_EQ(form().stato.CodiceMeta.toStdString(),
                      store ? (other.empty() ? "000001" : "000002") : (other.empty() ? "" : "000001"));
        }
    }
}

TEST_F(DraftScreen, WhatIsNoDraftIsPutAside) {
    begin();
    const std::pair<const char*, void (*)(const QString&)> things[] = {
        {"garbage", [](const QString& p) { store::scriveBozza(p, "\xff\x00nothing"); }},
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
        custodian->offre();
        EXPECT_EQ(asked(), (u"La bozza del lavoro non salvato non si può leggere. È stata messa da parte: "_s +
                            path(store::bozzaDanneggiata))
                               .toStdString());
        EXPECT_FALSE(QFileInfo(path()).exists() || QFileInfo(path()).isSymLink());
    }
}

TEST_F(DraftScreen, AFailureToWriteIsTold) {
    begin();
    ASSERT_TRUE(QDir().mkdir(path()));
    form().txtNazione.type(u"FRANCIA"_s);
    custodian->tiene();
    custodian->aspetta();
    custodian->tiene();
    EXPECT_TRUE(form().lblAvviso.caption().startsWith(u"La bozza del lavoro non salvato non è scritta: "_s));
    custodian->aspetta();
    ASSERT_TRUE(QDir().rmdir(path()));
    custodian->tiene();
    custodian->aspetta();
    EXPECT_TRUE(QFile::exists(path())) << "tried again";
}

/// The work of a command that is running, or that was ended in the user's place, counts as it stood before it.
TEST_F(DraftScreen, ACommandAtWorkDoesNotCount) {
    begin();
    form().cmdModStrada.click();
    form().mfgTab.clickRow(1);
    form().optTStrada(3).choose();
    for (const int i : {0, 1, 2})
        form().cmdTappaSEl(i).click();
    const std::optional<Bozza> kept = lavoroNonSalvato(form());
    std::optional<QByteArray> written;
    session->events.expect([&] {
        if (!form().comandoInCorso || form().cmdEsce.caption() != u"&Stop"_s)
            return false;
        custodian->tiene();
        custodian->aspetta();
        written = store::leggeBozza(path());
        custodian->nonSceglieLui();
        form().stato.InterrompiCalcolo = true; // which loads the stored legs
        return true;
    });
    form().cmdCalcola.click();
    ASSERT_TRUE(written);
    std::optional<Bozza> back = bozzaDaiByte(*written);
    back->scritta = {};
    EXPECT_EQ(back, kept);
    custodian->finisce();
    EXPECT_EQ(store::leggeBozza(path()), written);
}

} // namespace
} // namespace vanzer
