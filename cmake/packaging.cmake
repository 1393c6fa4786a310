# Installing and packaging. `make install PREFIX=DIR` installs under a prefix;
# `make package` builds a Debian package that installs under /usr:
#
#   bin/quillbox                                   the command-line tool
#   bin/quillbox-desk                              the desktop program
#   share/applications/quillbox.desktop            its entry in the menus
#   share/icons/hicolor/scalable/apps/quillbox.svg its icon
#   share/man/man1/quillbox.1.gz                   the tool's manual page
#   share/doc/quillbox/copyright                   what the package holds, and
#                                                  the icons' licences

include(GNUInstallDirs)

# The manual page, made from the built tool's own help texts.
set(man_page ${CMAKE_CURRENT_BINARY_DIR}/man/quillbox.1.gz)
add_custom_command(
  OUTPUT ${man_page}
  COMMAND ${CMAKE_COMMAND} -E make_directory ${CMAKE_CURRENT_BINARY_DIR}/man
  COMMAND ${CMAKE_CURRENT_SOURCE_DIR}/scripts/make-man-page.sh $<TARGET_FILE:quillbox>
          > ${CMAKE_CURRENT_BINARY_DIR}/man/quillbox.1
  COMMAND gzip -9nf ${CMAKE_CURRENT_BINARY_DIR}/man/quillbox.1
  DEPENDS quillbox ${CMAKE_CURRENT_SOURCE_DIR}/scripts/make-man-page.sh
  COMMENT "Writing the quillbox manual page")
add_custom_target(man_page ALL DEPENDS ${man_page})

install(TARGETS quillbox RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR})
install(FILES ${man_page} DESTINATION ${CMAKE_INSTALL_MANDIR}/man1)
install(FILES packaging/copyright DESTINATION ${CMAKE_INSTALL_DATAROOTDIR}/doc/quillbox)
if(TARGET quillbox-desk)
  install(TARGETS quillbox-desk RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR})
  install(FILES packaging/quillbox.desktop DESTINATION ${CMAKE_INSTALL_DATAROOTDIR}/applications)
  install(FILES packaging/quillbox.svg
          DESTINATION ${CMAKE_INSTALL_DATAROOTDIR}/icons/hicolor/scalable/apps)
endif()

set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME quillbox)
set(CPACK_PACKAGE_VERSION ${PROJECT_VERSION})
set(CPACK_PACKAGE_DIRECTORY ${CMAKE_CURRENT_BINARY_DIR}/package)
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_STRIP_FILES ON)
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY
    "Client document links and merge fields for accounting firms")
set(CPACK_PACKAGE_DESCRIPTION
    "Quillbox keeps, for each client of an accounting firm, a tree of document \
categories with links to the client's files where they already live, and opens them \
with the desktop's applications; the files themselves are never touched. The package \
holds the desktop program, quillbox-desk, and the command-line tool, quillbox, which \
creates client databases and runs the firm's look-ups, address blocks and summaries \
on them.")
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_MAINTAINER "Quillbox developers <packages@quillbox.invalid>")
set(CPACK_DEBIAN_PACKAGE_SECTION office)
# The libraries the programs link come from dpkg-shlibdeps; Qt's SVG icon
# engine and its X platform are plug-ins, loaded at run time.
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_DEPENDS "libqt6svg6, qt6-qpa-plugins")
set(CPACK_DEBIAN_PACKAGE_RECOMMENDS "xdg-utils")
include(CPack)

# The package, unpacked into a temporary root, and an install under a prefix,
# tried as a user would. Not for the sanitizer build: it packages the
# programs as they are built.
if(NOT QB_SANITIZE)
  add_test(NAME test_package
           COMMAND ${CMAKE_CURRENT_SOURCE_DIR}/tests/package/package_test.sh ${CMAKE_BINARY_DIR})
endif()
