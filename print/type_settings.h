// The eight type settings of the printed tape.
#pragma once

#include <array>

#include "platform/text.h"

namespace zifferon {

// The offset shrinks as the font grows: a column takes 0.6 of the size, and the 62 columns of the tape stay
// in the middle of the page.
struct TypeSetting {
    TextView text;
    float code;  // as stored; the settings that were there first have the lower numbers
    TextView points;
    bool bold;
    int left;  // twips
};
constexpr std::array typeSettings = {TypeSetting{u"courier new (9, normal)", 7, u"9", false, 2400},
                                     TypeSetting{u"courier new (9, bold)", 8, u"9", true, 2400},
                                     TypeSetting{u"courier new (10, normal)", 5, u"10", false, 2050},
                                     TypeSetting{u"courier new (10, bold)", 6, u"10", true, 2050},
                                     TypeSetting{u"courier new (11, normal)", 1, u"11", false, 1650},
                                     TypeSetting{u"courier new (11, bold)", 2, u"11", true, 1650},
                                     TypeSetting{u"courier new (12, normal)", 3, u"12", false, 1300},
                                     TypeSetting{u"courier new (12, bold)", 4, u"12", true, 1300}};

}  // namespace zifferon
