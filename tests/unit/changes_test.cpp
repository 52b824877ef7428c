// SPDX-License-Identifier: MIT
// Typed fields that aren't stored, with a user present. The user is asked once before they are cleared or reloaded.
#include "support/window_test.h"
#include "window/changes.h"

namespace vanzer {
namespace {

const QString question = u"Salvare le modifiche a «PROVA»?"_s;
const QString ofTheLeg = u"La tappa «CUNEO» è scritta ma non inserita.\n\nInserirla?"_s;
const QString wishes[] = {u"2"_s, u"7"_s, u"6"_s}; // cancel, no, yes

class Changes : public WindowTest {
  protected:
    void begin() {
        startAnew();
        storeTrip(u"PROVA"_s);
    }
    void expectStored(bool changed) {
        EXPECT_EQ(stored(u"MeteVanzer"_s, u"Nazione"_s), changed ? u"FRANCIA"_s : u"ITALIA"_s);
        EXPECT_EQ(stored(u"Itinerari"_s, u"Localita"_s), u"PROVA 0|PROVA 1"_s);
    }
};

TEST_F(Changes, EachWayThatTakesThemAsksFirst) {
    const struct {
        QString reach, leave;
        QString own; ///< answers to questions of this way, which come first
    } ways[] = {{{}, u"click cmdNuovo"_s, {}},
                {u"click cmdRicerca"_s, u"pick cmbRicerca PROVA"_s, {}},
                {{}, u"click cmdCancMeta"_s, {}},
                {{}, u"click cmdCancItin"_s, {}},
                {{}, u"click cmdExport"_s, {}},
                {u"click cmdItinerario"_s, u"click cmdFine"_s, u"6 "_s},
                {u"click cmdItinerario"_s, u"click cmdMemorizza"_s, u"7 6 "_s},
                {u"click cmdModStrada"_s, u"click cmdTappaSEl(3)"_s, {}},
                {u"click cmdGuidaCitta"_s, u"click cmdFineInserimento"_s, {}},
                {{}, u"click cmdEsce"_s, u"6 "_s}};
    for (const auto& [reach, leave, own] : ways) {
        for (const QString& wish : wishes) {
            SCOPED_TRACE((leave + u' ' + wish).toStdString());
            begin();
            does(reach);
            form().txtNazione.type(u"FRANCIA"_s);
            const QStringList told = does(u"answer "_s + own + wish + u"; "_s + leave);
            EXPECT_EQ(told.value(own.size() / 2), question);
            EXPECT_EQ(told.count(question), 1);
            expectStored(wish == u"6");
            if (wish == u"2") {
                EXPECT_EQ(form().txtNazione.text(), u"FRANCIA"_s);
            }
        }
    }
}

TEST_F(Changes, EachFieldOfTheTripCounts) {
    begin();
    QStringList names{u"txtLocalita"_s, u"txtNazione"_s, u"cmbRipM"_s,  u"cmbRipH"_s,  u"cmbRipG"_s,
                      u"cmbRipGG"_s,    u"cmbRange"_s,   u"cmbSoste"_s, u"cmbGiorni"_s};
    for (const auto& [name, count] :
         {std::pair(u"cmbInizio"_s, 5), {u"cmbMediaKm"_s, 4}, {u"cmbOra"_s, 9}, {u"cmbMin"_s, 9}}) {
        for (int i = 0; i < count; ++i)
            names << name + u'(' + QString::number(i) + u')';
    }
    for (const QString& name : names) {
        auto& field = dynamic_cast<TextControl&>(*form().find(name));
        const QString before = field.text();
        field.setText(before + u'1');
        EXPECT_EQ(nomiDeiCambiati(form()), QStringList{field.name()});
        field.setText(before);
    }
}

TEST_F(Changes, WhatTheProgramSetsRightIsNoChangeOfTheUsers) {
    begin();
    EXPECT_EQ(does(u"click cmdCalcola; click cmdCalcola; click cmdNuovo; click cmdRicerca; pick cmbRicerca PROVA"_s),
              QStringList());
    does(u"pick cmbRange 45; click cmdCalcola; click cmdCalcola"_s); // stays the user's change through other commands
    EXPECT_EQ(does(u"answer 6 2; click cmdDefault(1); click cmdNuovo"_s).mid(0, 2),
              (QStringList{u"Vuoi caricare i dati di default?"_s, u"Operazione eseguita!"_s}))
        << "the defaults are what was stored: nothing is left to ask for";
}

TEST_F(Changes, WhatIsMissingIsToldAndNothingGoes) {
    begin();
    form().txtNazione.type({});
    EXPECT_EQ(does(u"answer 6; click cmdNuovo"_s), (QStringList{question, u"Campo Nazione: obbligatorio!"_s}));
    EXPECT_EQ(form().txtLocalita.text(), u"PROVA"_s);
}

/// A changed stretch is asked for too. Its frame never stays open over a table that doesn't hold the trip.
TEST_F(Changes, AStretchIsLeftByItsOwnWay) {
    begin();
    EXPECT_EQ(does(u"click cmdModStrada; click cmdTappaSEl(0); click cmdTappaSEl(2); answer 6; click cmdNuovo"_s),
              QStringList{u"Vuoi salvare le modifiche apportate?"_s});
    EXPECT_FALSE(form().frmframe(1).visible());
    expectStored(false);
}

/// A typed leg that isn't in the table is asked for before its fields change or close.
TEST_F(Changes, ATypedLegIsAskedForBeforeItsFieldsGo) {
    const QString typed = u"click cmdItinerario; row mfgTab 3; set txtTappa CUNEO; "_s;
    const QString ways[] = {u"row mfgTab 1"_s,       u"key mfgTab 38"_s,      u"click cmdAggiunge"_s,
                            u"click cmdCerca"_s,     u"click cmdDuplica"_s,   u"click cmdRitorno"_s,
                            u"click cmdRicalcola"_s, u"click cmdMemorizza"_s, u"click cmdFine"_s};
    for (const QString& leave : ways) {
        for (const QString& wish : wishes) {
            SCOPED_TRACE((leave + u' ' + wish).toStdString());
            begin();
            EXPECT_EQ(does(typed + u"set txtKm 70; answer "_s + wish), QStringList());
            EXPECT_EQ(does(leave).value(0), ofTheLeg);
            const TestiTabella* const kept = form().tappeConservate ? &*form().tappeConservate : nullptr;
            const QString place = kept != nullptr ? kept->text(2, 1) : form().mfgTab.cell(3, 1);
            EXPECT_EQ(place == u"CUNEO"_s, wish == u"6");
            if (wish == u"2") {
                EXPECT_EQ(form().txtTappa.text(), u"CUNEO"_s);
                EXPECT_EQ(form().mfgTab.row(), 3);
                EXPECT_TRUE(form().frmframe(12).visible());
            }
        }
    }
    begin();
    EXPECT_EQ(does(typed + u"answer 6; click cmdFine"_s),
              (QStringList{ofTheLeg, u"Chilometri (o sosta): dato obbligatorio!"_s}))
        << "one that can't be put in stays where it is";
    EXPECT_EQ(form().txtTappa.text(), u"CUNEO"_s);
}

TEST_F(Changes, ATypedEntryIsAskedForBeforeItsFieldsGo) {
    const QString ofTheEntry = u"La nota «torre» è scritta ma non salvata.\n\nSalvarla?"_s;
    const QString typed = u"click cmdGuidaCitta; row mfgTab 1; set txtGDescr torre; pick cmbGTipo "_s;
    for (const QString& wish : wishes) {
        SCOPED_TRACE(wish.toStdString());
        begin();
        EXPECT_EQ(does(typed + u"Gpl; answer "_s + wish + u"; row mfgTab 2"_s), QStringList{ofTheEntry});
        EXPECT_EQ(stored(u"GuidaCitta"_s, u"Descrizione"_s), wish == u"6" ? u"Torre"_s : QString());
        // The clicked row is one further down if the entry was inserted above it.
        EXPECT_EQ(form().mfgTab.row(), wish == u"2" ? 1 : wish == u"7" ? 2 : 3);
        EXPECT_EQ(form().txtGCitta.text(), wish == u"2" ? u"Prova 0"_s : u"Prova 1"_s);
    }
    // A row key stores the entry and moves on without a message, unless the entry lacks something.
    begin();
    EXPECT_EQ(does(typed + u"Ottimo; answer 6; keydown txtGDescr 40"_s),
              (QStringList{ofTheEntry, u"Errore! Manca il tempo stimato!!!"_s}));
    EXPECT_EQ(does(u"pick cmbGH 01; keydown txtGDescr 40"_s), QStringList());
    EXPECT_EQ(stored(u"GuidaCitta"_s, u"Descrizione"_s), u"Torre"_s);
}

TEST_F(Changes, AStoppedCalculationKeepsThem) {
    begin();
    EXPECT_EQ(does(u"set cmbGiorni 009; set txtNazione FRANCIA; answer 6; during click cmdEsce; click cmdCalcola"_s),
              QStringList());
    EXPECT_TRUE(form().stato.InterrompiCalcolo);
    EXPECT_EQ(form().txtNazione.text() + form().cmbGiorni.text(), u"FRANCIA009"_s);
    EXPECT_EQ(does(u"answer 2; click cmdNuovo"_s), QStringList{question});
}

} // namespace
} // namespace vanzer
