# What goes into the archives of ./package.sh: component `menu`, for workstations, and component `tests`, for trying
# the programs on a Windows machine. Without folders: an archive is unpacked into the folder in which it is used.
install(TARGETS ObrinMenu ObrinCheck Corvel RUNTIME DESTINATION . COMPONENT menu)
install(FILES ${GUIDE} DESTINATION . COMPONENT menu)

if(BUILD_TESTING)
  install(TARGETS ObrinMenu ObrinCheck Corvel Fenn rules_tests windows_tests end_to_end_tests
    RUNTIME DESTINATION . COMPONENT tests)
  install(FILES ${CMAKE_SOURCE_DIR}/tests/run-tests.cmd DESTINATION . COMPONENT tests)
endif()
