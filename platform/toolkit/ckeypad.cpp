#include "ckeypad.h"

#include "cpushbutton.h"
#include "cwidgetstyle.h"

#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QVBoxLayout>

namespace {

const int KeyPadTitleHeight = 44;
const int KeyColumnCount = 12;
const int KeyRowCount = 5;

/// Character keys row by row; the blanks among the signs are keys without use there. The signs of
/// the last columns, which are usual in names, are on both faces.
struct KeyRow {
    int column; ///< of the first key
    const char* letters;
    const char* signs;
};

const KeyRow keyRows[] = {
    {0, "1234567890-_", "1234567890-_"},
    {0, "qwertyuiop'\"", "!?#$%&*+=~'\""},
    {0, "asdfghjkl.,/", "()[]{}<>|.,/"},
    {2, "zxcvbnm@", "\\^`:;  @"},
};

/// A line of the pad holds one line of text: a control character becomes a blank.
QString withoutControls(const QString& text)
{
    QString clean = text;
    for (QChar& character : clean) {
        if (character.category() == QChar::Other_Control)
            character = QLatin1Char(' ');
    }
    return clean;
}

} // namespace

CKeyPad::CKeyPad(
    const QString& title, const QString& text, int minLength, int maxLength, QWidget* parent)
    : QDialog(parent, Qt::Dialog | Qt::FramelessWindowHint)
    , m_minLength(minLength)
    , m_shift(ShiftOff)
    , m_signs(false)
    , m_edit(new QLineEdit(this))
    , m_grid(new QGridLayout)
    , m_shiftKey(nullptr)
    , m_signsKey(nullptr)
    , m_ok(nullptr)
{
    setObjectName(QLatin1String("keypad"));
    setWindowTitle(title);
    setWindowModality(Qt::ApplicationModal);
    QLabel* const bar = new QLabel(title);
    bar->setFixedHeight(KeyPadTitleHeight);
    bar->setIndent(16);
    bar->setFont(CWidgetStyle::font(CWidgetStyle::LargeText, true));
    bar->setTextFormat(Qt::PlainText);
    m_edit->setObjectName(QLatin1String("keypadEdit"));
    m_edit->setFont(CWidgetStyle::font(CWidgetStyle::LargeText));
    m_edit->setFixedHeight(56);
    m_edit->setContextMenuPolicy(Qt::NoContextMenu);
    m_edit->setMaxLength(maxLength);
    m_edit->setText(text);

    QVBoxLayout* const layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(8);
    layout->addWidget(bar);
    QVBoxLayout* const content = new QVBoxLayout;
    layout->addLayout(content, 1);
    content->setContentsMargins(8, 0, 8, 8);
    content->setSpacing(8);
    content->addWidget(m_edit);
    content->addLayout(m_grid, 1);
    m_grid->setSpacing(4);
    for (int column = 0; column < KeyColumnCount; ++column)
        m_grid->setColumnStretch(column, 1);
    for (int row = 0; row < KeyRowCount; ++row)
        m_grid->setRowStretch(row, 1);

    for (int row = 0; row < KeyRowCount - 1; ++row) {
        const QString letters = QString::fromLatin1(keyRows[row].letters);
        for (int i = 0; i < letters.size(); ++i) {
            const QByteArray name = QByteArray("keypadKey_") + keyRows[row].letters[i];
            CPushButton* const key =
                addButton(name.constData(), QString(), row, keyRows[row].column + i, 1);
            key->setFont(CWidgetStyle::font(CWidgetStyle::LargeText, true));
            key->setFocusPolicy(Qt::NoFocus); // a keyboard types by itself
            key->setAutoRepeat(true);
            connect(key, SIGNAL(clicked()), this, SLOT(onKey()));
            m_keys.append(key);
        }
    }

    m_shiftKey = addButton("keypadShift", tr("Shift"), 3, 0, 2);
    connect(m_shiftKey, SIGNAL(clicked()), this, SLOT(onShift()));
    CPushButton* const backspace = addButton("keypadBackspace", tr("Back"), 3, 10, 2);
    backspace->setAutoRepeat(true);
    connect(backspace, SIGNAL(clicked()), this, SLOT(eraseLast()));

    m_signsKey = addButton("keypadSigns", QString(), 4, 0, 2);
    connect(m_signsKey, SIGNAL(clicked()), this, SLOT(onSigns()));
    CPushButton* const clear = addButton("keypadClear", tr("Clear"), 4, 2, 2);
    connect(clear, SIGNAL(clicked()), m_edit, SLOT(clear()));
    CPushButton* const space = addButton("keypadSpace", tr("Space"), 4, 4, 4);
    connect(space, SIGNAL(clicked()), this, SLOT(onKey()));
    CPushButton* const cancel = addButton("keypadCancel", tr("Cancel"), 4, 8, 2);
    connect(cancel, SIGNAL(clicked()), this, SLOT(reject()));
    m_ok = addButton("keypadOk", tr("OK"), 4, 10, 2);
    m_ok->setStyle(CPushButton::StyleGreen, false);
    connect(m_ok, SIGNAL(clicked()), this, SLOT(confirm()));

    connect(m_edit, SIGNAL(returnPressed()), this, SLOT(confirm()));
    connect(m_edit, SIGNAL(textChanged(QString)), this, SLOT(onTextChanged()));
    labelKeys();
    onTextChanged();
    m_edit->setFocus(Qt::OtherFocusReason);
}

CKeyPad::~CKeyPad() { }

QString CKeyPad::text() const
{
    const QString text = withoutControls(m_edit->text());
    return text.isNull() ? QString::fromLatin1("") : text;
}

void CKeyPad::setVisible(bool visible)
{
    QDialog::setVisible(visible);
    m_edit->end(false); // a dialog selects all when it gives its line the focus
}

void CKeyPad::confirm()
{
    if (m_ok->isEnabled())
        accept();
}

void CKeyPad::onTextChanged()
{
    m_ok->setEnabled(m_edit->text().size() >= m_minLength);
}

void CKeyPad::onKey()
{
    const int index = m_keys.indexOf(qobject_cast<CPushButton*>(sender()));
    m_edit->insert(index < 0 ? QString(QLatin1Char(' ')) : m_keys.at(index)->text().left(1));
    if (m_shift == ShiftOnce) {
        m_shift = ShiftOff;
        labelKeys();
    }
}

void CKeyPad::onShift()
{
    m_shift = m_shift == ShiftOff ? ShiftOnce : m_shift == ShiftOnce ? ShiftLocked : ShiftOff;
    labelKeys();
}

void CKeyPad::onSigns()
{
    m_signs = !m_signs;
    m_shift = ShiftOff;
    labelKeys();
}

void CKeyPad::eraseLast()
{
    m_edit->backspace();
}

CPushButton* CKeyPad::addButton(
    const char* name, const QString& text, int row, int column, int columns)
{
    CPushButton* const button = new CPushButton(this);
    button->setObjectName(QLatin1String(name));
    button->setText(text);
    button->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Ignored);
    m_grid->addWidget(button, row, column, 1, columns);
    return button;
}

void CKeyPad::labelKeys()
{
    int index = 0;
    for (const KeyRow& row : keyRows) {
        const QString face = QString::fromLatin1(m_signs ? row.signs : row.letters);
        for (const QChar character : face) {
            CPushButton* const key = m_keys.at(index++);
            const QChar shown = m_shift == ShiftOff ? character : character.toUpper();
            key->setText(shown == QLatin1Char('&') ? QString::fromLatin1("&&") : QString(shown));
            key->setVisible(shown != QLatin1Char(' '));
        }
    }
    m_shiftKey->setText(m_shift == ShiftLocked ? tr("SHIFT") : tr("Shift"));
    m_shiftKey->setStyle(
        m_shift == ShiftOff ? CPushButton::StyleGray : CPushButton::StyleLightBlue, false);
    m_shiftKey->setEnabled(!m_signs);
    m_signsKey->setText(m_signs ? tr("abc") : tr("#+="));
}
