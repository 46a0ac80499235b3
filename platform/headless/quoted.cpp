#include "platform/headless/quoted.h"

namespace zifferon {

std::string quoted(TextView text) {
    Text escaped = u"\"";
    for (const char16_t unit : text) {
        switch (unit) {
            case u'"':
                escaped += u"\\\"";
                break;
            case u'\\':
                escaped += u"\\\\";
                break;
            case u'\r':
                escaped += u"\\r";
                break;
            case u'\n':
                escaped += u"\\n";
                break;
            case u'\t':
                escaped += u"\\t";
                break;
            default:
                escaped += unit;
        }
    }
    escaped += u'"';
    return toUtf8(escaped);
}

}  // namespace zifferon
