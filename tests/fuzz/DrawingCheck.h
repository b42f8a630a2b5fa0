// DrawingCheck: reads a text as a drawing file, as the drawing targets do,
// and checks what the reader promises of any input:
// - a refused file gives no database and one error line; an error that
//   names a JSON path names one that leads into the file (the member itself,
//   or the place of a missing one), and no fault of the file slips through
//   the reader's own checks as a bare JSON library error;
// - a drawing read is written back equal to the file as JSON (member order
//   aside, and but for the numbers that formulas drive, where the formula's
//   value stands), and what the writer writes reads again and writes the
//   same;
// - nothing is left open, whether the file was read or refused.
#pragma once

#include <string_view>

class KyDbDatabase;

namespace kyfuzz {

void checkDrawing(std::string_view text);
// What the writer writes of `db` reads again and is written the same: a
// drawing the host changed can be saved and opened.
void checkWritten(KyDbDatabase* db);

}  // namespace kyfuzz
