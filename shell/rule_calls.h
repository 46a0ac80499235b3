// What the rules call, where it is done.
#pragma once

#include "core/calls.h"
#include "memory/memory_panel.h"
#include "memory/result_clipboard.h"
#include "memory/undo.h"
#include "platform/key_road.h"
#include "shell/pultform.h"

namespace zifferon {

class RuleCalls : public Calls {
  public:
    RuleCalls(Pultform& window, KeyRoad& keys, Undo& undo, MemoryPanel& cells, ResultClipboard& clipboard,
              Machine& machine)
        : window_(window),
          keys_(keys),
          undo_(undo),
          cells_(cells),
          clipboard_(clipboard),
          machine_(machine) {}

    void takeUndoSnapshot() override { undo_.takeUndoSnapshot(); }
    void writeSnapshotFile() override { undo_.writeSnapshotFile(); }
    void copyEntryToClipboard() override { clipboard_.copyEntry(); }
    void restorePendingOperator() override { cells_.restorePendingOperator(); }
    void memoryStoreStage(char16_t key) override { cells_.memoryStoreStage(key); }
    void memoryRecallStage(char16_t key) override { cells_.memoryRecallStage(key); }
    void SendKeysEx(TextView notation) override;
    void focusEntry() override { window_.setFocus(window_.state.eingabe); }
    void placeTexterror() override { window_.placeTexterror(); }
    void openHelp() override;
    void beep() override { machine_.sound.beep(); }

  private:
    Pultform& window_;
    KeyRoad& keys_;
    Undo& undo_;
    MemoryPanel& cells_;
    ResultClipboard& clipboard_;
    Machine& machine_;
};

}  // namespace zifferon
