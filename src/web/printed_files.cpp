#include "web/printed_files.h"

#include <filesystem>

#include "host/printing.h"

namespace web {

std::string PrintedPdfOf(const std::string& printDetail) {
    const std::string arrow = " -> ";
    auto start = printDetail.find(arrow);
    if (start == std::string::npos) return {};
    std::string file = printDetail.substr(start + arrow.size());
    if (auto dialog = file.rfind(" (dialog, flag "); dialog != std::string::npos) file.erase(dialog);
    std::string pdf = host::PdfFileOf(file);
    return std::filesystem::is_regular_file(pdf) ? pdf : std::string();
}

std::string FileNameOf(const std::string& path) { return std::filesystem::path(path).filename().string(); }

}  // namespace web
