# Run on the finished package, whose parts have the permissions that the packager's umask left them:
# gives each those that ar has for every file.
foreach(package IN LISTS CPACK_PACKAGE_FILES)
  foreach(work "x;${package}" "rD;${package};debian-binary;control.tar.gz;data.tar.gz")
    execute_process(COMMAND ar ${work} WORKING_DIRECTORY ${CPACK_TEMPORARY_DIRECTORY}
      COMMAND_ERROR_IS_FATAL ANY)
  endforeach()
endforeach()
