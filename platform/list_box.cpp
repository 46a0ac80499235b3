#include "platform/list_box.h"

#include <algorithm>
#include <utility>

#include "platform/key.h"

namespace zifferon {

namespace {

// Of the letters in the program's character set.
char16_t lowered(char16_t letter) {
    const bool capital =
        (letter >= u'A' && letter <= u'Z') || (letter >= u'À' && letter <= u'Þ' && letter != u'×');
    return capital ? static_cast<char16_t>(letter + 32) : letter;
}

}  // namespace

void ListBox::setRows(std::vector<Text> rows) {
    rows_ = std::move(rows);
    row_ = 0;
    ++revision_;
}

bool ListBox::select(int row) {
    if (row < 0 || row > count()) return false;
    row_ = row;
    return true;
}

void ListBox::choose(int row) {
    if (select(row)) click();
}

TextView ListBox::selected() const {
    return row_ == 0 ? TextView() : TextView(rows_[static_cast<std::size_t>(row_ - 1)]);
}

void ListBox::handleKey(int code, bool) {
    switch (code) {
        case keyCode::up:
        case keyCode::left:
            return moveTo(row_ - 1);
        case keyCode::down:
        case keyCode::right:
            return moveTo(row_ + 1);
        case keyCode::pageUp:
            return moveTo(row_ - pageRows);
        case keyCode::pageDown:
            return moveTo(row_ + pageRows);
        case keyCode::home:
            return moveTo(1);
        case keyCode::end:
            return moveTo(count());
        default:
            break;
    }
}

void ListBox::handleCharacter(char16_t character) {
    const auto begins = [&](int row) {
        const Text& text = rows_[static_cast<std::size_t>(row - 1)];
        return !text.empty() && lowered(text.front()) == lowered(character);
    };
    for (int step = 1; step <= count(); ++step) {
        const int row = (row_ + step - 1) % count() + 1;
        if (begins(row)) return moveTo(row);
    }
}

void ListBox::moveTo(int row) {
    if (rows_.empty()) return;
    const int wanted = std::clamp(row, 1, count());
    if (wanted != row_) choose(wanted);
}

}  // namespace zifferon
