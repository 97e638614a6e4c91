# All of the distribution's hardening flags, and no paths of the build machine.

# toolvane_debian_flags(KIND VARIABLE): the output of dpkg-buildflags for CXXFLAGS, CPPFLAGS or
# LDFLAGS, without debugging symbols. The preset sets the optimisation; paths are mapped below.
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
    "-ffile-prefix-map=${CMAKE_SOURCE_DIR}=." # if two match, the compiler uses the later one
    "-ffile-prefix-map=${CMAKE_BINARY_DIR}=build")
add_link_options(${linker_flags})
