# Translations of the viewer, put where it looks for them: its own texts as tarn_LANGUAGE.qm and
# the toolkit's as qt_LANGUAGE.qm. Languages carry the names that the settings know them by.
find_package(Qt6 6.4 REQUIRED COMPONENTS LinguistTools)

# orna_add_translations(target directory): compiles and copies them when the target is built.
function(orna_add_translations target directory)
    get_filename_component(toolkit "${QT6_INSTALL_TRANSLATIONS}" ABSOLUTE
        BASE_DIR "${QT6_INSTALL_PREFIX}")
    set(compiled)
    # Our name of a language and the toolkit's; it has one Portuguese, the Brazilian.
    foreach(pair de=de es=es fr=fr pt=pt_BR cz=cs)
        string(REGEX MATCH "(.+)=(.+)" pair ${pair})
        set(source ${PROJECT_SOURCE_DIR}/resources/translations/tarn_${CMAKE_MATCH_1}.ts)
        set(own ${directory}/tarn_${CMAKE_MATCH_1}.qm)
        set(toolkit_source ${toolkit}/qtbase_${CMAKE_MATCH_2}.qm)
        set(toolkit_own ${directory}/qt_${CMAKE_MATCH_1}.qm)
        if(NOT EXISTS ${toolkit_source})
            message(FATAL_ERROR "${toolkit_source} is missing: install Qt's translations "
                "(qt6-translations-l10n), scripts/setup.sh does")
        endif()
        add_custom_command(OUTPUT ${own}
            COMMAND ${CMAKE_COMMAND} -E make_directory ${directory}
            COMMAND Qt6::lrelease -silent ${source} -qm ${own}
            DEPENDS ${source} VERBATIM)
        add_custom_command(OUTPUT ${toolkit_own}
            COMMAND ${CMAKE_COMMAND} -E make_directory ${directory}
            COMMAND ${CMAKE_COMMAND} -E copy ${toolkit_source} ${toolkit_own}
            DEPENDS ${toolkit_source} VERBATIM)
        list(APPEND compiled ${own} ${toolkit_own})
    endforeach()
    add_custom_target(orna_translations DEPENDS ${compiled})
    add_dependencies(${target} orna_translations)
endfunction()
