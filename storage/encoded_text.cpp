#include "storage/encoded_text.h"

#include <algorithm>

#include "platform/windows1252.h"
#include "storage/common_bytes.h"

namespace zifferon {

void EncodedText::takeFromField() {
    findAgreement();
    bytes_.resize(field_.text().size());
    encodeWindows1252(TextView(field_.text()).substr(agreed_), bytes_.data() + agreed_);
    agreed_ = bytes_.size();
}

void EncodedText::setBytes(std::string_view bytes) {
    const std::size_t same = commonPrefix(bytes_, bytes);
    bytes_.replace(same, std::string::npos, bytes.substr(same));
    agreed_ = std::min(agreed_, same);
}

void EncodedText::writeToField() {
    findAgreement();
    Text rest(bytes_.size() - agreed_, u'\0');
    decodeWindows1252(std::string_view(bytes_).substr(agreed_), rest.data());
    field_.setTextFrom(agreed_, rest);
}

void EncodedText::findAgreement() { agreed_ = std::min(agreed_, follower_.takeUnchanged().prefix); }

}  // namespace zifferon
