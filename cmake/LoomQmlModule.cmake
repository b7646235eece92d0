# A helper that gives every folder of src/ui/ its own QML module.
#
#   loom_qml_module(<folder> URI <uri> VERSION <version>
#     QML <file>... [SINGLETONS <file>...] [SOURCES <file>...] [RESOURCES <file>...]
#     [DEPENDS <folder>...] [LIBRARIES <target>...] [IMPORTS <uri>...])
#
# The module is a static library, loom_ui_<folder>. An application that links it gets the module's plugin, its
# resources and those of the modules it depends on, and finds them all after
# engine.addImportPath("qrc:/qt/qml"). SINGLETONS are QML files too; IMPORTS are the
# modules that its C++ types derive from. Headers are reachable as
# "ui/<folder>/Header.h" and only by targets that link the library.

# One precompiled header for the code of the modules, ours and what Qt generates.
add_library(loom_quick_pch STATIC ${CMAKE_CURRENT_LIST_DIR}/Empty.cpp)
target_link_libraries(loom_quick_pch PRIVATE loom_core_kit Qt6::Quick)
target_precompile_headers(loom_quick_pch PRIVATE ${CMAKE_CURRENT_LIST_DIR}/QuickPrecompiled.h)

function(loom_qml_module folder)
  cmake_parse_arguments(ARG "" "URI;VERSION" "QML;SINGLETONS;SOURCES;RESOURCES;DEPENDS;LIBRARIES;IMPORTS" ${ARGN})
  set(target loom_ui_${folder})
  string(REPLACE "." "/" uri_path ${ARG_URI})
  if(ARG_SINGLETONS)
    set_source_files_properties(${ARG_SINGLETONS} PROPERTIES QT_QML_SINGLETON_TYPE TRUE)
  endif()

  qt_add_qml_module(${target}
    URI ${ARG_URI}
    VERSION ${ARG_VERSION}
    STATIC
    RESOURCE_PREFIX /qt/qml
    OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}/qml/${uri_path}
    IMPORT_PATH ${CMAKE_BINARY_DIR}/qml
    QML_FILES ${ARG_SINGLETONS} ${ARG_QML}
    SOURCES ${ARG_SOURCES}
    DEPENDENCIES ${ARG_IMPORTS}
    RESOURCES ${ARG_RESOURCES})

  set(sources ${ARG_SOURCES})
  list(FILTER sources INCLUDE REGEX "\\.cpp$")
  if(sources)
    loom_strict_warnings(${sources})
  endif()

  set(root ${CMAKE_BINARY_DIR}/include/ui_${folder})
  file(MAKE_DIRECTORY ${root}/ui)
  file(CREATE_LINK ${CMAKE_CURRENT_SOURCE_DIR} ${root}/ui/${folder} SYMBOLIC)
  target_include_directories(${target} PUBLIC ${root})
  # The registration code that Qt generates includes headers by their bare names.
  target_include_directories(${target} PRIVATE ${CMAKE_CURRENT_SOURCE_DIR})

  target_link_libraries(${target} PUBLIC loom_core_kit Qt6::Quick ${ARG_LIBRARIES} INTERFACE ${target}plugin)
  target_link_libraries(${target}plugin PRIVATE loom_options)
  target_precompile_headers(${target} REUSE_FROM loom_quick_pch)
  foreach(dependency IN LISTS ARG_DEPENDS)
    target_link_libraries(${target} PUBLIC loom_ui_${dependency})
    add_dependencies(${target}_qmllint loom_ui_${dependency})
  endforeach()
endfunction()
