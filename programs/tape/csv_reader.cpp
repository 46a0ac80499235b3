#include "programs/tape/csv_reader.h"

#include <utility>

namespace zifferon {

namespace {

constexpr std::string_view byteOrderMark = "\xEF\xBB\xBF";

// Takes a record to pieces, line by line.
class Fields {
  public:
    Fields(char separator, std::vector<std::string>& fields) : separator_(separator), fields_(fields) {
        fields_.assign(1, "");
    }

    // Whether the record goes on with the next line.
    bool take(const std::string& line) {
        for (const char c : line) takeCharacter(c);
        if (quoted_ && !quoteSeen_) fields_.back() += '\n';
        return quoted_ && !quoteSeen_;
    }

  private:
    // A quote inside quotes is one when a second follows, else their end.
    void takeCharacter(char c) {
        if (quoted_ && !std::exchange(quoteSeen_, quoteSeen_ ? false : c == '"')) {
            if (c != '"') fields_.back() += c;
        } else if (quoted_ && c == '"') {
            fields_.back() += c;
        } else if (c == separator_) {
            quoted_ = false;
            fields_.emplace_back();
        } else if (c == '"' && !quoted_ && fields_.back().empty()) {
            quoted_ = true;
        } else {
            quoted_ = false;
            fields_.back() += c;
        }
    }

    char separator_;
    std::vector<std::string>& fields_;
    bool quoted_ = false, quoteSeen_ = false;
};

}  // namespace

bool CsvReader::next(CsvRecord& record) {
    std::string line;
    do {
        if (!readLine(line)) return false;
    } while (line.empty());
    if (separator_ == '\0') findSeparator(line);
    record.line = line_;
    Fields fields(separator_, record.fields);
    while (fields.take(line) && readLine(line)) {
    }
    return true;
}

bool CsvReader::readLine(std::string& line) {
    if (!std::getline(table_, line)) return false;
    if (!line.empty() && line.back() == '\r') line.pop_back();
    if (++line_ == 1 && line.starts_with(byteOrderMark)) line.erase(0, byteOrderMark.size());
    return true;
}

void CsvReader::findSeparator(const std::string& line) {
    bool quoted = false;
    separator_ = ',';
    for (const char c : line) {
        if (c == '"') quoted = !quoted;
        if (quoted) continue;
        if (c == ';') separator_ = c;
        if (c == ';') return;
        if (c == '\t') separator_ = c;
    }
}

}  // namespace zifferon
