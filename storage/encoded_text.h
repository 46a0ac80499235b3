// A text field's text as the bytes of a file, kept in step with the field from the first character on that
// may differ. A long tape that grew by a line, or lost one, costs that line.
#pragma once

#include <string>
#include <string_view>

#include "platform/text_field.h"

namespace zifferon {

class EncodedText {
  public:
    // Begins empty, whatever the field holds. Must not outlive the field.
    explicit EncodedText(TextField& field) : field_(field), follower_(field) {}

    // Windows-1252.
    const std::string& bytes() const { return bytes_; }

    // Brings the bytes up to the field's text.
    void takeFromField();

    // Sets the bytes, as read from a file. The field stays as it is until it is written.
    void setBytes(std::string_view bytes);

    // Gives the field the text of the bytes; its caret goes to 0. The field's change handler runs as for any
    // writing.
    void writeToField();

  private:
    void findAgreement();

    TextField& field_;
    TextFollower follower_;
    std::string bytes_;
    std::size_t agreed_ = 0;  // so many leading bytes are those of the field's characters
};

}  // namespace zifferon
