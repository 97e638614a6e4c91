# toolvane_page_test(NAME PAGES page… SOURCES file…)
# A test of tool pages in a tree of its own, in which a recording program replaces those that the
# pages run (RecordedProgram.h): the test sees their arguments and chooses how they end.
function(toolvane_page_test name)
    cmake_parse_arguments(PARSE_ARGV 1 arg "" "" "PAGES;SOURCES")
    list(TRANSFORM arg_PAGES PREPEND toolvane_tools_)
    toolvane_test(${name} SOURCES ${arg_SOURCES} LINK ${arg_PAGES})
    set_target_properties(${name} PROPERTIES
        RUNTIME_OUTPUT_DIRECTORY "${CMAKE_BINARY_DIR}/tests/recorded/tests")
endfunction()
