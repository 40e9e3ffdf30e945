#pragma once

#include "exitstatus.h"

#include <QDir>
#include <QPointer>
#include <QStringList>

#include <optional>

class AccessPointList;
class CLabel;
class CPushButton;
class CTabWidget;

namespace testset {

class DeviceFolder;
class TestSetWindow;

struct SurveyOptions {
    QString folder;                    ///< created with its parents when it is missing
    std::optional<QString> reportName; ///< null keeps the name that the key pad proposes
    int waitSeconds = 90;              ///< how long the scan may take
};

/// Uses the utility without a person, by its buttons and keys alone: scan, a picture of every page
/// and of a selection on each graph, a report, which it looks for among the files. Its own words
/// are English, and it knows the utility's controls by their kinds and places, so that it works in
/// any language. The window must be new, keep its language and outlive the survey, as the device
/// folder must. GUI thread only.
class Survey {
public:
    Survey(TestSetWindow& window, const DeviceFolder& device, const SurveyOptions& options);

    /// Runs event loops of its own until everything is done; every wait in it is bounded. How the
    /// scan ended comes before how the report did.
    Outcome run();
    /// The access points and the places of the files, line by line.
    QStringList lines() const;

private:
    /// Finds the controls that the survey uses; false if the utility lacks one.
    bool findControls();
    Outcome scan();
    void listAccessPoints();
    Outcome takePictures();
    /// Presses the arrow buttons beside the page shown; false if there are no arrows.
    bool stepSelection();
    /// Why the picture could not be written; empty when it was.
    QString savePicture(const QString& name);
    Outcome saveReport(bool isComplete);

    TestSetWindow& m_window;
    const DeviceFolder& m_device;
    SurveyOptions m_options;
    QDir m_folder;
    QStringList m_lines;
    QPointer<CTabWidget> m_tabs;
    QPointer<CLabel> m_status;
    QPointer<AccessPointList> m_accessPoints;
    QPointer<CPushButton> m_scan;
};

} // namespace testset
