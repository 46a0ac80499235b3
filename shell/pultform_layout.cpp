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
constexpr Style list{black, white, 9};
constexpr Style printCopy{black, white, 9.75, true, u"Courier New"};
constexpr Style heading{black, desk, 9, true};
constexpr Style previewName{black, yellow, 9, true};
constexpr Style previewText{black, paleYellow, 8.25, false, u"Courier New"};
constexpr Style previewDate{black, lightGrey};
constexpr Style stripe{lightGrey, lightGrey};

// A control, and all that was designed for it. What has one text only says it in both languages.
struct Row {
    Control& control;
    TextView name;
    Place place;
    Style style = onDesk;
    Words caption{};
    Words changedCaption{};          // what a change of the language sets instead
    const Control* frame = nullptr;  // the frame that it is hidden with
    bool visible = true;
    Words spoken{};  // for a screen reader, where the caption does not tell
    TextView picture{};
    Words tip{};
    bool flat = false;
};

constexpr Place wholeWindow{0, 0, 8115, 7710};

void add(Pultform& w, const Row& row) {
    Control& control = row.control;
    w.add(control, row.name);
    control.place = row.place;
    control.foreColour = row.style.foreColour;
    control.backColour = row.style.backColour;
    control.font = {Text(row.style.family), row.style.points, row.style.bold};
    control.frame = row.frame;
    control.visible = row.visible;
    control.picture = row.picture;
    control.flat = row.flat;
    w.say(
        control,
        {.caption = row.caption, .changedCaption = row.changedCaption, .spoken = row.spoken, .tip = row.tip});
}

// In drawing order, as everywhere: later ones lie above earlier ones.
std::vector<Row> desktop(Pultform& w) {
    return {
        {.control = w.Picture1,
         .name = u"Picture1",
         .place = {5700, 120, 2295, 2325},
         .spoken = {u"Schreibtisch am Fenster", u"Desk at the window"},
         .picture = u"desk"},
        {.control = w.Image1, .name = u"Image1", .place = {6850, 1080, 200, 135}, .frame = &w.Picture1},
        {.control = w.state.anzeige,
         .name = u"anzeige",
         .place = {120, 120, 5430, 5535},
         .style = paper,
         .spoken = {u"Rechenstreifen", u"Paper tape"}},
        {.control = w.Frame1, .name = u"Frame1", .place = {120, 6120, 5430, 1455}},
        {.control = w.Frame2,
         .name = u"Frame2",
         .place = {5700, 5985, 2295, 1590},
         .caption = {u"Zwischenspeicher", u"Memory"}},
        {.control = w.Frame3,
         .name = u"Frame3",
         .place = {5700, 2520, 2295, 1395},
         .caption = {u"Optionen", u"Options"}},
        {.control = w.Frame4, .name = u"Frame4", .place = {5790, 6340, 360, 1200}, .frame = &w.Frame2},
        {.control = w.state.zwischen,
         .name = u"zwischen",
         .place = {300, 6405, 5070, 450},
         .style = runningValue,
         .spoken = {u"Zwischensumme", u"Subtotal"}},
        {.control = w.state.eingabe,
         .name = u"eingabe",
         .place = {300, 6960, 4575, 450},
         .style = entryLine,
         .spoken = {u"Eingabe", u"Entry"}},
        {.control = w.state.txtop,
         .name = u"txtop",
         .place = {4970, 6960, 400, 450},
         .style = stateSign,
         .spoken = {u"Rechenzeichen", u"Operator"}},
        {.control = w.state.checkrnd, .name = u"checkrnd", .place = {555, 5745, 870, 330}},
        {.control = w.state.rndleft,
         .name = u"rndleft",
         .place = {120, 5745, 360, 330},
         .style = signKey,
         .caption = {u"<"},
         .spoken = {u"weniger Nachkommastellen", u"fewer decimals"}},
        {.control = w.state.rndright,
         .name = u"rndright",
         .place = {1470, 5745, 360, 330},
         .style = signKey,
         .caption = {u">"},
         .spoken = {u"mehr Nachkommastellen", u"more decimals"}},
        {.control = w.state.spezrnd,
         .name = u"spezrnd",
         .place = {1950, 5812, 195, 195},
         .style = onKey,
         .caption = {u"& "},
         .spoken = {u"auf 0,05 runden", u"round to 0.05"},
         .flat = true},
        {.control = w.nixspez,
         .name = u"nixspez",
         .place = {2205, 5812, 195, 195},
         .style = onKey,
         .spoken = {u"ohne Aufgabe", u"without a task"},
         .flat = true},
        {.control = w.Command3,
         .name = u"Command3",
         .place = {4995, 6995, 350, 380},
         .style = onKey,
         .visible = false,
         .spoken = {u"Fenstergröße", u"Window size"},
         .picture = u"window_size",
         .tip = {u"Fenstergröße (F2)", u"Window size (F2)"}},
        {.control = w.Hilfe,
         .name = u"Hilfe",
         .place = {6885, 4710, 1110, 555},
         .style = onKey,
         .caption = {u"&Hilfe", u"&Help"}},
        {.control = w.cmdexit,
         .name = u"cmdexit",
         .place = {5700, 5340, 2295, 555},
         .style = onKey,
         .caption = {u"E&xit (F12)"}},
        {.control = w.state.zurück,
         .name = u"zurück",
         .place = {4335, 5745, 1215, 330},
         .style = onKey,
         .caption = {u"&Undo"}},
        {.control = w.state.clipcheck,
         .name = u"clipcheck",
         .place = {5850, 2790, 2025, 315},
         .caption = {u"&Clipboard"},
         .frame = &w.Frame3},
        {.control = w.state.Checksound,
         .name = u"Checksound",
         .place = {5850, 3135, 2025, 315},
         .caption = {u"Sou&nd"},
         .frame = &w.Frame3},
        {.control = w.state.Checkob,
         .name = u"Checkob",
         .place = {5850, 3480, 2025, 315},
         .caption = {u"immer im &Vordergrund", u"Always &visible"},
         .frame = &w.Frame3},
        {.control = w.quick.Save,
         .name = u"Save",
         .place = {5700, 4080, 1110, 555},
         .style = onKey,
         .caption = {u"Quick&save"}},
        {.control = w.quick.load,
         .name = u"load",
         .place = {6885, 4080, 1110, 555},
         .style = onKey,
         .caption = {u"Quick&load "}},
        {.control = w.page.edit,
         .name = u"edit",
         .place = {5700, 4710, 1110, 555},
         .style = onKey,
         .caption = {u"&Druck/Edit", u"Print / &Edit"}},
        {.control = w.state.Texterror,
         .name = u"Texterror",
         .place = {375, 6450, 4920, 360},
         .style = message,
         .visible = false,
         .spoken = {u"Meldung", u"Message"}},
    };
}

std::vector<Row> printEditPage(Pultform& w) {
    return {
        {.control = w.page.blende, .name = u"blende", .place = wholeWindow, .visible = false},
        {.control = w.page.blendevorschau,
         .name = u"blendevorschau",
         .place = {120, 60, 7860, 345},
         .visible = false},
        {.control = w.page.vorschaulabel,
         .name = u"vorschaulabel",
         .place = {240, 90, 3600, 285},
         .style = heading,
         .caption = {u"DRUCKVORSCHAU"},
         .frame = &w.page.blendevorschau},
        {.control = w.page.insertmode,
         .name = u"insertmode",
         .place = {6200, 90, 1780, 285},
         .caption = {u"Überschreibmodus"},
         .visible = false},
        {.control = w.page.Check33,
         .name = u"Check33",
         .place = {6200, 90, 1780, 285},
         .caption = {u"Überschreibmodus", u"O&verwrite mode for text box"},
         .visible = false},
        {.control = w.state.superdruck,
         .name = u"superdruck",
         .place = {120, 405, 7860, 4710},
         .style = printCopy,
         .visible = false,
         .spoken = {u"Druckfassung des Rechenstreifens", u"Print copy of the tape"}},
        {.control = w.page.Frame7, .name = u"Frame7", .place = {120, 5205, 7860, 2370}, .visible = false},
        {.control = w.page.leave,
         .name = u"leave",
         .place = {6090, 6990, 1770, 480},
         .style = onKey,
         .caption = {u"&Zurück", u"&Cancel"},
         .frame = &w.page.Frame7},
        {.control = w.page.Frame5,
         .name = u"Frame5",
         .place = {240, 5280, 3780, 2190},
         .caption = {u"Rechnung laden / löschen", u"Load calculation / delete calculation"},
         .frame = &w.page.Frame7},
        {.control = w.page.Files,
         .name = u"Files",
         .place = {375, 5565, 2190, 1770},
         .style = list,
         .frame = &w.page.Frame7,
         .visible = false,
         .spoken = {u"Gespeicherte Rechnungen", u"Stored calculations"}},
        {.control = w.page.laden,
         .name = u"laden",
         .place = {2700, 5565, 1185, 390},
         .style = onKey,
         .caption = {u"Lade&n", u"L&oad"},
         .frame = &w.page.Frame7,
         .visible = false},
        {.control = w.page.killfile,
         .name = u"killfile",
         .place = {2700, 6060, 1185, 390},
         .style = onKey,
         .caption = {u"L&öschen", u"&Delete"},
         .frame = &w.page.Frame7},
        {.control = w.page.Frame6,
         .name = u"Frame6",
         .place = {4140, 5280, 3720, 990},
         .caption = {u"Rechnung speichern", u"Save calculation"},
         .frame = &w.page.Frame7},
        {.control = w.page.savefiles,
         .name = u"savefiles",
         .place = {4275, 5655, 2130, 390},
         .style = paper,
         .frame = &w.page.Frame7,
         .visible = false,
         .spoken = {u"Name der Rechnung", u"Name of the calculation"}},
        {.control = w.page.Speichern,
         .name = u"Speichern",
         .place = {6540, 5655, 1185, 390},
         .style = onKey,
         .caption = {u"S&peichern", u"S&ave"},
         .frame = &w.page.Frame7,
         .visible = false},
        {.control = w.page.editordruck,
         .name = u"editordruck",
         .place = {4140, 6405, 1815, 1065},
         .style = onKey,
         .caption = {u"D&RUCKEN", u"&Print"},
         .frame = &w.page.Frame7},
        {.control = w.page.optbtn,
         .name = u"optbtn",
         .place = {6090, 6405, 1770, 480},
         .style = onKey,
         .caption = {u"Druck&optionen", u"Pri&nt options"},
         .frame = &w.page.Frame7},
        {.control = w.page.Frame8,
         .name = u"Frame8",
         .place = {120, 5280, 7860, 2295},
         .caption = {u"Druckoptionen", u"Print options"},
         .visible = false},
        {.control = w.page.Label1,
         .name = u"Label1",
         .place = {300, 5610, 3600, 255},
         .caption = {u"Schriftart für Ausdruck:", u"Font for printing:"},
         .frame = &w.page.Frame8},
        {.control = w.page.druckcomb,
         .name = u"druckcomb",
         .place = {300, 5895, 3600, 330},
         .style = list,
         .frame = &w.page.Frame8,
         .spoken = {u"Schriftart für Ausdruck", u"Font for printing"}},
        {.control = w.page.Label2,
         .name = u"Label2",
         .place = {4200, 5610, 3600, 255},
         .caption = {u" Zifferon PRO-Drucker:", u" Zifferon PRO printer:"},
         .changedCaption = {u" Zifferon PRO Drucker:", u" Zifferon PRO printer:"},
         .frame = &w.page.Frame8},
        {.control = w.page.allprint,
         .name = u"allprint",
         .place = {4200, 5895, 3600, 330},
         .style = list,
         .frame = &w.page.Frame8,
         .spoken = {u"Drucker", u"Printer"}},
        {.control = w.page.standardprint,
         .name = u"standardprint",
         .place = {4200, 6360, 3600, 435},
         .style = onKey,
         .caption = {u"Als Standarddrucker für &Zifferon PRO definieren",
                     u"Define as standard printer for &Zifferon PRO"},
         .frame = &w.page.Frame8},
        {.control = w.page.cmdkopf,
         .name = u"cmdkopf",
         .place = {300, 6360, 3600, 435},
         .style = onKey,
         .caption = {u"&Briefkopf bearbeiten", u"Edit Lette&rhead"},
         .frame = &w.page.Frame8},
        {.control = w.page.back,
         .name = u"back",
         .place = {5985, 6990, 1815, 435},
         .style = onKey,
         .caption = {u"&Zurück", u"&Cancel"},
         .frame = &w.page.Frame8},
    };
}

void addMemoryCells(Pultform& w) {
    constexpr TextView labels[] = {u"Label3", u"Label4", u"Label5", u"Label6", u"Label7"};
    constexpr TextView cells[] = {u"memo1", u"memo2", u"memo3", u"memo4", u"memo5"};
    constexpr TextView names[] = {u"M1", u"M2", u"M3", u"M4", u"M5"};
    int top = 6255;
    for (std::size_t i = 0; i < w.state.memo.size(); ++i, top += 240) {
        // A pixel lower the letters of a label stand on one line with the figures of its cell.
        add(w, {.control = w.memoLabels[i],
                .name = labels[i],
                .place = {5820, top + 15, 330, 225},
                .caption = {names[i]},
                .frame = &w.Frame2});
        add(w, {.control = w.state.memo[i],
                .name = cells[i],
                .place = {6150, top, 1755, 225},
                .style = cell,
                .frame = &w.Frame2,
                .spoken = {names[i]}});
        w.state.memo[i].accessKey = names[i].back();
    }
}

// The ruled lines over the print copy. The last two stand in exchanged order.
void addStripes(Pultform& w) {
    for (int i = 0; i < 19; ++i) {
        const int line = i == 17 ? 18 : i == 18 ? 17 : i;
        add(w, {.control = w.page.stripes.raster[static_cast<std::size_t>(i)],
                .name = fromUtf8("raster" + std::to_string(i)),
                .place = {240, 660 + 240 * line, 7300, 15},
                .style = stripe,
                .visible = false});
    }
}

// They lie over the stripes.
std::vector<Row> previewBoxes(Pultform& w) {
    return {
        {.control = w.page.txtvorschaulabel,
         .name = u"txtvorschaulabel",
         .place = {430, 810, 6960, 285},
         .style = previewName,
         .visible = false,
         .spoken = {u"Name der Vorschau", u"Name of the preview"}},
        {.control = w.page.txtvorschau,
         .name = u"txtvorschau",
         .place = {430, 1080, 6960, 3300},
         .style = previewText,
         .visible = false,
         .spoken = {u"Vorschau", u"Preview"}},
        {.control = w.page.txtvorschau2,
         .name = u"txtvorschau2",
         .place = {430, 4370, 6960, 315},
         .style = previewDate,
         .visible = false,
         .spoken = {u"Datum der Vorschau", u"Date of the preview"}},
    };
}

}  // namespace

void layOutPultform(Pultform& window) {
    window.backColour = desk;
    for (const Row& row : desktop(window)) add(window, row);
    addMemoryCells(window);
    for (const Row& row : printEditPage(window)) add(window, row);
    addStripes(window);
    for (const Row& row : previewBoxes(window)) add(window, row);
    add(window, {.control = window.page.focuspic, .name = u"focuspic", .place = {-3000, 0, 300, 300}});
    add(window, {.control = window.page.druckblende,
                 .name = u"druckblende",
                 .place = wholeWindow,
                 .style = heading,
                 .caption = {u" printing...."},
                 .visible = false});
}

}  // namespace zifferon
