#include "storage/calculation_record.h"

#include <utility>

#include "platform/windows1252.h"

namespace zifferon {

namespace {

// Hands each field to `visit`, in the order of the file.
template <class Record, class Visit>
void visitFields(Record& record, Visit&& visit) {
    for (auto& cell : record.M) visit(cell);
    visit(record.tape);
    visit(record.subtotal);
    visit(record.operatorSign);
    visit(record.entry);
    visit(record.printCopy);
    visit(record.recordAlwaysOnTop);
    visit(record.savedChainTotalled);
    visit(record.savedOperand);
    visit(record.savedChainActive);
    visit(record.savedPendingOpCode);
    visit(record.savedTapeClearArmed);
    visit(record.recordSound);
    visit(record.recordClipboard);
    visit(record.recordRoundingTick);
    visit(record.recordRoundingCaption);
}

// Writes each field; of a long text only what stands in front of its characters, and those are noted with
// their place.
struct FieldWriter {
    RecordWriter& writer;
    std::size_t* longTextAt;
    std::string_view* longText;

    void operator()(const Text& text) { writer.tagged(text); }
    void operator()(const CalcValue& value) { writer.tagged(value); }
    void operator()(float value) { writer.write(value); }
    void operator()(double value) { writer.write(value); }
    void operator()(const EncodedText& text) {
        writer.textHead(text.bytes().size());
        *longTextAt++ = writer.bytes().size();
        *longText++ = text.bytes();
    }
};

// Throws where a field cannot be decoded.
struct FieldChecker {
    RecordReader reader;

    void operator()(const Text&) { reader.tagged(); }
    void operator()(const CalcValue&) { reader.tagged(); }
    void operator()(const EncodedText&) { reader.tagged(); }
    void operator()(float value) { reader.read(value); }
    void operator()(double value) { reader.read(value); }
};

// Counts the fields that begin before the end of the file.
struct FieldCounter {
    FieldChecker checker;
    int& count;

    template <class Field>
    void operator()(const Field& field) {
        count += checker.reader.atEnd() ? 0 : 1;
        checker(field);
    }
};

// The text of a field that holds a figure. It may have been written under other separators.
Text figuresOf(const TaggedBytes& found, Separators separators) {
    return found.value().underSeparators(separators).toText(separators);
}

struct FieldReader {
    RecordReader reader;
    Separators separators;

    void operator()(Text& text) { text = figuresOf(reader.tagged(), separators); }
    void operator()(CalcValue& value) { value = reader.tagged().value().underSeparators(separators); }
    void operator()(float& value) { reader.read(value); }
    void operator()(double& value) { reader.read(value); }
    void operator()(EncodedText& text) {
        const TaggedBytes found = reader.tagged();
        if (found.isText()) return text.setBytes(found.content);
        const Text number = found.value().toText(separators);
        std::string bytes(number.size(), '\0');
        encodeWindows1252(number, bytes.data());
        text.setBytes(bytes);
    }
};

float switchOf(bool on) { return on ? 1.0F : 0.0F; }

void setCells(CalculatorState& state, const MemoryCells& cells) {
    for (std::size_t i = 0; i < cells.size(); ++i) state.memo[i].setText(cells[i]);
}

}  // namespace

EncodedRecord::EncodedRecord(const CalculationRecord& record) {
    visitFields(record, FieldWriter{short_, longTextAt_.data(), longText_.data()});
}

std::array<std::string_view, 5> EncodedRecord::pieces() const& {
    const std::string_view all = short_.bytes();
    const auto [tapeAt, printCopyAt] = longTextAt_;
    return {all.substr(0, tapeAt), longText_[0], all.substr(tapeAt, printCopyAt - tapeAt), longText_[1],
            all.substr(printCopyAt)};
}

std::array<std::string_view, 5> piecesOf(std::string_view bytes) {
    constexpr int beforeTape = 5, beforePrintCopy = 3;  // so many other values stand in front of it
    RecordReader reader(bytes);
    const auto skip = [&](int values) {
        for (int i = 0; i < values; ++i) reader.tagged();
    };
    try {
        skip(beforeTape);
        const std::string_view tape = reader.tagged().content;
        skip(beforePrintCopy);
        const std::string_view printCopy = reader.tagged().content;
        const auto upTo = [](const char* begin, std::string_view piece) {
            return std::string_view(begin, static_cast<std::size_t>(piece.data() - begin));
        };
        const char* const behindTape = tape.data() + tape.size();
        const char* const behindPrintCopy = printCopy.data() + printCopy.size();
        if (tape.data() == nullptr || printCopy.data() == nullptr) return {bytes};
        return {upTo(bytes.data(), tape), tape, upTo(behindTape, printCopy), printCopy,
                bytes.substr(static_cast<std::size_t>(behindPrintCopy - bytes.data()))};
    } catch (const RecordFailure&) {
        return {bytes};
    }
}

void gatherRecord(CalculationRecord& record) {
    const CalculatorState& s = record.state;
    for (std::size_t i = 0; i < record.M.size(); ++i) record.M[i] = s.memo[i].text();
    record.tape.takeFromField();
    record.subtotal = s.zwischen.text();
    record.operatorSign = s.txtop.text();
    record.entry = s.eingabe.text();
    record.printCopy.takeFromField();
    record.savedChainTotalled = switchOf(s.chainTotalled);
    record.savedOperand = s.operand;
    record.savedChainActive = s.chainActive;
    record.savedPendingOpCode = s.pendingOpCode;
    record.savedTapeClearArmed = switchOf(s.tapeClearArmed);
}

void gatherSwitches(CalculationRecord& record) {
    const CalculatorState& s = record.state;
    record.recordAlwaysOnTop = switchOf(s.Checkob.ticked());
    record.recordSound = switchOf(s.Checksound.ticked());
    record.recordClipboard = switchOf(s.clipcheck.ticked());
}

void gatherRounding(CalculationRecord& record) {
    const CheckBox& selector = record.state.checkrnd;
    record.recordRoundingTick = switchOf(selector.ticked());
    record.recordRoundingCaption = selector.caption;
}

Text printCopyOf(std::string_view bytes, Separators separators) {
    constexpr int beforePrintCopy = 9;
    RecordReader reader(bytes);
    for (int i = 0; i < beforePrintCopy; ++i) reader.tagged();
    const TaggedBytes found = reader.tagged();
    if (!found.isText()) return found.value().toText(separators);
    Text copy(found.content.size(), u'\0');
    decodeWindows1252(found.content, copy.data());
    return copy;
}

bool isWholeCalculation(std::string_view bytes, const CalculationRecord& record) {
    constexpr int upToTapeClearArmed = 16;
    int count = 0;
    visitFields(record, FieldCounter{{RecordReader(bytes)}, count});
    return count >= upToTapeClearArmed;
}

void decodeRecord(std::string_view bytes, CalculationRecord& record) {
    visitFields(std::as_const(record), FieldChecker{RecordReader(bytes)});
    visitFields(record, FieldReader{RecordReader(bytes), record.state.separators()});
}

void writeRecord(Files& files, const std::string& path, const CalculationRecord& record) {
    const EncodedRecord encoded(record);
    files.exchange(path, encoded.pieces());
}

void readRecord(Files& files, const std::string& path, CalculationRecord& record) {
    decodeRecord(files.readOrCreate(path).view(), record);
}

void applyCells(const CalculationRecord& record) { setCells(record.state, record.M); }

void applyFields(CalculationRecord& record) {
    CalculatorState& s = record.state;
    record.tape.writeToField();
    s.zwischen.setText(record.subtotal);
    s.txtop.setText(record.operatorSign);
    s.eingabe.setText(record.entry);
    record.printCopy.writeToField();
    s.eingabe.caretToEnd();
}

void applyVariables(const CalculationRecord& record) {
    CalculatorState& s = record.state;
    s.chainTotalled = record.savedChainTotalled != 0;
    s.operand = record.savedOperand;
    s.chainActive = record.savedChainActive;
    s.pendingOpCode = record.savedPendingOpCode;
    s.tapeClearArmed = record.savedTapeClearArmed != 0;
}

void restoreCells(std::string_view bytes, CalculatorState& state) {
    RecordReader reader(bytes);
    MemoryCells cells;
    for (Text& cell : cells) cell = figuresOf(reader.tagged(), state.separators());
    setCells(state, cells);
}

}  // namespace zifferon
