// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "cradiobutton.h"

#include "elidingtext.h"
#include "faint.h"
#include "slideoff.h"
#include "toolkitlook.h"
#include "translated.h"

#include <QButtonGroup>
#include <QEvent>
#include <QHBoxLayout>
#include <QPushButton>

namespace appPlugins {

namespace {

// The style sheet has neither a disabled look for the buttons nor a face for the one that is not
// checked, through which the glow of the focus would make it as blue as the checked one.
class HalfButton : public ElidingButton
{
public:
    using ElidingButton::ElidingButton;

protected:
    void paintEvent(QPaintEvent*) override
    {
        const auto draw = [this](QStylePainter& painter) {
            painter.drawControl(QStyle::CE_PushButton, shownOption());
        };
        if (!isEnabled())
            return drawFaint(this, draw);

        QStylePainter painter(this);
        if (!isChecked() && pairGlows())
            drawDarkFace(painter);
        draw(painter);
    }

private:
    void drawDarkFace(QPainter& painter) const
    {
        const int edge = 5;
        painter.fillRect(rect().adjusted(1, 1, -1, -1), Look::focusBlue());
        painter.fillRect(rect().adjusted(edge, edge, -edge, -edge), QColor(Look::DarkBackground));
    }

    bool pairGlows() const { return parentWidget()->hasFocus() || parentWidget()->underMouse(); }
};

} // namespace

const QString CRadioButton::m_selfStyleSheet =
    QStringLiteral(
        "QLabel{background:transparent;border:none;}"
        "QLabel:hover{border-image:url(%7appPluginsPics/glow.png);border:none;}"
        "QLabel:focus{border-image:url(%7appPluginsPics/glow.png);border:none;}"
        "QPushButton[objectName=\"left\"]{border-top-left-radius:%1px;border-top-right-radius:0px; "
        "border-bottom-right-radius:0px; border-bottom-left-radius:%1px;border: %2px solid "
        "%3;color:%4;text-align :center;}"
        "QPushButton[objectName=\"left\"]::checked{background-color:%5;color:%6;text-align "
        ":center; "
        "}"
        "QPushButton[objectName=\"right\"]{border-top-left-radius:0px; "
        "border-top-right-radius:%1px;border-bottom-right-radius:%1px; "
        "border-bottom-left-radius:0px;border-width: %2px %2px %2px 0px; border-style:solid; "
        "border-color:%3;color:%4;text-align :center;}"
        "QPushButton[objectName=\"right\"]::checked{background-color:%5;color:%6;text-align "
        ":center;}"
        "QPushButton[objectName=\"left\"]:focus{outline:none;}"
        "QPushButton[objectName=\"right\"]:focus{outline:none;}")
        .arg(QString::number(4), QString::number(2), Look::White, Look::White, Look::FocusBlue,
             Look::White, Look::AppFolder);

CRadioButton::CRadioButton(QWidget* parent, const char* leftTextId, const char* rightTextId)
    : QLabel(parent)
    , m_leftButtonTextId(leftTextId)
    , m_rightButtonTextId(rightTextId)
    , m_pButtonsManager(new QButtonGroup(this))
{
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    setFocusPolicy(Qt::ClickFocus);
    setFont(Look::textFont());
    setStyleSheet(m_selfStyleSheet);

    m_pButtonsManager->setExclusive(true);
    m_leftButton = createButton("left", 0);
    m_rightButton = createButton("right", 1);
    auto* layout = new QHBoxLayout(this);
    layout->setSpacing(0);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_leftButton);
    layout->addWidget(m_rightButton);
    retranslate();

    connect(m_pButtonsManager, &QButtonGroup::idClicked, this, &CRadioButton::sgnButtonClicked);
}

QPushButton* CRadioButton::createButton(const char* name, int index)
{
    auto* button = new HalfButton(this);
    button->setObjectName(QLatin1String(name));
    button->setCheckable(true);
    button->setFocusPolicy(Qt::NoFocus);
    button->setFont(Look::textFont());
    button->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    button->installEventFilter(this);
    m_pButtonsManager->addButton(button, index);
    return button;
}

void CRadioButton::setRadioButtonsTextId(const char* leftTextId, const char* rightTextId)
{
    m_leftButtonTextId = leftTextId;
    m_rightButtonTextId = rightTextId;
    retranslate();
}

void CRadioButton::retranslate()
{
    m_leftButton->setText(translated(m_leftButtonTextId));
    m_rightButton->setText(translated(m_rightButtonTextId));
}

void CRadioButton::setChecked(int index, bool checked)
{
    if (index >= 0 && index < m_pButtonsManager->buttons().size())
        m_pButtonsManager->button(index)->setChecked(checked);
}

int CRadioButton::checkedIndex() const
{
    return m_pButtonsManager->checkedId();
}

void CRadioButton::setDisabled(bool disable)
{
    m_leftButton->setDisabled(disable);
    m_rightButton->setDisabled(disable);
    QLabel::setDisabled(disable);
}

bool CRadioButton::eventFilter(QObject* watched, QEvent* event)
{
    auto* button = qobject_cast<QPushButton*>(watched);
    // Both buttons are as large as the left one.
    if (button != nullptr && slidesOff(button, m_leftButton->rect(), isEnabled(), event))
        return true;
    return QLabel::eventFilter(watched, event);
}

void CRadioButton::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::LanguageChange)
        retranslate();
    QLabel::changeEvent(event);
}

} // namespace appPlugins
