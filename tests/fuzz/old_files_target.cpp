#include <algorithm>

#include "core/code_page.h"
#include "exchange/conversion.h"
#include "fuzz_target.h"

namespace vanzer::fuzz {

namespace {

using namespace Qt::StringLiterals;

/// What a record says is what stands in its bytes, and nothing of it is a control.
void checkRecord(const FormatoVecchio& format, const QByteArray& bytes, const RecordVecchio& record) {
    qsizetype at = 0;
    for (std::size_t i = 0; i < format.campi.size(); ++i) {
        const int width = format.campi[i].larghezza;
        const QString there = fromCodePage(QByteArrayView(bytes).sliced(at, width));
        promise(record[i].leftJustified(width, u' ') == there || (format.campi[i].siNo && there == u" "),
                "a text is its bytes without the padding");
        promise(std::ranges::none_of(record[i], [](QChar c) { return c < u' '; }), "a text holds no control");
        at += width;
    }
}

void checkLegs(const FileVecchio& file) {
    const TappeVecchie legs = tappeDaLeggere(file);
    promise(legs.tappe >= 0 && legs.tappe <= std::max(0, file.numero() - 1), "no more legs than there are");
    promise(legs.tappe + legs.tralasciati >= file.numero() - 1, "every record is read or counted");
}

void checkConverted(const FormatoVecchio& format, const RecordVecchio& record) {
    if (&format == &vecchieMete() && metaDaConvertire(record))
        promise(codiceConvertito(record).size() == 6, "codes have six digits");
    if (&format == &vecchieTappe()) {
        const auto leg = tappaConvertita(record);
        promise(!leg || (!leg->Localita.isEmpty() && !leg->NomeStrada.isEmpty() && !leg->TempoSosta.isEmpty()),
                "texts that are stored aren't empty");
    }
    if (&format == &vecchiaGuida()) {
        const VoceConvertita entry = voceConvertita(record);
        promise(entry.CodiceGuida.size() == 2 && entry.TempoSosta.size() == 5, "codes and times fit");
    }
}

} // namespace

void readOldFile(const QByteArray& input) {
    for (const auto* const format : {&vecchieMete(), &vecchieTappe(), &vecchiaGuida()}) {
        const FileVecchio file(*format, input);
        for (int n = 1; n <= file.numero(); ++n) {
            if (const auto record = file.record(n)) {
                checkRecord(*format, input.sliced(static_cast<qsizetype>(n - 1) * format->lunghezza), *record);
                checkConverted(*format, *record);
            }
        }
        checkLegs(file);
    }
}

} // namespace vanzer::fuzz
