# What an installation consists of; `programs` builds just that.
include(GNUInstallDirs)

add_custom_target(programs)

foreach(program tamrivo tamrivo-desktop)
    if(TARGET ${program})
        add_dependencies(programs ${program})
        install(TARGETS ${program} RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR})
        install(FILES packaging/${program}.1 DESTINATION ${CMAKE_INSTALL_MANDIR}/man1)
    endif()
endforeach()

if(TARGET tamrivo_component)
    add_dependencies(programs tamrivo_component)
    install(TARGETS tamrivo_component LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR}/tamrivo)
endif()

if(TARGET tamrivo-desktop)
    install(FILES packaging/tamrivo.desktop DESTINATION ${CMAKE_INSTALL_DATADIR}/applications)
    install(FILES packaging/tamrivo.svg
        DESTINATION ${CMAKE_INSTALL_DATADIR}/icons/hicolor/scalable/apps)
endif()
