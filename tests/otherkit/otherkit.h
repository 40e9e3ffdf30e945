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

    void setBackgroundColor(QColor colour) { m_colours[0] = colour; }
    void setBorderColor(QColor colour) { m_colours[1] = colour; }
    void setBorderWidth(int) { }
    void setBorderWidth(int, int, int, int) { }

protected:
    QColor m_colours[2];
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
    explicit CTabWidget(QWidget* parent)
        : CWidget(parent)
        , m_tabs(new QTabWidget(this))
    {
        connect(m_tabs, &QTabWidget::currentChanged, this, &CTabWidget::currentChanged);
    }
    void addTab(QWidget* page, const QString& title) { m_tabs->addTab(page, title); }
    void addSeparator() { }
    void setCurrentIndex(int index) { m_tabs->setCurrentIndex(index); }
    void setTabText(int index, const QString& title) { m_tabs->setTabText(index, title); }
    void setSelectTabBgColor(QColor colour) { m_colours[0] = colour; }
    void setReleaseTabBgColor(QColor colour) { m_colours[0] = colour; }
    void setSelectTabTextColor(QColor colour) { m_colours[0] = colour; }
    void setReleaseTabTextColor(QColor colour) { m_colours[0] = colour; }

signals:
    void currentChanged(int index);

protected:
    QTabWidget* m_tabs;
};

class CPushButton : public QAbstractButton {
    Q_OBJECT
public:
    enum ButtonStyle { StyleGray, StyleGreen, StyleOrange, StyleRed, StyleLightBlue };
    explicit CPushButton(QWidget* parent)
        : QAbstractButton(parent)
    {
    }
    void setStyle(CPushButton::ButtonStyle, bool) { update(); }
    void setTextColor(QColor) { update(); }

protected:
    void paintEvent(QPaintEvent*) override { }
};

class CLabel : public CWidget {
    Q_OBJECT
public:
    using CWidget::CWidget;
    void setText(QString text) { setWindowTitle(text); }
    void setTextColor(QColor colour) { m_colours[0] = colour; }
};

class CMessageBox : public CWidget {
    Q_OBJECT
public:
    using CWidget::CWidget;
    void setMsgTextColor(QColor colour) { m_colours[0] = colour; }
    void setAlignment(Qt::Alignment) { }
    void setTitleBackgroundColor(QColor colour) { m_colours[0] = colour; }
    void setButtonText(QMessageBox::StandardButton, QString) { }
    int information(QWidget*, QString, QString, QMessageBox::StandardButtons buttons)
    {
        return buttons;
    }
};

struct KeyPads {
    enum Pads { Digits = 4, Letters = 5 };
    static KeyPads& theOne()
    {
        static KeyPads pads;
        return pads;
    }
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
    static Style* current()
    {
        static Style style;
        return &style;
    }
    virtual ~Style() { }
    virtual QRect region(int code)
    {
        return code == 5 ? QRect(0, 0, 500, 300) : QRect(500, 0, 60, 300);
    }
    virtual QSize size(int) { return QSize(400, 250); }
    virtual QColor colour(int code) { return QColor(code, code, code); }
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
    virtual bool Present() { return true; }
};

struct CUsbBus : CBus {
    virtual CDevice* Find(std::string name) { return name == "USB_WIFI" ? &m_wifi : nullptr; }

    CUsbWifi m_wifi;
};

struct CBoardSpec {
    static CBoardSpec& GetInstance()
    {
        static CBoardSpec board;
        return board;
    }
    virtual ~CBoardSpec() { }
    virtual CBus* Bus(std::string name) { return name == "UsbBus" ? &m_usb : nullptr; }

    CUsbBus m_usb;
};

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
    virtual ~CNetUpdateHelper() { }
    virtual bool GetVersion2(const char*, char*, unsigned int) { return false; }
};

} // namespace swupdate
