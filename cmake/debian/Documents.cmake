# Run by CPack between installing and packing: adds the changelogs that Debian wants in a package, and compresses what it
# wants compressed.
cmake_minimum_required(VERSION 3.25)

# SOURCE_DATE_EPOCH, where it is set, replaces the time of packing.
string(TIMESTAMP date "%a, %d %b %Y %H:%M:%S +0000" UTC)
set(changelog "${CPACK_PACKAGE_NAME} (${CPACK_PACKAGE_VERSION}) unstable; urgency=medium

  * Changes are listed in CHANGELOG.md.

 -- ${CPACK_PACKAGE_CONTACT}  ${date}
")

foreach(component IN LISTS CPACK_COMPONENTS_ALL)
  string(TOUPPER "${component}" name)
  set(share "${CPACK_TEMPORARY_DIRECTORY}/${component}${CPACK_PACKAGING_INSTALL_PREFIX}/share")
  set(documents "${share}/doc/${CPACK_DEBIAN_${name}_PACKAGE_NAME}")
  file(COPY "${CMAKE_CURRENT_LIST_DIR}/../../CHANGELOG.md" DESTINATION "${documents}")
  file(WRITE "${documents}/changelog" "${changelog}")
  file(GLOB pages "${share}/man/man*/*")
  execute_process(COMMAND gzip -9 --no-name "${documents}/changelog" ${pages} COMMAND_ERROR_IS_FATAL ANY)
endforeach()
