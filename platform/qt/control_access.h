// What screen readers are told of the controls for which the toolkit has no words of its own: windows,
// frames, pictures, lists to choose from, and the tape, with what is printed on it as it comes.
#pragma once

#include "platform/qt/tape_area.h"

namespace zifferon {

// Makes every control readable; once before the first is shown.
void offerControlsToScreenReaders();

// Tells a screen reader, if one listens, that the text behind `position` is new.
void announceTapeText(TapeArea& area, std::size_t position, TextView text);

}  // namespace zifferon
