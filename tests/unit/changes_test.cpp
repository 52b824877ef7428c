// Fields that were typed and not stored, before a user: asked for once before they are cleared or reloaded.
#include "support/window_test.h"

namespace vanzer {
namespace {

class Changes : public WindowTest {
  protected:
    void begin() {
        startAnew();
        storeTrip(u"PROVA"_s);
    }
    void typeLeg() {
        form().cmdItinerario.click();
        form().mfgTab.clickRow(3);
        form().txtTappa.type(u"CUNEO"_s);
    }
};

TEST_F(Changes, EachWayThatTakesThemAsksFirst) {
    constexpr auto stay = [](Form&) {};
    struct Way {
        const char* what;
        void (*reach)(Form&);
        void (*leave)(Form&);
        std::vector<int> own; ///< answers to the way's own questions, which come first
    };
    const Way ways[] = {
        {"a new trip", stay, [](Form& f) { f.cmdNuovo.click(); }, {}},
        {"a pick", [](Form& f) { f.cmdRicerca.click(); }, [](Form& f) { f.cmbRicerca.pick(u"PROVA"_s); }, {}},
        {"a deletion", stay, [](Form& f) { f.cmdCancMeta.click(); }, {}},
        {"a deletion of the legs", stay, [](Form& f) { f.cmdCancItin.click(); }, {}},
        {"the exchange", stay, [](Form& f) { f.cmdExport.click(); }, {}},
        {"the legs", [](Form& f) { f.cmdItinerario.click(); }, [](Form& f) { f.cmdFine.click(); }, {rispostaSi}},
        {"the stored legs",
         [](Form& f) { f.cmdItinerario.click(); },
         [](Form& f) { f.cmdMemorizza.click(); },
         {rispostaNo, rispostaSi}},
        {"a stretch", [](Form& f) { f.cmdModStrada.click(); }, [](Form& f) { f.cmdTappaSEl(3).click(); }, {}},
        {"the guide", [](Form& f) { f.cmdGuidaCitta.click(); }, [](Form& f) { f.cmdFineInserimento.click(); }, {}},
        {"the program", stay, [](Form& f) { f.cmdEsce.click(); }, {rispostaSi}},
    };
    for (const Way& way : ways) {
        for (const int wish : {rispostaAnnulla, rispostaNo, rispostaSi}) {
            SCOPED_TRACE(way.what + std::string(" ") + std::to_string(wish));
            begin();
            way.reach(form());
            form().txtNazione.type(u"FRANCIA"_s);
            answer(way.own);
            answer({wish});
            way.leave(form());
            const QStringList texts = asked();
            ASSERT_GT(texts.size(), static_cast<qsizetype>(way.own.size()));
            EXPECT_EQ(texts[static_cast<qsizetype>(way.own.size())], u"Salvare le modifiche a «PROVA»?"_s);
            EXPECT_EQ(texts.count(u"Salvare le modifiche a «PROVA»?"_s), 1);
            EXPECT_EQ(stored(u"MeteVanzer"_s, u"Nazione"_s), wish == rispostaSi ? u"FRANCIA"_s : u"ITALIA"_s);
            EXPECT_EQ(stored(u"Itinerari"_s, u"Localita"_s), u"ASTI|ALBA"_s);
            if (wish == rispostaAnnulla) {
                ASSERT_NE(session->window(), nullptr);
                EXPECT_EQ(form().txtNazione.text(), u"FRANCIA"_s);
            }
        }
    }
}

TEST_F(Changes, WhatTheProgramSetsRightIsNoChangeOfTheUsers) {
    begin();
    form().cmdCalcola.click();
    form().cmdCalcola.click();
    form().cmdNuovo.click();
    form().cmdRicerca.click();
    form().cmbRicerca.pick(u"PROVA"_s);
    EXPECT_EQ(asked(), QStringList());
    form().cmbRange.pick(u"45"_s);
    form().cmdCalcola.click(); // it stays the user's through other commands
    form().cmdCalcola.click();
    answer({rispostaSi, rispostaAnnulla});
    form().cmdDefault(1).click();
    form().cmdNuovo.click();
    EXPECT_EQ(asked().mid(0, 2), (QStringList{u"Vuoi caricare i dati di default?"_s, u"Operazione eseguita!"_s}))
        << "the defaults are what was stored: nothing is left to ask for";
}

TEST_F(Changes, WhatIsMissingIsToldAndNothingGoes) {
    begin();
    form().txtNazione.type({});
    answer({rispostaSi});
    form().cmdNuovo.click();
    EXPECT_EQ(asked(), (QStringList{u"Salvare le modifiche a «PROVA»?"_s, u"Campo Nazione: obbligatorio!"_s}));
    EXPECT_EQ(form().txtLocalita.text(), u"PROVA"_s);
}

/// A stretch that was changed is asked for too, and its frame never stays open over a table that isn't the trip's.
TEST_F(Changes, AStretchIsLeftByItsOwnWay) {
    begin();
    form().cmdModStrada.click();
    for (const int i : {0, 2})
        form().cmdTappaSEl(i).click();
    answer({rispostaSi});
    form().cmdNuovo.click();
    EXPECT_EQ(asked(), QStringList{u"Vuoi salvare le modifiche apportate?"_s});
    EXPECT_FALSE(form().frmframe(1).visible());
    EXPECT_EQ(stored(u"Itinerari"_s, u"Localita"_s), u"ASTI|ALBA"_s);
}

/// A leg that is typed and not in the table, before its fields show another row or go.
TEST_F(Changes, ATypedLegIsAskedForBeforeItsFieldsGo) {
    const std::pair<const char*, void (*)(Form&)> ways[] = {
        {"a click", [](Form& f) { f.mfgTab.clickRow(1); }},
        {"a key", [](Form& f) { f.mfgTab.pressKey(38); }},
        {"a blank row", [](Form& f) { f.cmdAggiunge.click(); }},
        {"the search", [](Form& f) { f.cmdCerca.click(); }},
        {"a copy", [](Form& f) { f.cmdDuplica.click(); }},
        {"the way back", [](Form& f) { f.cmdRitorno.click(); }},
        {"a calculation", [](Form& f) { f.cmdRicalcola.click(); }},
        {"a save", [](Form& f) { f.cmdMemorizza.click(); }},
        {"the end", [](Form& f) { f.cmdFine.click(); }},
    };
    for (const auto& [what, leave] : ways) {
        for (const int wish : {rispostaAnnulla, rispostaNo, rispostaSi}) {
            SCOPED_TRACE(what + std::string(" ") + std::to_string(wish));
            begin();
            typeLeg();
            form().txtKm.type(u"70"_s);
            EXPECT_EQ(asked(), QStringList());
            answer({wish});
            leave(form());
            EXPECT_EQ(asked().value(0), u"La tappa «CUNEO» è scritta ma non inserita.\n\nInserirla?"_s);
            const TestiTabella* const kept = form().tappeConservate ? &*form().tappeConservate : nullptr;
            const QString place = kept != nullptr ? kept->text(2, 1) : form().mfgTab.cell(3, 1);
            EXPECT_EQ(place == u"CUNEO"_s, wish == rispostaSi);
            if (wish == rispostaAnnulla) {
                EXPECT_EQ(form().txtTappa.text(), u"CUNEO"_s);
                EXPECT_EQ(form().mfgTab.row(), 3);
                EXPECT_TRUE(form().frmframe(12).visible());
            }
        }
    }
    begin();
    typeLeg();
    answer({rispostaSi});
    form().cmdFine.click();
    EXPECT_EQ(asked(), (QStringList{u"La tappa «CUNEO» è scritta ma non inserita.\n\nInserirla?"_s,
                                    u"Chilometri (o sosta): dato obbligatorio!"_s}))
        << "one that can't be put in stays where it is";
    EXPECT_EQ(form().txtTappa.text(), u"CUNEO"_s);
}

TEST_F(Changes, ADifferenceIsNotTakenForATotalWhenItsRowWasRefused) {
    begin();
    form().cmdItinerario.click();
    form().mfgTab.clickRow(2);
    form().txtKm.type(u"200"_s);
    form().cmdInserisce.click();
    form().txtKm.type(u"700"_s);
    for (const QString& place : {QString(), u"CUNEO"_s}) {
        form().txtTappa.type(place);
        form().cmdInserisce.click();
    }
    EXPECT_EQ(asked(), QStringList{u"Impossibile:\nIndica il nome della località!"_s});
    EXPECT_EQ(form().mfgTab.cell(3, 3), u"470"_s) << "700 less 230";
}

TEST_F(Changes, ATypedEntryIsAskedForBeforeItsFieldsGo) {
    for (const int wish : {rispostaAnnulla, rispostaNo, rispostaSi}) {
        SCOPED_TRACE(wish);
        begin();
        form().cmdGuidaCitta.click();
        form().mfgTab.clickRow(1);
        form().txtGDescr.type(u"torre"_s);
        form().cmbGTipo.pick(u"Gpl"_s);
        answer({wish});
        form().mfgTab.clickRow(2);
        EXPECT_EQ(asked(), QStringList{u"La nota «torre» è scritta ma non salvata.\n\nSalvarla?"_s});
        EXPECT_EQ(stored(u"GuidaCitta"_s, u"Descrizione"_s), wish == rispostaSi ? u"Torre"_s : QString());
        // The row that was clicked is one further down when the entry has come in above it.
        EXPECT_EQ(form().mfgTab.row(), wish == rispostaAnnulla ? 1 : wish == rispostaNo ? 2 : 3);
        EXPECT_EQ(form().txtGCitta.text(), wish == rispostaAnnulla ? u"Alba"_s : u"Asti"_s);
    }
    // A key stores it and moves on with no word, unless it lacks something.
    begin();
    form().cmdGuidaCitta.click();
    form().mfgTab.clickRow(1);
    form().txtGDescr.type(u"torre"_s);
    form().cmbGTipo.pick(u"Ottimo"_s);
    answer({rispostaSi});
    form().txtGDescr.keyDown(40);
    EXPECT_EQ(asked(), (QStringList{u"La nota «torre» è scritta ma non salvata.\n\nSalvarla?"_s,
                                    u"Errore! Manca il tempo stimato!!!"_s}));
    EXPECT_EQ(form().txtGDescr.text(), u"torre"_s);
    form().cmbGH.pick(u"01"_s);
    form().txtGDescr.keyDown(40);
    EXPECT_EQ(asked(), QStringList());
    EXPECT_EQ(stored(u"GuidaCitta"_s, u"Descrizione"_s), u"Torre"_s);
}

TEST_F(Changes, AStoppedCalculationKeepsThem) {
    begin();
    form().cmbGiorni.setText(u"009"_s);
    form().txtNazione.type(u"FRANCIA"_s);
    session->events.expect([this] {
        if (!form().comandoInCorso || form().cmdEsce.caption() != u"&Stop"_s)
            return false;
        answer({rispostaSi});
        form().cmdEsce.click();
        return true;
    });
    form().cmdCalcola.click();
    EXPECT_EQ(asked(), QStringList{u"Vuoi interrompere l'elaborazione?"_s});
    EXPECT_EQ(form().txtNazione.text(), u"FRANCIA"_s);
    EXPECT_EQ(form().cmbGiorni.text(), u"009"_s);
    answer({rispostaAnnulla});
    form().cmdNuovo.click();
    EXPECT_EQ(asked(), QStringList{u"Salvare le modifiche a «PROVA»?"_s});
}

} // namespace
} // namespace vanzer
