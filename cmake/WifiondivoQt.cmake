# The Qt that include/, source/ and platform/ are built on. They name it by these libraries alone and
# do not know which of the two it is; Qt 4's AUTOMOC comes with them as Qt 5's does.
#
#   wifiondivo_qt_core      no user interface
#   wifiondivo_qt_gui       pictures, fonts and painting
#   wifiondivo_qt_widgets   widgets, which Qt 4 has in QtGui

if(WIFIONDIVO_QT4)
    # The finder compiles with Qt's headers, which are older than the compiler's own standard.
    set(CMAKE_CXX_STANDARD 11)
    find_package(Qt4 4.8 REQUIRED COMPONENTS QtCore QtGui)
    unset(CMAKE_CXX_STANDARD)
    set(wifiondivo_qt_libraries core Qt4::QtCore gui Qt4::QtGui widgets Qt4::QtGui)
else()
    find_package(Qt5 5.15 REQUIRED COMPONENTS Core Gui Widgets)
    set(wifiondivo_qt_libraries core Qt5::Core gui Qt5::Gui widgets Qt5::Widgets)
endif()

while(wifiondivo_qt_libraries)
    list(POP_FRONT wifiondivo_qt_libraries part library)
    add_library(wifiondivo_qt_${part} INTERFACE)
    target_link_libraries(wifiondivo_qt_${part} INTERFACE ${library})
endwhile()
