#include <set>

#include "core/code_page.h"
#include "core/text_file.h"
#include "exchange/iei_file.h"
#include "fuzz_target.h"
#include "support/memory_archive.h"

namespace vanzer::fuzz {

namespace {

constexpr int codeLength = 6;

MemoryArchive someArchive() {
    MemoryArchive archive;
    archive.put(store::MeteVanzer, {{QStringLiteral("CodiceMeta"), QStringLiteral("000001")},
                                    {QStringLiteral("Localita"), QStringLiteral("BARI")}});
    archive.put(store::Itinerari, {{QStringLiteral("CodiceMeta"), QStringLiteral("000001")},
                                   {QStringLiteral("Localita"), QStringLiteral("ROMA NORD")}});
    archive.put(store::GuidaCitta, {{QStringLiteral("Localita"), QStringLiteral("Roma Nord")},
                                    {QStringLiteral("Descrizione"), QStringLiteral("Duomo (centro)")}});
    return archive;
}

QStringList codesInFile(const QByteArray& input) {
    LettoreIei reader(MemoryArchive::names());
    RigheTesto lines(input);
    QStringList codes;
    while (lines.prossima()) {
        if (reader.read(lines.riga()) != LettoreIei::Riga::Record || reader.sezione() != store::MeteVanzer)
            continue;
        if (const QString code = reader.colonna(reader.campo(u"CodiceMeta")).toString(); !code.isEmpty())
            codes << code;
    }
    return codes;
}

bool clean(const QString& text) {
    return std::none_of(text.begin(), text.end(), [](QChar c) { return c == u'"' || (c < u' ' && c != u'\t'); });
}

/// What came in behind what was there before.
void checkRecords(const MemoryArchive& archive, const std::set<QString>& codes) {
    for (int section = primaSezione; section <= ultimaSezione; ++section) {
        const auto& table = archive.tables[static_cast<std::size_t>(section)];
        for (std::size_t r = table.size() - archive.added[static_cast<std::size_t>(section)]; r < table.size(); ++r) {
            for (const QString& text : table[r]) {
                promise(!text.isEmpty(), "no stored text is empty");
                promise(clean(text), "quotes and control characters are left out");
                promise(!text.contains(separatoreIei(section)), "no text holds its separator");
            }
            if (section != store::GuidaCitta)
                promise(codes.contains(MemoryArchive::text(section, table[r], u"CodiceMeta")),
                        "every code was given out");
        }
    }
}

/// As a text comes back: trimmed, in the letters of the code page but those that part the fields.
QString asRead(const QString& text) {
    QString plain = Trim(text).normalized(QString::NormalizationForm_C);
    const QString letters = QStringLiteral("ÿŸþÞýÝ");
    for (qsizetype i = 0; i < letters.size(); ++i)
        plain.replace(letters[i], QStringLiteral("yYtTyY")[i]);
    return Trim(fromCodePage(toCodePage(plain)));
}

/// Written and read again, the records are the same but for what a text loses.
void checkRoundTrip(const MemoryArchive& archive) {
    ScrittoreIei file;
    std::vector<MemoryArchive::Record> written;
    for (int section = primaSezione; section <= ultimaSezione; ++section) {
        file.testa(section, MemoryArchive::names()[static_cast<std::size_t>(section)]);
        for (const MemoryArchive::Record& record : archive.tables[static_cast<std::size_t>(section)]) {
            for (const QString& text : record)
                file.testo(section, text);
            file.fineRiga();
            written.push_back(record);
        }
    }
    LettoreIei reader(MemoryArchive::names());
    RigheTesto lines(file.contenuto());
    std::size_t read = 0;
    while (lines.prossima()) {
        if (reader.read(lines.riga()) != LettoreIei::Riga::Record)
            continue;
        promise(read < written.size(), "no more records come back than were written");
        for (std::size_t i = 0; i < written[read].size(); ++i)
            promise(Trim(reader.valore(static_cast<int>(i))) == asRead(written[read][i]),
                    "a record comes back as it was written");
        ++read;
    }
    promise(read == written.size(), "as many records come back as were written");
}

} // namespace

void readExchangeFile(const QByteArray& input) {
    MemoryArchive archive = someArchive();
    const QStringList chosen = codesInFile(input);
    CodiciMete codes;
    if (codes.assign(archive.column(store::MeteVanzer, u"CodiceMeta"), chosen, codeLength) !=
        CodiciMete::Esito::Assegnati)
        return;
    std::set<QString> given;
    for (CodiciMete left = codes; const QString& old : chosen) {
        promise(given.insert(*left.perMeta(old)).second, "each destination has a code of its own");
        left.refuse(old); // the next of that code comes forward
    }
    Importazione import(MemoryArchive::names(), codes, archive);
    RigheTesto lines(input);
    while (lines.prossima() && import.riga(lines.riga())) {
    }
    const ContatoriImport& counts = import.contatori();
    promise(archive.added == std::array<std::size_t, 4>{0, static_cast<std::size_t>(counts.meteInserite),
                                                        static_cast<std::size_t>(counts.tappeInserite),
                                                        static_cast<std::size_t>(counts.vociInserite)},
            "the counts are right");
    checkRecords(archive, given);
    checkRoundTrip(archive);
}

} // namespace vanzer::fuzz
