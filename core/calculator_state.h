// The whole state of the calculator: the named text fields, which hold its numbers as text, and the variables
// beside them. There is no other model; every operation parses a field, computes, formats, and writes back.
#pragma once

#include <array>

#include "core/calc_value.h"
#include "core/calls.h"
#include "core/number_text.h"
#include "platform/control.h"
#include "platform/language.h"
#include "platform/text_field.h"
#include "platform/timer.h"

namespace zifferon {

struct CalculatorState {
    CalculatorState();

    // Fields. `zwischen` is the running value, `txtop` the state in one character, `anzeige` the visible
    // tape, `superdruck` its print copy in columns made with blanks; lines end in CR LF.
    //
    // txtop reads: "" nothing pending; + - x ÷ an operator, whose left operand stands in zwischen; "=" a
    // result in eingabe and zwischen; "%" a percent prompt, or a percentage in the entry; "W" a root in the
    // entry; "M" and "R" a prefix that waits for the digit of a cell.
    TextField eingabe{Alignment::right};
    TextField zwischen{Alignment::right};
    TextField txtop{Alignment::centre};
    TextField anzeige{Alignment::right};
    TextField superdruck{Alignment::left};
    std::array<TextField, 5> memo;  // memo1 to memo5
    TextField Texterror{Alignment::centre};

    CheckBox checkrnd;  // its caption is the rounding mode, its tick automatic rounding
    CheckBox Checkob, Checksound, clipcheck;
    Control rndleft{ControlKind::button}, rndright{ControlKind::button}, spezrnd{ControlKind::button};
    Control zurück{ControlKind::button};  // disabled: no Undo, by its key either

    Timer errortimer, messtimer;

    // The chain.
    CalcValue operand;        // the number of the entry as the last operation parsed it, then its result; a
                              // double behind a root or a rounding, a text behind a total of the shown value
    CalcValue accumulator;    // the left operand, parsed from zwischen by each key that computes
    CalcValue pendingOpCode;  // 43 45 42 47 the operator; 37 while a percent prompt is open; 61, as a text or
                              // a number, behind a total; 0 or "" none
    CalcValue chainActive;    // 1 from the first operand in zwischen to the total, cancellation or failure
    bool chainTotalled = false;   // from a total to its closing: its value stands on the tape already
    bool tapeClearArmed = false;  // behind a closed or cancelled calculation: the next C wipes the tape; any
                                  // other key ends it

    // Rounding and format.
    double decimalPlaces = 2;   // of the selector, taken at each key release
    double operandLength = 0;   // of the operand's text, taken where the selector stands at R
    bool roundingDone = false;  // a total has been rounded: once until Enter, W or Undo
    bool roundingDoneSpecial = false, rootDone = false;  // the same for special rounding, which has two
    bool roundingBlock = false;     // a refused rounding eats every press until the release
    Text numberFormat, tapeFormat;  // patterns: entry, zwischen and steps; totals and first numbers
    float formatMode = 1;           // 1 formatted, 2 unformatted; any other leaves the patterns
    double decimalPointStyle = 0;   // 0: comma, 1: point

    // Percent, root and difference.
    bool percentPrompt = false;   // the rate is asked for
    bool percentRunning = false;  // from the percent key to the result; the key down of C and Esc ends it too
    bool percentDone = false;     // the result stands, until Enter, an operator, C, D or Esc
    CalcValue percentBase, percentRate;  // texts, as formatted and as typed
    CalcValue rootRepeat;                // 1 behind the root of a total: W at once takes the next one
    bool differenceStart = false, differenceActive = false;  // from the first prompt to the result, C or Esc
    bool secondValuePrompt = false;                          // the second of the two prompts stands
    bool differenceShown = false;                  // the result stands in zwischen, until the next key
    CalcValue differenceValue1, differenceValue2;  // texts, as typed
    CalcValue differenceOnePercent, differenceDelta, differencePercent;  // doubles
    CalcValue firstValueCheck;                                           // what Enter found in a prompt

    // Latches of the key handlers: set by one of down, press and release for a later one.
    bool enterHeld = false;        // press of Enter, or a refused rounding, to the release: repeats are eaten
    bool skipSnapshot = false;     // the next release takes no snapshot, and clears it
    bool multiplyPressed = false;  // press of * to its release, which takes the key for the keypad's
    bool dividePressed = false;    // the same for /
    bool keyBlockedOnce = false;   // the window of Undo lets its closing key pass by press and release
    bool promptKeyBlocked = false;    // Alt came down in a value prompt: nothing until the next key down
    bool blockedKeyReleased = false;  // Alt came down without a result, or special rounding has run; any
                                      // change of the entry ends it
    bool cellEnterTransfer = false;   // Enter has copied a cell: its release is not the entry's
    bool idleClearLatch = false;      // C or Esc on an empty calculator: further ones are dropped
    double keySound = 0;              // what the tape's next change sounds like: 0, 1 for Enter, 5 for Undo
    Colour eingabeForeColor;          // given back by the release, behind a C that hides its own letter
    bool suppressClipboard = true;    // until the first key that reaches the calculation
    bool tapeDirty = false;           // the tape has changed since the start, a load or the window of Undo
    float messageTicks = 0;           // of the message in Texterror, which stands for two
    Language language = Language::german;  // of all texts that are written from now on

    // Undo.
    int undoCounter = 0;                // number of the step that stands for the present state
    bool undoActive = false;            // whether there are snapshots at all, found out at the start
    bool undoStepPending = false;       // the tape became empty: the next snapshot point counts one step more
    bool tapeEmptied = false;           // the tape is empty: no snapshot is written
    bool specialSnapshotLatch = false;  // the next snapshot point writes nothing

    Calls* calls = nullptr;  // none may be missing when a key arrives

    Separators separators() const { return decimalPointStyle == 1 ? pointStyle : commaStyle; }
    TextView inLanguage(Words words) const { return words.in(language); }
};

// What holds whenever no key is on its way: a running chain has an operator pending and a figure in zwischen,
// unless a prompt stands there, and "=" ends it. Only M and F3 lead out of it: they take the sign of a
// running chain away, and a percent prompt can break into it then.
bool chainHolds(const CalculatorState& state);

// Sets decimalPointStyle and brings the figures that stand in the fields and variables into its separators;
// the lines of both tapes stay as they were printed.
void setDecimalPointStyle(CalculatorState& state, double style);

}  // namespace zifferon
