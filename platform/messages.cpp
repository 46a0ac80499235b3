#include "platform/messages.h"

namespace zifferon {

Messages Messages::titled(TextView title) const {
    Messages others = *this;
    others.title_ = title;
    return others;
}

void Messages::say(BoxIcon icon, Words text) const {
    boxes_.show({.icon = icon, .title = title_, .text = Text(text.in(language_)), .language = language_});
}

Box Messages::question(Words text) const {
    return {.icon = BoxIcon::question,
            .buttons = BoxButtons::yesNo,
            .title = title_,
            .text = Text(text.in(language_)),
            .language = language_};
}

bool Messages::confirm(Words text, BoxAnswer byEnter) const {
    Box box = question(text);
    box.noIsDefault = byEnter == BoxAnswer::no;
    return boxes_.show(box) == BoxAnswer::yes;
}

bool Messages::confirmLoss(Words text) const {
    Box box = question(text);
    box.icon = BoxIcon::warning;
    return boxes_.show(box) == BoxAnswer::yes;
}

BoxAnswer Messages::ask(Words text) const {
    Box box = question(text);
    box.buttons = BoxButtons::yesNoCancel;
    return boxes_.show(box);
}

}  // namespace zifferon
