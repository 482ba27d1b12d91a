include(GNUInstallDirs)

foreach(program tamrivo tamrivo-desktop)
    if(TARGET ${program})
        install(TARGETS ${program} RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR})
    endif()
endforeach()
