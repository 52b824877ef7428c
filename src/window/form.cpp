// SPDX-License-Identifier: MIT
#include "window/form.h"

#include <QDir>

#include "core/text.h"
#include "window/form_texts.h"

namespace vanzer {

namespace {

constexpr int frameCount = 29;

/// Frames inside others: the inner frame and the outer one.
constexpr std::array<std::pair<int, int>, 10> inside{{
    {riquadroStradaTratto, riquadroTratto},
    {riquadroStradaTappa, riquadroTappe},
    {riquadroPulsantiTappe, riquadroTappe},
    {riquadroRiposi, riquadroDatiTecnici},
    {riquadroVisite, riquadroDatiTecnici},
    {riquadroPasti, riquadroDatiTecnici},
    {riquadroSoste, riquadroDatiTecnici},
    {riquadroStampaGuida, riquadroGuida},
    {riquadroListaStampa, riquadroStampaGuida},
    {riquadroDettaglioStampa, riquadroStampaGuida},
}};

/// The frame of each pair of clock lists: meals, visits, ferries.
constexpr std::array<int, 9> clockFrames{riquadroPasti,  riquadroPasti,  riquadroPasti,
                                         riquadroPasti,  riquadroPasti,  riquadroPasti,
                                         riquadroVisite, riquadroVisite, riquadroPercorrenze};

QString key(const QString& name) {
    return minuscolo(name);
}

} // namespace

template<typename T, typename... Args> T& Form::one(const char* name, Frame* parent, Args... args) {
    auto control = std::make_unique<T>(QString::fromLatin1(name), -1, parent, args...);
    T& made = *control;
    byName_.emplace(key(made.name()), &made);
    controls_.push_back(std::move(control));
    return made;
}

template<typename T, typename... Args> Serie<T> Form::many(const char* name, int frame, int count, Args... args) {
    Frame* const parent = frame == finestra ? nullptr : frames[static_cast<std::size_t>(frame)];
    std::vector<T*> made;
    for (int i = 0; i < count; ++i) {
        auto control = std::make_unique<T>(QString::fromLatin1(name), i, parent, args...);
        made.push_back(control.get());
        byName_.emplace(key(control->name()), control.get());
        controls_.push_back(std::move(control));
    }
    if constexpr (std::is_same_v<T, OptionButton>) {
        for (OptionButton* button : made) {
            button->setGroup([made](OptionButton& chosen) {
                for (OptionButton* other : made) {
                    if (other != &chosen)
                        other->setValue(false);
                }
            });
        }
    }
    return Serie<T>(std::move(made));
}

Serie<ListControl> Form::lists(const char* name, int frame, int count) {
    return many<ListControl>(name, frame, count, false);
}

Serie<ListControl> Form::clockLists(const char* name) {
    std::vector<ListControl*> made;
    for (std::size_t i = 0; i < clockFrames.size(); ++i) {
        auto control = std::make_unique<ListControl>(QString::fromLatin1(name), static_cast<int>(i),
                                                     frames[static_cast<std::size_t>(clockFrames[i])], false);
        made.push_back(control.get());
        byName_.emplace(key(control->name()), control.get());
        controls_.push_back(std::move(control));
    }
    return Serie<ListControl>(std::move(made));
}

void Form::buildFrames() {
    frames.assign(frameCount, nullptr);
    const auto build = [this](int i, Frame* parent) {
        auto frame = std::make_unique<Frame>(QStringLiteral("frmframe"), i, parent);
        frames[static_cast<std::size_t>(i)] = frame.get();
        byName_.emplace(key(frame->name()), frame.get());
        controls_.push_back(std::move(frame));
    };
    const auto parentOf = [](int i) {
        for (const auto& [inner, outer] : inside) {
            if (inner == i)
                return outer;
        }
        return finestra;
    };
    for (int i = 0; i < frameCount; ++i) {
        if (parentOf(i) == finestra)
            build(i, nullptr);
    }
    for (const auto& [inner, outer] : inside)
        build(inner, frames[static_cast<std::size_t>(outer)]);
}

Form::Form(Ambiente surroundings, Ports& platform)
    : ambiente(std::move(surroundings)), ports(platform), archivio(ambiente.directory) {
    writeTexts(*this);
    optStrada(0).setValue(true);
    optTStrada(0).setValue(true);
    optGuidaListaStampa(1).setValue(true);
    optGuidaDettaglioStampa(0).setValue(true);
    cmbRicercaTappa.setSorted(true);
    lstStampanti.setSorted(true);
    txtLocalita.setMaxLength(30);
    txtTappa.setMaxLength(30);
    txtKm.setMaxLength(6);
    txtNumStrada.setMaxLength(64);
    txtGGruppo.setMaxLength(20);
    lstMete.setVisible(false);
}

Form::~Form() = default;

Control* Form::find(const QString& name) const {
    const auto found = byName_.find(key(name));
    return found == byName_.end() ? nullptr : found->second;
}

int Form::ask(const MessageBox& question) {
    stato.Risposta = ports.messages.show(question);
    return stato.Risposta;
}

int Form::domanda(const QString& text, const QString& title, Pulsanti buttons) {
    return ask({.text = text, .title = title, .buttons = buttons});
}

int Form::domandaPericolosa(const QString& text, const QString& title, const QString& detail) {
    return ask({.text = text, .title = title, .buttons = Pulsanti::SiNo, .destroys = true, .detail = detail});
}

void Form::messaggio(const QString& text, const QString& title, Icona icon) {
    messaggioFile(text, {}, title, icon);
}

void Form::refuse(const QString& text, const QString& title) {
    static_cast<void>(ports.messages.show({.text = text, .title = title, .refuses = true}));
}

void Form::messaggioFile(const QString& text, const QStringList& files, const QString& title, Icona icon) {
    QStringList untold;
    for (const QString& file : files) {
        if (const QString path = QDir::toNativeSeparators(file); !text.contains(path))
            untold << path;
    }
    static_cast<void>(ports.messages.show(
        {.text = text, .title = title, .icon = icon, .detail = untold.join(u'\n'), .files = files}));
}

void Form::setDefault(Button& button) {
    for (const auto& control : controls_) {
        if (auto* const other = dynamic_cast<Button*>(control.get()); other != nullptr && other->isDefault())
            other->setDefault(false);
    }
    button.setDefault(true);
}

void Form::setFocus(Control& control) {
    focus_ = &control;
    if (onFocus)
        onFocus(control);
}

} // namespace vanzer
