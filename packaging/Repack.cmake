# CPack runs this behind each package: packs it again with every time in it that of the release, unless
# SOURCE_DATE_EPOCH tells another.
cmake_minimum_required(VERSION 3.25)

if(NOT DEFINED ENV{SOURCE_DATE_EPOCH})
  execute_process(COMMAND date -u -d "${CPACK_LORVANE_RELEASE_DATE} 12:00" +%s OUTPUT_VARIABLE epoch
                  OUTPUT_STRIP_TRAILING_WHITESPACE COMMAND_ERROR_IS_FATAL ANY)
  set(ENV{SOURCE_DATE_EPOCH} "${epoch}")
endif()
foreach(package ${CPACK_PACKAGE_FILES})
  set(folder "${package}.folder")
  file(REMOVE_RECURSE "${folder}")
  execute_process(COMMAND dpkg-deb -R "${package}" "${folder}" COMMAND_ERROR_IS_FATAL ANY)
  execute_process(COMMAND find "${folder}" -exec touch -h -d "@$ENV{SOURCE_DATE_EPOCH}" {} +
                  COMMAND_ERROR_IS_FATAL ANY)
  execute_process(COMMAND dpkg-deb --root-owner-group -Zxz -b "${folder}" "${package}"
                  OUTPUT_QUIET COMMAND_ERROR_IS_FATAL ANY)
  file(REMOVE_RECURSE "${folder}")
endforeach()
