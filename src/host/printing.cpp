#include "host/printing.h"

#include <cctype>
#include <filesystem>
#include <fstream>
#include <sstream>

#include "host/print_pdf.h"
#include "host/result_sets.h"
#include "platform/convert.h"
#include "platform/runtime_error.h"

namespace host {
namespace {

constexpr long kPathFileAccessError = 75;

bool AllDigits(const std::string& text) {
    return !text.empty() && text.find_first_not_of("0123456789") == std::string::npos;
}

// A key is a document number; anything else in it must not reach the file name.
std::string FileNamePart(const std::string& text) {
    std::string part;
    for (unsigned char c : text) part += (std::isalnum(c) || c == '-' || c == '_') ? char(c) : '_';
    return part;
}

std::string RenderText(const PrintedNote& note) {
    std::ostringstream text;
    text << note.documentKind << " " << note.key << "\n";
    if (!note.settingsFile.empty()) text << "Template: " << note.settingsFile << "\n";
    text << "\n";
    for (const auto& [name, value] : note.header) text << name << ": " << platform::ToText(value) << "\n";
    text << "\n";
    if (note.hasDetail) {
        for (std::size_t i = 0; i < note.columns.size(); ++i) text << (i ? " | " : "") << note.columns[i];
        text << "\n";
        for (const auto& row : note.rows) {
            for (std::size_t i = 0; i < row.size(); ++i) text << (i ? " | " : "") << platform::ToText(row[i]);
            text << "\n";
        }
        text << "\n" << note.rows.size() << (note.rows.size() == 1 ? " line" : " lines") << "\n";
    }
    return text.str();
}

}  // namespace

std::string PdfFileOf(const std::string& printedFile) {
    return std::filesystem::path(printedFile).replace_extension(".pdf").string();
}

platform::RecordsetPtr NotePrinter::Feed(const std::string& procedure, const std::string& key) {
    // Keys of stored documents are numbers; the procedures take them as such.
    platform::Parameter parameter;
    if (AllDigits(key) && key.size() < 10) {
        parameter.value = platform::Value(std::stol(key));
        parameter.type = platform::adtype::Integer;
    } else {
        parameter.value = platform::Value(key);
    }
    return FirstResultWithRows(connection_.RunProcedure(procedure, platform::ParameterList(1, parameter)));
}

PrintedNote NotePrinter::Fetch(const PrintJob& job) {
    PrintedNote note{job.documentKind, job.key, job.settingsFile, {}, false, {}, {}};
    if (!job.abstractProcedure.empty()) {
        auto abstract = Feed(job.abstractProcedure, job.key);
        if (abstract && abstract->IsOpen() && !abstract->Eof())
            for (int i = 0; i < abstract->FieldCount(); ++i)
                note.header.emplace_back(abstract->FieldName(i), abstract->Fields(i));
    }
    if (!job.detailProcedure.empty()) {
        auto detail = Feed(job.detailProcedure, job.key);
        if (detail && detail->IsOpen()) {
            note.hasDetail = true;
            for (int i = 0; i < detail->FieldCount(); ++i) note.columns.push_back(detail->FieldName(i));
            for (; !detail->Eof(); detail->MoveNext()) {
                auto& row = note.rows.emplace_back();
                for (int i = 0; i < detail->FieldCount(); ++i) row.push_back(detail->Fields(i));
            }
        }
    }
    return note;
}

std::string NotePrinter::Render(const PrintJob& job) { return RenderText(Fetch(job)); }

std::string NotePrinter::Print(const PrintJob& job, const std::string& outputFolder) {
    const PrintedNote note = Fetch(job);
    const std::string text = RenderText(note);
    namespace fs = std::filesystem;
    fs::path folder = outputFolder.empty() ? fs::path(".") : fs::path(outputFolder);
    fs::path file = folder / (FileNamePart(job.documentKind) + "-" + FileNamePart(job.key) + ".txt");
    std::error_code failure;
    fs::create_directories(folder, failure);
    std::ofstream out(file, std::ios::binary | std::ios::trunc);
    if (!out || !(out << text) || !out.flush())
        throw platform::RuntimeError(kPathFileAccessError, "Path/File access error");
    WriteNotePdf(LayOutNote(note), PdfFileOf(file.string()));
    return file.string();
}

}  // namespace host
