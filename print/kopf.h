// The letterhead window. Its controls are the letterhead itself: they are filled at the start, stay for the
// whole run, and are what is printed, whether the window is ever seen or not.
#pragma once

#include <array>

#include "platform/combo_box.h"
#include "platform/language.h"
#include "platform/window.h"

namespace zifferon {

class Kopf : public Window {
  public:
    // `language` is that of the note which stands in a blank line; it outlives the window.
    explicit Kopf(const Language& language);

    CheckBox checkstamm;  // whether letterhead and footer are printed at all
    CheckBox logo;
    TextField zeile1, zeile2, zeile3, zeile4, zeile5;  // the head lines
    CheckBox Check1, Check2, Check3, Check4, Check7;   // which of them are left blank
    ComboBox Combo1, Combo2, Combo3, Combo4, Combo7;   // their sizes in points
    CheckBox Check5, Check6;                           // the rules: below the head lines, above the footer
    TextField nachtext;                                // the footer
    ComboBox Combo6;                                   // its size
    ComboBox Combo5, combfoart2, combfoart3;           // the fonts of line 1, of lines 2 to 5, of the footer
    CheckBox bold1, bold2, bold3;
    CheckBox kur1, kur2, kur3;

    Control Label1{ControlKind::label};
    Control Label2{ControlKind::label}, Label3{ControlKind::label}, Label4{ControlKind::label};
    Control Frame3{ControlKind::frame};
    Control Label10{ControlKind::label}, Label9{ControlKind::label}, Label8{ControlKind::label};
    Control dakill{ControlKind::button}, muster{ControlKind::button}, kopfok{ControlKind::button};

    // A head line with its own controls. Turning `blank` on puts a note in place of the text and disables the
    // line; turning it off leaves the line empty and gives it the focus.
    struct Line {
        TextField& text;
        CheckBox& blank;
        ComboBox& size;
    };
    const std::array<Line, 5> lines{{{zeile1, Check1, Combo1},
                                     {zeile2, Check2, Combo2},
                                     {zeile3, Check3, Combo3},
                                     {zeile4, Check4, Combo4},
                                     {zeile5, Check7, Combo7}}};

    // The looks of line 1, of lines 2 to 5, and of the footer.
    struct Look {
        Control& label;
        ComboBox& font;
        CheckBox& bold;
        CheckBox& italic;
    };
    const std::array<Look, 3> looks{{{Label10, Combo5, bold1, kur1},
                                     {Label9, combfoart2, bold2, kur2},
                                     {Label8, combfoart3, bold3, kur3}}};

  private:
    void addHeadLines();
    void addFooter();
    void addLooks();
    void addButtons();

    // A control with its place in the window and its caption; one without has a name for a screen reader.
    void addCaptioned(Control& control, TextView controlName, Place controlPlace, Words controlCaption,
                      Words changedCaption = {});
    void addTick(CheckBox& tick, TextView controlName, Place controlPlace, Words spoken);
    void addField(TextField& field, TextView controlName, Place controlPlace, Words spoken);
    void addSize(ComboBox& size, TextView controlName, Place controlPlace, Words spoken);

    void followBlankTick(const Line& line);
    Text blankLineNote() const;

    const Language& language_;
};

}  // namespace zifferon
