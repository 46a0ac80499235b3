// The quick file, quicksave.zfr: one calculation without a name, with its switches. The next start goes on
// with it.
#pragma once

#include "memory/undo.h"
#include "platform/messages.h"
#include "platform/window.h"
#include "storage/calculation_record.h"

namespace zifferon {

// The buttons of the desk.
struct QuickButtons {
    Control Save{ControlKind::button}, load{ControlKind::button};
};

class QuickFile {
  public:
    // All of them must outlive it.
    QuickFile(CalculationRecord& record, QuickButtons& buttons, Undo& undo, Files& files,
              const Messages& messages)
        : s(record.state),
          record_(record),
          buttons_(buttons),
          undo_(undo),
          files_(files),
          messages_(messages) {}

    void wire();

    // Brings the stored calculation and its switches back. Of a file that cannot be read nothing is taken,
    // and a box says so.
    void restore();

  private:
    void quickSave();
    void quickLoad();
    bool read();
    void apply();

    CalculatorState& s;
    CalculationRecord& record_;
    QuickButtons& buttons_;
    Undo& undo_;
    Files& files_;
    const Messages& messages_;
};

}  // namespace zifferon
