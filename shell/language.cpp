#include "shell/language.h"

#include <array>

namespace zifferon {

namespace {

struct Caption {
    TextView control, german, english;
};

constexpr std::array captions = {
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

}  // namespace

void applyLanguage(Pultform& window, bool english) {
    for (const Caption& caption : captions) {
        if (Control* const control = window.find(caption.control)) {
            control->caption = english ? caption.english : caption.german;
        }
    }
}

}  // namespace zifferon
