// The Print/Edit page over the desk: there the print copy of the tape is edited like any text, by inserting
// or by overwriting. The visible tape and the calculation stay as they are.
#pragma once

#include "core/calculator_state.h"
#include "page/stripes.h"
#include "platform/messages.h"
#include "platform/window.h"
#include "storage/settings.h"

namespace zifferon {

// What belongs to the page beside the print copy and its stripes.
struct TapePageControls {
    Control edit{ControlKind::button};             // on the desk: opens the page
    Control blende{ControlKind::label};            // covers the desk
    Control blendevorschau{ControlKind::picture};  // the head of the page
    CheckBox insertmode;                   // ticked: the next key overwrites; lies hidden below Check33
    CheckBox Check33;                      // ticked: the user wants to overwrite
    Control Frame7{ControlKind::picture};  // the foot of the page
    Control leave{ControlKind::button};

    // Whether always on top was ticked when the page or the help window took it away.
    bool savedAlwaysOnTop = false;
};

class TapePage {
  public:
    TapePage(CalculatorState& state, TapePageControls& controls, Stripes& stripes, Window& window,
             const Messages& messages, const Settings& settings);

    // Hangs the handlers on the controls and on the print copy.
    void wire();

    // Puts the page over the desk, with the focus in the print copy. Whether it overwrites is as it was.
    void open();

    // Takes the page away; the entry gets the focus, and always on top comes back if it was on.
    void leave();

    bool overwriteSuspended() const { return overwriteSuspended_; }
    bool insertNoticeGiven() const { return insertNoticeGiven_; }

  private:
    // In a file: what cannot be written is told to the user, what cannot be read was not on top.
    void keepAlwaysOnTop();
    bool wasAlwaysOnTop() const;
    void setCaptions();
    void showDeskOptions(bool visible);
    void superdruckKeyDown(int& code);
    void leaveOverwritingAtStart();
    void resumeOverwriting();
    void leaveOverwritingByEnter();
    void suspendOverwriting(int& code);
    void switchOverwriting();
    void selectNextCharacter();
    void tellInserting();

    bool overwrites() const { return c.insertmode.ticked(); }

    CalculatorState& s;
    TapePageControls& c;
    Stripes& stripes_;
    Window& window_;
    const Messages& messages_;
    const Settings& settings_;
    bool overwriteSuspended_ = false;  // a Backspace has made way for itself; the next key overwrites again
    bool insertNoticeGiven_ = false;   // an Enter has ended overwriting, and said so
};

}  // namespace zifferon
