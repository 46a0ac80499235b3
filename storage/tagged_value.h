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

// Adding to the bytes of a file.
void appendTagged(std::string& bytes, const CalcValue& value);
void appendTagged(std::string& bytes, float value);
void appendTextHead(std::string& bytes, std::size_t length);  // what stands in front of a text's characters
void append(std::string& bytes, float value);
void append(std::string& bytes, double value);

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
    // missing within the value, and for a decimal with another sign or more than 28 decimals.
    TaggedBytes tagged();

    // Behind the end of the file the variable stays as it was. Throws RecordFailure for missing bytes.
    void read(float& value);
    void read(double& value);

  private:
    std::string_view take(std::size_t size);

    std::string_view rest_;
};

}  // namespace zifferon
