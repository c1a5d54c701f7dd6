# The target "format": brings every tracked source into the form that .clang-format describes.
find_program(CLANG_FORMAT clang-format)
if(CLANG_FORMAT)
    add_custom_target(format
        COMMAND bash -c "git ls-files -z '*.h' '*.cpp' '*.mm' | xargs -0 ${CLANG_FORMAT} -i"
        WORKING_DIRECTORY ${CMAKE_SOURCE_DIR} VERBATIM COMMENT "Formatting the tracked sources")
endif()
