# The application's bundle, with Qt inside, signed for the hardened runtime, on a disk image. Not yet tried on a Mac.
set(mac ${CMAKE_CURRENT_SOURCE_DIR}/mac)
set(icon ${CMAKE_CURRENT_BINARY_DIR}/icons/Songsweep.icns)
set(SONGSWEEP_SIGNATURE "-" CACHE STRING "The identity that codesign signs with; - for none but this machine's")

target_sources(songsweep PRIVATE ${icon})
set_source_files_properties(${icon} TARGET_DIRECTORY songsweep PROPERTIES
    GENERATED ON MACOSX_PACKAGE_LOCATION Resources)
set_target_properties(songsweep PROPERTIES
    MACOSX_BUNDLE ON OUTPUT_NAME Songsweep MACOSX_BUNDLE_INFO_PLIST ${mac}/Info.plist.in)
add_dependencies(songsweep package-files)
if(SONGSWEEP_SOUND)
    set_target_properties(songsweep-listen PROPERTIES
        RUNTIME_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}/Songsweep.app/Contents/MacOS)
endif()

find_program(MACDEPLOYQT macdeployqt HINTS ${Qt6_DIR}/../../../bin REQUIRED)
set(bundle ${CMAKE_BINARY_DIR}/Songsweep.app)
set(image ${CMAKE_BINARY_DIR}/package/Songsweep-${PROJECT_VERSION}.dmg)
add_custom_target(package
    COMMAND ${MACDEPLOYQT} ${bundle} -executable=${bundle}/Contents/MacOS/songsweep-listen
    COMMAND codesign --force --deep --options runtime --entitlements ${mac}/Songsweep.entitlements
        --sign ${SONGSWEEP_SIGNATURE} ${bundle}
    COMMAND ${CMAKE_COMMAND} -E make_directory ${CMAKE_BINARY_DIR}/package
    COMMAND hdiutil create -ov -volname Songsweep -srcfolder ${bundle} -format UDZO ${image}
    DEPENDS songsweep VERBATIM)
