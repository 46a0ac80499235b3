#include "platform/text_field.h"

#include <algorithm>
#include <cassert>
#include <utility>

#include "platform/key.h"

namespace zifferon {

TextFollower::TextFollower(TextField& field) : field_(field) { field_.followers_.push_back(this); }

TextFollower::~TextFollower() { std::erase(field_.followers_, this); }

TextFollower::Ends TextFollower::takeUnchanged() {
    const std::size_t now = field_.text().size();
    const std::size_t shorter = std::min(std::exchange(length_, now), now);
    Ends ends = std::exchange(unchanged_, {now, now});
    ends.prefix = std::min(ends.prefix, shorter);
    ends.suffix = std::min(ends.suffix, shorter - ends.prefix);
    return ends;
}

void TextField::setText(TextView text) {
    caret_ = selection_ = 0;
    if (text == text_) return;
    changes_.clear();
    text_ = text;
    changed(0);
}

void TextField::append(TextView text) { setTextFrom(text_.size(), text); }

void TextField::setTextFrom(std::size_t position, TextView text) {
    caret_ = selection_ = 0;
    if (TextView(text_).substr(position) == text) return;
    changes_.clear();
    text_.replace(position, Text::npos, text);
    changed(position);
}

void TextField::select(std::size_t start, std::size_t length) {
    caret_ = std::min(start, text_.size());
    selection_ = std::min(length, text_.size() - caret_);
    anchoredAtEnd_ = false;
}

void TextField::handleKey(int code, bool shift) {
    if (code == keyCode::del) {
        if (!locked) replace(caret_, selection_ > 0 ? selection_ : behind(caret_) - caret_, u"");
        return;
    }
    if (shift) return extendSelection(code);
    const bool byLines = multiLine && (code == keyCode::up || code == keyCode::down);
    const bool back = code == keyCode::left || code == keyCode::up;
    const bool on = code == keyCode::right || code == keyCode::down;
    if (selection_ > 0 && !byLines && (back || on)) return setCaret(back ? caret_ : caret_ + selection_);
    if (const auto position = moved(caret_, code)) setCaret(*position);
}

// In one line the keys that leave it command; with Shift they do so too.
bool TextField::selectsBy(int code) const {
    const bool inLine =
        code == keyCode::left || code == keyCode::right || code == keyCode::home || code == keyCode::end;
    return inLine || (multiLine && code >= keyCode::pageUp && code <= keyCode::down);
}

void TextField::extendSelection(int code) {
    const std::size_t end = caret_ + selection_;
    const std::size_t anchor = anchoredAtEnd_ ? end : caret_;
    const auto position = moved(anchoredAtEnd_ ? caret_ : end, code);
    if (!position) return;
    const auto [first, last] = std::minmax(anchor, *position);
    select(first, last - first);
    anchoredAtEnd_ = *position < anchor;
}

// Where a key takes the caret from a position; nothing for a key that does not move it.
std::optional<std::size_t> TextField::moved(std::size_t position, int code) const {
    switch (code) {
        case keyCode::left:
            return before(position);
        case keyCode::right:
            return behind(position);
        case keyCode::up:
            return multiLine ? movedByLines(position, -1) : before(position);
        case keyCode::down:
            return multiLine ? movedByLines(position, 1) : behind(position);
        case keyCode::home:
            return multiLine ? lineStart(position) : 0;
        case keyCode::end:
            return multiLine ? lineEnd(position) : text_.size();
        default:
            break;
    }
    if (!multiLine || (code != keyCode::pageUp && code != keyCode::pageDown)) return std::nullopt;
    return movedByLines(position, code == keyCode::pageUp ? -pageLines : pageLines);
}

std::size_t TextField::movedByLines(std::size_t position, int lines) const {
    std::size_t start = lineStart(position);
    const std::size_t column = position - start;
    for (; lines < 0 && start > 0; ++lines) start = lineStart(start - 1);
    for (; lines > 0; --lines) {
        const std::size_t next = text_.find(u'\n', start);
        if (next == Text::npos) break;
        start = next + 1;
    }
    return std::min(start + column, lineEnd(start));
}

std::size_t TextField::lineStart(std::size_t position) const {
    return position == 0 ? 0 : text_.rfind(u'\n', position - 1) + 1;
}

std::size_t TextField::lineEnd(std::size_t position) const {
    return std::min(text_.find_first_of(u"\r\n", position), text_.size());
}

std::size_t TextField::before(std::size_t position) const {
    const bool lineEnds = TextView(text_).substr(0, position).ends_with(u"\r\n");
    return position - std::min<std::size_t>(position, lineEnds ? 2 : 1);
}

std::size_t TextField::behind(std::size_t position) const {
    const bool lineEnds = TextView(text_).substr(position).starts_with(u"\r\n");
    return std::min<std::size_t>(position + (lineEnds ? 2 : 1), text_.size());
}

void TextField::handleCharacter(char16_t character) {
    if (locked) return;
    if (character == keyCode::back) {
        const std::size_t start = selection_ > 0 ? caret_ : before(caret_);
        return replace(start, caret_ + selection_ - start, u"");
    }
    const bool breaksLine = multiLine && character == keyCode::enter;
    if (!breaksLine && (character < u' ' || character == 0x7F)) return;
    const TextView typed = breaksLine ? TextView(u"\r\n") : TextView(&character, 1);
    const bool full = maxLength > 0 && text_.size() - selection_ + typed.size() > maxLength;
    if (full && !(blankIgnoresLimit && character == u' ')) return;
    replace(caret_, selection_, typed);
}

void TextField::replace(std::size_t start, std::size_t length, TextView by) {
    length = std::min(length, text_.size() - start);
    if (length == 0 && by.empty()) return;
    if (keepsChanges) keepChange(start, TextView(text_).substr(start, length), by);
    text_.replace(start, length, by);
    setCaret(start + by.size());
    changed(start, text_.size() - start - by.size());
}

// Characters typed in one go are one change, up to the end of a line.
void TextField::keepChange(std::size_t start, TextView old, TextView by) {
    const bool goesOn = !changes_.empty() && by.size() == 1 && old.size() <= 1 &&
                        changes_.back().inserted > 0 &&
                        changes_.back().start + changes_.back().inserted == start;
    if (!goesOn) return changes_.push_back({start, Text(old), by.size()});
    changes_.back().old += old;
    changes_.back().inserted += 1;
}

bool TextField::undo() {
    if (changes_.empty() || locked) return false;
    const Change last = std::move(changes_.back());
    changes_.pop_back();
    text_.replace(last.start, last.inserted, last.old);
    select(last.start, last.old.size());
    changed(last.start, text_.size() - last.start - last.old.size());
    return true;
}

void TextField::changed(std::size_t unchangedPrefix, std::size_t unchangedSuffix) {
    assert(caret_ + selection_ <= text_.size());
    for (TextFollower* follower : followers_) {
        TextFollower::Ends& ends = follower->unchanged_;
        ends = {std::min(ends.prefix, unchangedPrefix), std::min(ends.suffix, unchangedSuffix)};
    }
    call(onChange);
}

}  // namespace zifferon
