#include "storage/encoded_text.h"

#include <algorithm>
#include <cstring>

#include "platform/windows1252.h"

namespace zifferon {

namespace {

// Compares in strides that run at the speed of the memory, the last bytes one by one.
std::size_t commonPrefix(std::string_view a, std::string_view b) {
    const std::size_t size = std::min(a.size(), b.size());
    std::size_t same = 0;
    for (const std::size_t stride : {std::size_t{4096}, std::size_t{64}, std::size_t{1}}) {
        while (same + stride <= size && std::memcmp(a.data() + same, b.data() + same, stride) == 0) {
            same += stride;
        }
    }
    return same;
}

}  // namespace

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

void EncodedText::findAgreement() { agreed_ = std::min(agreed_, follower_.takeUnchangedPrefix()); }

}  // namespace zifferon
