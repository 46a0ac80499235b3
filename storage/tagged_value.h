// Values in the bytes of a file, all little-endian, one behind the other.
//
// A tagged value is a 16-bit type word and the bytes that its type has:
//
//    0  nothing          none
//    2  16-bit integer   2
//    3  32-bit integer   4
//    4  single           4
//    5  double           8
//    8  text             16-bit length, and so many characters in Windows-1252; from 65,535 characters on the
//                        length FF FF, then a 32-bit length, then the characters
//   14  exact decimal    14: scale, sign (00 or 80), the upper 32 bits, the lower 64 bits
//
// Singles and doubles also stand without a type word, where their place tells what they are.
#pragma once

#include <cstdint>
#include <exception>
#include <string>
#include <string_view>

#include "core/calc_value.h"

namespace zifferon {

// Bytes that cannot be decoded.
class RecordFailure : public std::exception {
  public:
    const char* what() const noexcept override { return "undecodable record"; }
};

// Puts values one behind the other. Made for many short ones.
class RecordWriter {
  public:
    void tagged(const CalcValue& value);
    void tagged(const Text& value);
    void tagged(float value);

    // What stands in front of the characters of a tagged text.
    void textHead(std::size_t length);

    void write(float value);
    void write(double value);

    std::string_view bytes() const { return std::string_view(bytes_).substr(0, size_); }

  private:
    template <class... Unsigned>
    void put(Unsigned... values);
    char* grow(std::size_t size);

    std::string bytes_ = std::string(256, '\0');  // with room behind the first size_; mostly enough
    std::size_t size_ = 0;
};

// A tagged value that is known to be whole and decodable, still in the bytes of the file.
struct TaggedBytes {
    std::uint16_t type = 0;
    std::string_view content;  // of a text its characters

    bool isText() const;
    CalcValue value() const;  // a single as the double of the same value
};

// Reads from the front of the bytes of a file, which must outlive it. Nothing is allocated.
class RecordReader {
  public:
    explicit RecordReader(std::string_view bytes) : rest_(bytes) {}

    // Behind the end of the file it is nothing. Throws RecordFailure for an unknown type, for bytes that are
    // missing within the value, for a single or double that is no finite number, and for a decimal with
    // another sign or more than 28 decimals.
    TaggedBytes tagged();

    bool atEnd() const { return rest_.empty(); }

    // Behind the end of the file the variable stays as it was. Throws RecordFailure for missing bytes.
    void read(float& value);
    void read(double& value);

  private:
    std::string_view take(std::size_t size);
    std::size_t takeSize(std::uint16_t type);

    std::string_view rest_;
};

}  // namespace zifferon
