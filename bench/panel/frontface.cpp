// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "frontface.h"

#include "facelayout.h"
#include "facepainting.h"
#include "keybutton.h"
#include "keyrelay.h"
#include "paneltexts.h"
#include "screenview.h"

#include <QEvent>
#include <QPainter>
#include <QWheelEvent>

namespace {

KeyButton::Kind kindOf(const QString& name)
{
    static const QHash<QString, KeyButton::Kind> kinds = {
        {QStringLiteral("gn"), KeyButton::Unit},
        {QStringLiteral("mu"), KeyButton::Unit},
        {QStringLiteral("km"), KeyButton::Unit},
        {QStringLiteral("x1"), KeyButton::Unit},
        {QStringLiteral("enter"), KeyButton::Confirm},
        {QStringLiteral("channel1"), KeyButton::Output},
        {QStringLiteral("left"), KeyButton::Arrow},
        {QStringLiteral("right"), KeyButton::Arrow},
        {QStringLiteral("up"), KeyButton::Arrow},
        {QStringLiteral("down"), KeyButton::Arrow},
        {QStringLiteral("home"), KeyButton::Function},
        {QStringLiteral("back"), KeyButton::Function},
        {QStringLiteral("default"), KeyButton::Function},
        {QStringLiteral("utility"), KeyButton::Function},
        {QStringLiteral("manual"), KeyButton::Function},
        {QStringLiteral("help"), KeyButton::Function},
        {QStringLiteral("cancel"), KeyButton::Function},
        {QStringLiteral("backspace"), KeyButton::Function},
    };
    return kinds.value(name, KeyButton::Number);
}

} // namespace

FrontFace::FrontFace(RfbScreen& screen, KeyRelay& relay, QWidget* parent)
    : QWidget(parent)
    , m_relay(relay)
    , m_screenView(new ScreenView(screen, this))
    , m_knob(new Knob(this))
{
    setObjectName(QStringLiteral("face"));
    setFocusPolicy(Qt::ClickFocus);
    makeKeys();
    connectRelay();
    retranslate();
}

void FrontFace::makeKeys()
{
    for (const FrontKey& key : frontKeys()) {
        if (FaceLayout::key(key.name).isEmpty())
            continue;
        auto* const button = new KeyButton(key, kindOf(key.name), this);
        const int code = key.code;
        connect(button, &KeyButton::pressed, this,
                [this, code] { m_relay.press(code, KeyRelay::Mouse); });
        connect(button, &KeyButton::released, this,
                [this, code] { m_relay.release(code, KeyRelay::Mouse); });
        m_keys.insert(key.name, button);
    }
}

void FrontFace::connectRelay()
{
    const int knobCode = frontKeyByName(QStringLiteral("knob"))->code;
    connect(m_knob, &Knob::turned, &m_relay, &KeyRelay::turn);
    connect(m_knob, &Knob::pressed, this,
            [this, knobCode] { m_relay.press(knobCode, KeyRelay::Mouse); });
    connect(m_knob, &Knob::released, this,
            [this, knobCode] { m_relay.release(knobCode, KeyRelay::Mouse); });
    connect(&m_relay, &KeyRelay::turned, m_knob, &Knob::showTurn);
    connect(&m_relay, &KeyRelay::keyChanged, this, [this, knobCode](int code, bool isDown) {
        if (code == knobCode)
            m_knob->showPressed(isDown);
        for (KeyButton* button : qAsConst(m_keys)) {
            if (button->code() == code)
                button->showPressed(isDown);
        }
    });
}

KeyButton* FrontFace::key(const QString& name) const
{
    return m_keys.value(name);
}

void FrontFace::setModel(const QString& model)
{
    m_strModel = model;
    m_face = QPixmap();
    update();
}

void FrontFace::setOutputOn(bool isOn)
{
    m_bOutputOn = isOn;
    KeyButton* const button = key(QStringLiteral("channel1"));
    button->setLit(isOn);
    button->setAccessibleDescription(
        qtTrId(isOn ? "PANELID_OUTPUT_IS_ON" : "PANELID_OUTPUT_IS_OFF"));
}

void FrontFace::retranslate()
{
    for (const FrontKey& key : frontKeys()) {
        QWidget* widget = m_knob;
        if (key.name != QLatin1String("knob"))
            widget = m_keys.value(key.name);
        widget->setAccessibleName(PanelTexts::keyMeaning(key));
        widget->setToolTip(PanelTexts::keyHelp(key));
    }
    m_screenView->setAccessibleName(qtTrId("PANELID_SCREEN"));
    setAccessibleName(qtTrId("PANELID_FACE"));
    setOutputOn(m_bOutputOn);
    m_face = QPixmap();
    update();
}

QSize FrontFace::sizeHint() const
{
    return {int(FaceLayout::Width), int(FaceLayout::Height)};
}

QSize FrontFace::minimumSizeHint() const
{
    return sizeHint() * 0.5;
}

int FrontFace::heightForWidth(int width) const
{
    return qRound(width * FaceLayout::Height / FaceLayout::Width);
}

QRect FrontFace::placed(const QRectF& units) const
{
    return QRectF(m_origin + units.topLeft() * m_dbScale, units.size() * m_dbScale).toRect();
}

void FrontFace::place()
{
    m_dbScale = qMin(width() / FaceLayout::Width, height() / FaceLayout::Height);
    m_origin = {(width() - FaceLayout::Width * m_dbScale) / 2,
                (height() - FaceLayout::Height * m_dbScale) / 2};
    m_screenView->setGeometry(placed(FaceLayout::screen()));
    m_knob->setGeometry(placed(FaceLayout::knob()));
    for (auto button = m_keys.constBegin(); button != m_keys.constEnd(); ++button) {
        button.value()->setFaceScale(m_dbScale);
        button.value()->setGeometry(placed(FaceLayout::key(button.key())));
    }
    m_face = QPixmap();
}

void FrontFace::resizeEvent(QResizeEvent*)
{
    place();
}

QPixmap FrontFace::drawnFace() const
{
    const double ratio = devicePixelRatioF();
    QPixmap picture((QSizeF(size()) * ratio).toSize());
    picture.setDevicePixelRatio(ratio);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.translate(m_origin);
    painter.scale(m_dbScale, m_dbScale);
    paintFace(painter, m_strModel);
    return picture;
}

void FrontFace::paintEvent(QPaintEvent*)
{
    if (m_face.isNull() || m_face.devicePixelRatioF() != devicePixelRatioF())
        m_face = drawnFace();
    QPainter(this).drawPixmap(0, 0, m_face);
}

void FrontFace::wheelEvent(QWheelEvent* event)
{
    m_relay.turn(m_wheel.take(event->angleDelta().y()));
    event->accept();
}

void FrontFace::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::LanguageChange)
        retranslate();
    QWidget::changeEvent(event);
}
