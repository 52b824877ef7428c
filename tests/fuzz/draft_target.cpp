#include "core/draft.h"
#include "fuzz_target.h"

namespace vanzer::fuzz {

void readDraft(const QByteArray& input) {
    const std::optional<Bozza> draft = bozzaDaiByte(input);
    if (!draft)
        return;
    promise(draft->scritta.isValid(), "a draft has a date");
    const std::optional<Bozza> again = bozzaDaiByte(byteDellaBozza(*draft, draft->scritta));
    promise(again.has_value(), "what was read can be written and read");
    promise(byteDellaBozza(*again, again->scritta) == byteDellaBozza(*draft, draft->scritta), "it says the same");
}

} // namespace vanzer::fuzz
