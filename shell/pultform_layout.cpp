// The designed layout of the main window, in twips from the corner of its client area. On the left the tape,
// and below it the entry block: the window is cut down to these, or to the entry lines alone. On the right,
// from 5700 on, the side panel. Over all of it lies the Print/Edit page when it is open.
#include <string>
#include <vector>

#include "shell/pultform.h"

namespace zifferon {

namespace {

constexpr Colour black{0, 0, 0};
constexpr Colour white{255, 255, 255};
constexpr Colour desk{192, 192, 192};
constexpr Colour key{214, 214, 214};
constexpr Colour panel{0, 0, 64};
constexpr Colour panelText{192, 192, 255};
constexpr Colour lightGrey{224, 224, 224};
constexpr Colour yellow{255, 255, 0};
constexpr Colour paleYellow{255, 255, 192};

struct Style {
    Colour foreColour, backColour;
    double points = 8.25;
    bool bold = false;
    TextView family = u"Arial";
};

constexpr Style onDesk{black, desk};
constexpr Style onKey{black, key};
constexpr Style signKey{black, key, 13.5, true};
constexpr Style cell{panelText, panel, 8.25, true};
constexpr Style runningValue{panelText, panel, 12, true};
constexpr Style message{panelText, panel, 10.5, true};
constexpr Style entryLine{panel, lightGrey, 13.5, true};
constexpr Style stateSign{panelText, panel, 13.5, true};
constexpr Style paper{black, white, 10, true};
constexpr Style printCopy{black, white, 9.75, true, u"Courier New"};
constexpr Style heading{black, desk, 9, true};
constexpr Style previewName{black, yellow, 9, true};
constexpr Style previewText{black, paleYellow, 8.25, false, u"Courier New"};
constexpr Style previewDate{black, lightGrey};
constexpr Style stripe{lightGrey, lightGrey};

struct Row {
    Text name;
    Place place;
    Style style = onDesk;
    Text caption{};
    Text frame{};  // the frame that it is hidden with
    bool visible = true;
    Text spoken{};  // for a screen reader, where the caption does not tell
    Text picture{};
    Text toolTip{};
};

constexpr Place wholeWindow{0, 0, 8115, 7710};
constexpr Place outside{-3000, 0, 300, 300};

std::vector<Row> desktop() {
    return {
        {.name = u"anzeige", .place = {120, 120, 5430, 5535}, .style = paper, .spoken = u"Rechenstreifen"},
        {.name = u"rndleft",
         .place = {120, 5745, 360, 330},
         .style = signKey,
         .caption = u"<",
         .spoken = u"weniger Nachkommastellen"},
        {.name = u"checkrnd", .place = {555, 5745, 870, 330}},
        {.name = u"rndright",
         .place = {1470, 5745, 360, 330},
         .style = signKey,
         .caption = u">",
         .spoken = u"mehr Nachkommastellen"},
        {.name = u"zurück", .place = {4335, 5745, 1215, 330}, .style = onKey, .caption = u"&Undo"},
        {.name = u"Frame1", .place = {120, 6120, 5430, 1455}},
        {.name = u"zwischen",
         .place = {300, 6405, 5070, 450},
         .style = runningValue,
         .spoken = u"Zwischensumme"},
        {.name = u"eingabe", .place = {300, 6960, 4575, 450}, .style = entryLine, .spoken = u"Eingabe"},
        {.name = u"txtop", .place = {4970, 6960, 400, 450}, .style = stateSign, .spoken = u"Rechenzeichen"},
        {.name = u"Command3",
         .place = {4995, 6995, 350, 380},
         .style = onKey,
         .visible = false,
         .spoken = u"Fenstergröße",
         .picture = u"window_size",
         .toolTip = u"Fenstergröße (F2)"},
        {.name = u"Texterror",
         .place = {375, 6450, 4920, 360},
         .style = message,
         .visible = false,
         .spoken = u"Meldung"},
        {.name = u"spezrnd",
         .place = {1950, 5812, 195, 195},
         .style = onKey,
         .caption = u"& ",
         .spoken = u"auf 0,05 runden"},
        {.name = u"nixspez", .place = {2205, 5812, 195, 195}, .style = onKey},

        {.name = u"Picture1",
         .place = {5700, 120, 2295, 2325},
         .spoken = u"Schreibtisch am Fenster",
         .picture = u"desk"},
        {.name = u"Image1", .place = {6850, 1080, 200, 135}},
        {.name = u"Frame3", .place = {5700, 2520, 2295, 1395}, .caption = u"Optionen"},
        {.name = u"clipcheck",
         .place = {5850, 2790, 2025, 315},
         .caption = u"&Clipboard",
         .frame = u"Frame3"},
        {.name = u"Checksound", .place = {5850, 3135, 2025, 315}, .caption = u"Sou&nd", .frame = u"Frame3"},
        {.name = u"Checkob",
         .place = {5850, 3480, 2025, 315},
         .caption = u"immer im &Vordergrund",
         .frame = u"Frame3"},
        {.name = u"Save", .place = {5700, 4080, 1110, 555}, .style = onKey, .caption = u"Quick&save"},
        {.name = u"load", .place = {6885, 4080, 1110, 555}, .style = onKey, .caption = u"Quick&load "},
        {.name = u"edit", .place = {5700, 4710, 1110, 555}, .style = onKey, .caption = u"&Druck/Edit"},
        {.name = u"Hilfe", .place = {6885, 4710, 1110, 555}, .style = onKey, .caption = u"&Hilfe"},
        {.name = u"cmdexit", .place = {5700, 5340, 2295, 555}, .style = onKey, .caption = u"E&xit (F12)"},
        {.name = u"Frame2", .place = {5700, 5985, 2295, 1590}, .caption = u"Zwischenspeicher"},
        {.name = u"Frame4", .place = {5790, 6340, 360, 1200}, .frame = u"Frame2"},
        {.name = u"focuspic", .place = outside},
        {.name = u"Picture11", .place = outside, .visible = false},
    };
}

void addMemoryCells(std::vector<Row>& rows) {
    for (int i = 0; i < 5; ++i) {
        const auto digit = static_cast<char16_t>(u'1' + i);
        const Text cellName = Text(u"M") + digit;
        const int top = 6255 + 240 * i;
        // A pixel lower the letters of a label stand on one line with the figures of its cell.
        rows.push_back({.name = Text(u"Label") + static_cast<char16_t>(digit + 2),
                        .place = {5820, top + 15, 330, 225},
                        .caption = cellName,
                        .frame = u"Frame2"});
        rows.push_back({.name = Text(u"memo") + digit,
                        .place = {6150, top, 1755, 225},
                        .style = cell,
                        .frame = u"Frame2",
                        .spoken = cellName});
    }
}

std::vector<Row> printEditPage() {
    return {
        {.name = u"blende", .place = wholeWindow, .visible = false},
        {.name = u"blendevorschau", .place = {120, 60, 7860, 345}, .visible = false},
        {.name = u"vorschaulabel",
         .place = {240, 90, 3600, 285},
         .style = heading,
         .caption = u"DRUCKVORSCHAU",
         .frame = u"blendevorschau"},
        {.name = u"Check33",
         .place = {6200, 90, 1780, 285},
         .caption = u"Überschreibmodus",
         .visible = false},
        {.name = u"insertmode",
         .place = {6200, 90, 1780, 285},
         .caption = u"Überschreibmodus",
         .visible = false},
        {.name = u"superdruck",
         .place = {120, 405, 7860, 4710},
         .style = printCopy,
         .visible = false,
         .spoken = u"Druckfassung des Rechenstreifens"},
        {.name = u"txtvorschaulabel",
         .place = {430, 810, 6960, 285},
         .style = previewName,
         .visible = false,
         .spoken = u"Name der Vorschau"},
        {.name = u"txtvorschau",
         .place = {430, 1080, 6960, 3300},
         .style = previewText,
         .visible = false,
         .spoken = u"Vorschau"},
        {.name = u"txtvorschau2",
         .place = {430, 4370, 6960, 315},
         .style = previewDate,
         .visible = false,
         .spoken = u"Datum der Vorschau"},

        {.name = u"Frame7", .place = {120, 5205, 7860, 2370}, .visible = false},
        {.name = u"Frame5",
         .place = {240, 5280, 3780, 2190},
         .caption = u"Rechnung laden / löschen",
         .frame = u"Frame7",
         .visible = false},
        {.name = u"Files",
         .place = {375, 5565, 2190, 1770},
         .style = paper,
         .frame = u"Frame7",
         .visible = false,
         .spoken = u"Gespeicherte Rechnungen"},
        {.name = u"laden",
         .place = {2700, 5565, 1185, 390},
         .style = onKey,
         .caption = u"Lade&n",
         .frame = u"Frame7",
         .visible = false},
        {.name = u"killfile",
         .place = {2700, 6060, 1185, 390},
         .style = onKey,
         .caption = u"L&öschen",
         .frame = u"Frame7",
         .visible = false},
        {.name = u"Frame6",
         .place = {4140, 5280, 3720, 990},
         .caption = u"Rechnung speichern",
         .frame = u"Frame7",
         .visible = false},
        {.name = u"savefiles",
         .place = {4275, 5655, 2130, 390},
         .style = paper,
         .frame = u"Frame7",
         .visible = false,
         .spoken = u"Name der Rechnung"},
        {.name = u"Speichern",
         .place = {6540, 5655, 1185, 390},
         .style = onKey,
         .caption = u"S&peichern",
         .frame = u"Frame7",
         .visible = false},
        {.name = u"editordruck",
         .place = {4140, 6405, 1815, 1065},
         .style = onKey,
         .caption = u"D&RUCKEN",
         .frame = u"Frame7",
         .visible = false},
        {.name = u"optbtn",
         .place = {6090, 6405, 1770, 480},
         .style = onKey,
         .caption = u"Druck&optionen",
         .frame = u"Frame7",
         .visible = false},
        {.name = u"leave",
         .place = {6090, 6990, 1770, 480},
         .style = onKey,
         .caption = u"&Zurück",
         .frame = u"Frame7"},

        {.name = u"Frame8", .place = {120, 5280, 7860, 2295}, .caption = u"Druckoptionen", .visible = false},
        {.name = u"Label1",
         .place = {300, 5610, 3600, 255},
         .caption = u"Schriftart für Ausdruck:",
         .frame = u"Frame8"},
        {.name = u"druckcomb",
         .place = {300, 5895, 3600, 330},
         .style = paper,
         .frame = u"Frame8",
         .spoken = u"Schriftart für Ausdruck"},
        {.name = u"Label2",
         .place = {4200, 5610, 3600, 255},
         .caption = u" Zifferon PRO-Drucker:",
         .frame = u"Frame8"},
        {.name = u"allprint",
         .place = {4200, 5895, 3600, 330},
         .style = paper,
         .frame = u"Frame8",
         .spoken = u"Drucker"},
        {.name = u"standardprint",
         .place = {4200, 6360, 3600, 435},
         .style = onKey,
         .caption = u"Als Standarddrucker für &Zifferon PRO definieren",
         .frame = u"Frame8"},
        {.name = u"cmdkopf",
         .place = {300, 6360, 3600, 435},
         .style = onKey,
         .caption = u"&Briefkopf bearbeiten",
         .frame = u"Frame8"},
        {.name = u"back",
         .place = {5985, 6990, 1815, 435},
         .style = onKey,
         .caption = u"&Zurück",
         .frame = u"Frame8"},
        {.name = u"druckblende", .place = wholeWindow, .visible = false},
    };
}

// The ruled lines over the print copy. The last two stand in exchanged order.
void addStripes(std::vector<Row>& rows) {
    for (int i = 0; i < 19; ++i) {
        const int line = i == 17 ? 18 : i == 18 ? 17 : i;
        const std::string number = std::to_string(i);
        rows.push_back({.name = u"raster" + Text(number.begin(), number.end()),
                        .place = {240, 660 + 240 * line, 7300, 15},
                        .style = stripe,
                        .visible = false});
    }
}

void layOut(Pultform& window, const Row& row) {
    Control* const control = window.find(row.name);
    if (control == nullptr) return;
    control->place = row.place;
    control->foreColour = row.style.foreColour;
    control->backColour = row.style.backColour;
    control->font = {Text(row.style.family), row.style.points, row.style.bold};
    if (!row.caption.empty()) control->caption = row.caption;
    control->frame = window.find(row.frame);
    control->visible = row.visible;
    control->accessibleName = row.spoken;
    control->picture = row.picture;
    control->toolTip = row.toolTip;
}

}  // namespace

void layOutPultform(Pultform& window) {
    window.backColour = desk;
    std::vector<Row> rows = desktop();
    addMemoryCells(rows);
    for (const Row& row : rows) layOut(window, row);
    rows = printEditPage();
    addStripes(rows);
    for (const Row& row : rows) layOut(window, row);
}

}  // namespace zifferon
