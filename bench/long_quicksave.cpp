// long_quicksave LINES: writes a quicksave.zfr into the current folder, the state of a calculation with so
// many lines on both copies of its tape.
#include <cstdlib>
#include <exception>
#include <iostream>

#include "platform/posix_files.h"
#include "storage/calculation_record.h"

int main(int argc, char** argv) {
    using namespace zifferon;
    try {
        CalculatorState state;
        for (int i = argc > 1 ? std::atoi(argv[1]) : 0; i > 0; --i) {
            state.anzeige.append(u"\r\n1.234,56 +   ");
            state.superdruck.append(u"\r\n" + Text(52, u' ') + u"1.234,56 +");
        }
        CalculationRecord record(state);
        gatherRecord(record);
        PosixFiles files;
        writeRecord(files, "quicksave.zfr", record);
        return EXIT_SUCCESS;
    } catch (const std::exception& failure) {
        std::cerr << "long_quicksave: " << failure.what() << '\n';
        return EXIT_FAILURE;
    }
}
