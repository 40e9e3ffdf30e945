#pragma once

// The analyser's interface to the test set's development kit. Only this header includes the kit's
// headers. The analyser assumes that every kit has the classes and operations of the table below;
// it reaches everything else through the functions of this header. For another kit, write another
// header of this name. GUI thread only.
//
// Classes are in the global namespace unless another one is named.
//
// clang-format off
//
//   UtilInterface               interface of utilities, with its Q_DECLARE_INTERFACE
//   CWidget                     setBackgroundColor, setBorderColor, setBorderWidth (1 or 4 widths);
//                               the virtual operations, in the order of the host's call table
//   CUtilWindow                 setCentralWidget
//   CTabWidget                  addTab, addSeparator, setCurrentIndex, setTabText,
//                               setSelectTabBgColor, setReleaseTabBgColor, setSelectTabTextColor,
//                               setReleaseTabTextColor; signal currentChanged(int)
//   CPushButton                 setText, setStyle(StyleGray or StyleGreen, bool), setTextColor;
//                               signal clicked()
//   CLabel                      setText, setTextColor
//   CMessageBox                 setMsgTextColor, setAlignment, setTitleBackgroundColor,
//                               setButtonText, information
//   CPageTable                  setHorizontalHeaderLabels, setColumnWidth, setMaxVisibleRows,
//                               setRowCount, rowCount, insertRow, setCellValue, setCurrentPage;
//                               signal currentPageChanged(int)
//   AccessPointList             addItem, clear, getAPItem; signals currentAPESSIDChanged(QString),
//                               currentAPBSSIDChanged(QString)
//   AccessPointListItem         getSecurityMode
//   _APInfo, SecurityMode       a row of the list and its protection
//   swupdate::CNetUpdateHelper  GetVersion2
//   halmanager::PlatE2PromServ  ReadMacAddr, ReadSN
//   halmanager::CUsbWifi        the adapter; see usbWifi() and isPlugged()
//
// clang-format on

#include "accesspointlist.h"
#include "CBoardSpec.h"
#include "ckeypadfactory.h"
#include "clabel.h"
#include "cmessagebox.h"
#include "CNetUpdateHelper.h"
#include "cpagetable.h"
#include "cpushbutton.h"
#include "ctabwidget.h"
#include "CUsbBus.h"
#include "CUsbWifi.h"
#include "cutilwindow.h"
#include "cwidget.h"
#include "cwidgetstyle.h"
#include "PlatE2PromServ.h"
#include "utilinterface.h"
#include "WifiScanEventArg.h"

namespace wifiondivo {
namespace kit {

/// An access point in the hardware library's own scan events. The analyser only registers the type.
typedef ::stWifiScanItem ScanItem;

// Places and colours of the host's style.

/// The area of the tabs, including the tab bar: screen region 5 of the host.
inline QRect tabRegion()
{
    return CWidgetStyle::getScreenRegion(CWidgetStyle::TabRegion);
}

/// The area of the button strip beside the tabs: region 6.
inline QRect toolboxRegion()
{
    return CWidgetStyle::getScreenRegion(CWidgetStyle::ToolboxRegion);
}

/// Size of a page below the tab bar: size 8.
inline QSize tabPageSize()
{
    return CWidgetStyle::getSize(CWidgetStyle::TabPageSize);
}

/// Colour 0.
inline QColor pageBackground()
{
    return CWidgetStyle::getColor(CWidgetStyle::PageBackground);
}

/// Colours 12 to 15.
inline QColor selectedTabBackground()
{
    return CWidgetStyle::getColor(CWidgetStyle::SelectedTabBackground);
}

inline QColor releasedTabBackground()
{
    return CWidgetStyle::getColor(CWidgetStyle::ReleasedTabBackground);
}

inline QColor selectedTabText()
{
    return CWidgetStyle::getColor(CWidgetStyle::SelectedTabText);
}

inline QColor releasedTabText()
{
    return CWidgetStyle::getColor(CWidgetStyle::ReleasedTabText);
}

/// Asks for a text of at most 100 characters on the host's key pad of type 5, over the window of
/// `parent`; blocks meanwhile. `preset` is the initial content. Returns a null text if the user
/// cancels and an empty one if the user confirms an empty line. A kit whose key pad does not
/// distinguish these cases returns an empty text for both.
inline QString askForText(const QString& title, const QString& preset, QWidget* parent)
{
    return CKeyPadFactory::accessKeyPad(title, preset, CKeyPadFactory::FullKeyPad, 0, 100, parent);
}

/// The board's bus "UsbBus", owned by the board. Null if there is no such bus or it is no USB bus.
inline halmanager::CUsbBus* usbBus()
{
    return dynamic_cast<halmanager::CUsbBus*>(
        halmanager::CBoardSpec::GetInstance()->GetBus("UsbBus"));
}

/// The device "USB_WIFI" on `bus`, owned by the bus. Null if there is no such device or it is no
/// Wi-Fi adapter. `bus` must not be null.
inline halmanager::CUsbWifi* usbWifi(halmanager::CUsbBus* bus)
{
    return dynamic_cast<halmanager::CUsbWifi*>(bus->GetDevice("USB_WIFI"));
}

inline bool isPlugged(halmanager::CUsbWifi* adapter)
{
    return adapter->IsPlugged();
}

} // namespace kit
} // namespace wifiondivo
