# The texts for a test set, whose Qt 4.8 reads what the translation tool of Qt 5 writes.

find_program(WIFIONDIVO_LRELEASE NAMES lrelease HINTS /usr/lib/qt5/bin REQUIRED)
file(GLOB translation_sources CONFIGURE_DEPENDS "${PROJECT_SOURCE_DIR}/translations/*.ts")
file(MAKE_DIRECTORY "${WIFIONDIVO_SHARE_DIR}/translations")
foreach(source ${translation_sources})
    cmake_path(GET source STEM name)
    set(translation "${WIFIONDIVO_SHARE_DIR}/translations/${name}.qm")
    add_custom_command(OUTPUT "${translation}"
        COMMAND "${WIFIONDIVO_LRELEASE}" -silent "${source}" -qm "${translation}"
        DEPENDS "${source}" VERBATIM)
    list(APPEND translations "${translation}")
endforeach()
add_custom_target(translations ALL DEPENDS ${translations})
install(FILES ${translations} DESTINATION .)
