// SPDX-License-Identifier: MIT
#include "paper/face.h"

#include <cstdint>
#include <span>
#include <utility>

#include <QList>

#include <cairo-ft.h>
#include <hb-ot.h>

namespace vanzer::paper {

namespace {

const FcChar8* forPlatform(const QByteArray& utf8) {
    return reinterpret_cast<const FcChar8*>(utf8.constData());
}

QString familyOf(FcPattern* pattern) {
    FcChar8* family = nullptr;
    return FcPatternGetString(pattern, FC_FAMILY, 0, &family) == FcResultMatch
               ? QString::fromUtf8(reinterpret_cast<const char*>(family))
               : QString();
}

/// Asks for outline fonts only: they can be drawn at any size.
Pattern patternOf(const QString& family) {
    Pattern pattern(FcPatternCreate());
    FcPatternAddString(pattern.get(), FC_FAMILY, forPlatform(family.toUtf8()));
    FcPatternAddBool(pattern.get(), FC_OUTLINE, FcTrue);
    FcPatternAddBool(pattern.get(), FC_VARIABLE, FcFalse);
    return pattern;
}

void complete(FcPattern& pattern) {
    FcConfigSubstitute(nullptr, &pattern, FcMatchPattern);
    FcDefaultSubstitute(&pattern);
}

Pattern match(FcPattern& wanted) {
    FcResult result = FcResultMatch;
    return Pattern(FcFontMatch(nullptr, &wanted, &result));
}

bool isOutline(FcPattern* pattern) {
    FcBool outline = FcFalse;
    return FcPatternGetBool(pattern, FC_OUTLINE, 0, &outline) == FcResultMatch && outline == FcTrue;
}

/// True if a letter should use the font of the letter before it, if that font has it.
bool joins(char32_t letter) {
    constexpr char32_t nonJoiner = 0x200C;
    constexpr char32_t joiner = 0x200D;
    return letter == U' ' || letter == nonJoiner || letter == joiner || QChar::isMark(letter);
}

/// The letters of a line, without those that a document can't contain.
std::u32string lineOf(const QString& text) {
    std::u32string letters;
    letters.reserve(static_cast<std::size_t>(text.size()));
    for (const char32_t letter : text.toUcs4()) {
        if (letter < U' ' || letter == QChar::LineSeparator || letter == QChar::ParagraphSeparator)
            letters += U' ';
        else if (QChar::isSurrogate(letter) || QChar::isNonCharacter(letter))
            letters += U'\uFFFD';
        else if (letter != QChar::SoftHyphen)
            letters += letter;
    }
    return letters;
}

bool isBackward(hb_script_t script) {
    return hb_script_get_horizontal_direction(script) == HB_DIRECTION_RTL;
}

/// The script of each letter. Signs without a script of their own take that of the letters around them. Next to letters
/// that run from right to left, such signs and digits run from left to right.
std::vector<hb_script_t> scriptsOf(const std::u32string& letters) {
    constexpr hb_script_t none = HB_SCRIPT_COMMON;
    hb_unicode_funcs_t* const unicode = hb_unicode_funcs_get_default();
    std::vector<hb_script_t> scripts;
    std::size_t signs = 0; // number of signs after the last letter
    hb_script_t before = none;
    const auto settle = [&](hb_script_t after) {
        const bool forward = before != after && (before == none || isBackward(before));
        const hb_script_t around = !forward ? before : isBackward(after) ? HB_SCRIPT_LATIN : after;
        scripts.insert(scripts.end(), std::exchange(signs, 0), around);
    };
    for (const char32_t letter : letters) {
        hb_script_t script = hb_unicode_script(unicode, letter);
        if (QChar::isDigit(letter) && isBackward(before))
            script = HB_SCRIPT_LATIN;
        if (script == none || script == HB_SCRIPT_INHERITED || script == HB_SCRIPT_UNKNOWN) {
            ++signs;
            continue;
        }
        settle(script);
        scripts.push_back(script);
        before = script;
    }
    settle(none);
    return scripts;
}

int utf8Size(char32_t letter) {
    return letter < 0x80 ? 1 : letter < 0x800 ? 2 : letter < 0x10000 ? 3 : 4;
}

/// Groups the glyphs that stand for the same letters: the number of glyphs and of bytes in each group. If the text runs
/// from right to left, the last glyphs stand for the first letters.
std::vector<cairo_text_cluster_t> clustersOf(std::u32string_view letters, std::span<const hb_glyph_info_t> glyphs,
                                             bool backward) {
    std::vector<cairo_text_cluster_t> clusters;
    for (std::size_t i = 0; i < glyphs.size();) {
        const auto cluster = [&](std::size_t at) { return glyphs[backward ? glyphs.size() - 1 - at : at].cluster; };
        cairo_text_cluster_t one{0, 0};
        std::size_t letter = cluster(i);
        for (const std::size_t first = letter; i < glyphs.size() && cluster(i) == first; ++i)
            ++one.num_glyphs;
        for (const std::size_t end = i < glyphs.size() ? cluster(i) : letters.size(); letter < end; ++letter)
            one.num_bytes += utf8Size(letters[letter]);
        clusters.push_back(one);
    }
    return clusters;
}

} // namespace

QString installedFamily(const QString& family) {
    Pattern pattern(FcPatternCreate());
    FcPatternAddString(pattern.get(), FC_FAMILY, forPlatform(family.toUtf8()));
    const Owned<FcObjectSet, FcObjectSetDestroy> asked(FcObjectSetBuild(FC_FAMILY, nullptr));
    const Owned<FcFontSet, FcFontSetDestroy> found(FcFontList(nullptr, pattern.get(), asked.get()));
    return found != nullptr && found->nfont > 0 ? familyOf(found->fonts[0]) : QString();
}

QString matchingFamily(const QString& family) {
    const Pattern wanted = patternOf(family);
    complete(*wanted);
    const Pattern found = match(*wanted);
    return found == nullptr ? QString() : familyOf(found.get());
}

OpenFont::OpenFont(FcPattern& found) : drawn_(cairo_ft_font_face_create_for_pattern(&found)) {
    FcChar8* path = nullptr;
    int index = 0;
    FcPatternGetInteger(&found, FC_INDEX, 0, &index);
    const bool named = FcPatternGetString(&found, FC_FILE, 0, &path) == FcResultMatch;
    const Owned<hb_blob_t, hb_blob_destroy> bytes(named ? hb_blob_create_from_file(reinterpret_cast<const char*>(path))
                                                        : hb_blob_get_empty());
    const Owned<hb_face_t, hb_face_destroy> face(hb_face_create(bytes.get(), static_cast<unsigned>(index) & 0xFFFFU));
    measured_.reset(hb_font_create(face.get()));
    em_ = hb_face_get_upem(face.get());
}

bool OpenFont::has(char32_t letter) const {
    hb_codepoint_t glyph = 0;
    return hb_font_get_nominal_glyph(measured(), letter, &glyph) != 0;
}

Face::Face(const QString& family, bool bold, bool italic) : wanted_(patternOf(family)), buffer_(hb_buffer_create()) {
    FcPatternAddInteger(wanted_.get(), FC_WEIGHT, bold ? FC_WEIGHT_BOLD : FC_WEIGHT_REGULAR);
    FcPatternAddInteger(wanted_.get(), FC_SLANT, italic ? FC_SLANT_ITALIC : FC_SLANT_ROMAN);
    complete(*wanted_);
    const Pattern found = match(*wanted_);
    own_ = std::make_unique<OpenFont>(found != nullptr ? *found : *wanted_);
    hb_font_extents_t extents{};
    hb_font_get_h_extents(own_->measured(), &extents);
    ascent_ = extents.ascender / own_->em();
    height_ = ascent_ - extents.descender / own_->em();
}

const OpenFont& Face::fontOf(char32_t letter) {
    if (own_->has(letter))
        return *own_;
    const auto [known, isNew] = known_.try_emplace(letter, own_.get());
    if (isNew)
        known->second = &substituteFor(letter);
    return *known->second;
}

const OpenFont& Face::substituteFor(char32_t letter) {
    if (others_ == nullptr) {
        FcResult result = FcResultMatch;
        others_.reset(FcFontSort(nullptr, wanted_.get(), FcTrue, nullptr, &result));
    }
    for (int i = 0; others_ != nullptr && i < others_->nfont; ++i) {
        FcCharSet* letters = nullptr;
        if (!isOutline(others_->fonts[i]) ||
            FcPatternGetCharSet(others_->fonts[i], FC_CHARSET, 0, &letters) != FcResultMatch ||
            FcCharSetHasChar(letters, letter) == FcFalse)
            continue;
        auto opened = opened_.find(i);
        if (opened == opened_.end()) {
            const Pattern found(FcFontRenderPrepare(nullptr, wanted_.get(), others_->fonts[i]));
            opened = opened_.try_emplace(i, *found).first;
        }
        if (opened->second.has(letter))
            return opened->second;
    }
    return *own_;
}

template<typename Take> void Face::eachRun(const std::u32string& letters, Take take) {
    const std::vector<hb_script_t> scripts = scriptsOf(letters);
    std::size_t first = 0;
    const OpenFont* font = nullptr; // font of the letters from `first` on
    const auto set = [&](std::size_t end) {
        if (first == end)
            return;
        hb_buffer_clear_contents(buffer_.get());
        hb_buffer_add_utf32(buffer_.get(), reinterpret_cast<const std::uint32_t*>(letters.data() + first),
                            static_cast<int>(end - first), 0, static_cast<int>(end - first));
        hb_buffer_guess_segment_properties(buffer_.get());
        hb_shape(font->measured(), buffer_.get(), nullptr, 0);
        unsigned count = 0;
        const hb_glyph_position_t* const places = hb_buffer_get_glyph_positions(buffer_.get(), &count);
        take(*font, std::u32string_view(letters).substr(first, end - first),
             std::span(hb_buffer_get_glyph_infos(buffer_.get(), nullptr), count), places);
        first = end;
    };
    for (std::size_t i = 0; i < letters.size(); ++i) {
        const bool sameScript = i > 0 && scripts[i] == scripts[i - 1];
        const bool stays = sameScript && joins(letters[i]) && font->has(letters[i]);
        const OpenFont* const next = stays ? font : &fontOf(letters[i]);
        if (!sameScript || next != font)
            set(i);
        font = next;
    }
    set(letters.size());
}

double Face::width(const QString& text) {
    double width = 0;
    eachRun(lineOf(text), [&](const OpenFont& font, std::u32string_view, std::span<const hb_glyph_info_t> glyphs,
                              const hb_glyph_position_t* places) {
        for (std::size_t i = 0; i < glyphs.size(); ++i)
            width += places[i].x_advance / font.em();
    });
    return width;
}

std::vector<Run> Face::shaped(const QString& text) {
    std::vector<Run> line;
    double at = 0;
    eachRun(lineOf(text), [&](const OpenFont& font, std::u32string_view letters,
                              std::span<const hb_glyph_info_t> glyphs, const hb_glyph_position_t* places) {
        Run run{.font = &font};
        run.backward = HB_DIRECTION_IS_BACKWARD(hb_buffer_get_direction(buffer_.get()));
        run.clusters = clustersOf(letters, glyphs, run.backward);
        run.letters = QString::fromUcs4(letters.data(), static_cast<qsizetype>(letters.size())).toUtf8();
        for (std::size_t i = 0; i < glyphs.size(); ++i) {
            run.glyphs.push_back(
                {glyphs[i].codepoint, at + places[i].x_offset / font.em(), -places[i].y_offset / font.em()});
            at += places[i].x_advance / font.em();
        }
        line.push_back(std::move(run));
    });
    return line;
}

} // namespace vanzer::paper
