# libharu comes without a CMake package or a pkg-config file on Debian.
find_path(Hpdf_INCLUDE_DIR hpdf.h)
find_library(Hpdf_LIBRARY NAMES hpdf libhpdf)

include(FindPackageHandleStandardArgs)
find_package_handle_standard_args(Hpdf REQUIRED_VARS Hpdf_LIBRARY Hpdf_INCLUDE_DIR)

if(Hpdf_FOUND AND NOT TARGET Hpdf::hpdf)
    add_library(Hpdf::hpdf UNKNOWN IMPORTED)
    set_target_properties(Hpdf::hpdf PROPERTIES
        IMPORTED_LOCATION "${Hpdf_LIBRARY}"
        INTERFACE_INCLUDE_DIRECTORIES "${Hpdf_INCLUDE_DIR}")
endif()
