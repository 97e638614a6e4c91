# What all targets share: language standard, warnings, sanitizers, Qt strictness, and the layout of
# the build tree, which is that of an installation.

set(CMAKE_CXX_STANDARD 20)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_EXPORT_COMPILE_COMMANDS ON)
set(CMAKE_POSITION_INDEPENDENT_CODE ON)

set(CMAKE_RUNTIME_OUTPUT_DIRECTORY "${CMAKE_BINARY_DIR}/bin")
set(TOOLVANE_LIBEXEC_OUTPUT_DIRECTORY "${CMAKE_BINARY_DIR}/libexec/toolvane")
set(TOOLVANE_SHARE_OUTPUT_DIRECTORY "${CMAKE_BINARY_DIR}/share")

find_program(TOOLVANE_CCACHE ccache)
if(TOOLVANE_CCACHE)
    set(CMAKE_CXX_COMPILER_LAUNCHER "${TOOLVANE_CCACHE}")
endif()

# Linked by all our targets, with or without Qt.
add_library(toolvane_settings INTERFACE)
target_compile_options(toolvane_settings INTERFACE
    -Wall -Wextra -Wpedantic -Wshadow -Wconversion -Wno-sign-conversion -Wold-style-cast
    -Wcast-qual -Wnon-virtual-dtor -Woverloaded-virtual -Wundef -Wimplicit-fallthrough)
if(TOOLVANE_WERROR)
    target_compile_options(toolvane_settings INTERFACE -Werror)
endif()
if(TOOLVANE_SANITIZE)
    target_compile_options(toolvane_settings INTERFACE
        -fsanitize=${TOOLVANE_SANITIZE} -fno-sanitize-recover=all -fno-omit-frame-pointer)
    target_link_options(toolvane_settings INTERFACE -fsanitize=${TOOLVANE_SANITIZE})
endif()

# Linked by the targets that use Qt: no implicit conversions between bytes and text, no keywords.
add_library(toolvane_qt_settings INTERFACE)
target_link_libraries(toolvane_qt_settings INTERFACE toolvane_settings)
target_compile_definitions(toolvane_qt_settings INTERFACE
    QT_NO_CAST_FROM_ASCII QT_NO_CAST_TO_ASCII QT_NO_CAST_FROM_BYTEARRAY QT_NO_URL_CAST_FROM_STRING
    QT_NO_NARROWING_CONVERSIONS_IN_CONNECT QT_NO_KEYWORDS QT_NO_FOREACH
    QT_NO_JAVA_STYLE_ITERATORS QT_DISABLE_DEPRECATED_BEFORE=0x060400)
