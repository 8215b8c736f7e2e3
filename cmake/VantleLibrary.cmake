# One static library a folder. LINKS states the only folders and outside libraries that its includes
# may reach; tests/tidy reads the includes and names an edge that is not stated.

function(vantle_library name)
    cmake_parse_arguments(ARG "" "" "SOURCES;LINKS;PRIVATE_LINKS" ${ARGN})
    add_library(${name} STATIC ${ARG_SOURCES})
    target_include_directories(${name} PUBLIC "${CMAKE_SOURCE_DIR}/src")
    target_link_libraries(${name} PUBLIC ${ARG_LINKS} PRIVATE ${ARG_PRIVATE_LINKS})
endfunction()
