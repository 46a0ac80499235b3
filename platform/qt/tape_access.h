// The tape for screen readers: its text by lines, and what is printed on it as it comes.
#pragma once

#include "platform/qt/tape_area.h"

namespace zifferon {

// Makes every tape readable; once before the first is shown.
void offerTapesToScreenReaders();

// Tells a screen reader, if one listens, that the text behind `position` is new.
void announceTapeText(TapeArea& area, std::size_t position, TextView text);

}  // namespace zifferon
