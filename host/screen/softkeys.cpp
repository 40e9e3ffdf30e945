#include "softkeys.h"

#include "cpushbutton.h"
#include "cwidgetstyle.h"

#include <QHBoxLayout>
#include <QShortcut>

namespace testset {

namespace {

const int Height = 40; ///< pixels
const int Gap = 4;

} // namespace

SoftKeys::SoftKeys(const QList<SoftKey>& keys, QWidget* parent)
    : CWidget(parent)
    , m_keys(keys)
{
    setFixedHeight(Height);
    setBackgroundColor(CWidgetStyle::getColor(CWidgetStyle::FrameBackground));
    QHBoxLayout* const layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(Gap);
    QSizePolicy policy(QSizePolicy::Ignored, QSizePolicy::Fixed);
    policy.setRetainSizeWhenHidden(true); // a soft key without a meaning is blank
    for (const SoftKey& key : m_keys) {
        CPushButton* const button = new CPushButton;
        button->setObjectName(key.name);
        button->setStyle(CPushButton::StyleGray, false);
        button->setSizePolicy(policy);
        layout->addWidget(button);
        connect(button, &CPushButton::clicked, this, key.press);
        if (key.number == 1)
            continue;
        connect(new QShortcut(Qt::Key_F1 + key.number - 1, parent), &QShortcut::activated, this,
            [button] {
                if (button->isVisible())
                    button->click();
            });
    }
}

void SoftKeys::updateKeys()
{
    for (const SoftKey& key : m_keys) {
        CPushButton* const button = findChild<CPushButton*>(key.name);
        const QString caption = key.caption();
        button->setVisible(!caption.isNull());
        button->setText(QString("F%1 %2").arg(QString::number(key.number), caption));
        button->setEnabled(key.isEnabled());
    }
}

} // namespace testset
