# The Debian package; scripts/package makes it.
set(LOOM_MAINTAINER "LOOMSTREET developers <developers@loomstreet.com>" CACHE STRING "Who answers for the package")
set(LOOM_PACKAGE_DATE "Sun, 22 Nov 2026 06:00:00 +0000" CACHE STRING "When the package was made, as its changelog says")

# What a package brings its reader comes compressed, without a time of its own.
find_program(LOOM_GZIP gzip REQUIRED)
function(install_compressed source name destination)
  set(target ${CMAKE_CURRENT_BINARY_DIR}/${name}.gz)
  configure_file(${source} ${CMAKE_CURRENT_BINARY_DIR}/${name} @ONLY)
  execute_process(COMMAND ${LOOM_GZIP} --best --no-name --stdout ${CMAKE_CURRENT_BINARY_DIR}/${name}
    OUTPUT_FILE ${target} COMMAND_ERROR_IS_FATAL ANY)
  install(FILES ${target} DESTINATION ${destination})
endfunction()
install_compressed(loomstreet.1 loomstreet.1 ${CMAKE_INSTALL_MANDIR}/man1)
install_compressed(debian/changelog.in changelog ${CMAKE_INSTALL_DATADIR}/doc/loomstreet)
install(FILES debian/copyright DESTINATION ${CMAKE_INSTALL_DATADIR}/doc/loomstreet)

# dpkg-shlibdeps finds the libraries. What is only loaded when it is needed has to be named.
set(needed
  # the modules that the pages import, and those that these import
  qml6-module-qt-labs-folderlistmodel qml6-module-qtcore qml6-module-qtqml qml6-module-qtqml-models
  qml6-module-qtqml-workerscript qml6-module-qtquick qml6-module-qtquick-controls qml6-module-qtquick-dialogs
  qml6-module-qtquick-layouts qml6-module-qtquick-templates qml6-module-qtquick-window qml6-module-qtwebchannel
  qml6-module-qtwebengine
  # WebP pictures, the browser
  qt6-image-formats-plugins xdg-utils
  # what the toolkit's own dialogs say in other languages
  qt6-translations-l10n
  # the text's font, the other scripts', and where a Thai word ends
  fonts-inter fonts-noto-core fonts-noto-cjk libthai0)
set(better_with
  default-dbus-session-bus|dbus-session-bus ca-certificates fonts-noto-color-emoji
  gnome-keyring|kwalletmanager libgl1-mesa-dri libqt6positioning6-plugins geoclue-2.0 pipewire-pulse|pulseaudio
  qt6-wayland)

set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME loomstreet)
set(CPACK_PACKAGE_VERSION ${PROJECT_VERSION})
set(CPACK_PACKAGE_CONTACT ${LOOM_MAINTAINER})
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "shopping client of an online fashion store")
set(CPACK_PACKAGE_DESCRIPTION "Departments, collections and designers in tabs and windows that come back as
they were left; every picture, size table and review of a piece; a shopping
bag, and the store's own checkout in a window of its own.
.
With an account it follows orders and keeps alerts. A stylist answers in a
chat or a call.")
set(CPACK_PACKAGING_INSTALL_PREFIX ${CMAKE_INSTALL_PREFIX})
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)
# Without the helper: it is the system that replaces what it installed.
set(CPACK_INSTALL_CMAKE_PROJECTS "${CMAKE_BINARY_DIR};${PROJECT_NAME};Unspecified;/")
set(CPACK_STRIP_FILES ON)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SECTION net)
set(CPACK_DEBIAN_PACKAGE_PRIORITY optional)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)
list(JOIN needed ", " CPACK_DEBIAN_PACKAGE_DEPENDS)
list(JOIN better_with ", " CPACK_DEBIAN_PACKAGE_RECOMMENDS)
string(REPLACE "|" " | " CPACK_DEBIAN_PACKAGE_RECOMMENDS "${CPACK_DEBIAN_PACKAGE_RECOMMENDS}")
set(CPACK_VERBATIM_VARIABLES ON)
include(CPack)
