#pragma once

#include "cwidget.h"
#include "hostedutility.h"
#include "language.h"
#include "reports.h"

class QStackedWidget;

namespace testset {

class DeviceFolder;
class HomeScreen;
class ResultsScreen;
class ScanWatch;
class SoftKeys;
struct SoftKey;
class TopBar;

/// The test set's screen: the top bar, a page (the home screen, the utility or the results), and
/// the soft keys, which the function keys of a keyboard press too. The utility's window is created
/// by the plug-in inside this window and goes with it at the latest. The commands of a scan that is
/// still running are ended first, since the utility waits for them. GUI thread only.
class TestSetWindow : public CWidget {
    Q_OBJECT
public:
    /// All must outlive the window, which does not own them.
    TestSetWindow(UtilInterface& utility, Translation& translation, const DeviceFolder& device,
        QWidget* parent = nullptr);
    ~TestSetWindow() override;

    const HostedUtility& utility() const;
    /// Whether a scan's commands have ended and the utility still waits for its result.
    bool isScanStuck() const;
    /// Offers the stored scans in `folder` on the home screen, for a machine without an adapter.
    void offerStoredScans(const QString& folder);
    /// The whole screen as it looks now, 720 x 480 pixels.
    QImage picture();

public slots:
    /// Shows the utility, as it was left or built anew; false when the plug-in refused.
    bool openUtility();
    void openResults();
    /// Leaves the utility or the results for the home screen; the utility stays as it is.
    void goHome();
    /// One step back: from a report to the list of them, from any other page to the home screen.
    void goBack();
    /// Presses Scan, whichever tab is shown.
    void scan();
    /// Ends the utility, so that the next openUtility() builds it anew.
    void closeUtility();
    /// Sends F1 to the utility, see HostedUtility.
    void pressSaveKey();
    /// Goes on to the next language.
    void toggleLanguage();
    /// False, with nothing changed, when the language is not available.
    bool setLanguage(const QString& code);
    /// Pulls or plugs the replayed adapter; of several real ones, takes the next.
    void changeAdapter();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    /// Keys that neither the widget with the focus nor one around it wanted.
    void keyPressEvent(QKeyEvent* event) override;

private:
    /// Whether the event presses the enabled scan button.
    bool startsScan(QObject* watched, QEvent* event) const;
    /// Clears the way for a scan; false, with a notice, if no scan is possible.
    bool prepareScan();
    void showNotice(const QString& notice);
    void showSavedReport();

    QList<SoftKey> softKeys();
    void addShortcuts();
    void changeTab(int step);
    bool isUtilityShown() const;
    void showHome();
    void updateTexts();
    void updateStatus();

    const UtilInterface& m_plugin;
    Translation& m_translation;
    const DeviceFolder& m_device;
    Reports m_reports;
    QString m_notice; ///< about the user's last press; the next press clears it
    ScanWatch* m_scan;
    QStackedWidget* m_pages;
    HomeScreen* m_home;
    QWidget* m_utilityArea;
    ResultsScreen* m_results = nullptr; ///< from the first openResults() on: it costs at the start
    TopBar* m_bar;
    SoftKeys* m_softKeys;
    HostedUtility m_utility; ///< ends before the area that its window lies in
};

} // namespace testset
