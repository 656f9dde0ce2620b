# What every target of ours is compiled with: link to KestrinFlags.
add_library(KestrinFlags INTERFACE)
target_compile_options(KestrinFlags INTERFACE
	-Wall -Wextra -Wshadow -Wconversion -Wno-sign-conversion -Wno-unused-parameter
	$<$<CXX_COMPILER_ID:GNU>:-Winvalid-pch>
	# The stable sort of libstdc++ 12 uses what its own C++17 deprecates.
	$<$<CXX_COMPILER_ID:Clang>:-Wno-deprecated-declarations>)

if(KESTRIN_SANITIZE)
	add_compile_options(-fsanitize=address,undefined -fno-omit-frame-pointer -fno-sanitize-recover=undefined)
	add_link_options(-fsanitize=address,undefined)
endif()
if(KESTRIN_FUZZ)
	add_compile_options(-fsanitize=fuzzer-no-link)
endif()
