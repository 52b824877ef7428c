// SPDX-License-Identifier: MIT
#include "paper/fonts.h"

#include <array>

#include "paper/face.h"

namespace vanzer::paper {

namespace {

struct StandIn {
    const char16_t* name;
    const char16_t* family;
};

/// The first installed family is used. Agency FB needs a narrow sans, so that a date fits a column of 8 mm at full
/// size; Times needs a font with its metrics. All of these have Latin, Greek and Cyrillic letters.
constexpr std::array<StandIn, 4> standIns{{{u"Agency FB", u"Liberation Sans Narrow"},
                                           {u"Agency FB", u"Roboto Condensed"},
                                           {u"Times new roman", u"Liberation Serif"},
                                           {u"Times new roman", u"Tinos"}}};

Typeface find(const QString& wanted) {
    if (const QString family = installedFamily(wanted); !family.isEmpty())
        return {family, family};
    for (const StandIn& standIn : standIns) {
        const QString name = QString::fromUtf16(standIn.name);
        const QString family = QString::fromUtf16(standIn.family);
        if (name.compare(wanted, Qt::CaseInsensitive) == 0 && !installedFamily(family).isEmpty())
            return {name, family};
    }
    const QString family = matchingFamily(QStringLiteral("serif"));
    return {family, family};
}

double em(const Font& font) {
    return font.points * mmPerPoint;
}

} // namespace

Fonts::Fonts() = default;
Fonts::~Fonts() = default;

const Typeface& Fonts::typefaceFor(const QString& wanted) {
    auto known = typefaces_.find(wanted);
    if (known == typefaces_.end())
        known = typefaces_.emplace(wanted, find(wanted)).first;
    return known->second;
}

Face& Fonts::face(const Font& font) {
    std::unique_ptr<Face>& face = faces_[{font.family, font.bold, font.italic}];
    if (face == nullptr)
        face = std::make_unique<Face>(font.family, font.bold, font.italic);
    return *face;
}

double Fonts::width(const QString& text, const Font& font) {
    return face(font).width(text) * em(font);
}

double Fonts::ascent(const Font& font) {
    return face(font).ascent() * em(font);
}

double Fonts::height(const Font& font) {
    return face(font).height() * em(font);
}

} // namespace vanzer::paper
