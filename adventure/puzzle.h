// A picture puzzle with a stop watch: four pieces lie in a row in random order and are dragged to a board of
// two by two. Solved quickly it tells the next step of the adventure.
#pragma once

#include <array>
#include <chrono>

#include "platform/language.h"
#include "platform/machine.h"
#include "platform/messages.h"
#include "platform/window.h"

namespace zifferon {

class Puzzle : public Window {
  public:
    // `code` is the field that may hold the code word. All must outlive it.
    Puzzle(const TextField& code, const Language& language, const Messages& messages, Machine& machine);

    // Everything as it was designed: before the window is shown, and after it has closed.
    void reset();

    bool nextStepBirds() const { return nextStepBirds_; }
    bool nextStepAuthor() const { return nextStepAuthor_; }
    int puzzleSeconds() const { return puzzleSeconds_; }

    Control Picture01{ControlKind::picture}, Picture02{ControlKind::picture}, Picture03{ControlKind::picture},
        Picture04{ControlKind::picture};  // the board, row by row
    Control Picture1{ControlKind::picture}, Picture2{ControlKind::picture}, Picture3{ControlKind::picture},
        Picture4{ControlKind::picture};  // the pieces
    Control Picture5{ControlKind::picture}, Picture6{ControlKind::picture}, Picture7{ControlKind::picture},
        Picture8{ControlKind::picture};  // each covers the board: the whole picture, two heads, the author
    Control Line5{ControlKind::label};
    TextField Text1;
    Control Command1{ControlKind::button};
    Control timelab{ControlKind::label};
    Control info{ControlKind::menu};

  private:
    struct Quarter {
        Control& field;
        Control& piece;
        TextView drawing;
    };

    void addBoard();
    void addPictures();
    void addTexts();
    void activated();
    void deal();
    void dropped(const Quarter& quarter, Control& dragged);
    void keyPressed(Control& piece, char16_t& digit);
    void solved(const Quarter& last);
    void tellOfTheBirds();
    void tellOfTheAuthor();
    void reportTime();
    void askThePicture();
    void tellTheRules() const;

    const TextField& code_;
    const Language& language_;
    const Messages messages_;
    Machine& machine_;
    const std::array<Quarter, 4> quarters_{{{Picture01, Picture1, u"puzzle_1"},
                                            {Picture02, Picture2, u"puzzle_2"},
                                            {Picture03, Picture3, u"puzzle_3"},
                                            {Picture04, Picture4, u"puzzle_4"}}};
    std::chrono::sys_seconds puzzleStartTime_;
    int puzzleSeconds_ = 0;
    bool nextStepBirds_ = false, nextStepAuthor_ = false;
};

}  // namespace zifferon
