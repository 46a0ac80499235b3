// The system as a POSIX environment tells it.
#pragma once

#include "platform/date_text.h"
#include "platform/system.h"

namespace zifferon {

class PosixSystem : public System {
  public:
    // From LC_ALL, LC_NUMERIC or LANG, the first that is not empty. A language without a country stands for
    // its main country ("de" for Germany), as such an identifier does on Windows. "" for C and POSIX, for a
    // pair of language and country without an identifier ("en_DE"), and in a program built without ICU, which
    // knows the identifiers.
    std::string GetDecStyle() const override;

    // Layouts are designed for the classic frame, which Window takes as given: no correction of any height.
    std::string GetWindowsStyle() const override { return "classic"; }
    std::string GetSystemName() const override { return "Unbekanntes Betriebssystem"; }
    Text shortDateTime(std::chrono::system_clock::time_point moment) const override {
        return dateTimeText(moment, GetDecStyle());
    }
    std::chrono::system_clock::time_point now() const override { return std::chrono::system_clock::now(); }
    std::uint32_t randomSeed() const override {
        return static_cast<std::uint32_t>(now().time_since_epoch().count());
    }
    Text computerName() const override;
    int captionHeight() const override { return 19; }
};

}  // namespace zifferon
