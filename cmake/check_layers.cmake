# Lists every include in src/ that points against the direction of dependencies, with
# its file and line, and fails when there is one. The compiler already refuses such
# an include through the layer's include root; this says why, and also catches an
# include that climbs out of its folder with "../", which no include root can stop.
#
#   cmake -DSOURCE_DIR=<tree holding src/> -P check_layers.cmake

cmake_minimum_required(VERSION 3.25)
include(${CMAKE_CURRENT_LIST_DIR}/layers.cmake)

if(NOT SOURCE_DIR)
  message(FATAL_ERROR "check_layers.cmake needs -DSOURCE_DIR=<the tree holding src/>")
endif()
set(src ${SOURCE_DIR}/src)
file(REAL_PATH ${src} src_real)

# The folder of src/ an include of `file` lands in, or empty when it lands outside
# src/ (the standard library, fmt, gtest ...).
function(included_folder file include out)
  get_filename_component(from ${file} DIRECTORY)
  set(target)
  if(EXISTS ${from}/${include})
    file(REAL_PATH ${from}/${include} target)
  elseif(include MATCHES "^([^/]+)/")
    if(IS_DIRECTORY ${src}/${CMAKE_MATCH_1})
      set(target ${src_real}/${include})
    endif()
  endif()
  set(folder)
  if(target)
    file(RELATIVE_PATH inside ${src_real} ${target})
    if(NOT inside MATCHES "^\\.\\./" AND inside MATCHES "^([^/]+)/")
      set(folder ${CMAKE_MATCH_1})
    endif()
  endif()
  set(${out} "${folder}" PARENT_SCOPE)
endfunction()

# The number of the first line of `file` that reads `text`; only asked for a refusal.
function(line_of file text out)
  file(READ ${file} content)
  string(FIND "${content}" "${text}" at)
  string(SUBSTRING "${content}" 0 ${at} before)
  string(REGEX MATCHALL "\n" breaks "${before}")
  list(LENGTH breaks count)
  math(EXPR number "${count} + 1")
  set(${out} ${number} PARENT_SCOPE)
endfunction()

set(refusals)
foreach(layer IN LISTS DISPATCH_LAYERS)
  set(reaches ${DISPATCH_LAYER_${layer}_REACHES})
  list(JOIN reaches "/, " reach_text)
  foreach(folder IN LISTS DISPATCH_LAYER_${layer}_FOLDERS)
    file(GLOB_RECURSE files ${src}/${folder}/*.h ${src}/${folder}/*.cpp)
    foreach(file IN LISTS files)
      file(STRINGS ${file} lines REGEX "^[ \t]*#[ \t]*include")
      foreach(line IN LISTS lines)
        if(NOT line MATCHES "^[ \t]*#[ \t]*include[ \t]*[\"<]([^\">]+)[\">]")
          continue()
        endif()
        set(include ${CMAKE_MATCH_1})
        included_folder(${file} ${include} landed)
        if(landed AND NOT landed IN_LIST reaches)
          line_of(${file} "${line}" number)
          file(RELATIVE_PATH shown ${SOURCE_DIR} ${file})
          list(APPEND refusals
               "${shown}:${number}: includes \"${include}\" from ${landed}/, but ${layer} code may include only from ${reach_text}/")
        endif()
      endforeach()
    endforeach()
  endforeach()
endforeach()

if(refusals)
  list(JOIN refusals "\n  " listed)
  message(FATAL_ERROR "Includes against the direction of dependencies (see cmake/layers.cmake):\n  ${listed}")
endif()
