# The Debian packages: `vantle`, and `vantle-webceremony` for those who have a page to be played.
# What the programs link is read from them; what views import can only be listed.
set(changelogs vantle)
if(TARGET vantle-webceremony)
    list(APPEND changelogs webceremony)
endif()
foreach(component IN LISTS changelogs)
    string(REPLACE "webceremony" "vantle-webceremony" package ${component})
    set(doc "share/doc/${package}")
    install(FILES "${CMAKE_CURRENT_BINARY_DIR}/changelog.gz" debian/copyright
            DESTINATION ${doc} COMPONENT ${component})
endforeach()

set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME vantle)
set(CPACK_PACKAGE_VERSION "${PROJECT_VERSION}")
set(CPACK_PACKAGE_CONTACT "The Vantle developers <developers@vantle.example>")
set(CPACK_PACKAGE_DIRECTORY "${CMAKE_BINARY_DIR}/packages")
set(CPACK_COMPONENTS_ALL ${changelogs})
set(CPACK_STRIP_FILES ON)
# The prefix itself, for the paths that files hold, with all of it below a folder of its own.
set(CPACK_SET_DESTDIR ON)
set(CPACK_INSTALL_PREFIX "${CMAKE_INSTALL_PREFIX}")
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS
    OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)

set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_COMPRESSION_TYPE xz)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_SECTION utils)
set(CPACK_DEBIAN_PACKAGE_PRIORITY optional)
set(CPACK_DEBIAN_PACKAGE_HOMEPAGE "${VANTLE_HOMEPAGE}")

set(CPACK_DEBIAN_VANTLE_PACKAGE_NAME vantle)
set(CPACK_COMPONENT_VANTLE_DESCRIPTION "count the time you really work
One shortcut, pressed anywhere, starts the clock; pressed again, it writes down
what was done. The clock stops when you walk away, and follows you from one
application to the next.
.
Vantle lives in the tray, keeps all of its data in one directory of yours, and
opens no network connection.")
# gdbus: how menus and keys bound on the desktop reach the program.
set(CPACK_DEBIAN_VANTLE_PACKAGE_DEPENDS
    "hicolor-icon-theme, libglib2.0-bin, qml6-module-qtqml, qml6-module-qtqml-workerscript, qml6-module-qtquick (>= 6.4), qml6-module-qtquick-window")
set(CPACK_DEBIAN_VANTLE_PACKAGE_RECOMMENDS
    "dbus-user-session | dbus-session-bus, fonts-inter, xdg-utils")
set(CPACK_DEBIAN_VANTLE_PACKAGE_SUGGESTS "vantle-webceremony, xwayland")

set(CPACK_DEBIAN_WEBCEREMONY_PACKAGE_NAME vantle-webceremony)
set(CPACK_COMPONENT_WEBCEREMONY_DESCRIPTION "play a page of yours at both ends of a session
With this module Vantle shows a web page in place of its own ceremony, if you
have written one. It brings a whole web engine along, and is of no use without
a page.")
set(CPACK_DEBIAN_WEBCEREMONY_PACKAGE_DEPENDS
    "vantle (= ${PROJECT_VERSION}), qml6-module-qtwebengine")

include(CPack)
