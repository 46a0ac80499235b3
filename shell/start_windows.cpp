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

Form3::Form3(Language ofTheDesktop) {
    name = u"Form3";
    caption = u"Zifferon PRO 5.0 - Setup";
    framed = false;
    place = {0, 0, 5700, 2250};
    add(heading, u"heading");
    add(line, u"line");
    add(Label1, u"Label1");
    add(Label2, u"Label2");
    add(Picture1, u"Picture1");
    placeLabel(heading, {15, 15, 5670, 345}, u" Zifferon PRO 5.0 - Setup", 9, true);
    heading.foreColour = paleBlue;
    heading.backColour = darkBlue;
    placeLabel(line, {225, 600, 5250, 255},
               u"Bitte wählen Sie Ihre Sprache aus!     Please choose your language!");
    // Further left by half of the blanks, so that the words stand above the middle of the buttons.
    placeLabel(Label1, {790, 1065, 1500, 255}, u"     Deutsch");
    placeLabel(Label2, {3145, 1065, 1500, 255}, u"       English");
    line.alignment = Label1.alignment = Label2.alignment = Alignment::centre;
    addButton(Command1, u"Command1", u"&Deutsch", 900, Language::german);
    addButton(Command2, u"Command2", u"&English", 3300, Language::english);
    Command1.picture = u"flag_de";
    Command2.picture = u"flag_en";
    Picture1.place = {-3000, 0, 300, 300};
    Picture1.locked = true;
    Picture1.onGotFocus = [this, ofTheDesktop] {
        setFocus(ofTheDesktop == Language::german ? Command1 : Command2);
    };
    onActivate = [this] { setFocus(Picture1); };
    onAnswer = [this](BoxAnswer answer) {
        choose(answer == BoxAnswer::english ? Language::english : Language::german);
    };
    onDismiss = [this] { visible = false; };
}

void Form3::addButton(Control& button, TextView controlName, TextView buttonCaption, int left,
                      Language choice) {
    add(button, controlName);
    button.place = {left, 1380, 1500, 540};
    button.caption = buttonCaption;
    button.onClick = [this, choice] { choose(choice); };
    button.onKeyDown = [this, &button](int& code) { keyDown(button, code); };
    button.onKeyPress = [this](char16_t& character) { keyPress(character); };
}

void Form3::keyDown(const Control& button, int code) {
    const bool arrow = code >= keyCode::left && code <= keyCode::down;
    if (arrow || code == keyCode::tab) setFocus(&button == &Command1 ? Command2 : Command1);
}

void Form3::keyPress(char16_t character) {
    if (character == u'd' || character == u'D') choose(Language::german);
    if (character == u'e' || character == u'E') choose(Language::english);
}

void Form3::choose(Language choice) {
    choice_ = choice;
    visible = false;
}

Form1::Form1(Language language) : language_(language) {
    name = u"Form1";
    caption = Words{u"lade Programm.....", u"loading program....."}.in(language);
    place = {0, 0, 6000, 2850};
    add(label, u"label");
    add(load, u"load");
    placeLabel(label, {300, 150, 5400, 300},
               Words{u"Zifferon PRO 5.0 wird geladen...", u"    Loading Zifferon PRO 5.0..."}.in(language),
               12, true);
    for (int i = 0; i < cellCount; ++i) {
        Control& cell = cells[static_cast<std::size_t>(i)];
        add(cell, u"cell");
        cell.place = {300 + 283 * i, 570, 240, 240};
        cell.backColour = darkBlue;
        cell.visible = false;
    }
    load.place = {300, 990, 5334, 1200};
    load.font = {u"Arial", 8.25, false};
    load.backColour = lightGrey;
    load.multiLine = true;
    load.locked = true;
    load.bare = true;
    load.accessibleName = label.caption;
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
    closeable = false;  // it goes by itself
    onDismiss = [] {};
}

void Form1::fillCell(int index) {
    cells[static_cast<std::size_t>(index)].visible = true;
    if (index == 0) addLine({u"Initialisiere Programm.....", u"Initializing program....."});
    if (index == 10) addLine({u"Lade Programm-Dateien.....", u"Loading program files....."});
    if (index == 16) addLine({u"Starte Programm.....", u"Starting program....."});
    if (index != cellCount - 1) return;
    caption = Words{u"Zifferon PRO 5.0 wurde initialisiert!", u"Zifferon PRO 5.0 has been initialized!"}.in(
        language_);
}

void Form1::addLine(Words line) {
    if (!load.empty()) load.append(u"\r\n");
    load.append(line.in(language_));
}

Form2::Form2(Language language) {
    name = u"Form2";
    caption = programTitle;
    framed = false;
    place = {0, 0, 4200, 1350};
    add(Label1, u"Label1");
    add(Label2, u"Label2");
    placeLabel(Label1, {300, 300, 3600, 300},
               Words{u"Zifferon PRO wird beendet.", u"Zifferon PRO is closing down."}.in(language), 10.5,
               true);
    placeLabel(Label2, {300, 720, 3600, 300}, Words{u"Auf Wiedersehen!", u"See you again!"}.in(language),
               10.5, false);
    Label1.alignment = Label2.alignment = Alignment::centre;
}

}  // namespace zifferon
