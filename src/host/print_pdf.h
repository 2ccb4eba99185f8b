// A printed note as a PDF a person signs and hands over with the goods: A4, the
// note's heading and parties on the first page, its lines in a table whose heading
// comes again on every page they run onto, the totals, remarks and signature lines
// after the last line, and "Page N of M" at the foot of each page.
#pragma once

#include <string>

#include "host/print_layout.h"

namespace host {

// Writes the note to the file, replacing it. Raises run-time error 75 when the file
// cannot be written.
void WriteNotePdf(const NoteLayout& layout, const std::string& path);

}  // namespace host
