# Where `cmake --install` puts things, below its prefix. What only a package holds is the component
# "package", what it must not hold is "tree".
include(GNUInstallDirs)
set(packaging "${PROJECT_SOURCE_DIR}/packaging")
set(documents "${CMAKE_INSTALL_DATADIR}/doc/zel")
set(only_in_packages COMPONENT package EXCLUDE_FROM_ALL)
find_program(ZEL_GZIP gzip REQUIRED)
add_custom_target(installed) # builds what is installed, and no more

# zel_install_compressed(FILE FOLDER NAME [COMPONENT...]): as gzip, the same bytes each time.
function(zel_install_compressed file folder name)
  file(RELATIVE_PATH place "${packaging}" "${file}")
  string(MAKE_C_IDENTIFIER "${place}" target)
  set(made "${PROJECT_BINARY_DIR}/packaging/${place}.gz")
  get_filename_component(made_folder "${made}" DIRECTORY)
  file(MAKE_DIRECTORY "${made_folder}")
  add_custom_command(OUTPUT "${made}" DEPENDS "${file}" VERBATIM
    COMMAND sh -c "\"$1\" -9nc \"$2\" >\"$3\"" sh "${ZEL_GZIP}" "${file}" "${made}")
  add_custom_target(compressed_${target} ALL DEPENDS "${made}")
  add_dependencies(installed compressed_${target})
  install(FILES "${made}" DESTINATION "${folder}" RENAME "${name}.gz" ${ARGN})
endfunction()

# zel_install_program(TARGET): a program with its manual pages and completions.
function(zel_install_program program)
  add_dependencies(installed ${program})
  install(TARGETS ${program} DESTINATION "${CMAKE_INSTALL_BINDIR}")
  foreach(language "" /es)
    zel_install_compressed("${packaging}/man${language}/${program}.1"
      "${CMAKE_INSTALL_MANDIR}${language}/man1" "${program}.1")
  endforeach()
  set(completions "${packaging}/completions/${program}")
  install(FILES "${completions}.bash" RENAME "${program}"
    DESTINATION "${CMAKE_INSTALL_DATADIR}/bash-completion/completions")
  install(FILES "${completions}.fish" DESTINATION "${CMAKE_INSTALL_DATADIR}/fish/vendor_completions.d")
  install(FILES "${completions}.zsh" RENAME "_${program}" COMPONENT tree
    DESTINATION "${CMAKE_INSTALL_DATADIR}/zsh/site-functions")
  install(FILES "${completions}.zsh" RENAME "_${program}" ${only_in_packages}
    DESTINATION "${CMAKE_INSTALL_DATADIR}/zsh/vendor-completions")
endfunction()

# zel_install_icons(SOURCE KIND NAME): an icon in all sizes of the theme.
function(zel_install_icons source kind name)
  set(theme "${CMAKE_INSTALL_DATADIR}/icons/hicolor")
  install(FILES "${packaging}/${source}.svg" RENAME "${name}.svg"
    DESTINATION "${theme}/scalable/${kind}")
  foreach(size 16 24 32 48 64 128 256)
    install(FILES "${packaging}/${source}-${size}.png" RENAME "${name}.png"
      DESTINATION "${theme}/${size}x${size}/${kind}")
  endforeach()
endfunction()

if(TARGET zel-cli)
  zel_install_program(zel-cli)
endif()
if(TARGET zel)
  zel_install_program(zel)
  zel_install_icons(zel apps zel)
  zel_install_icons(doc mimetypes application-x-zel)
  install(FILES "${packaging}/zel.desktop" DESTINATION "${CMAKE_INSTALL_DATADIR}/applications")
  install(FILES "${packaging}/zel.xml" DESTINATION "${CMAKE_INSTALL_DATADIR}/mime/packages")
  install(FILES "${packaging}/example.zel.zel.metainfo.xml"
    DESTINATION "${CMAKE_INSTALL_DATADIR}/metainfo")
  install(DIRECTORY "${PROJECT_SOURCE_DIR}/help" DESTINATION "${CMAKE_INSTALL_DATADIR}/zel")
endif()
file(GLOB examples CONFIGURE_DEPENDS "${PROJECT_SOURCE_DIR}/examples/*.zel")
install(FILES ${examples} DESTINATION "${documents}/examples")
install(FILES "${PROJECT_SOURCE_DIR}/LICENSE" DESTINATION "${documents}" COMPONENT tree)
install(FILES "${packaging}/debian/copyright" DESTINATION "${documents}" ${only_in_packages})
install(FILES "${packaging}/zel.installed" DESTINATION "${CMAKE_INSTALL_DATADIR}/zel"
  ${only_in_packages})
zel_install_compressed("${packaging}/debian/changelog" "${documents}" changelog
  ${only_in_packages})
