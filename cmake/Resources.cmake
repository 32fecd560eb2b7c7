# Puts the help pages with their pictures, and the icons of the windows, into the program.
file(GLOB helpFiles CONFIGURE_DEPENDS
    "${CMAKE_SOURCE_DIR}/src/res/help/*.html" "${CMAKE_SOURCE_DIR}/src/res/help/*.png")
qt_add_resources(layer_app_ui help PREFIX "/help" BASE "${CMAKE_SOURCE_DIR}/src/res/help" FILES ${helpFiles})
file(GLOB iconFiles CONFIGURE_DEPENDS "${CMAKE_SOURCE_DIR}/packaging/icons/*.png")
qt_add_resources(layer_app_ui icons PREFIX "/icons" BASE "${CMAKE_SOURCE_DIR}/packaging/icons" FILES ${iconFiles})
