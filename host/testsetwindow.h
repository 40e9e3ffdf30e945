#pragma once

#include "cwidget.h"
#include "language.h"
#include "reports.h"

#include <QPointer>

class CLabel;
class CPushButton;
class CUtilWindow;
class QLabel;
class QStackedWidget;
class UtilInterface;

namespace testset {

class DeviceFolder;
class HomeScreen;

/// The test set's screen: the top bar, the utility or the home screen, and the soft keys.
/// The utility's window is created by the plug-in inside this window and goes with it at the
/// latest. A scan that is still running is ended: its commands are, since the utility lets them end
/// before it goes. GUI thread only.
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
    /// The button that starts a scan, the first one beside the utility's pages; or null. It is
    /// enabled while no scan runs.
    CPushButton* scanButton() const;
    /// The whole screen as it looks now, 720 x 480 pixels.
    QImage picture();

public slots:
    /// Shows the utility, as it was left or built anew; false when the plug-in refused.
    bool openUtility();
    /// Leaves the utility for the home screen; it stays as it is.
    void goHome();
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

private:
    /// Whether the event presses the enabled scan button.
    bool startsScan(QObject* watched, QEvent* event) const;
    void endUtility();
    void tellWhatWasSaved();
    void onSecond();

    QWidget* createTopBar();
    QWidget* createSoftKeys();
    CPushButton* addSoftKey(QWidget* strip, const char* name);
    void showHome();
    void updateTexts();
    void updateStatus();

    UtilInterface& m_utility;
    Translation& m_translation;
    const DeviceFolder& m_device;
    Reports m_reports;
    QString m_notice;       ///< what the user is to know of his last press; goes with the next one
    int m_secondsStuck = 0; ///< how long Scan has been disabled with no command running
    QPointer<CUtilWindow> m_utilityWindow;
    QStackedWidget* m_pages;
    HomeScreen* m_home;
    QWidget* m_utilityArea;
    CLabel* m_title = nullptr;
    QLabel* m_source = nullptr; ///< the adapter, or what the scan tool remarked
    CLabel* m_clock = nullptr;
    CPushButton* m_saveKey = nullptr;
    CPushButton* m_homeKey = nullptr;
    CPushButton* m_closeKey = nullptr;
    CPushButton* m_languageKey = nullptr;
    CPushButton* m_adapterKey = nullptr;
};

} // namespace testset
