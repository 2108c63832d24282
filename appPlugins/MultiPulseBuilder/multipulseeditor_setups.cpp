// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "multipulseeditor.h"

#include "cplugincombcomponent.h"
#include "cpluginsfiles.h"
#include "cstackedcombocomponents.h"
#include "defaultsetup.h"
#include "hostcallbacks.h"
#include "multipulseeditorprivate.h"
#include "pluginsTranslation.h"
#include "pulsetable.h"
#include "pulsetrain.h"
#include "setupdocument.h"
#include "thumbnailpicture.h"
#include "trainsamples.h"
#include "translated.h"

#include <QDebug>

using namespace appPlugins;

namespace {

// The host's answer for "a file was chosen" and for "yes".
const int Accepted = 1;

// What the number means is the host's.
const int BrowserFlag = 17;

const QLatin1String UserDataFolder("/mnt/user-data/");
const QLatin1String SetupSuffix(".json");
const QLatin1String WaveformSuffix(".mpwv");

const char* boolText(bool value)
{
    return value ? "true" : "false";
}

// A choice that is stored as a number no choice has is refused by its component.
bool choose(SelectionCombComponent* component, int index)
{
    return index >= 0 && index <= 0xFFFF && component->set(static_cast<Uint16>(index));
}

void logSave(bool saved, const QString& path)
{
    qWarning() << "slt_saveAsBtnClicked"
               << "saveSetupFile" << saved << path;
}

} // namespace

void MultiPulseEditor::downLoadDisplay(QJsonObject& jsonObj) const
{
    SetupValues values;
    values.pulseCount = m_pPulseNums->get();
    values.highLevel = m_pHighLevel->get();
    values.lowLevel = m_pLowLevel->get();
    qInfo() << "downLoadDisplay"
            << "dHighLevel=" << values.highLevel << "dLowLevel=" << values.lowLevel << "dAmplitude"
            << values.highLevel - values.lowLevel << "dOffset"
            << (values.highLevel + values.lowLevel) * 0.5;
    values.triggerDelay = m_pTrigDelay->get();
    values.triggerTimer = m_pTrigTimer->get();
    values.triggerSource = m_pTrigSource->get();
    values.triggerSlope = m_pTrigSlope->get();
    values.load = load();

    const QAbstractItemModel* rows = m_pTableView->model();
    for (int row = 0; row < rows->rowCount(); ++row) {
        values.rows.append(
            {rows->index(row, 0).data().toString(), rows->index(row, 1).data().toString()});
    }
    jsonObj.insert(SetupKey::MultiplePulses, multiplePulsesFromValues(values));
}

void MultiPulseEditor::updateAllComponentsDisplay(const QJsonObject& jsonObj)
{
    const PulseTrain train = PulseTrain::fromDocument(jsonObj);
    const int count = pulseCountOf(jsonObj);
    m_pPulseNums->set(count);
    const QString picture = ThumbnailPicture::unmarked(count);
    showThumbnail(picture);
    qInfo() << "updateAllComponentsDisplay"
            << "fileName" << ThumbnailPicture::path(picture);
    qInfo() << "updateAllComponentsDisplay"
            << "#AMPOFF";
    d_ptr->util_amplitudeChanged(train.amplitude);
    d_ptr->util_offsetChanged(train.offset);
    showTrigger(train);
    showLoad(train.load);
    showRows(rowsOf(jsonObj));
}

void MultiPulseEditor::showTrigger(const PulseTrain& train)
{
    m_pTrigDelay->set(train.delay);
    choose(m_pTrigSource, train.triggerSource);
    m_pManualOrSlopeOrTimerStacked->setCurrentIndex(m_pTrigSource->get());
    choose(m_pTrigSlope, train.triggerSlope);
    m_pTrigTimer->set(train.triggerTimer);
}

// The limits of a 50-ohm load have come with the amplitude. High impedance widens what is in force,
// whatever the load was before.
void MultiPulseEditor::showLoad(LoadImpedance load)
{
    m_nLoadImp = static_cast<Uint16>(load);
    m_pLoadImp->set(m_nLoadImp);
    if (load == LoadImpedance::HighZ)
        d_ptr->widenForHighZ();
}

void MultiPulseEditor::showRows(const QVector<SetupRow>& rows)
{
    m_pTableView->slt_clear();
    for (const SetupRow& row : rows)
        m_pTableView->slt_insert({row.width, row.gap});
    m_pTableView->setDisabled(false, 1, QString());
}

bool MultiPulseEditor::makeAndSaveMPWVWfm(const char* filePath, const QJsonObject& jsonObj)
{
    const PulseTrain train = PulseTrain::fromDocument(jsonObj, load());
    Uint32 points = 0;
    const bool written = writeTrainWaveform(filePath, train, points);
    m_dbSamplingRate = points > 0 ? points / train.totalPeriod() : 0;
    return written;
}

// Values outside the limits raise their warnings while a file is applied.
void MultiPulseEditor::slt_OpenBtnClicked()
{
    QString path;
    if (g_singleOpenFileView(this, {SetupSuffix}, path, UserDataFolder, TR_STR_ID_STAT_LOAD,
                             BrowserFlag) != Accepted)
        return;

    QJsonObject document;
    if (!loadSetupFile(path.toUtf8().constData(), document)) {
        g_warningMessage(translated(TR_DBERR_STR_ID_ILLEGALFILEFORMAT));
        return;
    }
    updateAllComponentsDisplay(document);
}

// The setup goes under the name that was chosen, whatever its ending; a waveform file is written
// beside a name that ends in ".json" alone, also when the setup could not be. No failure is shown.
void MultiPulseEditor::slt_saveAsBtnClicked()
{
    QString path;
    if (g_saveFileView(this, {SetupSuffix, WaveformSuffix}, path, UserDataFolder, TR_STR_ID_SAVE,
                       BrowserFlag, QStringLiteral("double_pulse")) != Accepted)
        return;

    QJsonObject document;
    downLoadDisplay(document);
    logSave(saveSetupFile(path.toUtf8().constData(), document), path);
    if (path.endsWith(SetupSuffix)) {
        path.replace(SetupSuffix, WaveformSuffix);
        makeAndSaveMPWVWfm(path.toUtf8().constData(), document);
    }
}

// The default file comes into being even when the user then declines.
void MultiPulseEditor::slt_DefaultBtnClicked()
{
    m_isReloading = true;
    if (g_jsonDefaultSetupValues.isEmpty()) {
        g_jsonDefaultSetupValues.insert(SetupKey::MultiplePulses, defaultMultiplePulses());
        const bool saved = saveSetupFile(DefaultSetupPath, g_jsonDefaultSetupValues);
        qWarning() << "slt_DefaultBtnClicked"
                   << "g_jsonDefaultSetupValues saveRes" << boolText(saved)
                   << g_jsonDefaultSetupValues;
    }
    if (g_questionMessage(translated(TR_STR_ID_SUREQ_DEFAULT)) == Accepted)
        updateAllComponentsDisplay(g_jsonDefaultSetupValues);
    m_isReloading = false;
}
