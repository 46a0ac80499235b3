// What the rules ask of the rooms above.
#pragma once

#include "platform/text.h"

namespace zifferon {

class Calls {
  public:
    virtual ~Calls() = default;

    virtual void takeUndoSnapshot() = 0;           // the snapshot point at the end of a key release
    virtual void writeSnapshotFile() = 0;          // under the number of undoCounter
    virtual void copyEntryToClipboard() = 0;       // only where clipcheck is ticked
    virtual void restorePendingOperator() = 0;     // puts txtop back after a prefix
    virtual void memoryStoreStage(char16_t) = 0;   // the key behind the prefix M
    virtual void memoryRecallStage(char16_t) = 0;  // the key behind the prefix R
    virtual void SendKeysEx(TextView) = 0;         // queues keystrokes behind the present one
    virtual void focusEntry() = 0;                 // gives eingabe the focus
    virtual void placeTexterror() = 0;             // by the height of the window
    virtual void openHelp() = 0;                   // the help file of the language in force
    virtual void beep() = 0;
};

}  // namespace zifferon
