#pragma once

#include "common.h"
#include "core/band.h"
#include "hostbinding.h"

#include <QList>

#include <cstdio>

class QProgressBar;

namespace wifiondivo {

// The summary of the last finished scan in the 2.4 GHz band: row i describes one channel, and rows
// are ordered by best signal, strongest first, empty channels last. A channel table's
// creatChannelsList() writes it. A new main window sets it to zero, so that it shows no results of
// an earlier window. GUI thread.
extern qint8 ChannelText[ChannelCount2_4]; ///< channel number
extern qint8 APText[ChannelCount2_4];      ///< number of access points
extern qint8 BestText[ChannelCount2_4];    ///< best signal in percent
extern qint32 ap2_4;                       ///< number of channels with access points

/// The channel table of the 2.4 GHz band: the number of access points and the best signal of each
/// channel, as numbers and bars, strongest channel first, on two pages. GUI thread only.
class Wifiondivo_2_4GraphCH : public CWidget {
    Q_OBJECT
public:
    explicit Wifiondivo_2_4GraphCH(QWidget* parent);
    ~Wifiondivo_2_4GraphCH() override;

    /// Sets the band's summary to zero, as before the first scan.
    static void clearSummary();

    /// Builds the rows and bars from the summary again. Without a summary the table has 9 empty
    /// rows and no bars. May be called any number of times; returns false.
    bool initialize() override;
    /// Percentage of a signal number; see percentOfSignal().
    int signalChange(int signal);
    /// Writes the band's section of the HTML report; writes nothing if no channel is occupied.
    void save2_4GraphCHResult(FILE* pfOutput, int font_size);

public slots:
    /// Builds the summary from the table of a finished scan and shows it.
    void creatChannelsList(const stEXT_WIFISCAN_result& m_pWiFiScanResult);

protected slots:
    void onCurrentPageChanged(int pageIndex);

private:
    CPageTable* m_pTableWidget;
    QProgressBar* m_pProBar_signal; ///< the bar created last
    QList<QProgressBar*> barList;   ///< one per row; children of the table, deleted by this class
};

} // namespace wifiondivo
