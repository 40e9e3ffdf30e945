#pragma once

#include "cwidget.h"

#include <QPushButton>

class CLabel;
class UtilInterface;

namespace testset {

/// A utility's button on the home screen: symbol, title and a line below it. GUI thread only.
class UtilityTile : public QPushButton {
    Q_OBJECT
public:
    explicit UtilityTile(QWidget* parent = nullptr);

    void setTexts(const QString& title, const QString& detail);

protected:
    void paintEvent(QPaintEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    QString m_title;
    QString m_detail;
};

/// What the screen shows while no utility is in front. GUI thread only.
class HomeScreen : public CWidget {
    Q_OBJECT
public:
    HomeScreen(const UtilInterface& utility, QWidget* parent = nullptr);

    /// Sets the texts in the current language. `isOpen` tells that the utility waits behind the
    /// home screen as it was left.
    void setTexts(bool isOpen);
    UtilityTile* tile() const;

signals:
    /// The utility's tile was pressed.
    void utilityChosen();

private:
    const UtilInterface& m_utility;
    CLabel* m_hint;
    UtilityTile* m_tile;
};

/// A utility's title in the current language. A host knows the utilities that it is sold with; any
/// other one goes by its plug-in's name.
QString utilityTitle(const UtilInterface& utility);

} // namespace testset
