# Compiler options of all targets of the project. Nothing here reaches the targets of a project that
# adds this one.

# A version of C++ that the user chooses holds, if it is 17 or later.
if(NOT CMAKE_CXX_STANDARD)
  set(CMAKE_CXX_STANDARD 17)
endif()
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_CXX_VISIBILITY_PRESET hidden)
set(CMAKE_VISIBILITY_INLINES_HIDDEN ON)
set(CMAKE_RUNTIME_OUTPUT_DIRECTORY ${PROJECT_BINARY_DIR}/bin)
set(CMAKE_LIBRARY_OUTPUT_DIRECTORY ${PROJECT_BINARY_DIR}/lib)
set(CMAKE_ARCHIVE_OUTPUT_DIRECTORY ${PROJECT_BINARY_DIR}/lib)

if(PROJECT_IS_TOP_LEVEL AND NOT CMAKE_BUILD_TYPE AND NOT CMAKE_CONFIGURATION_TYPES)
  set(CMAKE_BUILD_TYPE Release CACHE STRING "build type" FORCE)
endif()

# Shared, unless the user says otherwise.
if(DEFINED BUILD_SHARED_LIBS AND NOT BUILD_SHARED_LIBS)
  set(VELMAR_LIBRARY_TYPE STATIC)
  set(CMAKE_POSITION_INDEPENDENT_CODE ON)
else()
  set(VELMAR_LIBRARY_TYPE SHARED)
endif()

add_compile_options(-Wall -Wextra -Wpedantic -Wconversion -Wshadow
  $<$<COMPILE_LANGUAGE:CXX>:-Wnon-virtual-dtor>)
if(VELMAR_WERROR)
  add_compile_options(-Werror)
endif()
# The same bytes whatever the folder.
add_compile_options(-ffile-prefix-map=${PROJECT_SOURCE_DIR}=. -ffile-prefix-map=${PROJECT_BINARY_DIR}=build)

# Comma-separated sanitizers: address,undefined or thread.
set(VELMAR_SANITIZE "" CACHE STRING "sanitizers to build with")
if(VELMAR_SANITIZE)
  add_compile_options(-fsanitize=${VELMAR_SANITIZE} -fno-sanitize-recover=all -fno-omit-frame-pointer)
  add_link_options(-fsanitize=${VELMAR_SANITIZE})
endif()

# With clang: the fuzz targets generate their own inputs, and all code is instrumented for coverage.
option(VELMAR_FUZZ "build the fuzz targets with libFuzzer" OFF)
if(VELMAR_FUZZ)
  add_compile_options(-fsanitize=fuzzer-no-link -fno-sanitize-coverage=trace-cmp)
endif()

# Compiler options for tables/: the row checks of the port families take more constexpr steps than
# clang allows by default.
if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
  set(VELMAR_ONE_ERROR -fmax-errors=1)
else()
  set(VELMAR_ONE_ERROR -ferror-limit=1 -fmacro-backtrace-limit=1)
  set(VELMAR_CONSTEXPR_OPTIONS -fconstexpr-steps=16777216)
endif()

# A library of the project: versioned, no undefined symbols, and direct calls between its own members.
function(velmar_library target)
  set_target_properties(${target} PROPERTIES
    VERSION ${PROJECT_VERSION}
    SOVERSION ${PROJECT_VERSION_MAJOR}
    # Also in the build folder, whose name is then not in the file.
    BUILD_WITH_INSTALL_RPATH ON
    INSTALL_RPATH "$ORIGIN")
  target_compile_features(${target} PUBLIC cxx_std_14)
  target_compile_options(${target} PRIVATE -fno-semantic-interposition)
  if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
    target_compile_options(${target} PRIVATE -fno-reorder-blocks-and-partition)
  endif()
  target_compile_options(${target} PRIVATE ${VELMAR_CONSTEXPR_OPTIONS})
  if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU" AND CMAKE_SYSTEM_PROCESSOR MATCHES "x86_64|AMD64")
    # The thousands of signature texts do not need 32-byte alignment.
    target_compile_options(${target} PRIVATE -malign-data=abi)
  endif()
  if(VELMAR_LIBRARY_TYPE STREQUAL "STATIC")
    target_compile_definitions(${target} PUBLIC VELMAR_STATIC)
    return()
  endif()
  target_link_options(${target} PRIVATE LINKER:-Bsymbolic-functions)
  if(NOT VELMAR_SANITIZE)
    target_link_options(${target} PRIVATE LINKER:-z,defs)
  endif()
  if(VELMAR_PACKED_RELOCATIONS)
    target_link_options(${target} PRIVATE LINKER:-z,pack-relative-relocs)
  endif()
endfunction()
