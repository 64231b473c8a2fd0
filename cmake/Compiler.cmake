# Flags every target of this project shares, carried by one interface target.
add_library(orna_flags INTERFACE)
target_compile_options(orna_flags INTERFACE
    -Wall -Wextra -Wpedantic -Wshadow -Wconversion -Wno-sign-conversion -Wnon-virtual-dtor
    -Wold-style-cast -Woverloaded-virtual
    # A fused multiply-add would give other bits on other machines.
    -ffp-contract=off
    $<$<BOOL:${ORNA_WERROR}>:-Werror>)
target_compile_definitions(orna_flags INTERFACE
    QT_NO_CAST_TO_ASCII QT_NO_KEYWORDS QT_DISABLE_DEPRECATED_BEFORE=0x060400 QT_NO_FOREACH)
if(ORNA_SANITIZE)
    target_compile_options(orna_flags INTERFACE
        -fsanitize=address,undefined,float-cast-overflow -fno-sanitize-recover=all
        -fno-omit-frame-pointer
        # GCC loses track of initialisation in instrumented code; the plain build still warns.
        $<$<CXX_COMPILER_ID:GNU>:-Wno-maybe-uninitialized>)
    target_link_options(orna_flags INTERFACE -fsanitize=address,undefined)
endif()
if(ORNA_FUZZ)
    # Coverage for the fuzzer in every library; its main function only in the fuzz targets.
    target_compile_options(orna_flags INTERFACE -fsanitize=fuzzer-no-link)
    target_link_options(orna_flags INTERFACE -fsanitize=fuzzer-no-link)
endif()
