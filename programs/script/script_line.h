// One line of a key script: its words, quoted texts and numbers, read from left to right.
#pragma once

#include <stdexcept>
#include <string>
#include <string_view>

#include "platform/text.h"

namespace zifferon {

// A script that cannot be read; what() is the reason.
class MalformedScript : public std::runtime_error {
  public:
    using std::runtime_error::runtime_error;
};

class ScriptLine {
  public:
    explicit ScriptLine(std::string_view line) : rest_(line) {}

    bool atEnd();
    bool atQuote();

    // The next word, up to a blank. Throws MalformedScript at the end of the line, as all of these do.
    std::string word();

    // The next text in double quotes, with its escapes resolved.
    Text quotedText();

    // A quoted text or else a word, as Text.
    Text textOrWord();

    // A whole number, not negative.
    std::int64_t number();

    // All that is left behind one blank, verbatim.
    std::string_view verbatim() const { return rest_.empty() ? rest_ : rest_.substr(1); }

    // All that is left, without the blanks around it.
    std::string remainder();

    // Throws when anything is left.
    void expectEnd();

  private:
    void skipBlanks();

    std::string_view rest_;
};

}  // namespace zifferon
