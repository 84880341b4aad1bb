# Flags of every target. Results must be the same bytes at every optimisation level, so contraction and
# reassociation stay off everywhere.
set(CMAKE_CXX_STANDARD 20)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_POSITION_INDEPENDENT_CODE ON)
# Said to the linker, too: without this the compiler's default decides whether programs are loaded anywhere.
include(CheckPIESupported)
check_pie_supported(LANGUAGES CXX)
# Programs have the same bytes wherever they were built.
set(CMAKE_BUILD_RPATH_USE_ORIGIN ON)

add_library(vorlan_flags INTERFACE)
target_include_directories(vorlan_flags INTERFACE "${CMAKE_SOURCE_DIR}/src")
target_compile_options(vorlan_flags INTERFACE -ffp-contract=off -fno-fast-math)
target_compile_options(vorlan_flags INTERFACE -Wall -Wextra -Wpedantic -Wshadow -Wconversion -Wno-sign-conversion
  -Wnon-virtual-dtor -Woverloaded-virtual)
target_compile_definitions(vorlan_flags INTERFACE QT_NO_CAST_FROM_ASCII QT_NO_CAST_TO_ASCII QT_NO_KEYWORDS
  QT_NO_FOREACH)
if(VORLAN_WERROR)
  target_compile_options(vorlan_flags INTERFACE -Werror)
endif()
if(VORLAN_SANITIZE)
  # Lanes of the kernels are built with the sanitizers too: they are what reads past an end first.
  add_compile_options(-fsanitize=address,undefined -fno-sanitize-recover=all -fno-omit-frame-pointer)
  # The sanitizers load libraries in the program's place: only the older kind of path counts for them, too.
  add_link_options(-fsanitize=address,undefined -Wl,--disable-new-dtags)
endif()

# What is released checks the bounds of library calls and its stack, and has its tables of functions read-only. Not the
# development build: its sanitizers see more, and the checks of the library need optimisation.
add_compile_options("$<$<CONFIG:Release>:-U_FORTIFY_SOURCE;-D_FORTIFY_SOURCE=2;-fstack-protector-strong>")
add_link_options("$<$<CONFIG:Release>:-Wl,-z,relro,-z,now>")
