// What the program tells and asks in boxes, in the language in force.
#pragma once

#include "platform/boxes.h"
#include "platform/language.h"

namespace zifferon {

class Messages {
  public:
    // Both must outlive it; the language is looked at anew for each box.
    Messages(Boxes& boxes, const Language& language) : boxes_(boxes), language_(language) {}

    // The same under another title than the program's.
    Messages titled(TextView title) const;

    // A box with an OK: a notice, a warning, and what cannot be mended.
    void tell(Words text) const { say(BoxIcon::information, text); }
    void warn(Words text) const { say(BoxIcon::warning, text); }
    void fail(Words text) const { say(BoxIcon::critical, text); }

    // A question with Yes and No; whether the answer was Yes. Enter alone answers `byEnter`.
    bool confirm(Words question, BoxAnswer byEnter = BoxAnswer::yes) const;

    // One that warns of what a Yes loses.
    bool confirmLoss(Words question) const;

    // One with Yes, No and Cancel.
    BoxAnswer ask(Words question) const;

  private:
    void say(BoxIcon icon, Words text) const;
    Box question(Words text) const;

    Boxes& boxes_;
    const Language& language_;
    Text title_ = Text(programTitle);
};

}  // namespace zifferon
