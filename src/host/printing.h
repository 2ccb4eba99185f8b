// Printing a document: the template's two procedures feed it (the abstract with
// the document's key, then its detail rows), and the note is rendered as plain
// text to a file "<kind>-<key>.txt" in the output folder and as a page to hand
// over with the goods, "<kind>-<key>.pdf" beside it.
#pragma once

#include <string>

#include "host/print_layout.h"
#include "platform/database.h"

namespace host {

struct PrintJob {
    std::string settingsFile;       // the template's settings file, named on the note
    std::string abstractProcedure;  // empty: the note has no header fields
    std::string detailProcedure;    // empty: the note has no lines
    std::string documentKind;       // "Dispatch"
    std::string key;
};

// The PDF written beside a printed file: the same name ending in .pdf.
std::string PdfFileOf(const std::string& printedFile);

class NotePrinter {
public:
    explicit NotePrinter(platform::Connection& connection) : connection_(connection) {}

    // Renders the note and writes its text and its PDF; the text file's path. A
    // folder that cannot be made or a file that cannot be written raises run-time
    // error 75.
    std::string Print(const PrintJob& job, const std::string& outputFolder);
    // The note as text, without writing it.
    std::string Render(const PrintJob& job);

    // What the procedures answer for the note.
    PrintedNote Fetch(const PrintJob& job);

private:
    platform::RecordsetPtr Feed(const std::string& procedure, const std::string& key);

    platform::Connection& connection_;
};

}  // namespace host
