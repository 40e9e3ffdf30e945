#pragma once

// What the analyser asks of the test set's development kit, and the one place that includes a
// header of the kit or knows how it spells things. Everything else of the analyser uses the kit's
// classes by the names that are the same in every kit, and for the rest the functions below.
// Another kit gets a header of this name of its own.
//
// The classes and operations that are taken as given, in the global namespace unless it is named:
//
//   UtilInterface           the interface of utilities, with its Q_DECLARE_INTERFACE
//   CWidget                 setBackgroundColor, setBorderColor, setBorderWidth (1 and 4 widths) and
//                           the virtual operations in the order of the host's call table
//   CUtilWindow             setCentralWidget
//   CTabWidget              addTab, addSeparator, setCurrentIndex, setTabText, the four tab
//   colours;
//                           signal currentChanged(int)
//   CPushButton             setText, setStyle(StyleGray or StyleGreen, bool), setTextColor;
//                           signal clicked()
//   CLabel                  setText, setTextColor
//   CMessageBox             setMsgTextColor, setAlignment, setTitleBackgroundColor, setButtonText,
//                           information
//   CPageTable              what a channel table sets; signal currentPageChanged(int)
//   AccessPointList         addItem, clear, getAPItem; signals currentAPESSIDChanged(QString) and
//                           currentAPBSSIDChanged(QString)
//   AccessPointListItem     getSecurityMode
//   _APInfo, SecurityMode   a row of the list
//   swupdate::CNetUpdateHelper, halmanager::PlatE2PromServ, halmanager::CUsbWifi
//
// GUI thread only.

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
namespace host {

/// An access point as the hardware library's own scan events carry it. The analyser only registers
/// the type.
typedef ::stWifiScanItem ScanItem;

// Places and colours of the host's style.

/// What the tabs fill, tab bar included: the host's screen region 5.
inline QRect tabRegion()
{
    return CWidgetStyle::getScreenRegion(CWidgetStyle::TabRegion);
}

/// The strip of buttons beside it: region 6.
inline QRect toolboxRegion()
{
    return CWidgetStyle::getScreenRegion(CWidgetStyle::ToolboxRegion);
}

/// A page below the tab bar: size 8.
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

/// Lets the user enter a text of at most 100 characters on the host's key pad of type 5, over the
/// parent's window; `preset` is the initial content. A null text means that the user cancelled, an
/// empty one that he entered nothing. A kit whose key pad does not tell these apart answers an
/// empty text for both.
inline QString askForText(const QString& title, const QString& preset, QWidget* parent)
{
    return CKeyPadFactory::accessKeyPad(title, preset, CKeyPadFactory::FullKeyPad, 0, 100, parent);
}

/// The bus "UsbBus" of the board; null when there is none, or none of USB.
inline halmanager::CUsbBus* usbBus()
{
    return dynamic_cast<halmanager::CUsbBus*>(
        halmanager::CBoardSpec::GetInstance()->GetBus("UsbBus"));
}

/// The device "USB_WIFI" on that bus; null when there is none, or it is another kind of device.
inline halmanager::CUsbWifi* usbWifi(halmanager::CUsbBus* bus)
{
    return dynamic_cast<halmanager::CUsbWifi*>(bus->GetDevice("USB_WIFI"));
}

inline bool isPlugged(halmanager::CUsbWifi* adapter)
{
    return adapter->IsPlugged();
}

} // namespace host
} // namespace wifiondivo
