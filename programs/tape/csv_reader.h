// A table as other programs write it: records of fields, one a line, fields with a separator, a line end or a
// quote in quotes (RFC 4180). The separator is told by the first line: a semicolon, else a tab, else a comma.
#pragma once

#include <istream>
#include <string>
#include <vector>

namespace zifferon {

struct CsvRecord {
    std::vector<std::string> fields;  // UTF-8
    std::size_t line = 0;             // of its beginning, from 1
};

class CsvReader {
  public:
    // A byte order mark at the front is passed over.
    explicit CsvReader(std::istream& table) : table_(table) {}

    // The next record that is no empty line; false behind the last one. A quote that nothing closes ends with
    // the table.
    bool next(CsvRecord& record);

  private:
    void findSeparator(const std::string& line);
    bool readLine(std::string& line);

    std::istream& table_;
    std::size_t line_ = 0;
    char separator_ = '\0';
};

}  // namespace zifferon
