# Run by CPack when the files of an archive lie ready: gives them all the time of SOURCE_DATE_EPOCH.
file(GLOB_RECURSE files LIST_DIRECTORIES true ${CPACK_TEMPORARY_DIRECTORY}/*)
execute_process(COMMAND touch -d "@$ENV{SOURCE_DATE_EPOCH}" ${files} COMMAND_ERROR_IS_FATAL ANY)
