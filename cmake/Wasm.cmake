# The compiler of the WebAssembly module. A build of CMake has one compiler, so that the commands of
# this one are written out.

# Versioned names for systems that have no other.
find_program(VELMAR_WASM_CXX NAMES clang++ clang++-14 DOC "clang, for the module of JavaScript")
set(VELMAR_WASM_TARGET --target=wasm32-wasi)

# Sets `missing` to the packages that the module lacks, by their names in Debian.
function(velmar_wasm_missing missing)
  if(NOT VELMAR_WASM_CXX)
    set(${missing} clang PARENT_SCOPE)
    return()
  endif()
  set(lacking "")
  foreach(each
      "lld -print-prog-name=wasm-ld"
      "wasi-libc -print-file-name=libc.a"
      "libc++-dev-wasm32 -print-file-name=libc++.a"
      "libclang-rt-dev-wasm32 -print-libgcc-file-name")
    string(REPLACE " " ";" each "${each}")
    list(GET each 0 package)
    list(GET each 1 question)
    execute_process(COMMAND ${VELMAR_WASM_CXX} ${VELMAR_WASM_TARGET} -rtlib=compiler-rt ${question}
      OUTPUT_VARIABLE answer OUTPUT_STRIP_TRAILING_WHITESPACE)
    if(NOT EXISTS "${answer}")
      list(APPEND lacking ${package})
    endif()
  endforeach()
  set(${missing} ${lacking} PARENT_SCOPE)
endfunction()

# Compiles sources of the project; `objects` receives the names of the results.
function(velmar_wasm_compile objects)
  set(results "")
  foreach(source IN LISTS ARGN)
    file(RELATIVE_PATH name ${PROJECT_SOURCE_DIR} ${source})
    set(object ${CMAKE_CURRENT_BINARY_DIR}/objects/${name}.o)
    get_filename_component(folder ${object} DIRECTORY)
    file(MAKE_DIRECTORY ${folder})
    add_custom_command(OUTPUT ${object}
      COMMAND ${VELMAR_WASM_CXX} ${VELMAR_WASM_FLAGS} -MD -MF ${object}.d -c ${source} -o ${object}
      DEPENDS ${source} DEPFILE ${object}.d
      COMMENT "Compiling ${name} for JavaScript" VERBATIM)
    list(APPEND results ${object})
  endforeach()
  set(${objects} ${results} PARENT_SCOPE)
endfunction()
