# Building a resource script again when a file has changed that it needs.
enable_language(RC)

# The files that it includes: windres hands these on to its preprocessor, which lists them. CMake does not do this by
# itself for windres.
set(CMAKE_DEPFILE_FLAGS_RC "--preprocessor-arg=-MD --preprocessor-arg=-MF<DEP_FILE> --preprocessor-arg=-MT<DEP_TARGET>")

# The files that it puts into the image, such as icons and manifests, which the preprocessor does not see:
# resource_embeds(SCRIPT FILE...)
function(resource_embeds script)
  foreach(file IN LISTS ARGN)
    cmake_path(ABSOLUTE_PATH file)
    set_property(SOURCE ${script} APPEND PROPERTY OBJECT_DEPENDS ${file})
  endforeach()
endfunction()
