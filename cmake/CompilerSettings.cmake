# Warnings are errors for every target of the project, under GCC and Clang alike.
add_library(project_settings INTERFACE)
target_compile_options(project_settings INTERFACE
  -Wall -Wextra -Wpedantic -Wshadow -Wconversion -Wsign-conversion -Wnon-virtual-dtor -Woverloaded-virtual
  -Wold-style-cast -Wcast-align -Wundef -Werror)
# GCC 12 reports a false overlap in std::string concatenation when it optimises.
target_compile_options(project_settings INTERFACE $<$<CXX_COMPILER_ID:GNU>:-Wno-restrict>)

if(KELVANE_SANITIZE)
  add_compile_options(-fsanitize=address,undefined -fno-sanitize-recover=all -fno-omit-frame-pointer)
  add_link_options(-fsanitize=address,undefined)
endif()

find_program(CCACHE ccache)
if(CCACHE AND NOT CMAKE_CXX_COMPILER_LAUNCHER)
  set(CMAKE_C_COMPILER_LAUNCHER "${CCACHE}")
  set(CMAKE_CXX_COMPILER_LAUNCHER "${CCACHE}")
endif()

# kelvane_library(NAME sources...): a static library of one layer with the project's settings.
function(kelvane_library name)
  add_library(${name} STATIC ${ARGN})
  target_link_libraries(${name} PRIVATE project_settings)
endfunction()
