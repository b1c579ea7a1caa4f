# What a program for Windows carries: version, icon and manifest (paquet/windows).

if(WIN32)
  enable_language(RC)
endif()

# "Name <address>": who answers for the package, and signs the programs.
set(ORVANE_MAINTENEUR "Les auteurs d'Orvane <contact@orvane.example>"
    CACHE STRING "Who answers for the package: name <address>")
string(REGEX REPLACE " *<.*" "" ORVANE_EDITEUR "${ORVANE_MAINTENEUR}")

# Four numbers, by which Windows compares versions.
string(REPLACE "." ";" nombres "${PROJECT_VERSION}.0.0.0")
list(SUBLIST nombres 0 4 nombres)
list(JOIN nombres "," ORVANE_VERSION4)
list(JOIN nombres "." ORVANE_VERSIONPOINTS)

# orvane_ressources(target "description in French"): nothing but for Windows.
function(orvane_ressources cible description)
  if(NOT WIN32)
    return()
  endif()
  if(NOT TARGET orvane-icone)
    set(dessins ${ORVANE_NATIF}/assets/orvane-dessins)
    add_custom_command(
      OUTPUT ${PROJECT_BINARY_DIR}/icones/orvane.ico
      COMMAND ${CMAKE_COMMAND} -E make_directory ${PROJECT_BINARY_DIR}/icones
      COMMAND ${dessins} --icones ${PROJECT_BINARY_DIR}/icones
      DEPENDS ${dessins}
      VERBATIM)
    add_custom_target(orvane-icone DEPENDS ${PROJECT_BINARY_DIR}/icones/orvane.ico)
  endif()
  set(ORVANE_CIBLE ${cible})
  set(ORVANE_DESCRIPTION ${description})
  # As a resource writes quotes.
  foreach(texte AUTEUR EDITEUR DESCRIPTION)
    string(REPLACE "\"" "\"\"" ORVANE_${texte} "${ORVANE_${texte}}")
  endforeach()
  set(modeles ${PROJECT_SOURCE_DIR}/paquet/windows)
  configure_file(${modeles}/programme.manifest.in ${cible}.manifest @ONLY)
  configure_file(${modeles}/programme.rc.in ${cible}.rc @ONLY)
  target_sources(${cible} PRIVATE ${CMAKE_CURRENT_BINARY_DIR}/${cible}.rc)
  set_source_files_properties(${CMAKE_CURRENT_BINARY_DIR}/${cible}.rc PROPERTIES
    COMPILE_OPTIONS "--codepage=65001"
    OBJECT_DEPENDS "${PROJECT_BINARY_DIR}/icones/orvane.ico;${CMAKE_CURRENT_BINARY_DIR}/${cible}.manifest")
  add_dependencies(${cible} orvane-icone)
  # The same bytes each time.
  target_link_options(${cible} PRIVATE -Wl,--no-insert-timestamp)
endfunction()
