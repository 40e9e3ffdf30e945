#include "cmessagebox.h"

#include "cpushbutton.h"
#include "cwidgetstyle.h"
#include "surroundings.h"

#include <QLabel>
#include <QVBoxLayout>

namespace {

const int MessageTitleHeight = 40;
const int MessageMargin = 16;
const int MessageBorder = 2;
const int AnswerButtonWidth = 112;
const int LightFrom = 100; ///< of 255, the grey of a background from which dark text is easier read

} // namespace

CMessageBox::CMessageBox(QWidget* parent)
    : QDialog(parent)
    , m_title(new QLabel)
    , m_text(new QLabel)
    , m_ok(new CPushButton)
{
    setObjectName(QLatin1String("messageBox"));
    // Kept on top: it has no owner window, and a box below the host's window would lock the user
    // out.
    setWindowFlags(Qt::Dialog | Qt::FramelessWindowHint | Qt::WindowStaysOnTopHint);
    setWindowModality(Qt::ApplicationModal);
    setFocusPolicy(Qt::StrongFocus); // it has the keys until Tab brings the button the focus
    setMinimumSize(400, 220);
    m_title->setFixedHeight(MessageTitleHeight);
    m_title->setIndent(MessageMargin - MessageBorder);
    m_title->setFont(CWidgetStyle::font(CWidgetStyle::LargeText, true));
    m_title->setTextFormat(Qt::PlainText);
    m_title->setAutoFillBackground(true);
    setTitleBackgroundColor(CWidgetStyle::getColor(CWidgetStyle::Accent));
    m_text->setFont(CWidgetStyle::font(CWidgetStyle::LargeText));
    m_text->setMargin(MessageMargin - MessageBorder);
    m_text->setTextFormat(Qt::PlainText);
    m_text->setWordWrap(true);
    setMsgTextColor(CWidgetStyle::getColor(CWidgetStyle::PageText));
    m_ok->setObjectName(QLatin1String("messageBoxOk"));
    m_ok->setText(tr("OK"));
    m_ok->setStyle(CPushButton::StyleGreen, false);
    m_ok->setMinimumWidth(AnswerButtonWidth);
    m_ok->setDefault(true);
    connect(m_ok, SIGNAL(clicked()), SLOT(accept()));

    QVBoxLayout* const layout = new QVBoxLayout(this);
    layout->setContentsMargins(MessageBorder, MessageBorder, MessageBorder, MessageMargin);
    layout->setSpacing(0);
    layout->addWidget(m_title);
    layout->addWidget(m_text, 1);
    layout->addWidget(m_ok, 0, Qt::AlignHCenter);
}

CMessageBox::~CMessageBox() { }

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
    QPalette palette = m_title->palette();
    palette.setColor(QPalette::Window, color);
    palette.setColor(QPalette::WindowText,
        CWidgetStyle::getColor(
            qGray(color.rgb()) < LightFrom ? CWidgetStyle::FrameText : CWidgetStyle::PageText));
    m_title->setPalette(palette);
}

void CMessageBox::setButtonText(QMessageBox::StandardButton button, const QString& text)
{
    if (button == QMessageBox::Ok)
        m_ok->setText(text);
}

int CMessageBox::information(
    QWidget* parent, const QString& title, const QString& text, QMessageBox::StandardButtons)
{
    if (isVisible())
        return QMessageBox::NoButton;
    setWindowTitle(title);
    m_title->setText(title);
    m_text->setText(text);
    ensurePolished();
    adjustSize();
    QRect place(QPoint(0, 0), size());
    place.moveCenter(modalArea(parent).center());
    move(place.topLeft());
    if (parent) // the message goes with the widget that showed it
        connect(parent, SIGNAL(destroyed()), this, SLOT(reject()), Qt::UniqueConnection);
    setFocus(Qt::OtherFocusReason);
    exec();
    return QMessageBox::Ok;
}
