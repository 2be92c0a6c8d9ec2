# What is installed, and the Debian package that CPack makes of it: cmake --build --preset release --target package.
# The programs find Resource in share/lorvane, beside the bin/ that they are in.

include(GNUInstallDirs)

set(packaging "${PROJECT_SOURCE_DIR}/packaging")
set(made "${PROJECT_BINARY_DIR}/package")
set(app_id example.lorvane.lorvane)
find_program(LORVANE_LOWDOWN lowdown)
find_program(LORVANE_RSVG_CONVERT rsvg-convert)
if(NOT LORVANE_LOWDOWN OR NOT LORVANE_RSVG_CONVERT)
  message(STATUS "No package can be made: lowdown or rsvg-convert is missing (scripts/setup-packages)")
  return()
endif()

# The day of the newest release dates everything that is made, so that the same sources make the same package.
file(STRINGS "${packaging}/${app_id}.metainfo.xml" releases REGEX "<release ")
list(GET releases 0 newest)
string(REGEX REPLACE ".* date=\"([^\"]*)\".*" "\\1" release_date "${newest}")
execute_process(COMMAND date -u -R -d "${release_date} 12:00" OUTPUT_VARIABLE release_time
                OUTPUT_STRIP_TRAILING_WHITESPACE COMMAND_ERROR_IS_FATAL ANY)
set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS "${packaging}/${app_id}.metainfo.xml")

set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME lorvane)
set(CPACK_PACKAGE_CONTACT "The Lorvane developers <maintainers@lorvane.example>")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "book-keeping for workers' compensation assessments")
file(READ "${packaging}/description.txt" CPACK_DEBIAN_PACKAGE_DESCRIPTION)
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS
    OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
# The first of this version, made by its developers and not by Debian.
set(CPACK_DEBIAN_PACKAGE_RELEASE 0lorvane1)
set(CPACK_DEBIAN_PACKAGE_SECTION misc)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)
# The reports are set in these fonts.
set(CPACK_DEBIAN_PACKAGE_DEPENDS fonts-liberation)
# To work on such a desktop as itself, and to open a document with the program for it.
set(CPACK_DEBIAN_PACKAGE_RECOMMENDS "qt6-wayland, xdg-utils")
set(CPACK_DEBIAN_PACKAGE_SUGGESTS "bash-completion, gnome-calculator | kcalc | galculator | xcalc, cups")
set(CPACK_PRE_BUILD_SCRIPTS "${packaging}/Strip.cmake")
set(CPACK_POST_BUILD_SCRIPTS "${packaging}/Repack.cmake")
set(CPACK_LORVANE_RELEASE_DATE "${release_date}")

# Made of a file by a command, and named for the target below: made_file(NAME DEPENDS file... COMMAND ...)
set(made_files "")
function(made_file name)
  cmake_parse_arguments(PARSE_ARGV 1 arg "" "" "DEPENDS;COMMAND")
  get_filename_component(folder "${made}/${name}" DIRECTORY)
  add_custom_command(
    OUTPUT "${made}/${name}"
    COMMAND ${CMAKE_COMMAND} -E make_directory "${folder}"
    COMMAND ${arg_COMMAND}
    DEPENDS ${arg_DEPENDS}
    VERBATIM)
  list(APPEND made_files "${made}/${name}")
  set(made_files "${made_files}" PARENT_SCOPE)
endfunction()

function(icon kind name drawing)
  install(FILES "${drawing}" DESTINATION "${CMAKE_INSTALL_DATADIR}/icons/hicolor/scalable/${kind}"
          RENAME "${name}.svg")
  foreach(size 16 22 24 32 48 64 128 256)
    set(png "icons/hicolor/${size}x${size}/${kind}/${name}.png")
    made_file("${png}" DEPENDS "${drawing}" COMMAND "${LORVANE_RSVG_CONVERT}" -w ${size} -h ${size}
              -o "${made}/${png}" "${drawing}")
  endforeach()
  set(made_files "${made_files}" PARENT_SCOPE)
endfunction()
icon(apps lorvane "${PROJECT_SOURCE_DIR}/resources/icons/lorvane.svg")
icon(mimetypes application-x-lorvane-company "${packaging}/application-x-lorvane-company.svg")

foreach(entry "lorvane desktop" "lorvane-cli command-line")
  separate_arguments(entry)
  list(GET entry 0 name)
  list(GET entry 1 page)
  set(page "${PROJECT_SOURCE_DIR}/docs/manual/${page}.md")
  made_file(
    "man1/${name}.1.gz"
    DEPENDS "${page}" "${packaging}/${name}.1.md" "${packaging}/MakeManPage.cmake"
    COMMAND ${CMAKE_COMMAND} -D "TEMPLATE=${packaging}/${name}.1.md" -D "PAGE=${page}" -D NAME=${name}
            -D VERSION=${PROJECT_VERSION} -D DATE=${release_date} -D "LOWDOWN=${LORVANE_LOWDOWN}"
            -D "OUTPUT=${made}/man1/${name}.1.gz" -P "${packaging}/MakeManPage.cmake")
endforeach()

configure_file("${packaging}/changelog.Debian.in" "${made}/changelog.Debian" @ONLY)
foreach(entry "changelog.Debian ${made}/changelog.Debian" "changelog ${PROJECT_SOURCE_DIR}/CHANGELOG.md")
  separate_arguments(entry)
  list(GET entry 0 name)
  list(GET entry 1 plain)
  made_file("doc/${name}.gz" DEPENDS "${plain}" COMMAND sh -c "gzip -9nc \"$1\" >\"$2\"" sh "${plain}"
            "${made}/doc/${name}.gz")
endforeach()
add_custom_target(package-files ALL DEPENDS ${made_files})

install(TARGETS lorvane lorvane-cli RUNTIME DESTINATION "${CMAKE_INSTALL_BINDIR}")
install(DIRECTORY "${CMAKE_RUNTIME_OUTPUT_DIRECTORY}/Resource"
        DESTINATION "${CMAKE_INSTALL_DATADIR}/lorvane")
install(DIRECTORY "${made}/icons" DESTINATION "${CMAKE_INSTALL_DATADIR}")
install(DIRECTORY "${made}/man1" DESTINATION "${CMAKE_INSTALL_MANDIR}")
install(DIRECTORY "${made}/doc/" DESTINATION "${CMAKE_INSTALL_DATADIR}/doc/lorvane")
install(FILES "${packaging}/copyright" DESTINATION "${CMAKE_INSTALL_DATADIR}/doc/lorvane")
install(FILES "${packaging}/lorvane.desktop" DESTINATION "${CMAKE_INSTALL_DATADIR}/applications")
install(FILES "${packaging}/${app_id}.metainfo.xml" DESTINATION "${CMAKE_INSTALL_DATADIR}/metainfo")
install(FILES "${packaging}/lorvane.mime.xml" DESTINATION "${CMAKE_INSTALL_DATADIR}/mime/packages"
        RENAME lorvane.xml)
foreach(program lorvane lorvane-cli)
  install(FILES "${packaging}/${program}.bash"
          DESTINATION "${CMAKE_INSTALL_DATADIR}/bash-completion/completions" RENAME ${program})
endforeach()

include(CPack)
