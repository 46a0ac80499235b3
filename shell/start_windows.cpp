#include "shell/start_windows.h"

#include "shell/colour_schemes.h"

namespace zifferon {

namespace {

constexpr Colour darkBlue{0, 0, 64};
constexpr Colour paleBlue{192, 192, 255};
constexpr Colour lightGrey{224, 224, 224};

void placeLabel(Control& label, Place place, TextView caption, double points = 8.25, bool bold = false) {
    label.place = place;
    label.caption = caption;
    label.font = {u"Arial", points, bold};
}

}  // namespace

Form3::Form3() {
    name = u"Form3";
    caption = u"Zifferon PRO 5.0 - Setup";
    framed = false;
    place = {0, 0, 5700, 2250};
    add(heading, u"heading");
    add(line, u"line");
    add(Label1, u"Label1");
    add(Label2, u"Label2");
    add(Command1, u"Command1");
    add(Command2, u"Command2");
    add(Picture1, u"Picture1");
    placeLabel(heading, {15, 15, 5670, 345}, u" Zifferon PRO 5.0 - Setup", 9, true);
    heading.foreColour = paleBlue;
    heading.backColour = darkBlue;
    placeLabel(line, {225, 600, 5250, 255},
               u"Bitte wählen Sie Ihre Sprache aus!     Please choose your language!");
    placeLabel(Label1, {900, 1065, 1500, 255}, u"     Deutsch");
    placeLabel(Label2, {3300, 1065, 1500, 255}, u"       English");
    Command1.place = {900, 1380, 1500, 540};
    Command1.caption = u"&Deutsch";
    Command2.place = {3300, 1380, 1500, 540};
    Command2.caption = u"&English";
    Picture1.place = {-3000, 0, 300, 300};
    Picture1.locked = true;
    Command1.onClick = [this] { choose(Choice::german); };
    Command2.onClick = [this] { choose(Choice::english); };
    onActivate = [this] { setFocus(Picture1); };
    onAnswer = [this](BoxAnswer answer) {
        choose(answer == BoxAnswer::english ? Choice::english : Choice::german);
    };
    onDismiss = [this] { visible = false; };
}

void Form3::choose(Choice choice) {
    choice_ = choice;
    visible = false;
}

Form1::Form1(bool english) : english_(english) {
    name = u"Form1";
    caption = english ? u"loading program....." : u"lade Programm.....";
    place = {0, 0, 5100, 2850};
    add(label, u"label");
    add(load, u"load");
    placeLabel(label, {300, 150, 4500, 300},
               english ? u"    Loading Zifferon PRO 5.0..." : u"Zifferon PRO 5.0 wird geladen...", 12, true);
    for (int i = 0; i < cellCount; ++i) {
        Control& cell = cells[static_cast<std::size_t>(i)];
        add(cell, u"cell");
        cell.place = {300 + 225 * i, 570, 195, 240};
        cell.backColour = darkBlue;
        cell.visible = false;
    }
    load.place = {300, 990, 4410, 1200};
    load.font = {u"Arial", 8.25, false};
    load.backColour = lightGrey;
    load.multiLine = true;
    load.locked = true;
    load.takesFocus = true;
    // Alt alone says nothing without the letter that it was pressed for.
    load.onKeyDown = [this](int& code) {
        if (code != keyCode::alt) typedAhead_.push_back({code});
        code = 0;
    };
    load.onKeyPress = [this](char16_t& character) {
        typedAhead_.back().character = std::exchange(character, u'\0');
    };
    onActivate = [this] { setFocus(load); };
    onDismiss = [] {};  // it offers no way out; it goes by itself
}

void Form1::fillCell(int index) {
    cells[static_cast<std::size_t>(index)].visible = true;
    if (index == 0) addLine(u"Initialisiere Programm.....", u"Initializing program.....");
    if (index == 10) addLine(u"Lade Programm-Dateien.....", u"Loading program files.....");
    if (index == 16) addLine(u"Starte Programm.....", u"Starting program.....");
    if (index != cellCount - 1) return;
    caption = english_ ? u"Zifferon PRO 5.0 has been initialized!" : u"Zifferon PRO 5.0 wurde initialisiert!";
}

void Form1::addLine(TextView german, TextView english) {
    if (!load.empty()) load.append(u"\r\n");
    load.append(english_ ? english : german);
}

Form2::Form2(bool english) {
    name = u"Form2";
    caption = programTitle;
    framed = false;
    place = {0, 0, 4200, 1350};
    add(Label1, u"Label1");
    add(Label2, u"Label2");
    placeLabel(Label1, {300, 300, 3600, 300},
               english ? u"Zifferon PRO is closing down." : u"Zifferon PRO wird beendet.", 10.5, true);
    placeLabel(Label2, {300, 720, 3600, 300}, english ? u"See you again!" : u"Auf Wiedersehen!", 10.5, false);
    Label1.alignment = Label2.alignment = Alignment::centre;
}

}  // namespace zifferon
