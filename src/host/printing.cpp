#include "host/printing.h"

#include <cctype>
#include <filesystem>
#include <fstream>
#include <sstream>

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

std::string NotePrinter::Render(const PrintJob& job) {
    std::ostringstream note;
    note << job.documentKind << " " << job.key << "\n";
    if (!job.settingsFile.empty()) note << "Template: " << job.settingsFile << "\n";
    note << "\n";

    if (!job.abstractProcedure.empty()) {
        auto abstract = Feed(job.abstractProcedure, job.key);
        if (abstract && abstract->IsOpen() && !abstract->Eof())
            for (int i = 0; i < abstract->FieldCount(); ++i)
                note << abstract->FieldName(i) << ": " << platform::ToText(abstract->Fields(i)) << "\n";
    }
    note << "\n";

    if (!job.detailProcedure.empty()) {
        auto detail = Feed(job.detailProcedure, job.key);
        if (detail && detail->IsOpen()) {
            for (int i = 0; i < detail->FieldCount(); ++i) note << (i ? " | " : "") << detail->FieldName(i);
            note << "\n";
            int lines = 0;
            for (; !detail->Eof(); detail->MoveNext(), ++lines) {
                for (int i = 0; i < detail->FieldCount(); ++i)
                    note << (i ? " | " : "") << platform::ToText(detail->Fields(i));
                note << "\n";
            }
            note << "\n" << lines << (lines == 1 ? " line" : " lines") << "\n";
        }
    }
    return note.str();
}

std::string NotePrinter::Print(const PrintJob& job, const std::string& outputFolder) {
    std::string text = Render(job);
    namespace fs = std::filesystem;
    fs::path folder = outputFolder.empty() ? fs::path(".") : fs::path(outputFolder);
    fs::path file = folder / (FileNamePart(job.documentKind) + "-" + FileNamePart(job.key) + ".txt");
    std::error_code failure;
    fs::create_directories(folder, failure);
    std::ofstream out(file, std::ios::binary | std::ios::trunc);
    if (!out || !(out << text) || !out.flush())
        throw platform::RuntimeError(kPathFileAccessError, "Path/File access error");
    return file.string();
}

}  // namespace host
