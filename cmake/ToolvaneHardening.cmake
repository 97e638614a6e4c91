# The distribution's own hardening flags, all of them, and no trace of where the build took place.

# toolvane_debian_flags(KIND VARIABLE): what dpkg-buildflags says for CXXFLAGS, CPPFLAGS or LDFLAGS.
# Debugging symbols are left out, the optimisation is the preset's, paths are mapped below.
function(toolvane_debian_flags kind variable)
    execute_process(
        COMMAND "${CMAKE_COMMAND}" -E env
            "DEB_BUILD_MAINT_OPTIONS=hardening=+all reproducible=-fixfilepath,-fixdebugpath"
            "DEB_CXXFLAGS_MAINT_STRIP=-g -O2"
            dpkg-buildflags --get ${kind}
        OUTPUT_VARIABLE flags OUTPUT_STRIP_TRAILING_WHITESPACE COMMAND_ERROR_IS_FATAL ANY)
    separate_arguments(flags UNIX_COMMAND "${flags}")
    set(${variable} "${flags}" PARENT_SCOPE)
endfunction()

toolvane_debian_flags(CPPFLAGS preprocessor_flags)
toolvane_debian_flags(CXXFLAGS compiler_flags)
toolvane_debian_flags(LDFLAGS linker_flags)
add_compile_options(${preprocessor_flags} ${compiler_flags}
    "-ffile-prefix-map=${CMAKE_SOURCE_DIR}=." # of two that match, the compiler takes the later
    "-ffile-prefix-map=${CMAKE_BINARY_DIR}=build")
add_link_options(${linker_flags})
