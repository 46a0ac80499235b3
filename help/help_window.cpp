#include "help/help_window.h"

#include "help/addresses.h"
#include "platform/key.h"

namespace zifferon {

namespace {

constexpr Colour key{214, 214, 214};
constexpr Place outside{-3000, 0, 300, 300};

// The quick reference is 503 by 326 pixels.
constexpr Place reference{120, 120, 7545, 4890};

}  // namespace

HelpWindow::HelpWindow() {
    name = u"Help";
    place = {0, 0, 7875, 7290};
    add(hintergrund, u"hintergrund");
    hintergrund.place = {0, 0, 7785, 6915};
    add(referenzd, u"referenzd");
    add(referenze, u"referenze");
    referenzd.place = referenze.place = reference;
    referenzd.picture = u"reference_de";
    referenze.picture = u"reference_en";
    referenzd.accessibleName = u"Kurzanleitung";
    referenze.accessibleName = u"Quick Reference";
    addTexts();
    addButtons();
    add(Picture1, u"Picture1");
    Picture1.place = outside;
    Picture1.takesFocus = true;
    Picture1.onClick = [this] { setFocus(Picture1); };
    add(Timer2, u"Timer2");
    tabOrder = {&Text6,    &puzzle1,  &Command5, &printhelp, &Command4,
                &Command3, &Command2, &Command1, &Picture2,  &Picture1};
    onDismiss = [this] { visible = false; };
    for (Control* const control : controls()) {
        control->onKeyDown = [this](int& code) {
            if (code == keyCode::escape) visible = false;
        };
    }
    setCaptions(Language::german);
    setTitle(Language::german);
    showReference(Language::german);
}

void HelpWindow::addTexts() {
    add(Frame2, u"Frame2");
    Frame2.place = {120, 5115, 3900, 1680};
    const auto addText = [this](TextField& field, TextView fieldName, int top, TextView text) {
        add(field, fieldName);
        field.place = {270, top, 3600, 330};
        field.setText(text);
        field.font = {u"Arial", 8.25, false};
        field.locked = true;
        field.frame = &Frame2;
        field.onClick = [this] { setFocus(Picture1); };
    };
    addText(Text6, u"Text6", 5310, u"Zifferon PRO 5.0");
    Text6.font.bold = true;
    addText(Text1, u"Text1", 5655, u"Tischrechner mit virtuellem Rechenstreifen");
    addText(Text3, u"Text3", 6000, u"Desktop calculator with a virtual paper tape");
    addText(Text8, u"Text8", 6345, webSiteName);
    Text6.onDoubleClick = [this] { showPuzzleButton(); };
    Text6.onGotFocus = [this] { Text6.selectAll(); };
    Text6.onLostFocus = [this] { Text6.setCaret(0); };
    Text6.doWhenConfirmed([this] { showPuzzleButton(); });
    Text1.onGotFocus = [this] { setFocus(Picture1); };
}

void HelpWindow::addButtons() {
    const auto addButton = [this](Control& button, TextView buttonName, Place buttonPlace) {
        add(button, buttonName);
        button.place = buttonPlace;
        button.backColour = key;
        button.doWhenConfirmed([&button] { button.click(); });
    };
    addButton(puzzle1, u"puzzle1", {4350, 1712, 605, 375});
    puzzle1.picture = u"puzzle_button";
    puzzle1.accessibleName = u"Puzzle";
    puzzle1.visible = false;
    puzzle1.onMouseUp = [this] { setFocus(Command1); };
    addButton(Command5, u"Command5", {4140, 5160, 2340, 480});
    addButton(printhelp, u"printhelp", {6570, 5160, 525, 480});
    addButton(Command4, u"Command4", {7140, 5160, 525, 480});
    printhelp.picture = u"printer";
    Command4.picture = u"letter";
    addButton(Command3, u"Command3", {4140, 5730, 1710, 480});
    addButton(Command2, u"Command2", {5955, 5730, 1710, 480});
    addButton(Command1, u"Command1", {4140, 6300, 2340, 480});
    add(Picture2, u"Picture2");
    Picture2.place = {6570, 6300, 1095, 480};
    Picture2.picture = u"web_site";
    Picture2.accessibleName = webSiteName;
    Picture2.toolTip = webSiteName;
    Picture2.doWhenConfirmed([this] { Picture2.click(); });
    Command3.caption = u"Deutsch";
    Command3.picture = u"flag_de";
    Command2.caption = u"English";
    Command2.picture = u"flag_en";
    Command1.onClick = [this] { visible = false; };
}

void HelpWindow::setCaptions(Language language) {
    Command5.caption = Words{u"&Benutzerleitfaden", u"Show User's &Guide"}.in(language);
    Command1.caption = Words{u"Hilfe &schließen", u"&Exit help"}.in(language);
}

void HelpWindow::setTitle(Language language) {
    caption = Words{u"Zifferon PRO 5.0 - Hilfe", u"Zifferon PRO 5.0 - Help"}.in(language);
    printhelp.toolTip = Words{u"Kurzanleitung ausdrucken", u"Print Quick Reference"}.in(language);
    Command4.toolTip = Words{u"E-Mail", u"email"}.in(language);
    Picture1.accessibleName = caption;
    for (TextField* const line : {&Text6, &Text1, &Text3, &Text8}) {
        line->accessibleName = Words{u"Über das Programm", u"About the program"}.in(language);
    }
    printhelp.accessibleName = printhelp.toolTip;
    Command4.accessibleName = Command4.toolTip;
}

void HelpWindow::showReference(Language language) {
    referenze.visible = language == Language::english;
    referenzd.visible = language == Language::german;
}

}  // namespace zifferon
