#pragma once

#include "cwidget.h"

#include <QStringList>
#include <QTreeWidgetItem>

#include <cstddef>

/// How a network is protected.
enum SecurityMode { Security_WEP = 0, Security_WPA1 = 1, Security_WPA2 = 2, Security_None = 3 };

/// One row of the access point list.
struct TOOLKIT_EXPORT _APInfo {
    _APInfo();
    _APInfo(const _APInfo& other);
    ~_APInfo();
    _APInfo& operator=(const _APInfo& other);

    QString _essid;
    QString _bssid;
    qint32 _channel;       ///< 0 until the producer sets it, as the figure below
    qint32 _signal;        ///< 110 minus the magnitude in dBm; 75 and more light every bar
    SecurityMode _secMode; ///< Security_None until the producer sets it
    QString _statMsg;
};
static_assert(offsetof(_APInfo, _essid) == 0 && offsetof(_APInfo, _bssid) == sizeof(void*)
        && offsetof(_APInfo, _channel) == 2 * sizeof(void*)
        && offsetof(_APInfo, _signal) == 2 * sizeof(void*) + 4
        && offsetof(_APInfo, _secMode) == 2 * sizeof(void*) + 8
        && offsetof(_APInfo, _statMsg) == (sizeof(void*) == 4 ? 20 : 32)
        && sizeof(_APInfo) == (sizeof(void*) == 4 ? 24 : 40),
    "laid out as on the test set, and on 64-bit machines with their pointers");
typedef _APInfo APInfo;

/// A row of an AccessPointList, owned by the list and gone with its next clear().
class TOOLKIT_EXPORT AccessPointListItem : public QTreeWidgetItem {
public:
    explicit AccessPointListItem(const _APInfo& info);
    ~AccessPointListItem() override;

    /// Sets the texts again in the current language.
    void translate();
    SecurityMode getSecurityMode() const;
    const _APInfo& info() const;

private:
    _APInfo m_info;
};

/// The list of access points: five signal bars and their figure in the first column, ESSID, BSSID,
/// channel, and a lock with the method's name in the last column. Figures below 0 light no bar,
/// those above 75 no more than all; the figure itself is shown as it is.
/// Until the first row or clear() the list says how to get any. Rows keep the order in which they
/// came; they are plain text, high enough for a finger and as many as fit whole, and scroll by
/// whole rows: by dragging, by the wheel and by the arrow keys, which move the current row. Control
/// characters in a text are shown as a replacement sign; signals and lookups carry the original.
/// GUI thread only.
class TOOLKIT_EXPORT AccessPointList : public CWidget {
    Q_OBJECT
public:
    /// Five column titles are expected; missing ones are empty, further ones are ignored.
    AccessPointList(const QStringList& titles, QWidget* parent);
    ~AccessPointList() override;

    void addItem(const _APInfo& info);
    /// Removes all rows; no row is current afterwards and no signal is sent.
    void clear();
    int count() const;
    /// The row at `index`, or null.
    AccessPointListItem* item(int index) const;
    /// The first row whose BSSID equals `bssid`, or null.
    AccessPointListItem* getAPItem(const QString& bssid) const;
    /// Makes a row current as a press on it does; an index outside the rows changes nothing.
    void setCurrentRow(int index);

signals:
    /// ESSID and BSSID of the row that became current, in this order.
    void currentAPESSIDChanged(const QString& essid);
    void currentAPBSSIDChanged(const QString& bssid);

protected:
    void resizeEvent(QResizeEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    class View;

    void tellCurrent();

    View* m_view;
};
