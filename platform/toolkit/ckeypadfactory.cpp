#include "ckeypadfactory.h"

#include "ckeypad.h"
#include "cwidgetstyle.h"
#include "surroundings.h"

#include <QPointer>

QString CKeyPadFactory::accessKeyPad(const QString& title, const QString& text, KeyPadType,
    int minLength, int maxLength, QWidget* parent)
{
    const int least = qMax(0, minLength);
    const int most = qMax(least, maxLength);
    CKeyPad* const pad = new CKeyPad(title, text, least, most, parent ? parent->window() : nullptr);
    if (parent) // the caller's window is gone
        QObject::connect(parent, SIGNAL(destroyed()), pad, SLOT(reject()));
    const QRect area = modalArea(parent);
    const QRect display = CWidgetStyle::getScreenRegion(CWidgetStyle::ScreenAll);
    QRect place(
        QPoint(0, 0), area.size().boundedTo(display.size()).expandedTo(pad->minimumSizeHint()));
    place.moveCenter(area.center());
    pad->setGeometry(place);

    const QPointer<CKeyPad> guard = pad;
    const bool accepted = pad->exec() == QDialog::Accepted;
    if (guard.isNull()) // it went with the parent's window
        return QString();
    const QString entered = pad->text();
    delete pad;
    return accepted ? entered : QString();
}
