#include "platform/text_field.h"

#include <algorithm>
#include <utility>

#include "platform/key.h"

namespace zifferon {

void TextField::setText(TextView text) {
    caret_ = selection_ = 0;
    if (text == text_) return;
    text_ = text;
    changed(0);
}

void TextField::append(TextView text) {
    caret_ = selection_ = 0;
    if (text.empty()) return;
    const std::size_t before = text_.size();
    text_ += text;
    changed(before);
}

void TextField::select(std::size_t start, std::size_t length) {
    caret_ = std::min(start, text_.size());
    selection_ = std::min(length, text_.size() - caret_);
}

void TextField::editByKey(int code) {
    switch (code) {
        case keyCode::left:
        case keyCode::up:
            return setCaret(selection_ > 0 || caret_ == 0 ? caret_ : caret_ - 1);
        case keyCode::right:
        case keyCode::down:
            return setCaret(selection_ > 0 ? caret_ + selection_ : caret_ + 1);
        case keyCode::home:
            return setCaret(0);
        case keyCode::end:
            return caretToEnd();
        case keyCode::del:
            if (!locked) replace(caret_, selection_ > 0 ? selection_ : 1, u"");
            return;
        default:
            return;
    }
}

void TextField::typeCharacter(char16_t character) {
    if (locked) return;
    if (character == keyCode::back) {
        if (selection_ > 0) return replace(caret_, selection_, u"");
        if (caret_ > 0) replace(caret_ - 1, 1, u"");
        return;
    }
    if (character < u' ' || character == 0x7F) return;
    const bool full = maxLength > 0 && text_.size() - selection_ >= maxLength;
    if (full && !(blankIgnoresLimit && character == u' ')) return;
    replace(caret_, selection_, TextView(&character, 1));
}

std::size_t TextField::takeUnchangedPrefix() { return std::exchange(unchangedPrefix_, text_.size()); }

void TextField::replace(std::size_t start, std::size_t length, TextView by) {
    length = std::min(length, text_.size() - start);
    if (length == 0 && by.empty()) return;
    text_.replace(start, length, by);
    setCaret(start + by.size());
    changed(start);
}

void TextField::changed(std::size_t unchangedPrefix) {
    unchangedPrefix_ = std::min(unchangedPrefix_, unchangedPrefix);
    call(onChange);
}

}  // namespace zifferon
