#pragma once

#include <QPointer>

class AccessPointList;
class CLabel;
class CPushButton;
class CTabWidget;
class CUtilWindow;
class UtilInterface;

namespace testset {

/// A utility in its window: the host starts and ends it here, and host and survey use the controls
/// that a person has there. A control is found by its kind and place, so that any language will do;
/// it is null if the utility does not have it. GUI thread only.
class HostedUtility {
public:
    /// The utility must outlive this object.
    explicit HostedUtility(UtilInterface& utility);
    ~HostedUtility();
    HostedUtility(const HostedUtility&) = delete;
    HostedUtility& operator=(const HostedUtility&) = delete;

    /// Shows the window in `area`, as it was left or built anew; false when the utility refused.
    bool open(QWidget* area);
    /// Takes the window out of sight and leaves it as it is.
    void leave();
    /// Ends the utility and the commands of a running scan. The next open() builds a new window.
    void close();
    /// Sets the texts in the language in use.
    void translate();
    /// Sends F1 to the utility. Returns when the utility has handled it, its dialogs included.
    void pressSaveKey();
    /// Whether F1 is on its way to the utility: it must not return there.
    bool isSaveKeyDown() const;

    /// Null before the first open() and after close().
    CUtilWindow* window() const;
    /// The utility's own main window inside it.
    QWidget* contents() const;
    CTabWidget* tabs() const;
    AccessPointList* accessPoints() const;
    /// The line beside the list that says how a scan went.
    CLabel* status() const;
    /// The first of the buttons beside the tabs. It is enabled while no scan runs.
    CPushButton* scanButton() const;
    /// The others: Right, Left, Up and Down. Shown or not.
    QList<CPushButton*> arrows() const;

private:
    QList<CPushButton*> stripButtons() const;

    UtilInterface& m_utility;
    QPointer<CUtilWindow> m_window;
    bool m_isSaveKeyDown = false;
};

} // namespace testset
