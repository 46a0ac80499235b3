#include "shell/language.h"

#include <array>

namespace zifferon {

namespace {

struct Caption {
    TextView control, german, english;
    TextView changedToEnglish{};  // where it differs from that of the start
};

constexpr std::array windowCaptions = {
    Caption{u"Hilfe", u"&Hilfe", u"&Help"},
    Caption{u"edit", u"&Druck/Edit", u"Print / &Edit"},
    Caption{u"Checksound", u"Sou&nd", u"Sou&nd"},
    Caption{u"Checkob", u"immer im &Vordergrund", u"Always &visible"},
    Caption{u"Frame2", u"Zwischenspeicher", u"Memory"},
    Caption{u"laden", u"Lade&n", u"L&oad"},
    Caption{u"killfile", u"L&öschen", u"&Delete"},
    Caption{u"Label1", u"Schriftart für Ausdruck:", u"Font for printing:"},
    Caption{u"Frame5", u"Rechnung laden / löschen", u"Load calculation / delete calculation"},
    Caption{u"Frame6", u"Rechnung speichern", u"Save calculation"},
    Caption{u"Speichern", u"S&peichern", u"S&ave"},
    Caption{u"Check33", u"Überschreibmodus", u"O&verwrite mode for text box"},
    Caption{u"editordruck", u"D&RUCKEN", u"&Print"},
    Caption{u"cmdkopf", u"&Briefkopf bearbeiten", u"Edit Lette&rhead"},
    Caption{u"Label2", u" Zifferon PRO Drucker:", u" Zifferon PRO printer:"},
    Caption{u"standardprint", u"Als Standarddrucker für &Zifferon PRO definieren",
            u"Define as standard printer for &Zifferon PRO"},
    Caption{u"optbtn", u"Druck&optionen", u"Pri&nt options"},
    Caption{u"Frame8", u"Druckoptionen", u"Print options"},
    Caption{u"back", u"&Zurück", u"&Cancel"},
    Caption{u"leave", u"&Zurück", u"&Cancel"},
    Caption{u"Frame3", u"Optionen", u"Options"}};

constexpr std::array letterheadCaptions = {
    Caption{u"Label1", u"Daten für Briefkopf und Fußzeile", u"Data for letterhead"},
    Caption{u"Label4", u" fett    kursiv", u" bold    italic"},
    Caption{u"Frame3", u"Schriftart", u"Font type"},
    Caption{u"Label10", u"Einstellung für 1. Kopfzeile", u"Settings for first headline"},
    Caption{u"Label9", u"Einstellung für 2. - 5. Kopfzeile", u"Settings 2nd - 5th headline"},
    Caption{u"Label8", u"Einstellung für Fußzeilen", u"Settings for footer"},
    Caption{u"dakill", u"Daten &löschen", u"&Delete data"},
    Caption{u"muster", u"&Muster", u"&Sample"},
    Caption{u"kopfok", u"Daten &übernehmen und Menü verlassen", u"Save data and &exit"},
    Caption{u"Check5", u"Trennstrich - &OBEN", u"Horizontal line (&top)", u"&Dividing line (top)"},
    Caption{u"Check6", u"&Trennstrich - &UNTEN", u"Horizontal line (&bottom)", u"&Dividing line (bottom)"},
    Caption{u"checkstamm", u"&Briefkopf drucken", u"&Print letterhead"}};

Text blanks(std::size_t count) { return Text(count, u' '); }

// The headings of the letterhead's columns stand over them by their blanks.
void setHeadings(Kopf& kopf, Language language) {
    const bool english = language == Language::english;
    kopf.Label2.caption = english
                              ? u"Blank line" + blanks(42) + u"Headline" + blanks(47) + u"Font size"
                              : u"Leerzeile" + blanks(39) + u"Kopfzeile(n)" + blanks(42) + u"Schriftgröße";
    kopf.Label3.caption = english ? blanks(59) + u"Footer" + blanks(53) + u"Font size"
                                  : blanks(55) + u"Fußzeile(n)" + blanks(46) + u"Schriftgröße" + blanks(28);
}

template <class Captions, class Choose>
void setCaptions(Window& window, const Captions& captions, Choose choose) {
    for (const Caption& caption : captions) window.find(caption.control)->caption = choose(caption);
}

TextView atStart(const Caption& caption) { return caption.english; }

TextView changedToEnglish(const Caption& caption) {
    return caption.changedToEnglish.empty() ? caption.english : caption.changedToEnglish;
}

TextView changedToGerman(const Caption& caption) { return caption.german; }

void setTips(Pultform& window, Language language) {
    window.Command3.toolTip = Words{u"Fenstergröße (F2)", u"Window size (F2)"}.in(language);
    window.Command3.accessibleName = Words{u"Fenstergröße", u"Window size"}.in(language);
}

}  // namespace

void setEnglishCaptions(Pultform& window, Kopf& kopf) {
    setCaptions(window, windowCaptions, atStart);
    setTips(window, Language::english);
    setCaptions(kopf, letterheadCaptions, atStart);
    setHeadings(kopf, Language::english);
}

void changeCaptions(Pultform& window, Kopf& kopf, Language language) {
    const auto choose = language == Language::english ? changedToEnglish : changedToGerman;
    setCaptions(window, windowCaptions, choose);
    setTips(window, language);
    setCaptions(kopf, letterheadCaptions, choose);
    setHeadings(kopf, language);
}

}  // namespace zifferon
