// The three small windows around a run: the choice of the language, the loading window, the goodbye.
#pragma once

#include <array>
#include <optional>
#include <vector>

#include "platform/key.h"
#include "platform/language.h"
#include "platform/window.h"

namespace zifferon {

// The first run: a button for each language. Tab and the arrows go from one to the other, Enter and the blank
// press the one that has the focus, and D and E press theirs.
class Form3 : public Window {
  public:
    // The focus begins at the language of the desktop.
    explicit Form3(Language ofTheDesktop);

    std::optional<Language> choice() const { return choice_; }

    Control heading{ControlKind::label}, line{ControlKind::label};
    Control Label1{ControlKind::label}, Label2{ControlKind::label};
    Control Command1{ControlKind::button}, Command2{ControlKind::button};
    TextField Picture1;  // hands the keyboard on to the first button

  private:
    void addButton(Control& button, TextView controlName, TextView buttonCaption, int left, Language choice);
    void keyDown(const Control& button, int code);
    void keyPress(char16_t character);
    void choose(Language choice);

    std::optional<Language> choice_;
};

// Nineteen progress cells, filled one after the other, and what is being done.
class Form1 : public Window {
  public:
    explicit Form1(Language language);

    static constexpr int cellCount = 19;

    // Fills the next cell with its text.
    void fillCell(int index);

    // Keys that were typed while it stood, for the calculator.
    const std::vector<Key>& typedAhead() const { return typedAhead_; }

    Control label{ControlKind::label};
    struct Cell : Control {
        Cell() : Control(ControlKind::label) {}
    };
    std::array<Cell, cellCount> cells;
    TextField load;

  private:
    void addLine(Words line);

    Language language_;
    std::vector<Key> typedAhead_;
};

class Form2 : public Window {
  public:
    explicit Form2(Language language);

    Control Label1{ControlKind::label}, Label2{ControlKind::label};
};

}  // namespace zifferon
