// The quick file, quicksave.zfr: the calculation that the next start goes on with.
#pragma once

#include "core/calculator_state.h"
#include "platform/messages.h"
#include "storage/calculation_record.h"

namespace zifferon {

class QuickFile {
  public:
    QuickFile(CalculatorState& state, CalculationRecord& record, Files& files, const Messages& messages)
        : s(state), record_(record), files_(files), messages_(messages) {}

    // Brings the stored calculation and its switches back. Of a file that cannot be read nothing is taken,
    // and a box says so.
    void restore();

  private:
    void apply();

    CalculatorState& s;
    CalculationRecord& record_;
    Files& files_;
    const Messages& messages_;
};

}  // namespace zifferon
