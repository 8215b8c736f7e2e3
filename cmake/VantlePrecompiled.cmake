# The headers of Qt and of the standard library that most sources include, compiled once.
#
# They halve the time of a whole build. A missing include does not show with them: a build without
# (the preset debug) compiles each source by what it names itself.
option(VANTLE_PRECOMPILE "Compile common headers once" OFF)

if(VANTLE_PRECOMPILE)
    file(WRITE "${CMAKE_BINARY_DIR}/precompiled.cpp.in" "")
    configure_file("${CMAKE_BINARY_DIR}/precompiled.cpp.in" "${CMAKE_BINARY_DIR}/precompiled.cpp" COPYONLY)
    add_library(vantle_precompiled STATIC "${CMAKE_BINARY_DIR}/precompiled.cpp")
    set_target_properties(vantle_precompiled PROPERTIES AUTOMOC OFF)
    # Only the include folders of the larger libraries: a source that links fewer of them would differ in
    # their definitions, and the compiler would refuse the file.
    foreach(library IN ITEMS Gui Qml Quick)
        target_include_directories(vantle_precompiled SYSTEM PRIVATE
            $<TARGET_PROPERTY:Qt6::${library},INTERFACE_INCLUDE_DIRECTORIES>)
    endforeach()
    target_include_directories(vantle_precompiled SYSTEM PRIVATE
        $<TARGET_PROPERTY:Qt6::Network,INTERFACE_INCLUDE_DIRECTORIES>
        $<TARGET_PROPERTY:Qt6::QmlIntegration,INTERFACE_INCLUDE_DIRECTORIES>
        $<TARGET_PROPERTY:Qt6::QmlModels,INTERFACE_INCLUDE_DIRECTORIES>
        $<TARGET_PROPERTY:Qt6::OpenGL,INTERFACE_INCLUDE_DIRECTORIES>)
    target_link_libraries(vantle_precompiled PRIVATE Qt6::Core)
    target_precompile_headers(vantle_precompiled PRIVATE "${CMAKE_SOURCE_DIR}/cmake/precompiled.h")
endif()

# Compiles the sources of a target with them.
function(vantle_precompile target)
    if(VANTLE_PRECOMPILE)
        target_precompile_headers(${target} REUSE_FROM vantle_precompiled)
    endif()
endfunction()
