# The German texts for a test set, whose Qt 4.8 reads what the translation tool of Qt 5 writes.

find_program(WIFIONDIVO_LRELEASE NAMES lrelease HINTS /usr/lib/qt5/bin REQUIRED)
set(translation_source "${PROJECT_SOURCE_DIR}/translations/wifiondivo_de.ts")
set(translation "${WIFIONDIVO_SHARE_DIR}/translations/wifiondivo_de.qm")
file(MAKE_DIRECTORY "${WIFIONDIVO_SHARE_DIR}/translations")
add_custom_command(OUTPUT "${translation}"
    COMMAND "${WIFIONDIVO_LRELEASE}" -silent "${translation_source}" -qm "${translation}"
    DEPENDS "${translation_source}" VERBATIM)
add_custom_target(translations ALL DEPENDS "${translation}")
install(FILES "${translation}" DESTINATION .)
