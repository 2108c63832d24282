// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "levelmeter.h"

#include "cplugincombcomponent.h"
#include "cpushbuttonwithimage.h"
#include "hostcallbacks.h"
#include "pluginsTranslation.h"
#include "rangewarning.h"
#include "sinelevel.h"
#include "toolkitlook.h"
#include "translated.h"

#include <QEvent>

using namespace appPlugins;

namespace {

const char TitleId[] = "LEVELID_TITLE";
const char Load75Id[] = "LEVELID_75";
const char Load600Id[] = "LEVELID_600";
const char* g_loadIds[] = {TR_STR_ID_50, Load75Id, Load600Id};
const double Ohms[] = {50, 75, 600};

const char ClosePicture[] = "/mnt/user-data/.app/libDoublePulsePluginPics/close.png";
const double LeastVolts = 1e-3;
const double MostVolts = 20;

} // namespace

LevelMeter::LevelMeter(QWidget* parent)
    : WindowModalDialogWithMask(parent)
    , m_pTitle(addLabel({20, 0, 760, 44}, 16))
    , m_pVolts(addLabel({440, 110, 330, 60}, 40))
    , m_pPower(addLabel({440, 200, 330, 60}, 40))
{
    addComponents(addPanel());
    addCloseButton();
    showTitle();
    showLevel();
}

QLabel* LevelMeter::addLabel(const QRect& place, int pixels)
{
    auto* label = new QLabel(m_pSubClassFillArea);
    QFont font = Look::textFont();
    font.setPixelSize(pixels);
    label->setFont(font);
    label->setStyleSheet(QStringLiteral("color:%1;background:transparent;").arg(Look::White));
    label->setGeometry(place);
    return label;
}

// The rows of a form take its ground over.
QLabel* LevelMeter::addPanel()
{
    auto* panel = new QLabel(m_pSubClassFillArea);
    panel->setStyleSheet(QStringLiteral("QLabel{background:%1;}").arg(Look::PanelBackground));
    panel->setGeometry(8, 44, 784, 340);
    panel->lower();
    return panel;
}

void LevelMeter::addComponents(QWidget* panel)
{
    m_pAmplitude = new RealCombComponent(panel, TR_ARBID_AMPLITUDE, false, "V", UNIT_VOLTAGE, 1,
                                         MostVolts, LeastVolts, 1e-4);
    m_pAmplitude->setGeometry(12, 71, 390, 50);
    connect(m_pAmplitude, QOverload<double>::of(&RealCombComponent::paraChanged), this,
            &LevelMeter::showLevel);
    // Queued: the limit that takes the value's place is there right after the signal.
    connect(
        m_pAmplitude, &RealCombComponent::sgnRealParameterIllegal, this,
        [this](double volts) {
            showLevel();
            g_warningMessage(rangeWarning(volts, LeastVolts, MostVolts));
        },
        Qt::QueuedConnection);

    m_pLoad = new ComboBoxCombComponent(panel, TR_STR_ID_STAT_LOAD, false, "", 0, 2, g_loadIds);
    m_pLoad->setGeometry(12, 161, 390, 50);
    connect(m_pLoad, QOverload<Uint16>::of(&ComboBoxCombComponent::paraChanged), this,
            &LevelMeter::showLevel);
}

void LevelMeter::addCloseButton()
{
    auto* button = new CPushButtonWithImage(TR_ARBID_CLOSE, ClosePicture, m_pSubClassFillArea);
    button->setGeometry(8, 392, 110, 80);
    connect(button, &QPushButton::clicked, this, &LevelMeter::accept);
}

void LevelMeter::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::LanguageChange)
        showTitle();
    WindowModalDialogWithMask::changeEvent(event);
}

void LevelMeter::showTitle()
{
    m_pTitle->setText(translated(TitleId));
}

void LevelMeter::showLevel()
{
    const double amplitude = m_pAmplitude->get();
    m_pVolts->setText(QStringLiteral("%1 V RMS").arg(effectiveVolts(amplitude), 0, 'f', 4));
    m_pPower->setText(
        QStringLiteral("%1 dBm").arg(powerDbm(amplitude, Ohms[m_pLoad->get()]), 0, 'f', 2));
}
