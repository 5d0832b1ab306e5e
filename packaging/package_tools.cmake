# Run before packaging. Without dpkg-shlibdeps, CPack would make a package that depends on no library.
if(CPACK_GENERATOR STREQUAL "DEB")
  find_program(dpkg_shlibdeps dpkg-shlibdeps)
  find_program(file file)
  if(NOT dpkg_shlibdeps OR NOT file)
    message(FATAL_ERROR "Making the package takes the Debian packages dpkg-dev and file.")
  endif()
  # In other locales CPack does not find its own files where a folder's name goes beyond ASCII.
  set(ENV{LC_ALL} C.UTF-8)
endif()
