// The page's files, compiled into the program.
#pragma once
#include <string_view>
namespace web {
struct PageFile {
    std::string_view content;
    std::string_view mimeType;
};
// A file by its path ("/" is index.html, "/app.js", "/app.css"); nullptr when there is none.
const PageFile* FindPageFile(std::string_view path);
}  // namespace web
