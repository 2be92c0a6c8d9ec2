# How every target of the project is compiled.

set(CMAKE_CXX_STANDARD 20)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_RUNTIME_OUTPUT_DIRECTORY "${PROJECT_BINARY_DIR}/bin")

# As Debian builds its packages.
set(CMAKE_CXX_FLAGS_RELEASE "-O2 -DNDEBUG -U_FORTIFY_SOURCE -D_FORTIFY_SOURCE=2")
add_link_options($<$<CONFIG:Release>:-Wl,-z,relro,-z,now>)

add_compile_options(
  -Wall -Wextra -Wpedantic -Wshadow -Wnon-virtual-dtor -Woverloaded-virtual -Wconversion
  -Wsign-conversion -Wold-style-cast -Wcast-qual -Wdouble-promotion -Werror)

if(LORVANE_SANITIZE)
  add_compile_options(-fsanitize=address,undefined -fno-sanitize-recover=all
                      -fno-omit-frame-pointer -O1)
  add_link_options(-fsanitize=address,undefined)
endif()

if(LORVANE_COVERAGE)
  add_compile_options(--coverage -fprofile-update=atomic -O0)
  add_link_options(--coverage)
endif()

if(LORVANE_FUZZ)
  add_compile_options(-fsanitize=fuzzer-no-link,address,undefined -O1)
  add_link_options(-fsanitize=address,undefined)
endif()

find_program(LORVANE_CCACHE ccache)
if(LORVANE_CCACHE)
  set(CMAKE_CXX_COMPILER_LAUNCHER "${LORVANE_CCACHE}")
endif()
