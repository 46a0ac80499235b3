// A list of rows, of which one or none is selected. Rows count from 1; row 0 is none.
#pragma once

#include <vector>

#include "platform/control.h"

namespace zifferon {

class ListBox : public Control {
  public:
    ListBox() : Control(ControlKind::list) { takesFocus = true; }

    const std::vector<Text>& rows() const { return rows_; }

    // How often the rows have been set, for who shows them.
    unsigned long revision() const { return revision_; }

    // None is selected then.
    void setRows(std::vector<Text> rows);

    int row() const { return row_; }

    // Selects a row, or none; false, and nothing changes, where there is no such row. No handler runs.
    bool select(int row);

    // The user selects: the click handler runs, also for the row that is selected already.
    void choose(int row);

    // The text of the selected row, empty for none.
    TextView selected() const;

    // The keys that move the selection, and a letter, which goes to the next row that begins with it. What
    // they really select is a click.
    void handleKey(int code, bool shift = false) override;
    bool takesCharacters() const override { return true; }
    void handleCharacter(char16_t character) override;

    int pageRows = 8;  // how far Page Up and Page Down go

  private:
    void moveTo(int row);
    int count() const { return static_cast<int>(rows_.size()); }

    std::vector<Text> rows_;
    int row_ = 0;
    unsigned long revision_ = 0;
};

}  // namespace zifferon
