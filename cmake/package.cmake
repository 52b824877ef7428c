# SPDX-License-Identifier: MIT
# What is installed, and the two forms in which Vanzer is given away: a Debian package (target "package"), and a folder
# that holds program and archive together (target "portable").
include(GNUInstallDirs)
set(documents ${CMAKE_INSTALL_DATADIR}/doc/vanzer)
set(icons ${CMAKE_INSTALL_DATADIR}/icons/hicolor)

# Debian wants manual pages and the list of changes packed, without a time stamp so that they are the same each time.
find_program(GZIP gzip REQUIRED)
set(packed)
function(pack source name)
  add_custom_command(OUTPUT ${CMAKE_BINARY_DIR}/packed/${name}.gz
    COMMAND ${CMAKE_COMMAND} -E make_directory ${CMAKE_BINARY_DIR}/packed
    COMMAND ${GZIP} -9nc ${source} > ${CMAKE_BINARY_DIR}/packed/${name}.gz
    DEPENDS ${source} VERBATIM)
  set(packed ${packed} ${CMAKE_BINARY_DIR}/packed/${name}.gz PARENT_SCOPE)
endfunction()
pack(${CMAKE_SOURCE_DIR}/share/man/vanzer.1 vanzer.1)
pack(${CMAKE_SOURCE_DIR}/share/man/vanzer-batch.1 vanzer-batch.1)
pack(${CMAKE_SOURCE_DIR}/CHANGELOG.md changelog)
add_custom_target(packed ALL DEPENDS ${packed})

# The description for software centres. The day of this version stands in the list of changes.
set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${CMAKE_SOURCE_DIR}/CHANGELOG.md)
file(STRINGS CHANGELOG.md release REGEX "^## ${PROJECT_VERSION} - [0-9-]+$")
if(NOT release)
  message(FATAL_ERROR "CHANGELOG.md has no line \"## ${PROJECT_VERSION} - DATE\"")
endif()
string(REGEX REPLACE ".* - " "" release_date "${release}")
configure_file(share/vanzer.metainfo.xml.in ${CMAKE_BINARY_DIR}/vanzer.metainfo.xml @ONLY)

install(TARGETS vanzer vanzer-batch Scribolo)
install(FILES share/vanzer.desktop DESTINATION ${CMAKE_INSTALL_DATADIR}/applications)
install(FILES ${CMAKE_BINARY_DIR}/vanzer.metainfo.xml DESTINATION ${CMAKE_INSTALL_DATADIR}/metainfo)
install(FILES share/vanzer-iei.xml DESTINATION ${CMAKE_INSTALL_DATADIR}/mime/packages)
install(FILES share/vanzer.svg DESTINATION ${icons}/scalable/apps)
install(FILES share/vanzer.png DESTINATION ${icons}/128x128/apps)
install(FILES share/vanzer_512.png DESTINATION ${icons}/512x512/apps RENAME vanzer.png)
install(FILES ${CMAKE_BINARY_DIR}/packed/vanzer.1.gz ${CMAKE_BINARY_DIR}/packed/vanzer-batch.1.gz DESTINATION ${CMAKE_INSTALL_MANDIR}/man1)
install(FILES ${CMAKE_BINARY_DIR}/packed/changelog.gz DESTINATION ${documents})
install(FILES LICENSE DESTINATION ${documents} RENAME copyright)
install(FILES docs/manuale.md docs/batch.md THIRD_PARTY.md DESTINATION ${documents})
set(pictures ${manual_files})
list(FILTER pictures INCLUDE REGEX "png$")
install(FILES ${pictures} DESTINATION ${documents}/screenshots)
file(GLOB samples CONFIGURE_DEPENDS samples/*.iei)
install(FILES ${samples} DESTINATION ${CMAKE_INSTALL_DATADIR}/vanzer/esempi)

set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME vanzer)
set(CPACK_PACKAGE_VENDOR Vanzer)
set(CPACK_PACKAGE_CONTACT "Vanzer <vanzer@localhost>")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "plan motorhome trips, day by day")
set(CPACK_PACKAGE_DESCRIPTION "Plans trips by motorhome: legs, roads, stops and what there is to see become a
timed schedule with driving, meals and nights, which can be fitted to a number
of days, printed, drawn, and given to calendars and other travellers. The
program speaks Italian.
.
Prepara i viaggi in camper giorno per giorno: tappe, strade, soste e visite
diventano una viandoria con date e ore.")
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_STRIP_FILES ON)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SECTION utils)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
# Loaded at run time: the texts of standard dialogs, Wayland, the fonts of the pages.
set(CPACK_DEBIAN_PACKAGE_RECOMMENDS "qt6-translations-l10n, qt6-wayland, fonts-liberation, fonts-dejavu-core")
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)
include(CPack)

# The folder to carry about: the program keeps its archive beside itself where it can write.
set(portable ${CMAKE_BINARY_DIR}/portable/Vanzer)
add_custom_target(portable
  COMMAND ${CMAKE_COMMAND} -E rm -rf ${portable}
  COMMAND ${CMAKE_COMMAND} -E make_directory ${portable}/esempi ${portable}/screenshots
  COMMAND ${CMAKE_COMMAND} -E copy $<TARGET_FILE:vanzer> $<TARGET_FILE:vanzer-batch> $<TARGET_FILE:Scribolo>
          ${CMAKE_SOURCE_DIR}/docs/manuale.md ${CMAKE_SOURCE_DIR}/share/LEGGIMI.txt ${CMAKE_SOURCE_DIR}/LICENSE
          ${CMAKE_SOURCE_DIR}/THIRD_PARTY.md ${portable}
  COMMAND ${CMAKE_COMMAND} -E copy ${samples} ${portable}/esempi
  COMMAND ${CMAKE_COMMAND} -E copy ${pictures} ${portable}/screenshots
  COMMAND ${CMAKE_STRIP} ${portable}/vanzer ${portable}/vanzer-batch ${portable}/Scribolo
  COMMAND ${CMAKE_COMMAND} -E chdir ${CMAKE_BINARY_DIR}/portable
          ${CMAKE_COMMAND} -E tar czf ${CMAKE_BINARY_DIR}/vanzer-${PROJECT_VERSION}-portable.tar.gz Vanzer
  DEPENDS vanzer vanzer-batch Scribolo VERBATIM)
