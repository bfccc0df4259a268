# Installs the build into a fresh prefix and checks that a Linux desktop would find Pelodine
# there: both programs, the launcher, the metainfo, the flow MIME type and the icons.
# Run by CTest: cmake -DBUILD_DIR=... -DPREFIX=... -DBINDIR=... -DDATADIR=... -DICON_SIZES=...
#   [-DAPPSTREAMCLI=...] [-DDESKTOP_FILE_VALIDATE=...] [-DUPDATE_MIME_DATABASE=...] -P tst_install.cmake
set(appId org.qubrast.Pelodine)

file(REMOVE_RECURSE "${PREFIX}")
execute_process(COMMAND "${CMAKE_COMMAND}" --install "${BUILD_DIR}" --prefix "${PREFIX}"
    RESULT_VARIABLE result OUTPUT_QUIET)
if(NOT result EQUAL 0)
    message(FATAL_ERROR "cmake --install failed: ${result}")
endif()

set(expected
    ${BINDIR}/pelodine
    ${BINDIR}/pelodine-batch
    ${DATADIR}/applications/${appId}.desktop
    ${DATADIR}/metainfo/${appId}.metainfo.xml
    ${DATADIR}/mime/packages/${appId}.xml
    ${DATADIR}/icons/hicolor/scalable/apps/${appId}.svg)
string(REPLACE "," ";" ICON_SIZES "${ICON_SIZES}")
foreach(side ${ICON_SIZES})
    list(APPEND expected ${DATADIR}/icons/hicolor/${side}x${side}/apps/${appId}.png)
endforeach()
foreach(file ${expected})
    if(NOT EXISTS "${PREFIX}/${file}")
        list(APPEND missing ${file})
    endif()
endforeach()
if(missing)
    message(FATAL_ERROR "not installed: ${missing}")
endif()

# The launcher opens photos and flow files, handing them all to one process.
file(READ "${PREFIX}/${DATADIR}/applications/${appId}.desktop" desktop)
foreach(line "Exec=pelodine %F" "Icon=${appId}")
    string(FIND "${desktop}" "\n${line}\n" at)
    if(at EQUAL -1)
        message(FATAL_ERROR "the desktop file lacks the line '${line}'")
    endif()
endforeach()
foreach(type image/jpeg image/png application/x-pelodine-flow)
    if(NOT desktop MATCHES "\nMimeType=([^\n]*;)?${type};")
        message(FATAL_ERROR "the desktop file does not open ${type}")
    endif()
endforeach()

if(DESKTOP_FILE_VALIDATE)
    execute_process(
        COMMAND "${DESKTOP_FILE_VALIDATE}" "${PREFIX}/${DATADIR}/applications/${appId}.desktop"
        RESULT_VARIABLE result OUTPUT_VARIABLE output ERROR_VARIABLE output)
    if(NOT result EQUAL 0 OR output MATCHES "error:")
        message(FATAL_ERROR "desktop-file-validate: ${output}")
    endif()
endif()

if(APPSTREAMCLI)
    execute_process(
        COMMAND "${APPSTREAMCLI}" validate --no-net "${PREFIX}/${DATADIR}/metainfo/${appId}.metainfo.xml"
        RESULT_VARIABLE result OUTPUT_VARIABLE output ERROR_VARIABLE output)
    if(NOT result EQUAL 0)
        message(FATAL_ERROR "appstreamcli validate: ${output}")
    endif()
endif()

# Built into a MIME database, the package maps *.flow to our type.
if(UPDATE_MIME_DATABASE)
    execute_process(COMMAND "${UPDATE_MIME_DATABASE}" "${PREFIX}/${DATADIR}/mime"
        RESULT_VARIABLE result OUTPUT_QUIET ERROR_VARIABLE output)
    if(NOT result EQUAL 0)
        message(FATAL_ERROR "update-mime-database: ${output}")
    endif()
    file(READ "${PREFIX}/${DATADIR}/mime/globs2" globs)
    if(NOT globs MATCHES ":application/x-pelodine-flow:\\*\\.flow")
        message(FATAL_ERROR "*.flow is not application/x-pelodine-flow: ${globs}")
    endif()
endif()
