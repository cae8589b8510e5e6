# What Windows reads of a program before it runs: manifest, version, icons. CALVENTO_ICONOS names a folder with
# calvento.ico and those of the kinds of files, where they were made (scripts/windows); without it there are none.
enable_language(RC)
set(CALVENTO_ICONOS "" CACHE PATH "Folder of the icons for Windows, *.ico")
string(REPLACE "." "," CALVENTO_VERSION_RC "${PROJECT_VERSION}.0")

function(calvento_recursos programa descripcion)
  set(CALVENTO_ICONOS_RC "")
  set(numero 1)
  if(CALVENTO_ICONOS)
    # in this order the kinds of files name them
    foreach(icono calvento application-x-calvento-rapida application-x-calvento-caida-inclinada
                  application-x-calvento-caida-vertical)
      string(APPEND CALVENTO_ICONOS_RC "${numero} ICON \"${CALVENTO_ICONOS}/${icono}.ico\"\n")
      math(EXPR numero "${numero} + 1")
    endforeach()
  endif()
  set(aqui ${PROJECT_SOURCE_DIR}/empaquetado/windows)
  set(hecho ${PROJECT_BINARY_DIR}/recursos_windows)
  configure_file(${aqui}/programa.manifest.in ${hecho}/${programa}.manifest @ONLY)
  configure_file(${aqui}/programa.rc.in ${hecho}/${programa}.rc @ONLY)
  target_sources(${programa} PRIVATE ${hecho}/${programa}.rc)
endfunction()
