// Decodes bytes of any kind as a record. What can be decoded must come through the calculator and back
// unchanged; what cannot must leave the record as it was. Begins with records in the folder `corpus`, among
// them every type of tagged value and both forms of a text.

#include <cstdint>
#include <cstdlib>
#include <string>

#include "platform/posix_files.h"
#include "tests/support/record_bytes.h"

namespace {

using namespace zifferon;

void writeSeeds(Files& files) {
    CalculatorState state;
    files.write("empty", "");
    files.write("fresh", recordBytes(state));
    for (TextField& cell : state.memo) cell.setText(u"1.234,56");
    state.anzeige.setText(u"\r\n12,50      \r\n3,00 ÷   \r\n « « « »  ");
    state.superdruck.setText(u"\r\n                                                   12,50 ");
    state.txtop.setText(u"÷");
    CalculationRecord record(state);
    record.recordRoundingCaption = u"&RND 2";
    record.recordSound = 1;
    int number = 0;
    for (const CalcValue& operand : {CalcValue(43), CalcValue(70000), CalcValue(0.1), CalcValue(u"61"),
                                     CalcValue(Decimal::fromParts(~0U, ~0U, ~0U, 28, true)), CalcValue()}) {
        state.operand = state.pendingOpCode = state.chainActive = operand;
        state.chainTotalled = !state.chainTotalled;
        gatherRecord(record);
        files.write("seed" + std::to_string(++number), bytesOf(record));
    }

    // A long text as a short one would not be written, but is read: a fuzzer gets nowhere with 65,535 bytes.
    RecordWriter writer;
    writer.tagged(Text(u"M1"));
    files.write("long",
                std::string(writer.bytes()) + std::string("\x08\x00\xFF\xFF\x04\x00\x00\x00", 8) + "long");
}

void require(bool holds) {
    if (!holds) std::abort();
}

bool decodes(std::string_view bytes, CalculationRecord& record) {
    const std::string before = bytesOf(record);
    try {
        decodeRecord(bytes, record);
        return true;
    } catch (const RecordFailure&) {
        require(bytesOf(record) == before);
        return false;
    }
}

}  // namespace

extern "C" int LLVMFuzzerInitialize(int*, char***) {
    PosixFiles files("corpus");
    writeSeeds(files);
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    CalculatorState state;
    CalculationRecord record(state);
    state.anzeige.setText(u"\r\n12,50 +   ");
    gatherRecord(record);
    if (!decodes({reinterpret_cast<const char*>(data), size}, record)) return 0;
    const std::string first = bytesOf(record);
    applyCells(record);
    applyFields(record);
    applyVariables(record);

    CalculatorState otherState;
    CalculationRecord other(otherState);
    require(decodes(first, other));
    require(bytesOf(other) == first);

    // The calculator holds a switch as yes or no; a record of its own making has nothing else.
    gatherRecord(record);
    gatherRecord(other);
    const std::string gathered = bytesOf(record);
    require(decodes(gathered, other));
    require(bytesOf(other) == gathered);
    require(other.tape.bytes() == record.tape.bytes());
    return 0;
}
