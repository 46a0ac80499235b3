#include "storage/settings_files.h"

#include <algorithm>
#include <cmath>

#include "platform/windows1252.h"
#include "storage/tagged_value.h"

namespace zifferon {

namespace {

const std::string startOptionsFile = "winstate.dat", storedSizesFile = "style.dat",
                  alwaysOnTopFile = "visible.zfr", printerFile = "printer.zfr";

constexpr double farthest = 1e6;  // twips; no screen is so large

// The numbers of a file, one after the other; behind the first that cannot be decoded there are no more.
class NumberReader {
  public:
    explicit NumberReader(std::string_view bytes) : reader_(bytes) {}

    float single() {
        float value = 0;
        attempt([&] { reader_.read(value); });
        return value;
    }

    std::optional<double> tagged() {
        CalcValue value;
        attempt([&] { value = reader_.tagged().value(); });
        if (const auto* integer = std::get_if<std::int16_t>(&value.value())) return *integer;
        if (const auto* integer = std::get_if<std::int32_t>(&value.value())) return *integer;
        if (const auto* number = std::get_if<double>(&value.value())) return *number;
        return std::nullopt;
    }

    // A length in twips, where it is one.
    std::optional<int> twips() {
        const std::optional<double> number = tagged();
        if (!number || !(std::abs(*number) <= farthest)) return std::nullopt;
        return static_cast<int>(*number);
    }

  private:
    template <class Read>
    void attempt(Read read) {
        try {
            read();
        } catch (const RecordFailure&) {
            reader_ = RecordReader({});
        }
    }

    RecordReader reader_;
};

// In a damaged file there may be sizes that leave nothing to be seen of the window in one of its modes.
bool holdsTheDesk(const StoredSizes& sizes) {
    constexpr int smallest = 5700, lowest = 7500, largest = 30000;  // twips
    return sizes.width >= smallest && sizes.width <= largest && sizes.height >= lowest &&
           sizes.height <= largest;
}

CalcValue integer16(int value) { return CalcValue(CalcValue::Value(static_cast<std::int16_t>(value))); }

}  // namespace

float readSingle(Files& files, const std::string& name, float whenZero) {
    const FileContent content = files.readOrCreate(name);
    const float value = NumberReader(content.view()).single();
    return value == 0 ? whenZero : value;
}

float readSetting(Files& files, const std::string& name) {
    try {
        return readSingle(files, name);
    } catch (const FileFailure&) {
        return 0;
    }
}

Language readLanguage(Files& files) {
    return readSetting(files, settingsFile::language) == 1 ? Language::english : Language::german;
}

void writeLanguage(Files& files, Language language) {
    writeSingle(files, settingsFile::language, language == Language::english ? 1 : 0);
}

void writeSingle(Files& files, const std::string& name, float value) {
    RecordWriter writer;
    writer.write(value);
    files.write(name, writer.bytes());
}

StartOptions readStartOptions(Files& files) {
    const FileContent content = files.readOrCreate(startOptionsFile);
    NumberReader numbers(content.view());
    const std::optional<int> left = numbers.twips(), top = numbers.twips();
    const double mode = numbers.tagged().value_or(0);
    StartOptions options;
    if (left || top) options.position = {left.value_or(0), top.value_or(0)};
    options.windowMode = mode == 0 ? 0 : mode == 1 ? 1 : 2;
    options.minimised = numbers.tagged() == 1;
    return options;
}

void writeStartOptions(Files& files, const StartOptions& options) {
    const auto [left, top] = options.position.value_or(StartOptions::Position());
    RecordWriter writer;
    writer.tagged(static_cast<float>(left));
    writer.tagged(static_cast<float>(top));
    writer.tagged(integer16(options.windowMode));
    writer.tagged(integer16(options.minimised ? 1 : 0));
    files.write(startOptionsFile, writer.bytes());
}

StoredSizes readStoredSizes(Files& files) {
    const FileContent content = files.readOrCreate(storedSizesFile);
    NumberReader numbers(content.view());
    StoredSizes sizes;
    sizes.active = numbers.single();
    sizes.width = numbers.twips().value_or(sizes.width);
    sizes.height = numbers.twips().value_or(sizes.height);
    return holdsTheDesk(sizes) ? sizes : StoredSizes();
}

void writeStoredSizes(Files& files, const StoredSizes& sizes) {
    RecordWriter writer;
    writer.write(sizes.active);
    writer.tagged(integer16(sizes.width));
    writer.tagged(integer16(sizes.height));
    files.write(storedSizesFile, writer.bytes());
}

bool readAlwaysOnTop(Files& files) {
    const FileContent content = files.readOrCreate(alwaysOnTopFile);
    return NumberReader(content.view()).tagged() == 1;
}

void writeAlwaysOnTop(Files& files, bool alwaysOnTop) {
    RecordWriter writer;
    writer.tagged(integer16(alwaysOnTop ? 1 : 0));
    files.write(alwaysOnTopFile, writer.bytes());
}

std::optional<Text> readPrinterName(Files& files) {
    FileContent content;
    try {
        content = files.read(printerFile);
    } catch (const FileFailure&) {
        return std::nullopt;
    }
    std::string_view line = content.view();
    line.remove_prefix(std::min(line.find_first_not_of(' '), line.size()));
    const bool quoted = line.starts_with('"');
    if (quoted) line.remove_prefix(1);
    const std::string_view name = line.substr(0, line.find_first_of(quoted ? "\"" : ",\r\n"));
    if (name.empty()) return std::nullopt;
    Text text(name.size(), u'\0');
    decodeWindows1252(name, text.data());
    return text;
}

void writePrinterName(Files& files, TextView name) {
    std::string line(name.size(), '\0');
    encodeWindows1252(name, line.data());
    files.replace(printerFile, line + "\r\n");
}

}  // namespace zifferon
