# Build rules shared by every folder: language level, warnings, sanitizers, and the two kinds of library.
set(CMAKE_CXX_STANDARD 20)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_POSITION_INDEPENDENT_CODE ON)

find_program(CCACHE ccache)
if(CCACHE)
  set(CMAKE_CXX_COMPILER_LAUNCHER "${CCACHE}")
endif()

add_library(kestri_options INTERFACE)
target_compile_options(kestri_options INTERFACE -Wall -Wextra -Werror -Wshadow -Wnon-virtual-dtor
                                                -Woverloaded-virtual -fno-math-errno)
target_include_directories(kestri_options INTERFACE "${CMAKE_SOURCE_DIR}")
if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
  # GCC 12 warns falsely on std::string concatenation (its bug 105329).
  target_compile_options(kestri_options INTERFACE -Wno-restrict)
endif()
if(CMAKE_BUILD_TYPE STREQUAL "Release")
  target_compile_options(kestri_options INTERFACE -ffunction-sections -fdata-sections)
  target_link_options(kestri_options INTERFACE -Wl,--gc-sections -Wl,--as-needed -Wl,-O1)
endif()
if(KESTRI_SANITIZE)
  # The instrumentation makes GCC warn falsely of uninitialised values in the standard library.
  target_compile_options(kestri_options INTERFACE -fsanitize=address,undefined -fno-sanitize-recover=all
                                                  -fno-omit-frame-pointer -Wno-maybe-uninitialized)
  target_link_options(kestri_options INTERFACE -fsanitize=address,undefined)
endif()
if(KESTRI_FUZZ)
  target_compile_options(kestri_options INTERFACE -fsanitize=fuzzer-no-link,address,undefined
                                                  -fno-sanitize-recover=all -fno-omit-frame-pointer)
  target_link_options(kestri_options INTERFACE -fsanitize=address,undefined)
endif()

# A subsystem's logic: no Qt, links only what it names.
#   kestri_logic_library(name SOURCES ... LINKS ...)
function(kestri_logic_library name)
  cmake_parse_arguments(ARG "" "" "SOURCES;LINKS" ${ARGN})
  add_library(${name} STATIC ${ARG_SOURCES})
  target_link_libraries(${name} PUBLIC kestri_options ${ARG_LINKS})
endfunction()

# Windows and adapters: Qt Widgets on top of logic. Pass QT_MODULES for more than Widgets.
function(kestri_forms_library name)
  cmake_parse_arguments(ARG "" "" "SOURCES;LINKS;QT_MODULES" ${ARGN})
  add_library(${name} STATIC ${ARG_SOURCES})
  set_target_properties(${name} PROPERTIES AUTOMOC ON)
  target_link_libraries(${name} PUBLIC kestri_options ${ARG_LINKS} Qt6::Widgets ${ARG_QT_MODULES})
  target_compile_definitions(${name} PUBLIC QT_NO_KEYWORDS QT_NO_CAST_TO_ASCII)
endfunction()

# One test program for each *_test.cpp of the folder; every case in it is a ctest case. QT: the program links the
# toolkit and runs on the offscreen platform, its file brings its own main().
#   kestri_test_folder([QT] LINKS ...)
function(kestri_test_folder)
  cmake_parse_arguments(ARG "QT" "" "LINKS" ${ARGN})
  file(GLOB test_files CONFIGURE_DEPENDS "*_test.cpp")
  foreach(test_file IN LISTS test_files)
    get_filename_component(name "${test_file}" NAME_WE)
    add_executable(${name} "${test_file}")
    target_link_libraries(${name} PRIVATE kestri_options ${ARG_LINKS} GTest::gmock)
    target_compile_definitions(${name} PRIVATE KESTRI_TEST_DATA="${CMAKE_SOURCE_DIR}/tests/data"
                                               KESTRI_SOURCE_DIR="${CMAKE_SOURCE_DIR}")
    if(ARG_QT)
      target_link_libraries(${name} PRIVATE Qt6::Widgets Qt6::Test)
    else()
      target_link_libraries(${name} PRIVATE GTest::gtest_main)
    endif()
    gtest_discover_tests(${name} DISCOVERY_TIMEOUT 120
                         PROPERTIES TIMEOUT 600 ENVIRONMENT "QT_QPA_PLATFORM=offscreen")
  endforeach()
endfunction()
