// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "multipulseeditor.h"

#include "cplugincombcomponent.h"
#include "hostcallbacks.h"
#include "multipulseeditorprivate.h"
#include "pulsetable.h"
#include "rangewarning.h"
#include "thumbnailpicture.h"

#include <QDebug>
#include <QPointF>

using appPlugins::RealCombComponent;

void MultiPulseEditor::popWarningMessage(RealCombComponent* pComponent, double illegalValue)
{
    double max = 0;
    double min = 0;
    pComponent->getRoundedMaxMin(max, min);
    g_warningMessage(appPlugins::rangeWarning(illegalValue, min, max));
}

void MultiPulseEditor::warnUnlessReloading(RealCombComponent* component, double illegalValue)
{
    if (!m_isReloading)
        popWarningMessage(component, illegalValue);
}

void MultiPulseEditor::slt_pulseNumsIllegal(double illegalValue)
{
    warnUnlessReloading(m_pPulseNums, illegalValue);
}

void MultiPulseEditor::slt_HighLevelIllegal(double illegalValue)
{
    warnUnlessReloading(m_pHighLevel, illegalValue);
}

void MultiPulseEditor::slt_LowLevelIllegal(double illegalValue)
{
    warnUnlessReloading(m_pLowLevel, illegalValue);
}

void MultiPulseEditor::slt_TriggerDelayIllegal(double illegalValue)
{
    warnUnlessReloading(m_pTrigDelay, illegalValue);
}

void MultiPulseEditor::slt_TriggerTimerIllegal(double illegalValue)
{
    warnUnlessReloading(m_pTrigTimer, illegalValue);
}

void MultiPulseEditor::slt_pulseNumsParamChanged(double newValue)
{
    const QString picture = ThumbnailPicture::unmarked(static_cast<int>(newValue));
    qInfo() << "MultiPulseEditor::slt_pulseNumsParamChanged"
            << "fileName=" << ThumbnailPicture::path(picture);
    showThumbnail(picture);

    const QAbstractItemModel* rows = m_pTableView->model();
    while (newValue < rows->rowCount())
        m_pTableView->slt_remove();
    while (newValue > rows->rowCount())
        m_pTableView->slt_insert();
}

void MultiPulseEditor::slt_highLevelParamChanged(double newValue)
{
    d_ptr->slt_highLevelChanged(newValue);
}

void MultiPulseEditor::slt_lowLevelParamChanged(double newValue)
{
    d_ptr->slt_lowLevelChanged(newValue);
}

// Levels that pass out of range on the way raise no warning.
void MultiPulseEditor::slt_LoadImpChanged(Uint16 newValue)
{
    d_ptr->m_dbHighLevel = m_pHighLevel->get();
    d_ptr->m_dbLowLevel = m_pLowLevel->get();
    logLoadChange(newValue);
    if (newValue == m_nLoadImp)
        return;

    m_isReloading = true;
    d_ptr->rescaleLevels(newValue == 1);
    logLoadChange(newValue);
    m_nLoadImp = newValue;
    m_isReloading = false;
}

void MultiPulseEditor::logLoadChange(Uint16 newValue) const
{
    qDebug() << "MultiPulseEditor::slt_LoadImpChanged" << newValue;
    qDebug() << "   Ampl" << d_ptr->m_dbAmplitude;
    qDebug() << "   Offs" << d_ptr->m_dbOffset;
    qDebug() << "   High" << m_pHighLevel->get() << d_ptr->m_dbHighLevel;
    qDebug() << "   Low " << m_pLowLevel->get() << d_ptr->m_dbLowLevel;
    qDebug() << "   MMHi" << QPointF(d_ptr->m_dbMaxHighLevel, d_ptr->m_dbMinHighLevel);
    qDebug() << "   MMLo" << QPointF(d_ptr->m_dbMaxLowLevel, d_ptr->m_dbMinLowLevel);
}

void MultiPulseEditor::slt_GapModeParamChanged(Uint16 newValue)
{
    m_pTableView->setDisabled(newValue != 0, 1, QString());
}
