#pragma once

#include "cwidget.h"
#include "language.h"
#include "reports.h"

#include <QPointer>

class CPushButton;
class CTabWidget;
class CUtilWindow;
class QStackedWidget;
class UtilInterface;

namespace testset {

class DeviceFolder;
class HomeScreen;
class ResultsScreen;
class ScanWatch;
class TopBar;

/// The test set's screen: the top bar, a page (the home screen, the utility or the results), and
/// the soft keys, which the function keys of a keyboard press too. The utility's window is created
/// by the plug-in inside this window and goes with it at the latest. A scan that is still running
/// is ended: its commands are, since the utility lets them end before it goes. GUI thread only.
class TestSetWindow : public CWidget {
    Q_OBJECT
public:
    /// All must outlive the window; none is owned.
    TestSetWindow(UtilInterface& utility, Translation& translation, const DeviceFolder& device,
        QWidget* parent = nullptr);
    ~TestSetWindow() override;

    /// The utility's window, or null before the first openUtility() and after closeUtility().
    CUtilWindow* utilityWindow() const;
    /// The utility's own main window inside it, or null.
    QWidget* utilityContents() const;
    /// The utility's tabs, or null.
    CTabWidget* tabs() const;
    /// The buttons beside the utility's tabs: Scan, then Right, Left, Up and Down. Shown or not.
    QList<CPushButton*> stripButtons() const;
    /// The first of them, or null. It is enabled while no scan runs.
    CPushButton* scanButton() const;
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
    /// Sends F1 to the utility. Returns when the utility has handled it, its dialogs included.
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
    /// Clears the way for a scan; false, with a notice, when none is possible.
    bool prepareScan();
    void endUtility();
    void tell(const QString& notice);
    void tellWhatWasSaved();

    QWidget* createSoftKeys();
    CPushButton* addSoftKey(QWidget* strip, const char* name);
    void addShortcuts();
    void changeTab(int step);
    bool isUtilityShown() const;
    void showHome();
    void updateTexts();
    void updateStatus();

    UtilInterface& m_utility;
    Translation& m_translation;
    const DeviceFolder& m_device;
    Reports m_reports;
    QString m_notice; ///< what the user is to know of his last press; goes with the next one
    bool m_isSaveKeyDown = false; ///< F1 is on its way to the utility and must not come back here
    ScanWatch* m_scan;
    QPointer<CUtilWindow> m_utilityWindow;
    QStackedWidget* m_pages;
    HomeScreen* m_home;
    QWidget* m_utilityArea;
    ResultsScreen* m_results = nullptr; ///< from the first openResults() on: it costs at the start
    TopBar* m_bar;
    CPushButton* m_saveKey = nullptr;
    CPushButton* m_homeKey = nullptr;
    CPushButton* m_closeKey = nullptr;
    CPushButton* m_languageKey = nullptr;
    CPushButton* m_adapterKey = nullptr;
};

} // namespace testset
