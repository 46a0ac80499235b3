// A calculation as the bytes of its record.
#pragma once

#include <string>

#include "storage/calculation_record.h"

namespace zifferon {

inline std::string bytesOf(const CalculationRecord& record) {
    const EncodedRecord encoded(record);
    std::string bytes;
    for (const std::string_view piece : encoded.pieces()) bytes += piece;
    return bytes;
}

inline std::string recordBytes(CalculatorState& state) {
    CalculationRecord record(state);
    gatherRecord(record);
    return bytesOf(record);
}

}  // namespace zifferon
