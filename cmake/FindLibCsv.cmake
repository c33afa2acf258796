# Finds libcsv, which has neither a CMake package nor a file for pkg-config: the target CSV::CSV.
find_path(LibCsv_INCLUDE_DIR csv.h)
find_library(LibCsv_LIBRARY csv)
mark_as_advanced(LibCsv_INCLUDE_DIR LibCsv_LIBRARY)
include(FindPackageHandleStandardArgs)
find_package_handle_standard_args(LibCsv REQUIRED_VARS LibCsv_LIBRARY LibCsv_INCLUDE_DIR)
if(LibCsv_FOUND AND NOT TARGET CSV::CSV)
    add_library(CSV::CSV UNKNOWN IMPORTED)
    set_target_properties(CSV::CSV PROPERTIES
        IMPORTED_LOCATION ${LibCsv_LIBRARY} INTERFACE_INCLUDE_DIRECTORIES ${LibCsv_INCLUDE_DIR})
endif()
