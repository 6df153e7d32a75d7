# What goes into the archives of ./package.sh: component `menu`, for workstations, and component `tests`, for running
# the tests on a Windows machine. The archives hold no folders, because they are unpacked where they are used.
install(TARGETS ObrinMenu ObrinCheck Corvel RUNTIME DESTINATION . COMPONENT menu)
install(FILES ${GUIDE} DESTINATION . COMPONENT menu)

if(BUILD_TESTING)
  install(TARGETS ObrinMenu ObrinCheck Corvel Fenn rules_tests windows_tests end_to_end_tests
    RUNTIME DESTINATION . COMPONENT tests)
  install(FILES ${CMAKE_SOURCE_DIR}/tests/run-tests.cmd DESTINATION . COMPONENT tests)
endif()
