# Where the program and what the desktop knows it by are installed.
include(GNUInstallDirs)

set(VEXA_APP_ID org.vexa.calculator)
set(VEXA_RELEASE_DATE 2026-11-21)
set(CMAKE_INSTALL_DOCDIR ${CMAKE_INSTALL_DATAROOTDIR}/doc/vexa-calculator)

install(TARGETS vexa-calculator RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR})

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

install(FILES packaging/vexa-calculator.1 DESTINATION ${CMAKE_INSTALL_MANDIR}/man1)
install(FILES README.md CHANGELOG.md DESTINATION ${CMAKE_INSTALL_DOCDIR})
