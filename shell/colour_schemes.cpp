#include "shell/colour_schemes.h"

#include <algorithm>
#include <array>

namespace zifferon {

namespace {

struct TextScheme {
    Colour panel, panelText, entryText, entry;
};

constexpr Colour lightGrey{224, 224, 224};

constexpr std::array<TextScheme, 8> textSchemes = {{
    {{0, 64, 0}, {0, 255, 0}, {0, 64, 0}, lightGrey},
    {{64, 0, 0}, {255, 128, 128}, {64, 0, 0}, lightGrey},
    {{64, 64, 0}, {255, 255, 0}, {64, 64, 0}, lightGrey},
    {{128, 64, 0}, {255, 192, 128}, {128, 64, 0}, lightGrey},
    {{0, 0, 64}, {192, 192, 255}, {0, 0, 64}, lightGrey},
    {{64, 0, 64}, {255, 128, 255}, {64, 0, 64}, lightGrey},
    {lightGrey, {0, 0, 0}, {0, 0, 0}, {255, 255, 255}},
    {{0, 0, 0}, lightGrey, {0, 0, 0}, lightGrey},
}};

constexpr std::array textSchemeOrder = {5, 6, 1, 2, 3, 4, 7, 8};

constexpr std::array<Colour, 16> backSchemes = {{
    {192, 192, 192},
    {192, 192, 255},
    {150, 163, 211},
    {255, 192, 255},
    {203, 175, 245},
    {214, 255, 196},
    {171, 217, 140},
    {250, 203, 199},
    {234, 155, 147},
    {255, 255, 192},
    {245, 242, 126},
    {255, 224, 192},
    {255, 192, 128},
    {215, 185, 164},
    {224, 224, 224},
    {128, 128, 128},
}};

constexpr TextView onBackground[] = {
    u"Frame1", u"Frame2",  u"Frame3",     u"Frame4",   u"Frame5",     u"Frame6",    u"Frame8",
    u"Label1", u"Label2",  u"Label3",     u"Label4",   u"Label5",     u"Label6",    u"Label7",
    u"blende", u"Check33", u"insertmode", u"checkrnd", u"Checksound", u"clipcheck", u"Checkob"};

template <class Schemes>
auto schemeOf(const Schemes& schemes, int scheme) -> decltype(schemes.data()) {
    const auto index = static_cast<std::size_t>(scheme - 1);
    return index < schemes.size() ? &schemes[index] : nullptr;
}

void colour(Control& control, const Colour& text, const Colour& back) {
    control.foreColour = text;
    control.backColour = back;
}

}  // namespace

void applyTextScheme(Pultform& window, int scheme) {
    const TextScheme* const colours = schemeOf(textSchemes, scheme);
    if (colours == nullptr) return;
    CalculatorState& s = window.state;
    for (Control* panel : {static_cast<Control*>(&s.zwischen), static_cast<Control*>(&s.txtop),
                           static_cast<Control*>(&s.Texterror)}) {
        colour(*panel, colours->panelText, colours->panel);
    }
    for (TextField& cell : s.memo) colour(cell, colours->panelText, colours->panel);
    colour(s.eingabe, colours->entryText, colours->entry);
    s.eingabeForeColor = colours->entryText;  // what the release of the key puts back
}

void applyBackScheme(Pultform& window, HelpWindow& help, int scheme) {
    const Colour* const back = schemeOf(backSchemes, scheme);
    if (back == nullptr) return;
    window.backColour = *back;
    for (const TextView name : onBackground) window.find(name)->backColour = *back;
    for (TextField* line : {&help.Text6, &help.Text1, &help.Text3, &help.Text8}) line->backColour = *back;
    help.backColour = help.hintergrund.backColour = help.Frame2.backColour = *back;
}

int nextTextScheme(int scheme) {
    const auto found = std::find(textSchemeOrder.begin(), textSchemeOrder.end(), scheme);
    if (found == textSchemeOrder.end() || found + 1 == textSchemeOrder.end()) return textSchemeOrder.front();
    return found[1];
}

int nextBackScheme(int scheme) {
    return scheme >= 1 && scheme < static_cast<int>(backSchemes.size()) ? scheme + 1 : 1;
}

}  // namespace zifferon
