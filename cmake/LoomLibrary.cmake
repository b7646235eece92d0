# Helpers that give every folder of src/ its own static library.
#
# A library's headers are reachable as "folder/Header.h", and only by targets that link the library: its include
# root is a folder that holds nothing but a link to src/<folder>. A wrong include therefore does not build.

add_library(loom_options INTERFACE)
target_compile_definitions(loom_options INTERFACE
  QT_NO_CAST_FROM_BYTEARRAY QT_NO_CAST_TO_ASCII QT_NO_URL_CAST_FROM_STRING QT_NO_FOREACH QT_NO_KEYWORDS
  QT_NO_NARROWING_CONVERSIONS_IN_CONNECT QT_DISABLE_DEPRECATED_BEFORE=0x060400
  QT_MESSAGELOGCONTEXT LOOM_VERSION="${PROJECT_VERSION}" LOOM_BUILD=${LOOM_BUILD})
# Precompiled headers carry no time stamp, so that ccache can reuse what was built from them.
target_compile_options(loom_options INTERFACE -Xclang -fno-pch-timestamp)
if(LOOM_SANITIZE)
  # The vptr check needs type information that Debian's Qt libraries are built without.
  target_compile_options(loom_options INTERFACE
    -fsanitize=address,undefined -fno-sanitize=vptr -fno-sanitize-recover=undefined -fno-omit-frame-pointer)
  target_link_options(loom_options INTERFACE -fsanitize=address,undefined)
endif()

# Only our own sources are held to the strict set: code that Qt generates for QML does not pass it.
set(LOOM_WARNINGS -Wall -Wextra -Wpedantic -Wshadow -Wnon-virtual-dtor -Wold-style-cast -Woverloaded-virtual
  -Wimplicit-fallthrough -Wunused -Wconversion -Wno-sign-conversion -Wmissing-declarations
  -Wno-missing-designated-field-initializers -Werror)
string(JOIN " " LOOM_WARNINGS_TEXT ${LOOM_WARNINGS})

function(loom_strict_warnings)
  set_source_files_properties(${ARGN} PROPERTIES COMPILE_FLAGS "${LOOM_WARNINGS_TEXT}")
endfunction()

# What every folder below ui/ is built on. One set of libraries means one set of definitions, and so one
# precompiled header for all of them.
add_library(loom_core_kit INTERFACE)
target_link_libraries(loom_core_kit INTERFACE
  loom_options Qt6::Core Qt6::Network Qt6::Concurrent QCoro6::Core QCoro6::Network simdjson::simdjson)

add_library(loom_core_pch STATIC ${CMAKE_CURRENT_LIST_DIR}/Empty.cpp)
target_link_libraries(loom_core_pch PRIVATE loom_core_kit)
target_precompile_headers(loom_core_pch PRIVATE ${CMAKE_CURRENT_LIST_DIR}/CorePrecompiled.h)

# loom_library(<folder> SOURCES <file>... [DEPENDS <folder>...] [LIBRARIES <target>...])
function(loom_library folder)
  cmake_parse_arguments(ARG "" "" "SOURCES;DEPENDS;LIBRARIES" ${ARGN})
  string(REPLACE "/" "_" name ${folder})
  set(target loom_${name})
  add_library(${target} STATIC ${ARG_SOURCES})
  loom_strict_warnings(${ARG_SOURCES})
  set(root ${CMAKE_BINARY_DIR}/include/${name})
  cmake_path(GET folder PARENT_PATH above)
  file(MAKE_DIRECTORY ${root}/${above})
  file(CREATE_LINK ${CMAKE_SOURCE_DIR}/src/${folder} ${root}/${folder} SYMBOLIC)
  target_include_directories(${target} PUBLIC ${root})
  target_link_libraries(${target} PUBLIC loom_core_kit ${ARG_LIBRARIES})
  list(TRANSFORM ARG_DEPENDS REPLACE "/" "_")
  foreach(dependency IN LISTS ARG_DEPENDS)
    target_link_libraries(${target} PUBLIC loom_${dependency})
  endforeach()
  # What a QML module needs to declare the library's types to pages.
  qt_extract_metatypes(${target})
endfunction()

# The libraries that need nothing beyond the core kit share its precompiled header.
function(loom_core_library folder)
  loom_library(${folder} ${ARGN})
  string(REPLACE "/" "_" name ${folder})
  target_precompile_headers(loom_${name} REUSE_FROM loom_core_pch)
endfunction()
