# The texts of the window in every language it speaks. A language is one file, loomstreet_<code>.ts; the program reads
# what is made of it in place, as :/i18n/loomstreet_<code>.qm.
find_package(Qt6 6.4 REQUIRED COMPONENTS LinguistTools)

# In the order of AppLanguage.
set(LOOM_LANGUAGES en ar hr cs da nl fil fi fr de el he hi hu is id it ja ko ms nb pl pt ro ru zh-Hans sk es sv th
  zh-Hant tr uk vi)

# loom_translations(<target>)
# A library that brings the texts of all languages along, and a target update_translations that takes what the sources
# say now into the files, without what they say no more.
function(loom_translations target)
  # What lrelease warns of is an error, which it knows no option for.
  set(script ${CMAKE_SOURCE_DIR}/cmake/ReleaseTranslation.cmake)
  set(written)
  set(released)
  foreach(code IN LISTS LOOM_LANGUAGES)
    set(ts ${CMAKE_CURRENT_SOURCE_DIR}/loomstreet_${code}.ts)
    set(qm ${CMAKE_CURRENT_BINARY_DIR}/loomstreet_${code}.qm)
    list(APPEND written ${ts})
    if(NOT EXISTS ${ts})
      message(FATAL_ERROR "There is no ${ts}: the window speaks every language or does not build.")
    endif()
    add_custom_command(OUTPUT ${qm}
      COMMAND ${CMAKE_COMMAND} -DLRELEASE=$<TARGET_FILE:Qt6::lrelease> -DTS=${ts} -DQM=${qm} -P ${script}
      DEPENDS ${ts} ${script} Qt6::lrelease
      COMMENT "Releasing the texts of ${code}"
      VERBATIM)
    set_source_files_properties(${qm} PROPERTIES GENERATED TRUE)
    list(APPEND released ${qm})
  endforeach()

  add_library(${target} STATIC ${CMAKE_SOURCE_DIR}/cmake/Empty.cpp)
  target_link_libraries(${target} PUBLIC loom_options Qt6::Core)
  # Uncompressed, they are read where they lie; in the big form no compiler has to read them first.
  qt_add_resources(${target} texts BIG_RESOURCES
    PREFIX /i18n
    BASE ${CMAKE_CURRENT_BINARY_DIR}
    OPTIONS -no-compress
    FILES ${released})

  set(english ${CMAKE_CURRENT_SOURCE_DIR}/loomstreet_en.ts)
  list(REMOVE_ITEM written ${english})
  set(update $<TARGET_FILE:Qt6::lupdate> -silent -extensions cpp,h,qml -no-obsolete -locations none
    -source-language en_US ${CMAKE_SOURCE_DIR}/src)
  add_custom_target(update_translations
    COMMAND ${update} -ts ${written}
    # English stands in the sources; the file has what depends on a number.
    COMMAND ${update} -pluralonly -target-language en_US -ts ${english}
    COMMENT "Taking the texts of the sources into the translations"
    VERBATIM)
endfunction()
