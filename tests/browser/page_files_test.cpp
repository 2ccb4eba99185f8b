// The page as the program serves it: every file of the page folder byte for byte,
// each kind with its type, and nothing outside it. (That the index finds what it
// loads, the browser tests show.)
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <sstream>
#include <string>

#include "web/page_files.h"

namespace {

const std::filesystem::path kPageDir = PAGE_DIR;

std::string ReadFile(const std::filesystem::path& path) {
    std::ifstream in(path, std::ios::binary);
    std::ostringstream bytes;
    bytes << in.rdbuf();
    return bytes.str();
}

TEST(PageFiles, EveryFileIsServedAsItIsOnDisk) {
    int files = 0;
    for (const auto& entry : std::filesystem::directory_iterator(kPageDir)) {
        const std::string path = "/" + entry.path().filename().string();
        const web::PageFile* file = web::FindPageFile(path);
        ASSERT_NE(file, nullptr) << path;
        EXPECT_EQ(file->content, ReadFile(entry.path())) << path;
        ++files;
    }
    EXPECT_GE(files, 3);
}

TEST(PageFiles, TheRootIsTheIndexAndEachKindHasItsType) {
    const web::PageFile* root = web::FindPageFile("/");
    ASSERT_NE(root, nullptr);
    EXPECT_EQ(root, web::FindPageFile("/index.html"));
    EXPECT_EQ(root->mimeType, "text/html; charset=utf-8");
    EXPECT_EQ(web::FindPageFile("/app.js")->mimeType, "text/javascript; charset=utf-8");
    EXPECT_EQ(web::FindPageFile("/app.css")->mimeType, "text/css; charset=utf-8");
}

TEST(PageFiles, UnknownPathsAreNotFound) {
    for (const char* path : {"", "app.js", "/app.js/", "/../CMakeLists.txt", "/api/state"})
        EXPECT_EQ(web::FindPageFile(path), nullptr) << path;
}

}  // namespace
