// A text with rows to choose it from. Rows count from 1; row 0 is none, where the text is none of them.
#pragma once

#include <vector>

#include "platform/text_field.h"

namespace zifferon {

class ComboBox : public TextField {
  public:
    ComboBox() : TextField(Alignment::left, ControlKind::comboBox) { takesFocus = true; }

    std::vector<Text> rows;

    // The first row that is the text.
    int row() const;

    // The user chooses a row: it becomes the text, and the click handler runs, also for the row that the text
    // is already. A row that there is not does nothing.
    void choose(int row);

    // Up and Down choose the row before or behind.
    void handleKey(int code, bool shift = false) override;
};

}  // namespace zifferon
