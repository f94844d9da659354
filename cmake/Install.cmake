# Where the program and what the desktop knows it by are installed.
include(GNUInstallDirs)

set(VEXA_APP_ID org.vexa.calculator)
set(VEXA_RELEASE_DATE 2026-11-21)
set(CMAKE_INSTALL_DOCDIR ${CMAKE_INSTALL_DATAROOTDIR}/doc/vexa-calculator)

install(TARGETS vexa-calculator vexa RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR})

install(FILES packaging/${VEXA_APP_ID}.desktop DESTINATION ${CMAKE_INSTALL_DATADIR}/applications)
configure_file(packaging/${VEXA_APP_ID}.metainfo.xml.in packaging/${VEXA_APP_ID}.metainfo.xml @ONLY)
install(FILES ${CMAKE_CURRENT_BINARY_DIR}/packaging/${VEXA_APP_ID}.metainfo.xml
  DESTINATION ${CMAKE_INSTALL_DATADIR}/metainfo)

set(icons ${CMAKE_INSTALL_DATADIR}/icons/hicolor)
foreach(size 16 24 32 48 64 128 256 512)
  install(FILES packaging/icons/${size}.png
    DESTINATION ${icons}/${size}x${size}/apps RENAME ${VEXA_APP_ID}.png)
endforeach()
install(FILES packaging/icons/icon.svg
  DESTINATION ${icons}/scalable/apps RENAME ${VEXA_APP_ID}.svg)
install(FILES packaging/icons/symbolic.svg
  DESTINATION ${icons}/symbolic/apps RENAME ${VEXA_APP_ID}-symbolic.svg)

# What the terminal program says about itself: its manual page, and what lets shells complete words.
set(said ${CMAKE_CURRENT_BINARY_DIR}/packaging)
set(said_files ${said}/vexa.1 ${said}/vexa.bash ${said}/_vexa ${said}/vexa.fish)
add_custom_command(OUTPUT ${said_files}
  COMMAND vexa man > ${said}/vexa.1
  COMMAND vexa completion bash > ${said}/vexa.bash
  COMMAND vexa completion zsh > ${said}/_vexa
  COMMAND vexa completion fish > ${said}/vexa.fish
  DEPENDS vexa)
add_custom_target(vexa_says ALL DEPENDS ${said_files})
install(FILES ${said}/vexa.1 DESTINATION ${CMAKE_INSTALL_MANDIR}/man1)
install(FILES ${said}/vexa.bash
  DESTINATION ${CMAKE_INSTALL_DATADIR}/bash-completion/completions RENAME vexa)
install(FILES ${said}/_vexa DESTINATION ${CMAKE_INSTALL_DATADIR}/zsh/vendor-completions)
install(FILES ${said}/vexa.fish DESTINATION ${CMAKE_INSTALL_DATADIR}/fish/vendor_completions.d)

install(FILES packaging/vexa-calculator.1 DESTINATION ${CMAKE_INSTALL_MANDIR}/man1)
install(FILES README.md CHANGELOG.md DESTINATION ${CMAKE_INSTALL_DOCDIR})
