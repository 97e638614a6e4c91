# The kinds of target in this project. A library's own folder is its only include root, so including
# a header of a folder that the target does not link is an error. The test `arrows` finds the rest.

# toolvane_library(NAME SOURCES file… [PUBLIC lib…] [PRIVATE lib…] [INTERFACES ui-name…])
# A static library that uses Qt. INTERFACES names files of resources/interface (without ".ui") that
# are compiled to ui_<name>.h for this library.
function(toolvane_library name)
    cmake_parse_arguments(PARSE_ARGV 1 arg "" "" "SOURCES;PUBLIC;PRIVATE;INTERFACES")
    add_library(${name} STATIC ${arg_SOURCES})
    set_target_properties(${name} PROPERTIES AUTOMOC ON)
    target_include_directories(${name} PUBLIC "${CMAKE_CURRENT_SOURCE_DIR}")
    target_link_libraries(${name} PUBLIC Qt6::Core ${arg_PUBLIC}
        PRIVATE toolvane_qt_settings ${arg_PRIVATE})
    foreach(interface IN LISTS arg_INTERFACES)
        toolvane_compile_interface(${name} ${interface})
    endforeach()
endfunction()

# Texts in interface descriptions have an id of the localisation tables (idbasedtr="true").
function(toolvane_compile_interface target interface)
    set(input "${PROJECT_SOURCE_DIR}/resources/interface/${interface}.ui")
    set(output "${CMAKE_CURRENT_BINARY_DIR}/interface/ui_${interface}.h")
    file(MAKE_DIRECTORY "${CMAKE_CURRENT_BINARY_DIR}/interface")
    add_custom_command(OUTPUT "${output}"
        COMMAND Qt6::uic -o "${output}" "${input}"
        DEPENDS "${input}" VERBATIM)
    target_sources(${target} PRIVATE "${output}")
    target_include_directories(${target} SYSTEM PRIVATE "${CMAKE_CURRENT_BINARY_DIR}/interface")
endfunction()

# toolvane_standin(NAME SOURCES file… [PRIVATE lib…])
# A stand-in program, in the folder where the command runner looks for it. It may use QtCore and
# nothing else of Qt. One that does not use QtCore is not linked to it.
function(toolvane_standin name)
    cmake_parse_arguments(PARSE_ARGV 1 arg "" "" "SOURCES;PRIVATE")
    add_executable(standin_${name} ${arg_SOURCES})
    set_target_properties(standin_${name} PROPERTIES OUTPUT_NAME ${name}
        RUNTIME_OUTPUT_DIRECTORY "${TOOLVANE_LIBEXEC_OUTPUT_DIRECTORY}")
    target_link_libraries(standin_${name} PRIVATE toolvane_qt_settings Qt6::Core ${arg_PRIVATE})
    target_link_options(standin_${name} PRIVATE LINKER:--as-needed)
    if(NOT TARGET standins)
        add_custom_target(standins)
    endif()
    add_dependencies(standins standin_${name})
    install(TARGETS standin_${name} DESTINATION "${CMAKE_INSTALL_LIBEXECDIR}/toolvane")
endfunction()

# Whether code that links the target is compiled with Qt Widgets.
function(toolvane_exposes_widgets target result)
    set(exposes OFF)
    if(target STREQUAL "Qt6::Widgets")
        set(exposes ON)
    elseif(TARGET ${target})
        get_target_property(links ${target} INTERFACE_LINK_LIBRARIES)
        foreach(link IN LISTS links) # private ones are $<LINK_ONLY:…>, which is not a target
            toolvane_exposes_widgets(${link} link_exposes)
            if(link_exposes)
                set(exposes ON)
                break()
            endif()
        endforeach()
    endif()
    set(${result} ${exposes} PARENT_SCOPE)
endfunction()

# Precompiled headers for tests in builds with sanitizers, see tests/CMakeLists.txt.
function(toolvane_share_test_headers name)
    set(headers toolvane_test_headers)
    foreach(link IN LISTS ARGN)
        toolvane_exposes_widgets(${link} exposes)
        if(exposes)
            set(headers toolvane_widget_test_headers)
        endif()
    endforeach()
    target_link_libraries(${name} PRIVATE toolvane_test_settings)
    target_precompile_headers(${name} REUSE_FROM ${headers})
endfunction()

# toolvane_test(NAME SOURCES file… [LINK lib…] [LABELS label…])
# One Qt Test program for CTest. It runs through tests/support/isolated, with a separate user
# database, home folder and settings, so that no test can reach the real ones.
function(toolvane_test name)
    cmake_parse_arguments(PARSE_ARGV 1 arg "" "" "SOURCES;LINK;LABELS")
    add_executable(${name} ${arg_SOURCES})
    set_target_properties(${name} PROPERTIES AUTOMOC ON
        RUNTIME_OUTPUT_DIRECTORY "${CMAKE_BINARY_DIR}/tests")
    target_link_libraries(${name} PRIVATE toolvane_qt_settings Qt6::Test ${arg_LINK})
    target_include_directories(${name} PRIVATE "${PROJECT_SOURCE_DIR}/tests/support")
    target_compile_definitions(${name} PRIVATE
        TOOLVANE_BUILD_DIR="${CMAKE_BINARY_DIR}" TOOLVANE_SOURCE_DIR="${PROJECT_SOURCE_DIR}")
    if(TOOLVANE_SANITIZE)
        toolvane_share_test_headers(${name} ${arg_LINK})
    endif()
    add_test(NAME ${name}
        COMMAND "${PROJECT_SOURCE_DIR}/tests/support/isolated" $<TARGET_FILE:${name}>)
    set_tests_properties(${name} PROPERTIES LABELS "${arg_LABELS}" TIMEOUT 300)
endfunction()
