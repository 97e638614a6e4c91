# The description of the Debian package for CPack. Build it with scripts/package. docs/packaging.md
# says why each package is a dependency, a recommendation or a suggestion.

set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME toolvane)
set(CPACK_PACKAGE_CONTACT "${TOOLVANE_MAINTAINER}")
set(CPACK_PACKAGE_VENDOR Toolvane)
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "everyday file and media tools in one window")
set(CPACK_PACKAGE_DESCRIPTION
"Toolvane gathers the small jobs of a desktop behind one list of tools:
 - convert a video with a preset;
 - find and delete the clutter in the home folder;
 - read a text aloud, or save it as a sound file;
 - pack a folder into a zip archive, and unpack archives;
 - make a disk image (DMG) or a CD image (ISO) of a folder;
 - look for a newer version.
.
A run that fails or is stopped leaves an older file of the same name as it
was.")

set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SECTION utils)
set(CPACK_DEBIAN_PACKAGE_HOMEPAGE "${TOOLVANE_WEB_SITE}")
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)
set(CPACK_DEBIAN_COMPRESSION_TYPE xz)
set(CPACK_THREADS 1) # blocks of xz depend on the number of threads
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS
    OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)
set(CPACK_PRE_BUILD_SCRIPTS "${CMAKE_CURRENT_LIST_DIR}/StripPackage.cmake")

set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_DEPENDS "libcurl4, libsodium23, unzip, zip")
list(APPEND recommended
    alsa-utils
    ca-certificates
    "default-dbus-session-bus | dbus-session-bus"
    espeak-ng
    ffmpeg
    libcanberra-pulse
    libcanberra0
    pulseaudio-utils
    qt6-translations-l10n
    qt6-wayland
    sound-theme-freedesktop
    xdg-utils
    xorriso)
list(JOIN recommended ", " CPACK_DEBIAN_PACKAGE_RECOMMENDS)
set(CPACK_DEBIAN_PACKAGE_SUGGESTS "systemd, xdg-desktop-portal")

# The service is a package of its own, made of the same tree: a second configuration of CPack packs
# what was installed for it, the first packs the rest.
set(CPACK_INSTALL_CMAKE_PROJECTS
    "${CMAKE_BINARY_DIR};${PROJECT_NAME};Unspecified;/;${CMAKE_BINARY_DIR};${PROJECT_NAME};desktop;/")
include(CPack)

file(WRITE "${CMAKE_BINARY_DIR}/CPackRecordsConfig.cmake" [[
include("${CMAKE_CURRENT_LIST_DIR}/CPackConfig.cmake")
set(CPACK_INSTALL_CMAKE_PROJECTS "${CMAKE_CURRENT_LIST_DIR};Toolvane;records;/")
set(CPACK_PACKAGE_NAME toolvane-records)
set(CPACK_DEBIAN_PACKAGE_NAME toolvane-records)
set(CPACK_DEBIAN_PACKAGE_SECTION net)
set(CPACK_DEBIAN_PACKAGE_DEPENDS "")
set(CPACK_DEBIAN_PACKAGE_RECOMMENDS "")
set(CPACK_DEBIAN_PACKAGE_SUGGESTS "sqlite3, toolvane")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "records that several Toolvane desktops share")
set(CPACK_PACKAGE_DESCRIPTION
"A small server for the record pages of Toolvane: several desktops work with
one set of users, groups and stock. It needs no other server, keeps the
records in an SQLite database, and wants an account for every request.
.
After the installation it does not run yet:
systemctl enable --now toolvane-records")
]])
