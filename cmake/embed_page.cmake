# The page's files compiled into the program. `dispatch_embed_page(TARGET target)`
# makes the static library target, unless it is there already, and adds to it a
# generated source that holds every file of src/web/page/ as a string and defines
# web::FindPageFile (src/web/page_files.h). The source is written again whenever a
# page file changes; a file added or removed is seen at the next configure, which
# the glob asks for.
#
# Run as a script (cmake -DOUTPUT=... -DPAGE_DIR=... -P embed_page.cmake) this file
# writes the source itself.

function(dispatch_embed_page)
  cmake_parse_arguments(PARSE_ARGV 0 arg "" "TARGET" "")
  if(NOT arg_TARGET)
    message(FATAL_ERROR "dispatch_embed_page needs TARGET")
  endif()
  set(page_dir ${PROJECT_SOURCE_DIR}/src/web/page)
  file(GLOB page_files CONFIGURE_DEPENDS ${page_dir}/*)
  set(output ${PROJECT_BINARY_DIR}/generated/web/page_files.cpp)
  if(NOT TARGET ${arg_TARGET})
    add_library(${arg_TARGET} STATIC)
  endif()
  add_custom_command(
    OUTPUT ${output}
    COMMAND ${CMAKE_COMMAND} -DOUTPUT=${output} -DPAGE_DIR=${page_dir} -P ${PROJECT_SOURCE_DIR}/cmake/embed_page.cmake
    DEPENDS ${page_files} ${PROJECT_SOURCE_DIR}/cmake/embed_page.cmake
    COMMENT "Embedding the page's files"
    VERBATIM)
  target_sources(${arg_TARGET} PRIVATE ${output})
  target_include_directories(${arg_TARGET} PUBLIC ${PROJECT_SOURCE_DIR}/src)
endfunction()

function(_dispatch_page_mime_type file result)
  get_filename_component(extension ${file} LAST_EXT)
  string(TOLOWER "${extension}" extension)
  if(extension STREQUAL ".html")
    set(type "text/html; charset=utf-8")
  elseif(extension STREQUAL ".js")
    set(type "text/javascript; charset=utf-8")
  elseif(extension STREQUAL ".css")
    set(type "text/css; charset=utf-8")
  elseif(extension STREQUAL ".json")
    set(type "application/json")
  elseif(extension STREQUAL ".svg")
    set(type "image/svg+xml")
  elseif(extension STREQUAL ".png")
    set(type "image/png")
  elseif(extension STREQUAL ".ico")
    set(type "image/x-icon")
  else()
    set(type "application/octet-stream")
  endif()
  set(${result} "${type}" PARENT_SCOPE)
endfunction()

# Bytes as a C++ string literal of hex escapes, 32 bytes a line; adjacent
# literals join. Escapes keep any byte, quotes and backslashes alike, as it is.
function(_dispatch_page_literal file result)
  file(READ ${file} hex HEX)
  string(LENGTH "${hex}" digits)
  math(EXPR size "${digits} / 2")
  # A "g" (never a hex digit) marks where each line of 32 bytes ends.
  string(REGEX REPLACE "(................................................................)" "\\1g" hex "${hex}")
  string(REGEX REPLACE "([0-9a-f][0-9a-f])" "\\\\x\\1" escaped "${hex}")
  string(REPLACE "g" "\"\n    \"" escaped "${escaped}")
  set(${result} "    \"${escaped}\"" PARENT_SCOPE)
  set(${result}_size ${size} PARENT_SCOPE)
endfunction()

function(_dispatch_write_page_source output page_dir)
  file(GLOB files LIST_DIRECTORIES false ${page_dir}/*)
  list(SORT files)
  set(contents "")
  set(table "")
  set(n 0)
  foreach(file IN LISTS files)
    get_filename_component(name ${file} NAME)
    _dispatch_page_literal(${file} literal)
    _dispatch_page_mime_type(${file} type)
    string(APPEND contents "constexpr std::string_view kFile${n}{\n${literal},\n    ${literal_size}};\n\n")
    string(APPEND table "    {\"/${name}\", {kFile${n}, \"${type}\"}},\n")
    math(EXPR n "${n} + 1")
  endforeach()
  set(source "// Written by cmake/embed_page.cmake from src/web/page/; edits here are lost.
#include <string_view>

#include \"web/page_files.h\"

namespace web {
namespace {

struct NamedPageFile {
    std::string_view path;
    PageFile file;
};

${contents}const NamedPageFile kPageFiles[] = {
${table}};

}  // namespace

const PageFile* FindPageFile(std::string_view path) {
    if (path == \"/\") path = \"/index.html\";
    for (const NamedPageFile& named : kPageFiles)
        if (named.path == path) return &named.file;
    return nullptr;
}

}  // namespace web
")
  file(WRITE ${output} "${source}")
endfunction()

if(CMAKE_SCRIPT_MODE_FILE AND OUTPUT AND PAGE_DIR)
  _dispatch_write_page_source(${OUTPUT} ${PAGE_DIR})
endif()
