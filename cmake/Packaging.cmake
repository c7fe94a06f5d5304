# What is installed and where. tools/package makes a Debian package of it.
include(GNUInstallDirs)

foreach(program quorlin quorlin-batch quorlin-script)
  if(TARGET ${program})
    install(TARGETS ${program} RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR})
  endif()
endforeach()
# Only the other programs start it.
install(TARGETS quorlin-worker RUNTIME DESTINATION ${CMAKE_INSTALL_LIBEXECDIR}/quorlin)
install(DIRECTORY ${CMAKE_SOURCE_DIR}/interface DESTINATION ${CMAKE_INSTALL_DATADIR}/quorlin
  PATTERN "*.qrc" EXCLUDE PATTERN "CMakeLists.txt" EXCLUDE PATTERN "quorlin_*.ts" EXCLUDE)
install(DIRECTORY ${CMAKE_BINARY_DIR}/texts DESTINATION ${CMAKE_INSTALL_DATADIR}/quorlin/interface
  FILES_MATCHING PATTERN "quorlin_*.qm")
# The manual is beside the interface as in the source tree, with the pictures that it shows.
install(DIRECTORY ${CMAKE_SOURCE_DIR}/docs/manual ${CMAKE_SOURCE_DIR}/docs/screenshots
  DESTINATION ${CMAKE_INSTALL_DATADIR}/quorlin/docs FILES_MATCHING PATTERN "*.md" PATTERN "*.png")
set(packaging ${CMAKE_SOURCE_DIR}/packaging)
install(DIRECTORY ${CMAKE_SOURCE_DIR}/recipes DESTINATION ${CMAKE_INSTALL_DATADIR}/quorlin FILES_MATCHING PATTERN "*.quorlin")
install(DIRECTORY ${CMAKE_SOURCE_DIR}/samples DESTINATION ${CMAKE_INSTALL_DATADIR}/quorlin)
install(FILES ${CMAKE_SOURCE_DIR}/jobs/schema/recipe.schema.json DESTINATION ${CMAKE_INSTALL_DATADIR}/quorlin)
install(FILES ${packaging}/com.brelmark.Quorlin.desktop DESTINATION ${CMAKE_INSTALL_DATADIR}/applications)
install(FILES ${packaging}/com.brelmark.Quorlin.metainfo.xml DESTINATION ${CMAKE_INSTALL_DATADIR}/metainfo)
# Recipes and files of presets have types, so that a double click opens them.
install(FILES ${packaging}/com.brelmark.Quorlin.mime.xml DESTINATION ${CMAKE_INSTALL_DATADIR}/mime/packages
  RENAME com.brelmark.Quorlin.xml)
install(FILES ${packaging}/icons/quorlin.svg DESTINATION ${CMAKE_INSTALL_DATADIR}/icons/hicolor/scalable/apps)
install(FILES "${packaging}/icons/application-x-quorlin-recipe+json.svg" "${packaging}/icons/application-x-quorlin-presets+json.svg"
  DESTINATION ${CMAKE_INSTALL_DATADIR}/icons/hicolor/scalable/mimetypes)
install(FILES ${packaging}/icons/quorlin-symbolic.svg DESTINATION ${CMAKE_INSTALL_DATADIR}/icons/hicolor/symbolic/apps)
install(FILES ${CMAKE_SOURCE_DIR}/README.md ${CMAKE_SOURCE_DIR}/CHANGELOG.md DESTINATION ${CMAKE_INSTALL_DOCDIR})
install(FILES ${packaging}/examples/quorlin-inbox.service DESTINATION ${CMAKE_INSTALL_DOCDIR}/examples)
foreach(page quorlin.1 quorlin-batch.1 quorlin-script.1)
  install(FILES ${CMAKE_SOURCE_DIR}/docs/man/${page} DESTINATION ${CMAKE_INSTALL_MANDIR}/man1)
endforeach()
install(FILES ${CMAKE_SOURCE_DIR}/docs/man/quorlin-recipe.5 DESTINATION ${CMAKE_INSTALL_MANDIR}/man5)
# bash looks completions up by the name of the command.
foreach(command quorlin-batch quorlin quorlin-script)
  install(FILES ${packaging}/completion/quorlin-batch.bash DESTINATION ${CMAKE_INSTALL_DATADIR}/bash-completion/completions
    RENAME ${command})
endforeach()
install(FILES ${packaging}/completion/_quorlin-batch DESTINATION ${CMAKE_INSTALL_DATADIR}/zsh/vendor-completions)
install(FILES ${packaging}/completion/quorlin-batch.fish DESTINATION ${CMAKE_INSTALL_DATADIR}/fish/vendor_completions.d)
