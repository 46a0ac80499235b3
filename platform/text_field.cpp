#include "platform/text_field.h"

#include <algorithm>
#include <utility>

#include "platform/key.h"

namespace zifferon {

TextFollower::TextFollower(TextField& field) : field_(field) { field_.followers_.push_back(this); }

TextFollower::~TextFollower() { std::erase(field_.followers_, this); }

std::size_t TextFollower::takeUnchangedPrefix() {
    return std::exchange(unchangedPrefix_, field_.text().size());
}

void TextField::setText(TextView text) {
    caret_ = selection_ = 0;
    if (text == text_) return;
    text_ = text;
    changed(0);
}

void TextField::append(TextView text) { setTextFrom(text_.size(), text); }

void TextField::setTextFrom(std::size_t position, TextView text) {
    caret_ = selection_ = 0;
    if (TextView(text_).substr(position) == text) return;
    text_.replace(position, Text::npos, text);
    changed(position);
}

void TextField::select(std::size_t start, std::size_t length) {
    caret_ = std::min(start, text_.size());
    selection_ = std::min(length, text_.size() - caret_);
}

void TextField::editByKey(int code) {
    if (multiLine) {
        switch (code) {
            case keyCode::up:
                return moveByLines(-1);
            case keyCode::down:
                return moveByLines(1);
            case keyCode::pageUp:
                return moveByLines(-pageLines);
            case keyCode::pageDown:
                return moveByLines(pageLines);
            default:
                break;
        }
    }
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

void TextField::moveByLines(int lines) {
    const auto lineStart = [this](std::size_t position) {
        return position == 0 ? 0 : text_.rfind(u'\n', position - 1) + 1;
    };
    std::size_t start = lineStart(caret_);
    const std::size_t column = caret_ - start;
    for (; lines < 0 && start > 0; ++lines) start = lineStart(start - 1);
    for (; lines > 0; --lines) {
        const std::size_t next = text_.find(u'\n', start);
        if (next == Text::npos) break;
        start = next + 1;
    }
    setCaret(std::min(start + column, text_.find_first_of(u"\r\n", start)));
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

void TextField::replace(std::size_t start, std::size_t length, TextView by) {
    length = std::min(length, text_.size() - start);
    if (length == 0 && by.empty()) return;
    text_.replace(start, length, by);
    setCaret(start + by.size());
    changed(start);
}

void TextField::changed(std::size_t unchangedPrefix) {
    for (TextFollower* follower : followers_) {
        follower->unchangedPrefix_ = std::min(follower->unchangedPrefix_, unchangedPrefix);
    }
    call(onChange);
}

}  // namespace zifferon
