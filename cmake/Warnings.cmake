# SPDX-License-Identifier: GPL-3.0-or-later
# Flags for all of our own code; Qt's headers are system headers and stay silent.
add_library(morvane-flags INTERFACE)

target_compile_definitions(morvane-flags INTERFACE
    QT_NO_CAST_FROM_BYTEARRAY
    QT_NO_CAST_TO_ASCII
    QT_NO_CAST_FROM_ASCII
    QT_NO_URL_CAST_FROM_STRING
    QT_NO_FOREACH
    QT_NO_NARROWING_CONVERSIONS_IN_CONNECT
    QT_USE_QSTRINGBUILDER
    QT_DEPRECATED_WARNINGS
    QT_DISABLE_DEPRECATED_BEFORE=0x050F00)

if(MSVC)
    target_compile_options(morvane-flags INTERFACE /W4 /utf-8 $<$<BOOL:${MORVANE_WERROR}>:/WX>)
else()
    target_compile_options(morvane-flags INTERFACE
        -Wall -Wextra -Wpedantic -Wshadow -Wconversion -Wnon-virtual-dtor -Woverloaded-virtual
        $<$<BOOL:${MORVANE_WERROR}>:-Werror>)
endif()

if(MORVANE_SANITIZE)
    target_compile_options(morvane-flags INTERFACE
        -fsanitize=address,undefined -fno-omit-frame-pointer -fno-sanitize-recover=undefined)
    target_link_options(morvane-flags INTERFACE -fsanitize=address,undefined)
endif()
