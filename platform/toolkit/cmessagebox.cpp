#include "cmessagebox.h"

#include "cpushbutton.h"
#include "cwidgetstyle.h"
#include "modalarea.h"

#include <QEventLoop>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QPainter>
#include <QPointer>
#include <QVBoxLayout>

namespace {

const int MessageTitleHeight = 40;
const int MessageMargin = 16;
const int MessageBorder = 2;
const int AnswerButtonWidth = 112;
const int LargestMessageText = 16;
const int SmallestMessageText = 11;

struct ButtonName {
    QMessageBox::StandardButton button;
    const char* name;
};

/// Every button in the order in which a box shows them: what agrees comes first.
const ButtonName buttonNames[] = {
    {QMessageBox::Ok, QT_TRANSLATE_NOOP("CMessageBox", "OK")},
    {QMessageBox::Open, QT_TRANSLATE_NOOP("CMessageBox", "Open")},
    {QMessageBox::Save, QT_TRANSLATE_NOOP("CMessageBox", "Save")},
    {QMessageBox::SaveAll, QT_TRANSLATE_NOOP("CMessageBox", "Save All")},
    {QMessageBox::Yes, QT_TRANSLATE_NOOP("CMessageBox", "Yes")},
    {QMessageBox::YesToAll, QT_TRANSLATE_NOOP("CMessageBox", "Yes to All")},
    {QMessageBox::Retry, QT_TRANSLATE_NOOP("CMessageBox", "Retry")},
    {QMessageBox::Apply, QT_TRANSLATE_NOOP("CMessageBox", "Apply")},
    {QMessageBox::No, QT_TRANSLATE_NOOP("CMessageBox", "No")},
    {QMessageBox::NoToAll, QT_TRANSLATE_NOOP("CMessageBox", "No to All")},
    {QMessageBox::Ignore, QT_TRANSLATE_NOOP("CMessageBox", "Ignore")},
    {QMessageBox::Discard, QT_TRANSLATE_NOOP("CMessageBox", "Discard")},
    {QMessageBox::Reset, QT_TRANSLATE_NOOP("CMessageBox", "Reset")},
    {QMessageBox::RestoreDefaults, QT_TRANSLATE_NOOP("CMessageBox", "Defaults")},
    {QMessageBox::Help, QT_TRANSLATE_NOOP("CMessageBox", "Help")},
    {QMessageBox::Abort, QT_TRANSLATE_NOOP("CMessageBox", "Abort")},
    {QMessageBox::Close, QT_TRANSLATE_NOOP("CMessageBox", "Close")},
    {QMessageBox::Cancel, QT_TRANSLATE_NOOP("CMessageBox", "Cancel")},
};

/// Dark or light text, whichever is easier to read on `background`.
QColor textColorOn(const QColor& background)
{
    const int lightness // of 255000, the shares of the colours as the eye weighs them
        = 299 * background.red() + 587 * background.green() + 114 * background.blue();
    const bool light = lightness > 255000 / 2;
    return CWidgetStyle::getColor(light ? CWidgetStyle::PageText : CWidgetStyle::FrameText);
}

} // namespace

CMessageBox::CMessageBox(QWidget* parent)
    : CWidget(parent)
    , m_titleBackground(CWidgetStyle::getColor(CWidgetStyle::Accent))
    , m_text(new QLabel(this))
    , m_buttonRow(new QHBoxLayout)
    , m_loop(nullptr)
    , m_escapeAnswer(QMessageBox::NoButton)
{
    setObjectName(QLatin1String("messageBox"));
    // Kept on top: it has no owner window, and one that hides behind the host's locks the user out.
    setWindowFlags(Qt::Dialog | Qt::FramelessWindowHint | Qt::WindowStaysOnTopHint);
    setWindowModality(Qt::ApplicationModal);
    setFocusPolicy(Qt::StrongFocus);
    setFont(CWidgetStyle::font());
    setBackgroundColor(CWidgetStyle::getColor(CWidgetStyle::PageBackground));
    setBorderColor(CWidgetStyle::getColor(CWidgetStyle::FrameBackground));
    setBorderWidth(MessageBorder);
    setMinimumSize(400, 220);

    m_text->setObjectName(QLatin1String("messageBoxText"));
    m_text->setTextFormat(Qt::PlainText);
    m_text->setWordWrap(true);
    setMsgTextColor(CWidgetStyle::getColor(CWidgetStyle::PageText));

    QVBoxLayout* const layout = new QVBoxLayout(this);
    layout->setContentsMargins(
        MessageMargin, MessageBorder + MessageTitleHeight + 8, MessageMargin, MessageMargin);
    layout->setSpacing(8);
    layout->addWidget(m_text, 1);
    layout->addLayout(m_buttonRow);
    m_buttonRow->setSpacing(8);
}

CMessageBox::~CMessageBox()
{
    answer(m_escapeAnswer);
}

void CMessageBox::setMsgTextColor(const QColor& color)
{
    QPalette palette = m_text->palette();
    palette.setColor(QPalette::WindowText, color);
    m_text->setPalette(palette);
}

void CMessageBox::setAlignment(Qt::Alignment alignment)
{
    m_text->setAlignment(alignment);
}

void CMessageBox::setTitleBackgroundColor(const QColor& color)
{
    m_titleBackground = color;
    update();
}

void CMessageBox::setButtonText(QMessageBox::StandardButton button, const QString& text)
{
    m_buttonTexts[button] = text;
    const int index = m_answers.indexOf(button);
    if (index >= 0)
        m_buttons.at(index)->setText(text);
}

int CMessageBox::information(QWidget* parent, const QString& title, const QString& text,
    QMessageBox::StandardButtons buttons)
{
    if (m_loop)
        return QMessageBox::NoButton;
    m_title = title;
    setWindowTitle(title);
    m_text->setFont(CWidgetStyle::font(LargestMessageText));
    m_text->setText(text);
    createButtons(buttons);
    ensurePolished();
    adjustSize();
    fitText();
    QRect place(QPoint(0, 0), size());
    place.moveCenter(modalArea(parent).center());
    move(place.topLeft());

    if (parent)
        connect(parent, SIGNAL(destroyed()), this, SLOT(dismiss()));
    const QPointer<QWidget> watchedParent = parent;
    const QPointer<CMessageBox> self = this;
    const int escapeAnswer = m_escapeAnswer;
    const QList<int> answers = m_answers;
    QEventLoop loop;
    m_loop = &loop;
    show();
    raise();
    activateWindow();
    setFocus(Qt::OtherFocusReason);
    int result = loop.exec(QEventLoop::DialogExec);
    if (!answers.contains(result)) // the application ends
        result = escapeAnswer;
    if (!self)
        return result;
    m_loop = nullptr;
    hide();
    if (watchedParent)
        disconnect(watchedParent, SIGNAL(destroyed()), this, SLOT(dismiss()));
    return result;
}

void CMessageBox::paintEvent(QPaintEvent* event)
{
    CWidget::paintEvent(event);
    QPainter painter(this);
    const QRect bar(MessageBorder, MessageBorder, width() - 2 * MessageBorder, MessageTitleHeight);
    painter.fillRect(bar, m_titleBackground);
    painter.setFont(CWidgetStyle::font(16, true));
    painter.setPen(textColorOn(m_titleBackground));
    const QRect textRect =
        bar.adjusted(MessageMargin - MessageBorder, 0, MessageBorder - MessageMargin, 0);
    const QString title =
        painter.fontMetrics().elidedText(m_title, Qt::ElideRight, textRect.width());
    painter.drawText(textRect, Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine, title);
}

void CMessageBox::keyPressEvent(QKeyEvent* event)
{
    // No key leaves a modal box, whatever it means to the window below.
    if (event->key() == Qt::Key_Escape)
        answer(m_escapeAnswer);
    else if ((event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter)
        && !m_buttons.isEmpty())
        m_buttons.first()->click();
}

void CMessageBox::closeEvent(QCloseEvent* event)
{
    answer(m_escapeAnswer);
    CWidget::closeEvent(event);
}

void CMessageBox::onButtonClicked()
{
    for (int i = 0; i < m_buttons.size(); ++i) {
        if (m_buttons.at(i) == sender())
            answer(m_answers.at(i));
    }
}

void CMessageBox::dismiss()
{
    answer(m_escapeAnswer);
}

void CMessageBox::answer(int button)
{
    if (m_loop && m_loop->isRunning()) // the first answer counts
        m_loop->exit(button);
}

void CMessageBox::createButtons(QMessageBox::StandardButtons buttons)
{
    qDeleteAll(m_buttons);
    m_buttons.clear();
    m_answers.clear();
    while (QLayoutItem* const item = m_buttonRow->takeAt(0))
        delete item;

    m_buttonRow->addStretch(1);
    for (const ButtonName& entry : buttonNames) {
        const bool asked = buttons & entry.button;
        if (!asked && !(buttons == QMessageBox::NoButton && entry.button == QMessageBox::Ok))
            continue;
        const QString english = QString::fromLatin1(entry.name);
        CPushButton* const button = new CPushButton(this);
        button->setObjectName(
            QLatin1String("messageBox") + QString(english).remove(QLatin1Char(' ')));
        button->setText(m_buttonTexts.value(entry.button, tr(entry.name)));
        button->setStyle(
            m_buttons.isEmpty() ? CPushButton::StyleGreen : CPushButton::StyleGray, false);
        button->setMinimumWidth(AnswerButtonWidth);
        connect(button, SIGNAL(clicked()), this, SLOT(onButtonClicked()));
        m_buttonRow->addWidget(button);
        m_buttons.append(button);
        m_answers.append(entry.button);
    }
    m_buttonRow->addStretch(1);

    m_escapeAnswer = m_answers.last();
    if (m_answers.contains(QMessageBox::Cancel))
        m_escapeAnswer = QMessageBox::Cancel;
    else if (m_answers.contains(QMessageBox::No))
        m_escapeAnswer = QMessageBox::No;
}

/// Takes the largest font with which the message fits, for a box whose size somebody fixed.
void CMessageBox::fitText()
{
    for (int pixelSize = LargestMessageText; pixelSize >= SmallestMessageText; --pixelSize) {
        m_text->setFont(CWidgetStyle::font(pixelSize));
        layout()->activate();
        if (m_text->heightForWidth(m_text->width()) <= m_text->height())
            return;
    }
}
