#pragma once

// A development kit that spells everything otherwise than the stand-in platform wherever nobody
// fixed it: other names of codes and look-ups, operations of objects instead of classes, texts by
// value, no const, no default of an argument, no export macros, other members and fields in another
// order. It does only what shows that the analyser has reached it.

#include <QtWidgets>

#include <string>

class CWidget : public QWidget {
    Q_OBJECT
public:
    explicit CWidget(QWidget* parent)
        : QWidget(parent)
    {
    }
    virtual bool initialize() { return true; }
    virtual void setSize(int width, int height) { resize(width, height); }
    virtual void setSize(const QSize& size) { resize(size); }
    virtual void setFixedSize(int width, int height) { QWidget::setFixedSize(width, height); }
    virtual void setWidth(int width) { setFixedWidth(width); }
    virtual void translate() { }
    virtual void updateWindow(bool) { update(); }
    virtual void closeWindow() { hide(); } ///< the window is used again

    void setBackgroundColor(QColor) { }
    void setBorderColor(QColor) { }
    void setBorderWidth(int) { }
    void setBorderWidth(int, int, int, int) { }
};

class CUtilWindow : public CWidget {
    Q_OBJECT
public:
    using CWidget::CWidget;
    void setCentralWidget(QWidget* widget) { widget->setParent(this); }
};

class CTabWidget : public CWidget {
    Q_OBJECT
public:
    using CWidget::CWidget;
    void addTab(QWidget* page, QString) { page->setParent(this); }
    void addSeparator() { }
    void setCurrentIndex(int index) { emit currentChanged(index); }
    void setTabText(int, QString) { }
    void setSelectTabBgColor(QColor) { }
    void setReleaseTabBgColor(QColor) { }
    void setSelectTabTextColor(QColor) { }
    void setReleaseTabTextColor(QColor) { }

signals:
    void currentChanged(int index);
};

class CPushButton : public QPushButton {
    Q_OBJECT
public:
    enum ButtonStyle { StyleGray, StyleGreen };
    explicit CPushButton(QWidget* parent)
        : QPushButton(parent)
    {
    }
    void setStyle(CPushButton::ButtonStyle style, bool) { setObjectName(QString::number(style)); }
    void setTextColor(QColor) { }
};

class CLabel : public CWidget {
    Q_OBJECT
public:
    using CWidget::CWidget;
    void setText(QString text) { setWindowTitle(text); }
    void setTextColor(QColor) { }
};

class CMessageBox : public CWidget {
    Q_OBJECT
public:
    using CWidget::CWidget;
    void setMsgTextColor(QColor) { }
    void setAlignment(Qt::Alignment) { }
    void setTitleBackgroundColor(QColor) { }
    void setButtonText(QMessageBox::StandardButton, QString) { }
    int information(QWidget*, QString, QString, QMessageBox::StandardButtons) { return 0; }
};

struct KeyPads {
    enum Pads { Digits = 4, Letters = 5 };
    QString ask(QWidget*, Pads pad, QString title, QString, int, int most)
    {
        return title + QString(" %1 %2").arg(pad).arg(most);
    }
};

class CPageTable : public CWidget {
    Q_OBJECT
public:
    using CWidget::CWidget;
    void setHorizontalHeaderLabels(QStringList) { }
    void setColumnWidth(int, int) { }
    void setMaxVisibleRows(int) { }
    void setRowCount(int rows) { m_rows = rows; }
    int rowCount() { return m_rows; }
    void insertRow(int) { ++m_rows; }
    void setCellValue(int row, int column, QString text) { m_cells[{row, column}] = text; }
    void setCurrentPage(int page) { emit currentPageChanged(page); }
    QString cell(int row, int column) { return m_cells.value({row, column}); }

signals:
    void currentPageChanged(int page);

protected:
    QMap<QPair<int, int>, QString> m_cells;
    int m_rows = 0;
};

enum SecurityMode { Security_WEP = 0, Security_WPA1 = 1, Security_WPA2 = 2, Security_None = 3 };

struct _APInfo {
    SecurityMode _secMode;
    qint32 _signal;
    qint32 _channel;
    QString _statMsg;
    QString _bssid;
    QString _essid;
};

struct AccessPointListItem {
    SecurityMode getSecurityMode() { return m_info._secMode; }
    _APInfo m_info;
};

class AccessPointList : public CWidget {
    Q_OBJECT
public:
    AccessPointList(QStringList, QWidget* parent)
        : CWidget(parent)
    {
    }
    void addItem(const _APInfo& info) { m_items.append({info}); }
    void clear() { m_items.clear(); }
    AccessPointListItem* getAPItem(const QString& bssid)
    {
        for (AccessPointListItem& item : m_items) {
            if (item.m_info._bssid == bssid)
                return &item;
        }
        return nullptr;
    }
    QList<AccessPointListItem> m_items;

signals:
    void currentAPESSIDChanged(const QString& essid);
    void currentAPBSSIDChanged(const QString& bssid);
};

struct Style {
    QRect region(int code) { return QRect(code * 100 - 500, 0, 100, 300); }
    QSize size(int code) { return QSize(code * 10, 250); }
    QColor colour(int code) { return QColor(code, code, code); }
};

struct UtilInterface {
    bool bIsStarted;
    int m_callerId;
    virtual ~UtilInterface() { }
    virtual QString getPluginID() const = 0;
    virtual QString getPluginName() const = 0;
    virtual QString getPluginVersion() const = 0;
    virtual QString getPluginBuilder() const = 0;
    virtual bool bkgRun(QWidget*) = 0;
    virtual bool start(QWidget*) = 0;
    virtual bool stop() = 0;
    virtual void terminate() = 0;
    virtual void show() = 0;
    virtual void hide() = 0;
    virtual void update() = 0;
    virtual QObject* getObject() = 0;
    virtual void setCallerID(int) = 0;
};
Q_DECLARE_INTERFACE(UtilInterface, "com.korvane.CommonUtil.UtilInterface/1.0")

namespace halmanager {

struct CBus {
    virtual ~CBus() { }
};

struct CDevice {
    virtual ~CDevice() { }
};

struct CUsbWifi : CDevice {
    bool Present() { return true; }
};

struct CUsbBus : CBus {
    CDevice* Find(std::string name) { return name == "USB_WIFI" ? &m_wifi : nullptr; }

    CUsbWifi m_wifi;
};

struct Board {
    CBus* bus(std::string name) { return name == "UsbBus" ? &m_usb : nullptr; }

    CUsbBus m_usb;
};
inline Board& board()
{
    static Board theOne;
    return theOne;
}

struct PlatE2PromServ {
    int ReadMacAddr(char*) { return 1; }
    int ReadSN(char* serial)
    {
        qstrncpy(serial, "OTHER-1", 32);
        return 0;
    }
};

struct stWifiScanItem {
    std::string ssid;
};

} // namespace halmanager

namespace swupdate {

struct CNetUpdateHelper {
    bool GetVersion2(const char*, char*, unsigned int) { return false; }
};

} // namespace swupdate
