# Translations: our own texts as tarn_LANGUAGE.qm and the toolkit's as qt_LANGUAGE.qm. Languages
# carry the names that the settings know them by.
find_package(Qt6 6.4 REQUIRED COMPONENTS LinguistTools)

set(ORNA_TEXTS)
foreach(language de es fr pt cz)
    set(source ${PROJECT_SOURCE_DIR}/resources/translations/tarn_${language}.ts)
    set(compiled ${CMAKE_BINARY_DIR}/texts/tarn_${language}.qm)
    add_custom_command(OUTPUT ${compiled}
        COMMAND ${CMAKE_COMMAND} -E make_directory ${CMAKE_BINARY_DIR}/texts
        COMMAND Qt6::lrelease -silent ${source} -qm ${compiled}
        DEPENDS ${source} VERBATIM)
    list(APPEND ORNA_TEXTS ${compiled})
endforeach()
add_custom_target(orna_texts DEPENDS ${ORNA_TEXTS})

# orna_add_translations(target directory): puts both into the directory, where the viewer looks
# for them, when the target is built.
function(orna_add_translations target directory)
    get_filename_component(toolkit "${QT6_INSTALL_TRANSLATIONS}" ABSOLUTE
        BASE_DIR "${QT6_INSTALL_PREFIX}")
    set(copies)
    # Our name of a language and the toolkit's; it has one Portuguese, the Brazilian.
    foreach(pair de=de es=es fr=fr pt=pt_BR cz=cs)
        string(REGEX MATCH "(.+)=(.+)" pair ${pair})
        set(own ${CMAKE_BINARY_DIR}/texts/tarn_${CMAKE_MATCH_1}.qm)
        set(own_copy ${directory}/tarn_${CMAKE_MATCH_1}.qm)
        set(toolkit_source ${toolkit}/qtbase_${CMAKE_MATCH_2}.qm)
        set(toolkit_copy ${directory}/qt_${CMAKE_MATCH_1}.qm)
        if(NOT EXISTS ${toolkit_source})
            message(FATAL_ERROR "${toolkit_source} is missing: install Qt's translations "
                "(qt6-translations-l10n), scripts/setup.sh does")
        endif()
        add_custom_command(OUTPUT ${own_copy}
            COMMAND ${CMAKE_COMMAND} -E make_directory ${directory}
            COMMAND ${CMAKE_COMMAND} -E copy ${own} ${own_copy}
            DEPENDS orna_texts ${own} VERBATIM)
        add_custom_command(OUTPUT ${toolkit_copy}
            COMMAND ${CMAKE_COMMAND} -E make_directory ${directory}
            COMMAND ${CMAKE_COMMAND} -E copy ${toolkit_source} ${toolkit_copy}
            DEPENDS ${toolkit_source} VERBATIM)
        list(APPEND copies ${own_copy} ${toolkit_copy})
    endforeach()
    add_custom_target(orna_translations DEPENDS ${copies})
    add_dependencies(${target} orna_translations)
endfunction()
