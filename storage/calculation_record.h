// The record of a calculation: what a stored calculation, the quick file and a snapshot of Undo hold. A file
// holds one record and nothing else; a field is found only by reading those in front of it. See
// tagged_value.h for the encodings.
#pragma once

#include <array>
#include <string>
#include <string_view>

#include "core/calculator_state.h"
#include "platform/files.h"
#include "storage/encoded_text.h"
#include "storage/tagged_value.h"

namespace zifferon {

using MemoryCells = std::array<Text, 5>;

// The twenty fields in the order of the file. Texts and CalcValues stand there as tagged values, the others
// without a type word; a switch is 0 or 1. The record belongs to one calculator, whose tapes it follows.
struct CalculationRecord {
    explicit CalculationRecord(CalculatorState& calculator)
        : state(calculator), tape(calculator.anzeige), printCopy(calculator.superdruck) {}

    CalculatorState& state;

    MemoryCells M;  // M1 to M5
    EncodedText tape;
    Text subtotal, operatorSign, entry;
    EncodedText printCopy;
    double recordAlwaysOnTop = 0;
    float savedChainTotalled = 0;
    CalcValue savedOperand, savedChainActive, savedPendingOpCode;
    float savedTapeClearArmed = 0;
    float recordSound = 0, recordClipboard = 0, recordRoundingTick = 0;
    CalcValue recordRoundingCaption;
};

// The bytes of a record in pieces to be written one behind the other. The long texts are those of the record,
// which must not change meanwhile.
class EncodedRecord {
  public:
    explicit EncodedRecord(const CalculationRecord& record);

    std::array<std::string_view, 5> pieces() const&;
    std::array<std::string_view, 5> pieces() const&& = delete;  // would outlive what they show

  private:
    RecordWriter short_;                       // all but the characters of the long texts
    std::array<std::size_t, 2> longTextAt_{};  // where in it those belong
    std::array<std::string_view, 2> longText_;
};

// The same pieces of bytes that were written so. What cannot be decoded is one piece, and the others are
// empty.
std::array<std::string_view, 5> piecesOf(std::string_view bytes);

// Takes the ten texts and the saved forms of the live variables from the calculator. The switches and the
// rounding stay as they are in the record.
void gatherRecord(CalculationRecord& record);

// Takes recordAlwaysOnTop, recordSound and recordClipboard from the check boxes.
void gatherSwitches(CalculationRecord& record);

// Takes recordRoundingTick and recordRoundingCaption from checkrnd.
void gatherRounding(CalculationRecord& record);

// The print copy in a record's bytes, and nothing else of them; empty where they end before it. Throws
// RecordFailure.
Text printCopyOf(std::string_view bytes, Separators separators);

// Whether the bytes hold all fields up to savedTapeClearArmed, which make the calculation; a file that was
// cut short does not. Throws RecordFailure.
bool isWholeCalculation(std::string_view bytes, const CalculationRecord& record);

// Decodes the fields; tagged ones behind the end become nothing, the others stay as they were. All but the
// tapes come under the separators in use, also what is no text in the place of one. Throws RecordFailure, and
// then the record is as before.
void decodeRecord(std::string_view bytes, CalculationRecord& record);

// Exchanges the file for one with the record; what a longer file held behind it stays, and nothing reads it.
// Throws FileFailure, and then the file is as before.
void writeRecord(Files& files, const std::string& path, const CalculationRecord& record);

// Reads the file into the record; an absent file is created and reads as an empty one. Throws FileFailure or
// RecordFailure, and then the record is as before.
void readRecord(Files& files, const std::string& path, CalculationRecord& record);

// Bringing what has been read to the calculator; change handlers run as for any writing of a field.
void applyCells(const CalculationRecord& record);      // memo1 to memo5
void applyFields(CalculationRecord& record);           // anzeige, zwischen, txtop, eingabe with the caret at
                                                       // its end, superdruck
void applyVariables(const CalculationRecord& record);  // chainTotalled, operand, chainActive, pendingOpCode,
                                                       // tapeClearArmed

// Takes the memory cells of a record's bytes into memo1 to memo5 and nothing else of them. Throws
// RecordFailure, and then no cell has changed.
void restoreCells(std::string_view bytes, CalculatorState& state);

}  // namespace zifferon
