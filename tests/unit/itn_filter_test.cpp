// The filter by the stops of a stop file.
#include <gtest/gtest.h>

#include "core/text.h"
#include "exchange/itn_filter.h"

namespace vanzer {

namespace {

using namespace Qt::StringLiterals;

std::vector<RigaPercorso> route(const QStringList& names) {
    std::vector<RigaPercorso> rows;
    for (const QString& name : names)
        rows.push_back({name, u"A1"_s, 10});
    return rows;
}

QStringList names(const std::vector<RigaPercorso>& rows) {
    QStringList result;
    for (const RigaPercorso& row : rows)
        result << row.luogo;
    return result;
}

TEST(Stops, MarkTheLegThatTheyFallOn) {
    const struct {
        const char* what;
        QStringList legs, stops, marked;
    } cases[] = {
        {"beginning, case ignored", {u"ASTI EST"_s, u"ASTI"_s}, {u"Asti"_s}, {u"ASTI EST [00001]"_s, u"ASTI"_s}},
        {"equal stops, one after the other",
         {u"ASTI"_s, u"ASTI"_s, u"ASTI"_s},
         {u"ASTI"_s, u"ASTI"_s},
         {u"ASTI [00001]"_s, u"ASTI [00002]"_s, u"ASTI"_s}},
        {"longest part anywhere, marked or not",
         {u"USCITA ASTI"_s, u"CUNEO"_s},
         {u"Nord;Asti;Bra"_s, u"uscita"_s, u"asti, Torino"_s},
         {u"USCITA ASTI [00002]"_s, u"CUNEO"_s}},
        {"two stops on one leg", {u"ASTI"_s}, {u"ASTI"_s, u"sti"_s}, {u"ASTI [00001] [00002]"_s}},
        {"what fits nowhere, and an empty name", {u"ASTI"_s}, {u"Bra"_s, QString(), u"as"_s}, {u"ASTI [00003]"_s}},
        {"a short part", {u"BRA"_s, u"RA"_s}, {u"ra"_s, u"ra"_s}, {u"BRA [00002]"_s, u"RA [00001]"_s}},
        {"a part of a mark", {u"ASTI"_s}, {u"ASTI"_s, u"00001]"_s}, {u"ASTI [00001] [00002]"_s}},
    };
    for (const auto& c : cases) {
        auto rows = route(c.legs);
        segnaMete(rows, c.stops);
        EXPECT_EQ(names(rows), c.marked) << c.what;
    }
}

} // namespace

} // namespace vanzer
