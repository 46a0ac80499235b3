// What a second start asks of the program that runs in the folder: to come to the front.
#pragma once

#include <optional>
#include <string>

#include "platform/posix_calls.h"

namespace zifferon {

// The two meet at a name without a file, made of the user and the folder, that is gone with the process which
// holds it. All calls return at once unless told otherwise; what fails is no summons.
class Summons {
  public:
    explicit Summons(const std::string& folder = ".");

    // From now on `call` of other processes finds this one. A descriptor that becomes readable for each; -1
    // where it does not work.
    int listen();

    // What the next caller has sent. It has its answer when `answered` returns.
    std::optional<std::string> next();
    void answered();

    // No caller is heard any more.
    void endListening();

    // Whether the other program has answered within so many milliseconds. `token`, of at most 1,000 bytes, is
    // what the desktop gave this start for coming to the front; it may be empty.
    bool call(const std::string& token, int milliseconds) const;

  private:
    std::string name_;
    std::optional<Descriptor> listening_, caller_;
};

}  // namespace zifferon
