#include "programs/tape/tape_command.h"

#include <algorithm>
#include <fstream>
#include <iostream>
#include <optional>
#include <stdexcept>

#include "programs/tape/csv_reader.h"
#include "programs/tape/piped_calculator.h"

namespace zifferon {

namespace {

struct BadCall : std::runtime_error {
    using std::runtime_error::runtime_error;
};

struct Call {
    PipedCalculator::Options calculator;
    std::optional<std::string> column;  // of a table; none: plain keys
    std::optional<std::string> file;
};

// A column by its number from 1, where it is one.
std::optional<std::size_t> numberOf(const std::string& column) {
    const bool digits =
        std::all_of(column.begin(), column.end(), [](char c) { return c >= '0' && c <= '9'; });
    constexpr std::size_t longest = 6;
    if (!digits || column.empty() || column.size() > longest || column.front() == '0') return std::nullopt;
    return std::stoul(column);
}

Call callOf(const std::vector<std::string>& arguments) {
    Call call;
    for (auto word = arguments.begin(); word != arguments.end(); ++word) {
        const auto value = [&] {
            if (++word == arguments.end()) throw BadCall(*(word - 1) + " needs a value");
            return *word;
        };
        if (*word == "--english") {
            call.calculator.language = Language::english;
        } else if (*word == "--point") {
            call.calculator.point = true;
        } else if (*word == "--round") {
            const std::string decimals = value();
            if (decimals.size() != 1 || decimals[0] < '0' || decimals[0] > '4') {
                throw BadCall("--round takes 0 to 4");
            }
            call.calculator.decimals = decimals[0] - '0';
        } else if (*word == "--csv") {
            call.column = value();
        } else if (*word != "--tape") {
            if (word->starts_with("--") || call.file) throw BadCall("unknown argument " + *word);
            call.file = *word;
        }
    }
    return call;
}

// The end of the input ends its last line.
void typeLines(std::istream& in, PipedCalculator& calculator) {
    for (std::string line; std::getline(in, line);) {
        if (!line.empty() && line.back() == '\r') line.pop_back();
        calculator.type(fromUtf8(line) + u'\r');
    }
}

// A column that is named stands in the first line.
std::size_t columnOf(const std::string& column, CsvReader& table) {
    if (const auto number = numberOf(column)) return *number - 1;
    CsvRecord heads;
    table.next(heads);
    const auto head = std::find(heads.fields.begin(), heads.fields.end(), column);
    if (head == heads.fields.end()) throw BadCall("no column " + column);
    return static_cast<std::size_t>(head - heads.fields.begin());
}

// Whether every line has a number in the column; those that have none are told.
bool addColumn(std::istream& in, const std::string& column, PipedCalculator& calculator,
               std::ostream& errors) {
    CsvReader table(in);
    const std::size_t index = columnOf(column, table);
    bool all = true;
    for (CsvRecord record; table.next(record);) {
        const std::string field = index < record.fields.size() ? record.fields[index] : "";
        if (calculator.add(fromUtf8(field))) continue;
        errors << "line " << record.line << ": no number: \"" << field << "\"\n";
        all = false;
    }
    calculator.type(u"\r");
    return all;
}

}  // namespace

int runTapeCommand(const std::vector<std::string>& arguments, std::istream& in, std::ostream& out,
                   std::ostream& errors) {
    try {
        const Call call = callOf(arguments);
        std::ifstream file;
        if (call.file) file.open(*call.file);
        if (call.file && !file) throw BadCall("cannot read " + *call.file);
        std::istream& from = call.file ? file : in;
        PipedCalculator calculator(call.calculator);
        bool all = true;
        if (call.column) {
            all = addColumn(from, *call.column, calculator, errors);
        } else {
            typeLines(from, calculator);
        }
        if (from.bad()) throw BadCall("cannot read on");
        out << calculator.tape() << '\n';
        return all && !calculator.failed() && out.flush() ? everythingHeld : somethingFailed;
    } catch (const std::runtime_error& reason) {
        errors << reason.what() << '\n';
        return badCall;
    }
}

}  // namespace zifferon
