#pragma once

#include "common.h"
#include "core/band.h"
#include "hostbinding.h"

#include <QList>

#include <cstdio>

class QProgressBar;

namespace wifiondivo {

// The summary of the last finished scan in the 5 GHz band, like ChannelText and its companions for
// the 2.4 GHz band. The types are unsigned because channel numbers go up to 165.
extern quint8 Channel5Text[ChannelCount5]; ///< channel number
extern quint8 AP5Text[ChannelCount5];      ///< number of access points
extern quint8 Best5Text[ChannelCount5];    ///< best signal in percent
extern qint32 ap5;                         ///< number of channels with access points

/// The channel table of the 5 GHz band: the number of access points and the best signal of each
/// listed channel, as numbers and bars, strongest channel first, on one page. GUI thread only.
class Wifiondivo_5GraphCH : public CWidget {
    Q_OBJECT
public:
    explicit Wifiondivo_5GraphCH(QWidget* parent);
    ~Wifiondivo_5GraphCH() override;

    /// Sets the band's summary to zero, as before the first scan.
    static void clearSummary();

    /// Builds the rows and bars from the summary again. Without a summary the table has 9 empty
    /// rows and no bars. May be called any number of times; returns false.
    bool initialize() override;
    /// Percentage of a signal number; see percentOfSignal().
    int signalChange(int signal);
    /// Magnitude of the level of a signal number in dBm; see levelOfSignal().
    int signalToDbM(int signal);
    /// Writes the band's section of the HTML report; writes nothing if no channel is occupied.
    void save_5GraphCHResult(FILE* pfOutput, int font_size);

public slots:
    /// Builds the summary from the table of a finished scan and shows it.
    void creatChannelsList(const stEXT_WIFISCAN_result& m_pWiFiScanResult);

protected slots:
    void onCurrentPageChanged(int pageIndex);

private:
    CPageTable* m_pTable_5gWidget;
    QProgressBar* m_pProBar_5Gsignal; ///< the bar created last
    QList<QProgressBar*> barList;     ///< one per row; children of the table, deleted by this class
};

} // namespace wifiondivo
