# The libraries and Qt plugins that the archive carries: all that the program needs but for those that come with any
# desktop and have to fit it (the C and C++ runtime, X, OpenGL, fonts, the message bus).
get_target_property(qtCore Qt6::Core LOCATION)
cmake_path(GET qtCore PARENT_PATH qtLibraries)
set(qtPlugins ${qtLibraries}/qt6/plugins)
set(carriedPlugins platforms/libqxcb.so xcbglintegrations/libqxcb-glx-integration.so
    xcbglintegrations/libqxcb-egl-integration.so)

set(pluginFiles)
foreach(plugin ${carriedPlugins})
    if(NOT EXISTS ${qtPlugins}/${plugin})
        continue()
    endif()
    list(APPEND pluginFiles ${qtPlugins}/${plugin})
    cmake_path(GET plugin PARENT_PATH folder)
    install(FILES ${qtPlugins}/${plugin} DESTINATION plugins/${folder} COMPONENT portable)
endforeach()

install(CODE "set(program \"$<TARGET_FILE:mirelle>\")\nset(plugins \"${pluginFiles}\")" COMPONENT portable)
install(CODE [[
    set(ofTheDesktop ld-linux libc libm libdl libpthread librt libresolv libgcc_s libstdc\\+\\+ libGL libGLX libGLdispatch
        libEGL libOpenGL libdrm libgbm libX11 libX11-xcb libxcb libXau libXdmcp libXext libXi libXtst libICE libSM
        libfontconfig libfreetype libexpat libz libuuid libdbus-1 libsystemd libglib-2\\.0 libgthread-2\\.0)
    list(JOIN ofTheDesktop "|" names)
    file(GET_RUNTIME_DEPENDENCIES EXECUTABLES ${program} LIBRARIES ${plugins}
        RESOLVED_DEPENDENCIES_VAR needed UNRESOLVED_DEPENDENCIES_VAR missing
        PRE_EXCLUDE_REGEXES "^(${names})(-[a-z0-9_-]+)?\\.so")
    if(missing)
        message(FATAL_ERROR "Libraries of the archive are missing: ${missing}")
    endif()
    foreach(library ${needed})
        file(INSTALL ${library} DESTINATION "$ENV{DESTDIR}${CMAKE_INSTALL_PREFIX}/lib" FOLLOW_SYMLINK_CHAIN)
    endforeach()
]] COMPONENT portable)
