#pragma once

#include "cwidget.h"
#include "scenarios.h"

#include <QPushButton>

class CLabel;
class QListWidget;
class UtilInterface;

namespace testset {

/// A button of the home screen: symbol, title and a line below it. GUI thread only.
class HomeTile : public QPushButton {
    Q_OBJECT
public:
    enum Symbol { Measurement, Document };
    explicit HomeTile(Symbol symbol, QWidget* parent = nullptr);

    void setTexts(const QString& title, const QString& detail);

protected:
    void paintEvent(QPaintEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    Symbol m_symbol;
    QString m_title;
    QString m_detail;
};

/// The screen that is shown while no utility is in front. GUI thread only.
class HomeScreen : public CWidget {
    Q_OBJECT
public:
    HomeScreen(const UtilInterface& utility, QWidget* parent = nullptr);

    /// Sets the texts in the current language. `isOpen`: the utility is open below the
    /// home screen as it was left; `reports` is how many results there are.
    void setTexts(bool isOpen, int reports);
    /// Lists stored scans below the tiles, for a machine without an adapter. `current` is the name
    /// of the one that is replayed.
    void setStoredScans(const QList<StoredScan>& scans, const QString& current);
    HomeTile* utilityTile() const;
    HomeTile* resultsTile() const;

signals:
    /// The tile of that name was pressed.
    void utilityChosen();
    void resultsChosen();
    void storedScanChosen(const QString& name);

private:
    const UtilInterface& m_utility;
    CLabel* m_hint;
    HomeTile* m_utilityTile;
    HomeTile* m_resultsTile;
    CLabel* m_scansHint;
    QListWidget* m_list;
    QList<StoredScan> m_scans; ///< one for each row of the list
};

/// A utility's title in the current language. A host knows the utilities that it is sold with; any
/// other one goes by its plug-in's name.
QString utilityTitle(const UtilInterface& utility);

} // namespace testset
