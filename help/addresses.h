// Where the program's maker is found in the web.
#pragma once

#include "platform/language.h"

namespace zifferon {

constexpr TextView webSiteName = u"www.zifferon-pro.example";
constexpr Words homePage{u"https://www.zifferon-pro.example/",
                         u"https://www.zifferon-pro.example/english/index.html"};
constexpr Words contactPage{u"https://www.zifferon-pro.example/mail.html",
                            u"https://www.zifferon-pro.example/mail_en.html"};

}  // namespace zifferon
