# Flags every target of this project shares, carried by interface targets: those of every build, and
# with them those of the sanitizers.
add_library(orna_warnings INTERFACE)
add_library(orna_flags INTERFACE)
target_link_libraries(orna_flags INTERFACE orna_warnings)
target_compile_options(orna_warnings INTERFACE
    -Wall -Wextra -Wpedantic -Wshadow -Wconversion -Wno-sign-conversion -Wnon-virtual-dtor
    -Wold-style-cast -Woverloaded-virtual
    # A fused multiply-add would give other bits on other machines.
    -ffp-contract=off
    $<$<BOOL:${ORNA_WERROR}>:-Werror>)
target_compile_definitions(orna_warnings INTERFACE
    QT_NO_CAST_TO_ASCII QT_NO_KEYWORDS QT_DISABLE_DEPRECATED_BEFORE=0x060400 QT_NO_FOREACH)
if(ORNA_SANITIZE STREQUAL "address")
    set(checks -fsanitize=address,undefined)
    target_compile_options(orna_flags INTERFACE
        ${checks} -fsanitize=float-cast-overflow -fno-sanitize-recover=all)
elseif(ORNA_SANITIZE STREQUAL "thread")
    set(checks -fsanitize=thread)
    target_compile_options(orna_flags INTERFACE ${checks})
elseif(ORNA_SANITIZE)
    message(FATAL_ERROR "ORNA_SANITIZE is \"address\", \"thread\" or nothing")
endif()
if(ORNA_SANITIZE)
    target_link_options(orna_flags INTERFACE ${checks})
    target_compile_options(orna_flags INTERFACE
        -fno-omit-frame-pointer)
    # GCC loses track of initialisation in instrumented code; the plain build still warns.
    target_compile_options(orna_flags INTERFACE
        $<$<CXX_COMPILER_ID:GNU>:-Wno-maybe-uninitialized>)
endif()
if(ORNA_FUZZ)
    # Coverage for the fuzzer in every library; its main function only in the fuzz targets.
    target_compile_options(orna_flags INTERFACE -fsanitize=fuzzer-no-link)
    target_link_options(orna_flags INTERFACE -fsanitize=fuzzer-no-link)
endif()

# What nearly every file includes is compiled once. Files include what they use all the same, so
# that they compile without, too.
set(ORNA_COMMON_HEADERS
    <QtCore/QObject> <QtCore/QStringList> <QtCore/QVariant> <QtGui/QColor>
    <algorithm> <array> <cmath> <functional> <map> <memory> <optional> <span> <string> <vector>)
set(ORNA_WINDOW_HEADERS
    <QtCore/QTimer> <QtGui/QAction> <QtGui/QIcon> <QtGui/QPainter>
    <QtWidgets/QBoxLayout> <QtWidgets/QLabel> <QtWidgets/QToolButton>)
function(orna_precompile target)
    if(ORNA_PRECOMPILE)
        target_precompile_headers(${target} PRIVATE ${ARGN})
    endif()
endfunction()
function(orna_reuse_precompiled target from)
    if(ORNA_PRECOMPILE)
        target_precompile_headers(${target} REUSE_FROM ${from})
    endif()
endfunction()
