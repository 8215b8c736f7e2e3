# One static library a folder. LINKS states the only folders and outside libraries that its includes
# may reach; tests/tidy reads the includes and names an edge that is not stated.

function(vantle_library name)
    cmake_parse_arguments(ARG "" "" "SOURCES;LINKS;PRIVATE_LINKS" ${ARGN})
    add_library(${name} STATIC ${ARG_SOURCES})
    target_include_directories(${name} PUBLIC "${CMAKE_SOURCE_DIR}/src")
    target_link_libraries(${name} PUBLIC ${ARG_LINKS} PRIVATE ${ARG_PRIVATE_LINKS})
    vantle_precompile(${name})
endfunction()

# Compiles resources/translations/vantle_<language>.ts for each language into a library.
function(vantle_translations name)
    find_program(VANTLE_LRELEASE NAMES lrelease lrelease6 lrelease-qt6 REQUIRED
                 HINTS "${QT6_INSTALL_PREFIX}/${QT6_INSTALL_BINS}" NO_DEFAULT_PATH)
    set(compiled "")
    foreach(language IN LISTS ARGN)
        set(source "${CMAKE_SOURCE_DIR}/resources/translations/vantle_${language}.ts")
        set(catalogue "${CMAKE_CURRENT_BINARY_DIR}/vantle_${language}.qm")
        add_custom_command(OUTPUT "${catalogue}"
            COMMAND "${VANTLE_LRELEASE}" -silent "${source}" -qm "${catalogue}"
            DEPENDS "${source}" VERBATIM)
        list(APPEND compiled "${catalogue}")
    endforeach()
    qt_add_resources(${name} ${name}_files PREFIX "/vantle/translations"
                     BASE "${CMAKE_CURRENT_BINARY_DIR}" FILES ${compiled})
endfunction()

# A folder with views: a static library that is a QML module as well. Programs link NAME, and get its
# views by vantle_use_views.
# DEPENDENCIES names the modules of which it uses C++ types for its own, for the views' checker.
option(VANTLE_QML_AHEAD "Turn the views into byte code ahead of time" ON)
function(vantle_qml_module name)
    cmake_parse_arguments(ARG "" "URI" "SOURCES;QML_FILES;RESOURCES;LINKS;DEPENDENCIES" ${ARGN})
    string(REPLACE "." "/" path ${ARG_URI})
    set(cache NO_CACHEGEN)
    if(VANTLE_QML_AHEAD)
        set(cache "")
    endif()
    # A view of a subfolder stands in the module by its bare name, beside those of the others.
    foreach(file IN LISTS ARG_QML_FILES)
        cmake_path(GET file FILENAME bare_name)
        set_source_files_properties(${file} PROPERTIES QT_RESOURCE_ALIAS ${bare_name})
    endforeach()
    # The generated registration includes the headers of the module by their bare names.
    set(folders "${CMAKE_CURRENT_SOURCE_DIR}")
    foreach(file IN LISTS ARG_SOURCES)
        cmake_path(GET file PARENT_PATH folder)
        list(APPEND folders "${CMAKE_CURRENT_SOURCE_DIR}/${folder}")
    endforeach()
    list(TRANSFORM folders REPLACE "/$" "")
    list(REMOVE_DUPLICATES folders)
    qt_add_library(${name} STATIC)
    qt_add_qml_module(${name}
        URI ${ARG_URI}
        VERSION 1.0
        ${cache}
        RESOURCE_PREFIX /qt/qml
        OUTPUT_DIRECTORY "${QT_QML_OUTPUT_DIRECTORY}/${path}"
        IMPORT_PATH "${QT_QML_OUTPUT_DIRECTORY}"
        DEPENDENCIES QtQuick ${ARG_DEPENDENCIES}
        QML_FILES ${ARG_QML_FILES}
        RESOURCES ${ARG_RESOURCES}
        SOURCES ${ARG_SOURCES})
    # Byte code spares the start the parsing. Going on to C++ would take half of a build's time, and
    # the views hold nothing that would run faster for it.
    set_target_properties(${name} PROPERTIES QT_QMLCACHEGEN_ARGUMENTS "--only-bytecode")
    # What is generated is many small files that include the same headers: a few are compiled at once.
    set_target_properties(${name} PROPERTIES UNITY_BUILD ON UNITY_BUILD_BATCH_SIZE 32)
    if(NOT CMAKE_UNITY_BUILD)
        set_source_files_properties(${ARG_SOURCES} PROPERTIES SKIP_UNITY_BUILD_INCLUSION ON)
    endif()
    # What Qt generates from the views shadows names and converts silently.
    target_compile_options(${name} PRIVATE -Wno-shadow -Wno-conversion)
    target_include_directories(${name} PUBLIC "${CMAKE_SOURCE_DIR}/src" PRIVATE ${folders})
    target_link_libraries(${name} PUBLIC ${ARG_LINKS} Qt6::Quick)
    # Qt's targets of the module too: their few lines include what the precompiled headers hold, and
    # take a third of the time with them. Moc leaves them nothing, in a source that needs no header.
    foreach(part IN ITEMS "" plugin plugin_init _qmlcache)
        if(TARGET ${name}${part})
            vantle_precompile(${name}${part})
        endif()
    endforeach()
    set_source_files_properties(
        "${CMAKE_CURRENT_BINARY_DIR}/${name}plugin_autogen/mocs_compilation.cpp"
        "${CMAKE_CURRENT_BINARY_DIR}/${name}_qmlcache_autogen/mocs_compilation.cpp"
        PROPERTIES SKIP_PRECOMPILE_HEADERS ON)
endfunction()

# A folder with one of the program's windows: such a module, which launch/Windows.cpp may use.
function(vantle_window name)
    vantle_qml_module(${ARGV})
    set_property(GLOBAL APPEND PROPERTY VANTLE_WINDOWS ${name})
endfunction()

# Links the views of all modules that a program links, directly or by others. Called once the program
# has all of its links.
function(vantle_use_views program)
    set(pending ${program})
    set(seen "")
    while(pending)
        list(POP_FRONT pending target)
        if(target IN_LIST seen OR NOT TARGET ${target})
            continue()
        endif()
        list(APPEND seen ${target})
        if(TARGET ${target}plugin)
            target_link_libraries(${program} PRIVATE ${target}plugin)
        endif()
        get_target_property(links ${target} LINK_LIBRARIES)
        if(links)
            list(FILTER links INCLUDE REGEX "^vantle_")
            list(APPEND pending ${links})
        endif()
    endwhile()
endfunction()

# Qt's targets for resources and for the start of a plugin hold nothing for moc, yet each would have a
# run of it and an empty source of its own: a hundred of them. Newer versions read what moc said of the
# latter, so there those keep it.
function(vantle_spare_generated_targets directory)
    set(spared "_(resources_[0-9]+|init)$")
    if(Qt6_VERSION VERSION_GREATER_EQUAL 6.5)
        set(spared "_resources_[0-9]+$")
    endif()
    get_property(targets DIRECTORY "${directory}" PROPERTY BUILDSYSTEM_TARGETS)
    list(FILTER targets INCLUDE REGEX "${spared}")
    if(targets)
        set_target_properties(${targets} PROPERTIES AUTOMOC OFF)
    endif()
    get_property(folders DIRECTORY "${directory}" PROPERTY SUBDIRECTORIES)
    foreach(folder IN LISTS folders)
        vantle_spare_generated_targets("${folder}")
    endforeach()
endfunction()
