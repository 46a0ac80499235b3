#include "platform/combo_box.h"

#include <algorithm>

#include "platform/key.h"

namespace zifferon {

int ComboBox::row() const {
    const auto found = std::find(rows.begin(), rows.end(), text());
    return found == rows.end() ? 0 : static_cast<int>(found - rows.begin()) + 1;
}

void ComboBox::choose(int row) {
    if (row < 1 || row > static_cast<int>(rows.size())) return;
    setText(rows[static_cast<std::size_t>(row - 1)]);
    click();
}

void ComboBox::handleKey(int code, bool shift) {
    if (code == keyCode::up) return choose(row() - 1);
    if (code == keyCode::down) return choose(row() + 1);
    TextField::handleKey(code, shift);
}

}  // namespace zifferon
