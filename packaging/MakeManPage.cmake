# Makes a compressed man page of a page of the manual and the template that it goes into:
#   cmake -D TEMPLATE=lorvane.1.md -D PAGE=desktop.md -D NAME=lorvane -D VERSION=1.2.3 -D DATE=2026-01-05
#         -D LOWDOWN=lowdown -D OUTPUT=lorvane.1.gz -P MakeManPage.cmake

cmake_minimum_required(VERSION 3.25)
file(READ "${TEMPLATE}" text)
file(READ "${PAGE}" page)
# The template has a title of its own.
string(REGEX REPLACE "^# [^\n]*\n" "" page "${page}")
string(REPLACE "@PAGE@" "${page}" text "${text}")

get_filename_component(folder "${OUTPUT}" DIRECTORY)
file(MAKE_DIRECTORY "${folder}")
set(plain "${folder}/${NAME}.1")
file(WRITE "${plain}.md" "${text}")
string(TOUPPER "${NAME}" title)
execute_process(
  COMMAND "${LOWDOWN}" -s -tman --nroff-nolinks --out-no-smart --parse-no-metadata -M "title=${title}" -M section=1
          -M "date=${DATE}" -M "source=Lorvane ${VERSION}" -o "${plain}" "${plain}.md"
  COMMAND_ERROR_IS_FATAL ANY)
execute_process(COMMAND gzip -9n -c "${plain}" OUTPUT_FILE "${OUTPUT}" COMMAND_ERROR_IS_FATAL ANY)
file(REMOVE "${plain}" "${plain}.md")
