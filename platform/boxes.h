// Modal message boxes. Their text is plain text, whatever a file name in it looks like.
#pragma once

#include "platform/language.h"

namespace zifferon {

enum class BoxIcon { none, information, question, warning, critical };
enum class BoxButtons { ok, yesNo, yesNoCancel };
enum class BoxAnswer { ok = 1, cancel = 2, yes = 6, no = 7, german, english };

constexpr TextView programTitle = u"Zifferon PRO 5.0";

struct Box {
    BoxIcon icon = BoxIcon::none;
    BoxButtons buttons = BoxButtons::ok;
    Text title = Text(programTitle);
    Text text;
    Language language = Language::german;  // of the buttons
    bool noIsDefault = false;              // the default button is No instead of the first
};

class Boxes {
  public:
    virtual ~Boxes() = default;

    // Shows the box and waits for the answer. Closed otherwise, as by Esc, it answers ok or cancel; a
    // question without Cancel cannot be closed otherwise.
    virtual BoxAnswer show(const Box& box) = 0;
};

}  // namespace zifferon
