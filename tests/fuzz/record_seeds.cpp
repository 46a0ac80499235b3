// Makes the records that the fuzz target begins with: record_seeds FOLDER writes one file for each, among
// them every type of tagged value and both forms of a text.

#include <iostream>

#include "platform/posix_files.h"
#include "storage/calculation_record.h"

namespace {

using namespace zifferon;

void writeSeeds(Files& files) {
    CalculatorState state;
    CalculationRecord record(state);
    int number = 0;
    const auto write = [&] {
        gatherRecord(record);
        writeRecord(files, "seed" + std::to_string(number++), record);
    };
    files.readOrCreate("empty");
    write();
    for (TextField& cell : state.memo) cell.setText(u"1.234,56");
    state.anzeige.setText(u"\r\n12,50      \r\n3,00 ÷   \r\n « « « »  ");
    state.superdruck.setText(u"\r\n                                                   12,50 ");
    state.txtop.setText(u"÷");
    record.recordRoundingCaption = u"&RND 2";
    record.recordSound = 1;
    for (const CalcValue& operand : {CalcValue(43), CalcValue(70000), CalcValue(0.1), CalcValue(u"61"),
                                     CalcValue(Decimal::fromParts(~0U, ~0U, ~0U, 28, true)), CalcValue()}) {
        state.operand = state.pendingOpCode = state.chainActive = operand;
        state.chainTotalled = !state.chainTotalled;
        write();
    }

    // A long text as a short one would not be written, but is read: a fuzzer gets nowhere with 65,535 bytes.
    RecordWriter writer;
    writer.tagged(Text(u"M1"));
    std::string bytes(writer.bytes());
    bytes += std::string("\x08\x00\xFF\xFF\x04\x00\x00\x00", 8) + "long";
    files.write("long", bytes);
}

}  // namespace

int main(int count, char** arguments) {
    if (count != 2) {
        std::cerr << "usage: record_seeds FOLDER\n";
        return 2;
    }
    try {
        PosixFiles files(arguments[1]);
        writeSeeds(files);
    } catch (const FileFailure&) {
        std::cerr << "record_seeds: cannot write to " << arguments[1] << '\n';
        return 1;
    }
}
