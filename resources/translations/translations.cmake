# The translations, compiled in under ":/Translations/": the program's and the libraries' texts
# from the .ts files here (lrelease), and Qt's own messages as "qt_<language>" from the installed
# qttranslations5-l10n package. Included from resources/CMakeLists.txt, so that its generated
# files belong to the directory of PelodineResources.
set(PELODINE_LANGUAGES de ru)
# The folders lupdate reads, per .ts set; the translations test compares against the same scan.
set(PELODINE_APP_TEXT_DIRS app mainpage flow nodes batch common CACHE INTERNAL "")
set(PELODINE_LIBS_TEXT_DIRS libs/cpp/OrkWidgets libs/cpp/OrkTools CACHE INTERNAL "")
set(PELODINE_TS_DIR ${CMAKE_CURRENT_LIST_DIR} CACHE INTERNAL "")

get_target_property(qmakeExecutable Qt5::qmake IMPORTED_LOCATION)
execute_process(COMMAND ${qmakeExecutable} -query QT_INSTALL_TRANSLATIONS
    OUTPUT_VARIABLE qtTranslationsDir OUTPUT_STRIP_TRAILING_WHITESPACE)

set(qmDir ${CMAKE_CURRENT_BINARY_DIR}/translations)
file(MAKE_DIRECTORY ${qmDir})
set(appTsFiles)
set(libsTsFiles)
set(qtQmFiles)
set(qrcEntries)
foreach(language IN LISTS PELODINE_LANGUAGES)
    list(APPEND appTsFiles ${CMAKE_CURRENT_LIST_DIR}/Pelodine_${language}.ts)
    list(APPEND libsTsFiles ${CMAKE_CURRENT_LIST_DIR}/libs_${language}.ts)
    set(qtbase ${qtTranslationsDir}/qtbase_${language}.qm)
    if(NOT EXISTS ${qtbase})
        message(FATAL_ERROR "${qtbase} is missing: run scripts/install-deps.sh")
    endif()
    # qtbase holds every message of the Qt modules the program uses (dialog buttons, file
    # dialog, colour dialog); the "qt_" catalogue of the package only points at such files.
    add_custom_command(OUTPUT ${qmDir}/qt_${language}.qm
        COMMAND ${CMAKE_COMMAND} -E copy ${qtbase} ${qmDir}/qt_${language}.qm
        DEPENDS ${qtbase} VERBATIM)
    list(APPEND qtQmFiles ${qmDir}/qt_${language}.qm)
    string(APPEND qrcEntries "    <file>qt_${language}.qm</file>\n"
        "    <file>libs_${language}.qm</file>\n    <file>Pelodine_${language}.qm</file>\n")
endforeach()

set_source_files_properties(${appTsFiles} ${libsTsFiles} PROPERTIES OUTPUT_LOCATION ${qmDir})
qt5_add_translation(pelodineQmFiles ${appTsFiles} ${libsTsFiles})

file(WRITE ${qmDir}/translations.qrc.in
    "<!DOCTYPE RCC>\n<RCC version=\"1.0\">\n<qresource prefix=\"/Translations\">\n"
    "${qrcEntries}</qresource>\n</RCC>\n")
configure_file(${qmDir}/translations.qrc.in ${qmDir}/translations.qrc COPYONLY)
qt5_add_resources(PELODINE_TRANSLATION_SOURCES ${qmDir}/translations.qrc)
set_source_files_properties(${PELODINE_TRANSLATION_SOURCES} PROPERTIES SKIP_AUTOGEN ON)
# Brings the .ts files up to date with the sources: cmake --build <dir> --target translations-update
add_custom_target(translations-update
    COMMAND Qt5::lupdate -no-obsolete -locations relative ${PELODINE_APP_TEXT_DIRS}
            -ts ${appTsFiles}
    COMMAND Qt5::lupdate -no-obsolete -locations relative ${PELODINE_LIBS_TEXT_DIRS}
            -ts ${libsTsFiles}
    WORKING_DIRECTORY ${PROJECT_SOURCE_DIR}
    VERBATIM)
