# The language, the warnings and the sanitizers, the same for every target.
set(CMAKE_CXX_STANDARD 20)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_EXPORT_COMPILE_COMMANDS ON)
set(CMAKE_AUTOMOC OFF)
# Without the compiler's own definitions moc passes over the concepts of the standard library, which it cannot read.
set(CMAKE_AUTOMOC_COMPILER_PREDEFINES OFF)

add_compile_options(-Wall -Wextra -Wpedantic -Wshadow -Wnon-virtual-dtor -Woverloaded-virtual -Werror)
if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
    add_compile_options(-Wno-restrict) # GCC 12 finds fault with std::string's own operator+ when it optimises
    # ... and takes a variant or an optional that was moved for one that was never set. It only looks where it
    # optimises, and the sanitizers, under which it does, find what is really not set.
    add_compile_options($<$<OR:$<CONFIG:Release>,$<BOOL:${SONGSWEEP_SANITIZER}>>:-Wno-maybe-uninitialized>)
endif()
add_compile_definitions(QT_NO_KEYWORDS QT_NO_CAST_FROM_ASCII QT_NO_CAST_TO_ASCII QT_NO_FOREACH)

if(SONGSWEEP_SANITIZER STREQUAL "address")
    add_compile_options(-fsanitize=address,undefined -fno-sanitize-recover=undefined -fno-omit-frame-pointer)
    add_link_options(-fsanitize=address,undefined)
elseif(SONGSWEEP_SANITIZER STREQUAL "thread")
    add_compile_options(-fsanitize=thread -fno-omit-frame-pointer)
    add_link_options(-fsanitize=thread)
endif()
if(SONGSWEEP_FUZZ)
    add_compile_options(-fsanitize=fuzzer-no-link)
endif()

# Where the program finds songsweep-listen once it is installed: nothing that people call.
include(GNUInstallDirs)
set(SONGSWEEP_LISTENER_FOLDER ${CMAKE_INSTALL_LIBEXECDIR}/songsweep)
