# Settings shared by every target of the tree: language level, warnings, sanitizers, output folders.

option(SOFTCLOTH_BUILD_HOST "Build the stand-in host and its workbench" ON)
option(SOFTCLOTH_BUILD_TESTS "Build the tests (needs the stand-in host)" ON)
option(SOFTCLOTH_SANITIZE "Build with address and undefined behaviour sanitizers" OFF)
option(SOFTCLOTH_FUZZ "Build the fuzzers too, and everything for them; implies the sanitizers, needs clang" OFF)

set(CMAKE_CXX_STANDARD 17)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_CXX_VISIBILITY_PRESET hidden)
set(CMAKE_VISIBILITY_INLINES_HIDDEN ON)
set(CMAKE_POSITION_INDEPENDENT_CODE ON)
set(CMAKE_AUTOMOC ON)
set(CMAKE_EXPORT_COMPILE_COMMANDS ON)

# Visual Studio and other generators with several configurations put each one's files into a subfolder, but not where
# the folder is a generator expression. The resource file is to lie beside the library with all of them.
set(SOFTCLOTH_LIBRARY_FOLDER "${CMAKE_BINARY_DIR}/lib")
set(CMAKE_RUNTIME_OUTPUT_DIRECTORY "$<1:${CMAKE_BINARY_DIR}/bin>")
set(CMAKE_LIBRARY_OUTPUT_DIRECTORY "$<1:${SOFTCLOTH_LIBRARY_FOLDER}>")
set(CMAKE_ARCHIVE_OUTPUT_DIRECTORY "$<1:${SOFTCLOTH_LIBRARY_FOLDER}>")

# The compiler cache takes names of our files as relative ones, so that every copy of the tree on a machine shares it.
find_program(CCACHE_PROGRAM ccache)
if(CCACHE_PROGRAM AND NOT CMAKE_CXX_COMPILER_LAUNCHER)
    set(CMAKE_CXX_COMPILER_LAUNCHER "${CMAKE_COMMAND}" -E env "CCACHE_BASEDIR=${CMAKE_SOURCE_DIR}" CCACHE_NOHASHDIR=true
        "${CCACHE_PROGRAM}")
endif()

# A linker several times as fast as the usual one, where the machine has it.
if(NOT CMAKE_CROSSCOMPILING AND NOT MSVC)
    find_program(MOLD_PROGRAM mold)
    if(MOLD_PROGRAM AND NOT (CMAKE_CXX_COMPILER_ID STREQUAL GNU AND CMAKE_CXX_COMPILER_VERSION VERSION_LESS 12.1))
        add_link_options(-fuse-ld=mold)
    endif()
endif()

# The plug-in's metadata carries a debug flag that follows QT_NO_DEBUG; the host loads release plug-ins only.
add_compile_definitions(
    QT_NO_DEBUG
    QT_NO_CAST_FROM_ASCII
    QT_NO_CAST_TO_ASCII
    QT_NO_KEYWORDS
    QT_DEPRECATED_WARNINGS
    QT_DISABLE_DEPRECATED_BEFORE=0x050f00)

if(MSVC)
    add_compile_options(/W4 /permissive- /utf-8)
else()
    add_compile_options(-Wall -Wextra -Wpedantic -Wshadow -Wnon-virtual-dtor -Woverloaded-virtual
        -Wold-style-cast -Wcast-align -Wdouble-promotion)
endif()

if(SOFTCLOTH_FUZZ)
    set(SOFTCLOTH_SANITIZE ON)
    # The last two would need the type information of classes that libraries keep to themselves.
    add_compile_options(-fsanitize=fuzzer-no-link,address,undefined -fno-sanitize=vptr,function
        -fno-sanitize-recover=undefined -fno-omit-frame-pointer)
    add_link_options(-fsanitize=address,undefined -fno-sanitize=vptr,function)
elseif(SOFTCLOTH_SANITIZE)
    add_compile_options(-fsanitize=address,undefined -fno-sanitize-recover=undefined -fno-omit-frame-pointer)
    add_link_options(-fsanitize=address,undefined)
endif()

include_directories("${CMAKE_SOURCE_DIR}")
