// Storing the whole calculation under a name, bringing a stored one back, and deleting one.
#pragma once

#include "core/calculator_state.h"
#include "memory/undo.h"
#include "page/file_list.h"
#include "page/page_controls.h"
#include "page/preview.h"
#include "platform/machine.h"
#include "platform/messages.h"
#include "platform/window.h"
#include "storage/calculation_record.h"

namespace zifferon {

class StoredCalculations {
  public:
    struct Parts {
        CalculatorState& state;
        CalculationRecord& record;
        PageControls& controls;
        FileList& list;
        Preview& preview;
        Undo& undo;
        Window& window;
        Files& files;
        const Messages& messages;
    };
    explicit StoredCalculations(const Parts& parts) : p(parts), s(p.state), c(p.controls) {}

    void wire();

  private:
    void saveCalculation();
    bool nameIsRefused();
    bool mayOverwrite(const std::string& file);
    bool store(const std::string& file);
    void loadByButton();
    void loadByList();
    bool confirmLoad();
    void loadRecord(bool byButton);
    void readPicked(bool byButton);
    void deleteCalculation();
    void removePicked();
    void tellDeleted();
    void afterFailedDeletion(FileTrouble trouble);
    bool warnOfNoRow(const Messages& messages);
    void focusName();

    const Parts p;
    CalculatorState& s;
    PageControls& c;
};

}  // namespace zifferon
