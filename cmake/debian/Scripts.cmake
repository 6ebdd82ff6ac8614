# Run by CPack on the finished packages: takes the scripts out that call ldconfig, which CPack puts into every package
# with a library. The triggers of the packages with a library update the loader's cache, once for all that are installed
# together.
cmake_minimum_required(VERSION 3.25)

set(root "${CPACK_TOPLEVEL_DIRECTORY}/repack")
foreach(package IN LISTS CPACK_PACKAGE_FILES)
  execute_process(COMMAND dpkg-deb --raw-extract "${package}" "${root}" COMMAND_ERROR_IS_FATAL ANY)
  if(EXISTS "${root}/DEBIAN/postinst" OR EXISTS "${root}/DEBIAN/postrm")
    file(REMOVE "${root}/DEBIAN/postinst" "${root}/DEBIAN/postrm")
    execute_process(COMMAND dpkg-deb --root-owner-group --build "${root}" "${package}"
      OUTPUT_QUIET COMMAND_ERROR_IS_FATAL ANY)
  endif()
  file(REMOVE_RECURSE "${root}")
endforeach()
