#include "print/kopf.h"

#include <string>

namespace zifferon {

namespace {

constexpr Colour darkBlue{0, 0, 64};
constexpr Colour paleBlue{192, 192, 255};
constexpr Colour white{255, 255, 255};
constexpr Colour key{214, 214, 214};

// Twips. The columns are where the words of the headings over them come to stand.
constexpr int margin = 165, rowHeight = 330, rowStep = 405;
constexpr int tickLeft = 405, tickWidth = 300, textLeft = 1065, textWidth = 4170, sizeLeft = 5445,
              sizeWidth = 1035, switchLeft = 6750, switchWidth = 2085;

Text blanks(std::size_t count) { return Text(count, u' '); }

}  // namespace

Kopf::Kopf(const Language& language) : language_(language) {
    name = u"kopf";
    caption = programTitle;
    framed = false;  // a frame would have a close box
    place = {0, 0, 9000, 8000};
    onActivate = [this] {
        if (!setFocus(zeile1)) setFocus(Check1);
    };
    onDismiss = [] {};
    addCaptioned(Label1, u"Label1", {15, 15, 8970, 345},
                 {u" Daten für Briefkopf und Fußzeile", u"Data for letterhead"},
                 {u"Daten für Briefkopf und Fußzeile", u"Data for letterhead"});
    Label1.foreColour = paleBlue;
    Label1.backColour = darkBlue;
    Label1.font = {u"Arial", 9, true};
    Label1.alignment = Alignment::centre;
    addHeadLines();
    addFooter();
    addLooks();
    addButtons();
    for (Control* const control : controls()) {
        const bool pressable = control->kind == ControlKind::button || control->kind == ControlKind::checkBox;
        if (pressable) control->takesFocus = true;
        if (control->takesFocus) tabOrder.push_back(control);
    }
    for (const Line& line : lines) {
        line.blank.onClick = [this, &line] { followBlankTick(line); };
    }
}

// The headings of the columns stand over them by their blanks.
void Kopf::addHeadLines() {
    const Text german = u"Leerzeile" + blanks(39) + u"Kopfzeile(n)" + blanks(42) + u"Schriftgröße";
    const Text english = u"Blank line" + blanks(42) + u"Headline" + blanks(47) + u"Font size";
    addCaptioned(Label2, u"Label2", {margin, 480, 6420, 240}, {german, english});
    int top = 765;
    char16_t digit = u'1';
    for (const Line& line : lines) {
        const Text number(1, digit), ofLists(1, digit == u'5' ? u'7' : digit);
        const Text germanName = number + u". Kopfzeile", englishName = u"Headline " + number;
        addTick(line.blank, u"Check" + ofLists, {tickLeft, top, tickWidth, rowHeight},
                {germanName + u" leer", englishName + u" blank"});
        addField(line.text, u"zeile" + number, {textLeft, top, textWidth, rowHeight},
                 {germanName, englishName});
        addSize(line.size, u"Combo" + ofLists, {sizeLeft, top, sizeWidth, rowHeight},
                {u"Schriftgröße der " + germanName, englishName + u": font size"});
        top += rowStep;
        ++digit;
    }
    addCaptioned(checkstamm, u"checkstamm", {switchLeft, 765, switchWidth, rowHeight},
                 {u"&Briefkopf drucken", u"&Print letterhead"});
    addCaptioned(logo, u"logo", {switchLeft, 765 + rowStep, switchWidth, rowHeight}, {u"Logo"});
    addCaptioned(Check5, u"Check5", {textLeft, 2835, textWidth, 300},
                 {u"Trennstrich - &OBEN", u"Horizontal line (&top)"},
                 {u"Trennstrich - &OBEN", u"&Dividing line (top)"});
}

void Kopf::addFooter() {
    addCaptioned(Check6, u"Check6", {textLeft, 3255, textWidth, 300},
                 {u"Trennstrich - &UNTEN", u"Horizontal line (&bottom)"},
                 {u"&Trennstrich - &UNTEN", u"&Dividing line (bottom)"});
    const Text german = blanks(55) + u"Fußzeile(n)" + blanks(46) + u"Schriftgröße" + blanks(28);
    const Text english = blanks(59) + u"Footer" + blanks(53) + u"Font size";
    addCaptioned(Label3, u"Label3", {margin, 3675, 6420, 240}, {german, english});
    nachtext.multiLine = true;
    addField(nachtext, u"nachtext", {textLeft, 3960, textWidth, 1200}, {u"Fußzeilen", u"Footer"});
    addSize(Combo6, u"Combo6", {sizeLeft, 3960, sizeWidth, rowHeight},
            {u"Schriftgröße der Fußzeilen", u"Footer: font size"});
}

void Kopf::addLooks() {
    addCaptioned(Frame3, u"Frame3", {margin, 5310, 8670, 1905}, {u"Schriftart", u"Font type"});
    addCaptioned(Label4, u"Label4", {6450, 5580, 2250, 240}, {u" fett    kursiv", u" bold    italic"});
    const auto addLabel = [this](Control& label, TextView labelName, int row, Words text) {
        addCaptioned(label, labelName, {345, 5850 + row * rowStep, 2700, rowHeight}, text);
    };
    addLabel(Label10, u"Label10", 0, {u"Einstellung für 1. Kopfzeile", u"Settings for first headline"});
    addLabel(Label9, u"Label9", 1, {u"Einstellung für 2. - 5. Kopfzeile", u"Settings 2nd - 5th headline"});
    addLabel(Label8, u"Label8", 2, {u"Einstellung für Fußzeilen", u"Settings for footer"});
    constexpr std::array<TextView, 3> fontNames = {u"Combo5", u"combfoart2", u"combfoart3"};
    constexpr std::array<Words, 3> targets = {{{u"1. Kopfzeile", u"Headline 1"},
                                               {u"2. bis 5. Kopfzeile", u"Headlines 2 to 5"},
                                               {u"Fußzeilen", u"Footer"}}};
    for (std::size_t i = 0; i < looks.size(); ++i) {
        const Look& look = looks[i];
        const int top = look.label.place.top;
        const Text german(targets[i].german), english(targets[i].english);
        const Text number(1, static_cast<char16_t>(u'1' + i));
        addField(look.font, fontNames[i], {3150, top, 3000, rowHeight},
                 {u"Schriftart: " + german, u"Font: " + english});
        addTick(look.bold, u"bold" + number, {6540, top, tickWidth, rowHeight},
                {german + u" fett", english + u" bold"});
        addTick(look.italic, u"kur" + number, {7125, top, tickWidth, rowHeight},
                {german + u" kursiv", english + u" italic"});
        look.label.frame = look.font.frame = look.bold.frame = look.italic.frame = &Frame3;
    }
    Label4.frame = &Frame3;
}

void Kopf::addButtons() {
    addCaptioned(dakill, u"dakill", {margin, 7395, 1800, 420}, {u"Daten &löschen", u"&Delete data"});
    addCaptioned(muster, u"muster", {2115, 7395, 1800, 420}, {u"&Muster", u"&Sample"});
    addCaptioned(kopfok, u"kopfok", {5010, 7395, 3825, 420},
                 {u"Daten &übernehmen und Menü verlassen", u"Save data and &exit"});
    dakill.backColour = muster.backColour = kopfok.backColour = key;
}

void Kopf::addCaptioned(Control& control, TextView controlName, Place controlPlace, Words controlCaption,
                        Words changedCaption) {
    add(control, controlName);
    control.place = controlPlace;
    say(control, {.caption = controlCaption, .changedCaption = changedCaption});
}

void Kopf::addTick(CheckBox& tick, TextView controlName, Place controlPlace, Words spoken) {
    add(tick, controlName);
    tick.place = controlPlace;
    say(tick, {.spoken = spoken});
}

void Kopf::addField(TextField& field, TextView controlName, Place controlPlace, Words spoken) {
    add(field, controlName);
    field.place = controlPlace;
    say(field, {.spoken = spoken});
    field.backColour = white;
    field.takesFocus = true;
}

void Kopf::addSize(ComboBox& size, TextView controlName, Place controlPlace, Words spoken) {
    addField(size, controlName, controlPlace, spoken);
    size.locked = true;  // it is chosen, not typed
    for (int points = 1; points <= 50; ++points) size.rows.push_back(fromUtf8(std::to_string(points)));
    for (const TextView points : {u"55", u"60", u"65", u"70"}) size.rows.emplace_back(points);
    size.setText(u"10");
}

void Kopf::followBlankTick(const Line& line) {
    const bool blank = line.blank.ticked();
    line.text.setText(blank ? blankLineNote() : Text());
    line.text.enabled = !blank;
    line.text.locked = blank;  // the focus stays in a line that is disabled under it
    if (!blank) setFocus(line.text);
}

Text Kopf::blankLineNote() const {
    return language_ == Language::english ? blanks(36) + u"This line will be blank."
                                          : blanks(19) + u"Diese Zeile wird als Leerzeile ausgegeben.";
}

}  // namespace zifferon
