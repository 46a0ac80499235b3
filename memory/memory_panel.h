// The five memory cells: text fields that hold one number as text, or nothing. A value reaches a cell by the
// prefix M, a double click, or typing; it leaves it by the prefix R, a double click on the cell, or Enter in
// it.
#pragma once

#include "core/calculator_state.h"
#include "memory/memory_state.h"
#include "platform/messages.h"
#include "platform/window.h"

namespace zifferon {

class MemoryPanel {
  public:
    // `labels` are the labels M1 to M5 beside the cells.
    MemoryPanel(CalculatorState& state, const MemoryState& memory, std::array<Control, 5>& labels,
                Window& window, const Messages& messages)
        : s(state), memory_(memory), labels_(labels), window_(window), messages_(messages) {}

    // Hangs the handlers on the cells, their labels, and the double clicks of the entry and the subtotal
    // line.
    void wire();

    // The key behind the prefix M or R; the caller eats it.
    void memoryStoreStage(char16_t key);
    void memoryRecallStage(char16_t key);

    void restorePendingOperator();

    void messtimerTick();

    // Whether the cell in use held a text when the last key went down.
    bool cellHadText() const { return cellHadText_; }

  private:
    void wireCell(std::size_t index);
    void confirmStore(std::size_t index);
    void storeFirstFree(const Text& value, TextView germanWarning);
    void recall(const Text& value);

    void entryDoubleClick();
    void subtotalDoubleClick();
    void cellDoubleClick(TextField& cell);
    void cellGotFocus(std::size_t index);
    void cellLostFocus(std::size_t index);
    void cellKeyDown(TextField& cell, int& code);
    void cellTransfer(TextField& cell);
    void cellEdit(TextField& cell, int& code);
    void cellKeyPress(TextField& cell, char16_t& key);
    void cellKeyUp(TextField& cell, int code);
    void cellChange(TextField& cell);
    void refuse(TextField& cell);

    bool isNumeric(TextView text) const;
    void focusEntry() { s.calls->focusEntry(); }

    CalculatorState& s;
    const MemoryState& memory_;
    std::array<Control, 5>& labels_;
    Window& window_;
    const Messages& messages_;
    bool cellHadText_ = false;
};

}  // namespace zifferon
