// Undo works on whole copies of the calculator: after each key that can change the calculation its record
// becomes a numbered snapshot; Undo reads the one below, and takes the newer one away.
#pragma once

#include <optional>

#include "core/calculator_state.h"
#include "memory/memory_state.h"
#include "memory/message_window.h"
#include "memory/snapshots.h"
#include "platform/machine.h"
#include "platform/messages.h"
#include "storage/calculation_record.h"

namespace zifferon {

class Undo {
  public:
    // `record` is the one record of the program: what its last reading told of the switches goes into a
    // snapshot.
    Undo(CalculatorState& state, MemoryState& memory, CalculationRecord& record, Machine& machine,
         const Messages& messages);

    // Removes all snapshots.
    void emptyFolder() { snapshots_.clear(); }

    // The first state of a run: the numbers begin at 0, and snapshot 0 is written, as below.
    void begin();

    // The snapshot point at the end of a key release.
    void takeUndoSnapshot();

    // Writes the present state under the number of undoCounter. When that fails a box says so and the process
    // ends: no step may go by without its copy.
    void writeSnapshotFile();

    // One step back. The first Undo after typing only clears the entry.
    void applyUndo();

    // Feeds the change handlers of the tape and of the subtotal line.
    void anzeigeChanged();
    void zwischenChanged();

    // The window that says that there is nothing to undo, while it is open; else null.
    Window* message() { return message_ ? &*message_ : nullptr; }

  private:
    // The memory cells as they were at the start or the last load. A snapshot that cannot be read leaves
    // them.
    void restoreCells();
    void showNothingToUndo();
    void showInactive();
    void showUnreadable();
    void stepBack();
    void keep();
    void apply();
    void returnToKept();
    void clearEntryAndSign();

    CalculatorState& s;
    MemoryState& memory_;
    Machine& machine_;
    const Messages& messages_;
    CalculationRecord& record_;
    Snapshots snapshots_;
    std::optional<MessageWindow> message_;

    // The calculation before an Undo that has landed on a gap, for as long as the one that goes on from there
    // may fail.
    struct Kept {
        int counter = 0;
        std::string bytes;
    };
    std::optional<Kept> kept_;
};

}  // namespace zifferon
