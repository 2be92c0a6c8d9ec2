# CPack runs this over the files of each package: takes out of the programs what Debian takes out of its own.
cmake_minimum_required(VERSION 3.25)

file(GLOB programs "${CPACK_TEMPORARY_INSTALL_DIRECTORY}/usr/bin/*")
execute_process(COMMAND strip --remove-section=.comment --remove-section=.note ${programs}
                COMMAND_ERROR_IS_FATAL ANY)
