# Run by CPack on the staged tree: strips the programs and removes the sections that the
# distribution removes.
file(GLOB programs "${CPACK_TEMPORARY_INSTALL_DIRECTORY}/usr/bin/*"
    "${CPACK_TEMPORARY_INSTALL_DIRECTORY}/usr/libexec/toolvane/*")
if(NOT programs)
    message(FATAL_ERROR "No programs in ${CPACK_TEMPORARY_INSTALL_DIRECTORY}")
endif()
execute_process(COMMAND strip --remove-section=.comment --remove-section=.note ${programs}
    COMMAND_ERROR_IS_FATAL ANY)
