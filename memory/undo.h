// Undo works on whole copies of the calculator: after each key that can change the calculation its record
// goes into a numbered file; Undo reads the file one below, and deletes the newer one.
#pragma once

#include <functional>
#include <string>

#include "core/calculator_state.h"
#include "platform/files.h"
#include "platform/machine.h"
#include "storage/calculation_record.h"

namespace zifferon {

class Undo {
  public:
    // `record` is the one record of the program: what its last reading told of the switches goes into a
    // snapshot. `showNothingToUndo` shows the window that says so, and returns when it has been closed.
    Undo(CalculatorState& state, CalculationRecord& record, Machine& machine,
         std::function<void()> showNothingToUndo);

    // Removes all snapshots.
    void emptyFolder();

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

    // The memory cells as they were at the start or the last load. A snapshot that cannot be read leaves
    // them.
    void restoreCells();

  private:
    void writeIntoFolder();
    void showInactive();
    void showUnreadable();
    void stepBack();
    void clearEntryAndSign();
    static std::string fileOf(int number);

    CalculatorState& s;
    Machine& machine_;
    std::function<void()> showNothingToUndo_;
    CalculationRecord& record_;
};

}  // namespace zifferon
