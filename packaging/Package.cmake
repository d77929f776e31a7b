# SPDX-License-Identifier: MIT
# The Debian package: cpack -G DEB in the build folder.
set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME ${package})
set(CPACK_PACKAGE_VENDOR "The KOVRA project creation authors")
set(CPACK_PACKAGE_CONTACT "The KOVRA project creation authors <project-creation@kovra.invalid>")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "wizard that creates KOVRA analyser projects")
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_PACKAGE_DIRECTORY "${CMAKE_BINARY_DIR}/package")
set(CPACK_STRIP_FILES ON)
# Whatever the umask of the person who builds it.
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS
    OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)

set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_RELEASE 1)
set(CPACK_DEBIAN_PACKAGE_SECTION devel)
set(CPACK_DEBIAN_PACKAGE_PRIORITY optional)
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
# Qt loads sqlite by name, so no library that is linked tells of it; the help collection can not be read without. The
# suite's analysers start the other two.
set(CPACK_DEBIAN_PACKAGE_DEPENDS "cppcheck (>= 2.10), libqt6sql6-sqlite, ninja-build")
set(CPACK_DEBIAN_PACKAGE_RECOMMENDS "assistant-qt6, qt6-translations-l10n, shared-mime-info, xdg-utils")
# Each is asked by one kind of conversion only, which names what is missing.
set(CPACK_DEBIAN_PACKAGE_SUGGESTS "bear, cmake, qt6-wayland")
set(CPACK_DEBIAN_PACKAGE_DESCRIPTION
"Converts the description of a build, such as a compilation database, to a
project file for the static analysers Orv C and Orv C++: in a wizard, or
without a window in scripts.
.
It comes with a converter for compilation databases, CMake, Meson, Ninja, Make
and Visual Studio projects, source folders and lists of files, and with open
analysers on top of cppcheck, which are used where no others are installed.")
include(CPack)
