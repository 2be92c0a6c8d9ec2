# The libraries that Debian packages for us. pkg-config names differ between releases only in version.

find_package(PkgConfig REQUIRED)
find_package(fmt REQUIRED)
find_package(CLI11 REQUIRED)
find_package(nlohmann_json REQUIRED)
find_package(ICU REQUIRED COMPONENTS uc i18n)
find_package(OpenSSL REQUIRED COMPONENTS Crypto)
find_package(Qt6 REQUIRED COMPONENTS Widgets PrintSupport Svg)
find_package(EXPAT REQUIRED)
pkg_check_modules(SQLCIPHER REQUIRED IMPORTED_TARGET sqlcipher)
pkg_check_modules(XLSXWRITER REQUIRED IMPORTED_TARGET xlsxwriter)
pkg_check_modules(QPDF REQUIRED IMPORTED_TARGET libqpdf)
pkg_check_modules(LIBZIP REQUIRED IMPORTED_TARGET libzip)
# Debian releases carry one of these versions.
pkg_search_module(ORCUS REQUIRED IMPORTED_TARGET liborcus-0.20 liborcus-0.19 liborcus-0.18
                  liborcus-0.17)

if(BUILD_TESTING)
  find_package(GTest REQUIRED)
  find_package(Qt6 REQUIRED COMPONENTS Test)
  include(GoogleTest)
endif()
if(LORVANE_BENCH)
  find_package(benchmark REQUIRED)
endif()
