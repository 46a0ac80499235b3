// setup.zfr: the letterhead as it is stored. 30 items from the start of the file, one behind the other:
//
//    1 to 5    tagged texts      zeile1 to zeile5
//    6 to 12   tagged texts      Combo1 to Combo7
//   13 to 19   tagged integers   Check1 to Check7
//   20         tagged text       nachtext
//   21         tagged integer    checkstamm
//   22, 23     tagged texts      combfoart2, combfoart3
//   24 to 29   doubles           bold1 to bold3, kur1 to kur3
//   30         tagged integer    logo
//
// See tagged_value.h for the encodings. A tick is 0 or 1.
#pragma once

#include "platform/files.h"
#include "print/kopf.h"

namespace zifferon {

// Reads the file into the controls, in its order; an absent one is created and stays behind with 0 bytes.
// Items behind its end are empty texts and ticks off. A blank line's tick that comes on writes the note over
// the text that has been read. A number stands for its text where a text belongs, and a text that is a number
// for that number where a tick belongs. Throws FileFailure, and RecordFailure for bytes that cannot be
// decoded and for a tick that does not round to 0, 1 or 2 (2 is on); the items in front of that one have then
// been applied.
void readLetterhead(Files& files, Kopf& kopf);

// Exchanges the file for one with the letterhead of the controls; what a longer file held behind it stays,
// and nothing reads it. Throws FileFailure, and then the file is as before.
void writeLetterhead(Files& files, const Kopf& kopf);

// Gives each size and font that is empty what it is at first.
void completeFonts(Kopf& kopf);

}  // namespace zifferon
