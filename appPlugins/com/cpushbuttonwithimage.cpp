// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "cpushbuttonwithimage.h"

#include "elidingtext.h"
#include "toolkitlook.h"
#include "translated.h"

#include <QAction>
#include <QEvent>
#include <QLabel>
#include <QPainter>
#include <QVBoxLayout>

namespace appPlugins {

const QString CPushButtonWithImage::m_selfStyleSheet =
    QStringLiteral("QLabel{color:%1;background:%2;}QLabel:disabled{color:%3;background:%4;}")
        .arg(Look::White, Look::DarkBackground, Look::DisabledGrey, Look::DarkBackground);

CPushButtonWithImage::CPushButtonWithImage(const char* textId, const char* iconPath,
                                           QWidget* parent)
    : QPushButton(parent)
    , m_actionOpen(new QAction(this))
    , m_pTitle(new ElidingLabel(this))
    , m_pIcon(new QIcon(QString::fromUtf8(iconPath)))
    , m_textId(textId)
    , m_iconPath(iconPath)
{
    setFont(Look::textFont());
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    setStyleSheet(m_selfStyleSheet);

    // The picture is a label of its own: a push button would put it beside its text.
    auto* picture = new QLabel(this);
    picture->setAlignment(Qt::AlignCenter);
    picture->setPixmap(m_pIcon->pixmap(iconSize() * 2));
    m_pTitle->setAlignment(Qt::AlignCenter);
    m_pTitle->setFont(Look::textFont());
    for (QLabel* label : {picture, m_pTitle})
        label->setAttribute(Qt::WA_TransparentForMouseEvents);

    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(4, 4, 4, 4);
    layout->setSpacing(2);
    layout->addWidget(picture, 1);
    layout->addWidget(m_pTitle);

    m_actionOpen->setIcon(*m_pIcon);
    connect(this, &QPushButton::clicked, m_actionOpen, &QAction::trigger);
    retranslate();
}

CPushButtonWithImage::~CPushButtonWithImage()
{
    delete m_pIcon;
}

QSize CPushButtonWithImage::sizeHint() const
{
    return layout()->sizeHint();
}

// The frame of the toolkit's other inputs; a push button's own would have the desktop's colours.
void CPushButtonWithImage::paintEvent(QPaintEvent* event)
{
    Q_UNUSED(event)
    const QColor white(255, 255, 255);
    const QColor grey(146, 146, 146);
    const QColor blue(52, 120, 247);
    const QColor frame = !isEnabled() ? grey : hasFocus() || isDown() ? blue : white;
    QPainter painter(this);
    painter.fillRect(rect(), frame);
    painter.fillRect(rect().adjusted(2, 2, -2, -2), isDown() ? blue : QColor(0x1e, 0x1e, 0x1e));
}

void CPushButtonWithImage::setText(const char* textId)
{
    m_textId = textId;
    retranslate();
}

void CPushButtonWithImage::retranslate()
{
    m_pTitle->setText(translated(m_textId));
    m_actionOpen->setText(translated(m_textId));
}

void CPushButtonWithImage::setDisabled(bool disable)
{
    m_pTitle->setDisabled(disable);
    QPushButton::setDisabled(disable);
}

void CPushButtonWithImage::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::LanguageChange)
        retranslate();
    QPushButton::changeEvent(event);
}

} // namespace appPlugins
