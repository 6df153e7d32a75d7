# Rebuilds a resource script when a file that it uses has changed.
enable_language(RC)

# windres passes these options to its preprocessor, which lists the included files. CMake does not do this by itself.
set(CMAKE_DEPFILE_FLAGS_RC "--preprocessor-arg=-MD --preprocessor-arg=-MF<DEP_FILE> --preprocessor-arg=-MT<DEP_TARGET>")

# resource_embeds(SCRIPT FILE...) names the files that a script puts into the image, such as icons and manifests: the
# preprocessor does not see them.
function(resource_embeds script)
  foreach(file IN LISTS ARGN)
    cmake_path(ABSOLUTE_PATH file)
    set_property(SOURCE ${script} APPEND PROPERTY OBJECT_DEPENDS ${file})
  endforeach()
endfunction()
