# What every target of the project is compiled with.
add_library(vexa_options INTERFACE)

# Results are exact to the last bit: no fused multiply-add, no reordering, and a power is always the
# C library's, whatever product an optimizer would put in its place.
target_compile_options(vexa_options INTERFACE
  -Wall -Wextra -Wpedantic -Wconversion -Wshadow -ffp-contract=off
  -fno-builtin-pow)

if(VEXA_SANITIZE)
  target_compile_options(vexa_options INTERFACE
    -fsanitize=${VEXA_SANITIZE} -fno-sanitize-recover=all -fno-omit-frame-pointer)
  target_link_options(vexa_options INTERFACE -fsanitize=${VEXA_SANITIZE})
  # The containers check their indices too, which the sanitizers cannot see inside an object.
  target_compile_definitions(vexa_options INTERFACE _GLIBCXX_ASSERTIONS)
endif()
