# The direction of dependencies between the folders of src/. The form and its
# subsystems build on the platform and on the host's interfaces only; the plain host,
# the server and the session runner build on them, never the other way round.
#
# A layer listed here is compiled against an include root of its own that holds
# links to the folders it may reach and nothing else, so an include against the
# direction does not compile. check_layers.cmake reads the same lists to name the
# offending file and line.

set(DISPATCH_LAYERS platform screen)

set(DISPATCH_LAYER_platform_FOLDERS platform)
set(DISPATCH_LAYER_platform_REACHES platform)

set(DISPATCH_LAYER_screen_FOLDERS screen lists parties grid schemes records checks receipts)
set(DISPATCH_LAYER_screen_REACHES platform ${DISPATCH_LAYER_screen_FOLDERS})

# Builds the include root of a layer under `root`: one link a reachable folder of
# `source_dir`/src that exists. Links left from an earlier layout are removed first.
function(dispatch_include_root layer source_dir root)
  file(MAKE_DIRECTORY ${root})
  file(GLOB stale LIST_DIRECTORIES true ${root}/*)
  foreach(entry IN LISTS stale)
    file(REMOVE ${entry})
  endforeach()
  foreach(folder IN LISTS DISPATCH_LAYER_${layer}_REACHES)
    if(IS_DIRECTORY ${source_dir}/src/${folder})
      file(CREATE_LINK ${source_dir}/src/${folder} ${root}/${folder} SYMBOLIC)
    endif()
  endforeach()
endfunction()
