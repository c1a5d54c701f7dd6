include(GoogleTest OPTIONAL)

# songsweep_library(NAME [MOC] SOURCES ... [LINK ...])
# A static library of one folder of src/. Headers are included by their path below src/.
# MOC runs Qt's meta-object compiler and user-interface compiler over it.
function(songsweep_library name)
    cmake_parse_arguments(ARG "MOC" "" "SOURCES;LINK" ${ARGN})
    add_library(${name} STATIC ${ARG_SOURCES})
    target_include_directories(${name} PUBLIC ${CMAKE_SOURCE_DIR}/src)
    target_link_libraries(${name} PUBLIC ${ARG_LINK})
    if(ARG_MOC)
        set_target_properties(${name} PROPERTIES AUTOMOC ON AUTOUIC ON AUTORCC ON
                              AUTOUIC_SEARCH_PATHS ${CMAKE_SOURCE_DIR}/resources)
    endif()
endfunction()

# songsweep_test(NAME [WIDGETS] [MOC] [SERIAL] [TIMEOUT SECONDS] SOURCES ... [LINK ...])
# One GoogleTest program of a folder of tests/. Its tests run on the offscreen platform;
# WIDGETS gives it a QApplication, all others a QCoreApplication. TIMEOUT is each test's, otherwise 120.
# SERIAL lets each of its tests run alone, for those that wait for a screen.
function(songsweep_test name)
    cmake_parse_arguments(ARG "WIDGETS;MOC;SERIAL" "TIMEOUT" "SOURCES;LINK" ${ARGN})
    if(NOT ARG_TIMEOUT)
        set(ARG_TIMEOUT 120)
    endif()
    add_executable(${name} ${ARG_SOURCES})
    target_include_directories(${name} PRIVATE ${CMAKE_SOURCE_DIR}/tests)
    if(ARG_WIDGETS)
        target_link_libraries(${name} PRIVATE ${ARG_LINK} test-main-widgets)
    else()
        target_link_libraries(${name} PRIVATE ${ARG_LINK} test-main)
    endif()
    if(ARG_MOC)
        set_target_properties(${name} PROPERTIES AUTOMOC ON)
    endif()
    gtest_discover_tests(${name} DISCOVERY_MODE PRE_TEST NO_PRETTY_VALUES
        PROPERTIES TIMEOUT ${ARG_TIMEOUT} RUN_SERIAL ${ARG_SERIAL} ENVIRONMENT "QT_QPA_PLATFORM=offscreen;LC_ALL=C.UTF-8")
endfunction()

# songsweep_benchmark(NAME SOURCES ... [LINK ...])
# A program of bench/: built with the preset "bench", run by hand, never by CTest.
function(songsweep_benchmark name)
    cmake_parse_arguments(ARG "" "" "SOURCES;LINK" ${ARGN})
    add_executable(${name} ${ARG_SOURCES})
    target_include_directories(${name} PRIVATE ${CMAKE_SOURCE_DIR}/bench)
    target_link_libraries(${name} PRIVATE ${ARG_LINK})
endfunction()
