# The viewer finds its profile and translations beside its binary, so the bundle of the build tree
# is installed as it is, and the command is a link into it.
install(TARGETS orna RUNTIME DESTINATION ${ORNA_INSTALLED_BUNDLE}/MacOS)
install(DIRECTORY $<TARGET_FILE_DIR:orna>/../Resources DESTINATION ${ORNA_INSTALLED_BUNDLE})
file(RELATIVE_PATH binary /${CMAKE_INSTALL_BINDIR} /${ORNA_INSTALLED_BUNDLE}/MacOS/orna)
file(CREATE_LINK ${binary} ${CMAKE_CURRENT_BINARY_DIR}/orna SYMBOLIC)
install(FILES ${CMAKE_CURRENT_BINARY_DIR}/orna TYPE BIN)

# What the desktop shows and knows about it.
configure_file(orna.metainfo.xml.in org.example.orna.metainfo.xml @ONLY)
install(FILES orna.desktop DESTINATION ${CMAKE_INSTALL_DATADIR}/applications)
install(FILES ${CMAKE_CURRENT_BINARY_DIR}/org.example.orna.metainfo.xml
    DESTINATION ${CMAKE_INSTALL_DATADIR}/metainfo)
install(FILES orna-mime.xml DESTINATION ${CMAKE_INSTALL_DATADIR}/mime/packages RENAME orna.xml)
set(icons ${CMAKE_INSTALL_DATADIR}/icons/hicolor/scalable)
install(FILES ${PROJECT_SOURCE_DIR}/resources/icons/orna.svg DESTINATION ${icons}/apps)
install(FILES icons/application-x-orna-project+xml.svg icons/application-x-orna-recording.svg
    DESTINATION ${icons}/mimetypes)
