// Decodes bytes of any kind as a record. What can be decoded must come through the calculator and back
// unchanged; what cannot must leave the record as it was.

#include <cstdint>
#include <cstdlib>
#include <string>

#include "storage/calculation_record.h"

namespace {

using namespace zifferon;

std::string encoded(const CalculationRecord& record) {
    const EncodedRecord pieces(record);
    std::string bytes;
    for (const std::string_view piece : pieces.pieces()) bytes += piece;
    return bytes;
}

void require(bool holds) {
    if (!holds) std::abort();
}

bool decodes(std::string_view bytes, CalculationRecord& record) {
    const std::string before = encoded(record);
    try {
        decodeRecord(bytes, record);
        return true;
    } catch (const RecordFailure&) {
        require(encoded(record) == before);
        return false;
    }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    CalculatorState state;
    CalculationRecord record(state);
    state.anzeige.setText(u"\r\n12,50 +   ");
    gatherRecord(record);
    if (!decodes({reinterpret_cast<const char*>(data), size}, record)) return 0;
    const std::string first = encoded(record);
    applyCells(record);
    applyFields(record);
    applyVariables(record);

    CalculatorState otherState;
    CalculationRecord other(otherState);
    require(decodes(first, other));
    require(encoded(other) == first);

    // The calculator holds a switch as yes or no; a record of its own making has nothing else.
    gatherRecord(record);
    gatherRecord(other);
    const std::string gathered = encoded(record);
    require(decodes(gathered, other));
    require(encoded(other) == gathered);
    require(other.tape.bytes() == record.tape.bytes());
    return 0;
}
