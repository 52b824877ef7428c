// SPDX-License-Identifier: MIT
#include "store/schema.h"

#include "core/text.h"

namespace vanzer::store {

const Elenco& TabelleNomi() {
    static const Elenco nomi{
        QString(),
        QStringLiteral("MeteVanzer"),
        QStringLiteral("Itinerari"),
        QStringLiteral("GuidaCitta"),
        QStringLiteral("TipoGuida"),
        QStringLiteral("MetaCorrente"),
        QStringLiteral("Parametri"),
    };
    return nomi;
}

const Elenco& TabelleCampi() {
    static const Elenco campi{
        QString(),
        QStringLiteral("CodiceMeta[T=6],Localita[T=30],Nazione[T=19],DataInizio[T=8],OraInizio[T=4],"
                       "MediaAutostrada[T=3],MediaSuperStrada[T=3],MediaPrincipale[T=3],MediaLocale[T=3],"
                       "OraColazione[T=4],OraPranzo[T=4],DurataPranzo[T=4],OraCena[T=4],DurataCena[T=4],OraNotte[T=4],"
                       "RiposoMinuti[T=2],RiposoOre[T=2],RiposoGiorno[T=2],RiposoDopoGiorni[T=2],InizioVisita[T=4],"
                       "FineVisita[T=4],OreTraghetti[T=4],GiorniAdeguamento[T=4],CalcoloSoste[T=1],Range[T=2],"
                       "Coefficiente[T=10],Flag1[T=25],Flag2[T=25]"),
        QStringLiteral("CodiceMeta[T=6],Sequenza[T=4],Localita[T=30],Chilometri[T=4],NomeStrada[T=64],TipoStrada[T=1],"
                       "TempoSosta[T=8],SostaGuidaCitta[T=8],FineGiorno[T=1],Start[Y],Fine[Y],Flag1[T=25],Flag2[Y]"),
        QStringLiteral("Localita[T=30],CodiceGuida[T=2],Gruppo[T=20],Descrizione[T=96],TempoSosta[T=5],FlagVisto[T=1],"
                       "OrarioAttivita[Y],Flag1[T=30]"),
        QStringLiteral("CodiceGuida[T=2],Descrizione[T=32],TempoObbligatorio[Y]"),
        QStringLiteral("MetaCorrente[T=6]"),
        QStringLiteral("MediaAutostrada[T=3],MediaSuperStrada[T=3],MediaPrincipale[T=3],MediaLocale[T=3],"
                       "OraColazione[T=4],OraPranzo[T=4],DurataPranzo[T=4],OraCena[T=4],DurataCena[T=4],OraNotte[T=4],"
                       "RiposoMinuti[T=2],RiposoOre[T=2],RiposoGiorno[T=2],RiposoDopoGiorni[T=2],InizioVisita[T=4],"
                       "FineVisita[T=4],OreTraghetti[T=4],CalcoloSoste[T=1],Range[T=2],Flag1[T=25],Flag2[T=25]"),
    };
    return campi;
}

// Names that aren't fields of their table ("TipoDato", "Metacorrente") are ignored.
const Elenco& TabelleIndici() {
    static const Elenco indici{
        QString(),
        QStringLiteral("CodiceMeta,Localita"),
        QStringLiteral("CodiceMeta,Sequenza,Localita"),
        QStringLiteral("Localita,Gruppo,TipoDato"),
        QStringLiteral("CodiceGuida"),
        QStringLiteral("MetaCorrente"),
        QStringLiteral("Metacorrente"),
    };
    return indici;
}

namespace {

FieldKind kindOfLetter(QChar letter) {
    switch (letter.toUpper().unicode()) {
    case u'Y': return FieldKind::YesNo;
    case u'B': return FieldKind::Binary;
    case u'D': return FieldKind::DateTime;
    case u'I': return FieldKind::Integer16;
    case u'S': return FieldKind::Single;
    case u'L': return FieldKind::Double;
    default: return FieldKind::Text;
    }
}

} // namespace

std::vector<FieldDef> campiDescritti(const QString& descriptor) {
    std::vector<FieldDef> fields;
    qsizetype at = 0;
    while (descriptor.size() - at >= 4) {
        const qsizetype open = descriptor.indexOf(u'[', at);
        const qsizetype close = descriptor.indexOf(u']', open + 1);
        if (open < 0 || close <= open + 1)
            break;
        FieldDef field;
        field.name = descriptor.mid(at, open - at);
        field.kind = kindOfLetter(descriptor[open + 1]);
        if (field.kind == FieldKind::Text) // the number after "T="
            field.size = static_cast<int>(Val(QStringView(descriptor).mid(open + 3, close - open - 3)));
        fields.push_back(field);
        at = close + 2;
    }
    return fields;
}

} // namespace vanzer::store
