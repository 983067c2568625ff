# What the oldest supported Qt deprecates; what a newer one does may have no other way yet.
add_compile_definitions(QT_WARN_DEPRECATED_UP_TO=0x060400)

# Warnings and sanitizers, per target: third-party headers never pay for our strictness.
function(tamsel_compile_options target)
    target_compile_options(${target} PRIVATE
        -Wall -Wextra -Wpedantic -Wshadow -Wconversion -Wno-sign-conversion -Wnon-virtual-dtor
        -Woverloaded-virtual -Wcast-align -Wimplicit-fallthrough
        # A guess that differs from one release of GCC to the next.
        $<$<CXX_COMPILER_ID:GNU>:-Wno-maybe-uninitialized>)
    target_compile_definitions(${target} PRIVATE
        QT_NO_CAST_FROM_ASCII QT_NO_CAST_TO_ASCII QT_NO_FOREACH QT_NO_KEYWORDS
        QT_DISABLE_DEPRECATED_BEFORE=0x060400)
    if(TAMSEL_WARNINGS_AS_ERRORS)
        target_compile_options(${target} PRIVATE -Werror)
    endif()
endfunction()

# tamsel_folder(<target>): makes <target> the library of the current folder. The folder's headers are found, as
# "folder/Name.h", by it and by what links it; an include against the direction of the libraries does not compile.
function(tamsel_folder target)
    cmake_path(GET CMAKE_CURRENT_SOURCE_DIR FILENAME folder)
    set(root ${CMAKE_BINARY_DIR}/include/${folder})
    file(MAKE_DIRECTORY ${root})
    file(CREATE_LINK ${CMAKE_CURRENT_SOURCE_DIR} ${root}/${folder} SYMBOLIC)
    target_include_directories(${target} PUBLIC ${root})
    tamsel_compile_options(${target})
endfunction()

if(TAMSEL_SANITIZE)
    add_compile_options(-fsanitize=address,undefined -fno-omit-frame-pointer -fno-sanitize-recover=all)
    add_link_options(-fsanitize=address,undefined)
endif()
