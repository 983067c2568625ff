# Protocols of Wayland beyond the core come as descriptions to generate code from.
enable_language(C)
pkg_check_modules(WAYLAND_CLIENT REQUIRED IMPORTED_TARGET wayland-client)
pkg_get_variable(WAYLAND_PROTOCOLS wayland-protocols pkgdatadir)
find_program(WAYLAND_SCANNER wayland-scanner REQUIRED)

# tamsel_wayland_protocols(<library> <description below wayland-protocols>...): a library of their code with the headers
# of both sides, <name>-client-protocol.h and <name>-server-protocol.h.
function(tamsel_wayland_protocols library)
    set(generated ${CMAKE_CURRENT_BINARY_DIR}/protocols)
    file(MAKE_DIRECTORY ${generated})
    foreach(description IN LISTS ARGN)
        get_filename_component(name ${description} NAME_WE)
        foreach(kind IN ITEMS client-header server-header private-code)
            set(file ${generated}/${name}-protocol.c)
            if(kind MATCHES "(.*)-header")
                set(file ${generated}/${name}-${CMAKE_MATCH_1}-protocol.h)
            endif()
            add_custom_command(OUTPUT ${file}
                COMMAND ${WAYLAND_SCANNER} ${kind} ${WAYLAND_PROTOCOLS}/${description} ${file}
                DEPENDS ${WAYLAND_PROTOCOLS}/${description})
            list(APPEND files ${file})
        endforeach()
    endforeach()
    add_library(${library} STATIC ${files})
    target_include_directories(${library} SYSTEM PUBLIC ${generated})
    target_link_libraries(${library} PUBLIC PkgConfig::WAYLAND_CLIENT)
endfunction()
