// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "multipulseeditor.h"

#include "cplugincombcomponent.h"
#include "cstackedcombocomponents.h"
#include "hostcallbacks.h"
#include "hostflags.h"
#include "instrumentlink.h"
#include "pluginsTranslation.h"
#include "pulsetrain.h"
#include "runsequence.h"
#include "translated.h"

#include <QAction>
#include <QCoreApplication>
#include <QDebug>
#include <QJsonObject>
#include <QLabel>
#include <QMessageBox>
#include <QTimer>

#include <cstdio>
#include <cstdlib>
#include <tuple>

using appPlugins::translated;

void MultiPulseEditor::executeAtStartup()
{
    sendStarRST();
    qInfo() << "App sent *RST";
    m_pActionRun->setChecked(false);
}

void MultiPulseEditor::sendStarRST()
{
    InstrumentLink link;
    if (!link.connectToInstrument()) {
        g_warningMessage(link.connectWarning());
        return;
    }
    if (!link.send(RunSequence::Reset)) {
        g_warningMessage(QStringLiteral("Failed writing *RST to port:%1, reason:%2")
                             .arg(InstrumentLink::DefaultPort)
                             .arg(link.errorString()));
    }
    link.close();
}

// Without the host's segment the press is dropped: the host could not hold its own commands back.
// The box that would tell is made and thrown away, so that nothing covers the instrument's screen.
void MultiPulseEditor::discardSegmentProblem() const
{
    const QMessageBox problem(QMessageBox::Critical, tr("Shared Memory Problem"),
                              tr("Internal error occurred"), QMessageBox::Ok, nullptr,
                              Qt::Dialog | Qt::MSWindowsFixedSizeDialogHint);
}

void MultiPulseEditor::slt_runOrStopWaveformOutput(bool checked)
{
    InstrumentLink link;
    if (!HostFlags::setBoth(true)) {
        discardSegmentProblem();
        return;
    }

    QByteArray command;
    bool done = link.connectToInstrument();
    if (!done)
        g_warningMessage(link.connectWarning());
    else
        done = checked ? run(link, command) : stop(link, command);
    if (!done) {
        qWarning() << "slt_runOrStopWaveformOutput"
                   << "error cmd" << command << link.error();
    }
    finishSequence(link);
}

// A file that cannot be written ends the run without a command. The action stays checked and the
// controls stay disabled: the next press takes the way of Stop.
bool MultiPulseEditor::run(InstrumentLink& link, QByteArray& command)
{
    qInfo() << "MultiPulseEditor::slt_runOrStopWaveformOutput"
            << "is checked";
    enableWidgets(false);
    QJsonObject document;
    downLoadDisplay(document);
    if (makeAndSaveMPWVWfm(RunSequence::WaveformPath, document)) {
        const PulseTrain train = PulseTrain::fromDocument(document, load());
        if (!sendRun(link, train, command))
            return false;
    }
    m_pActionRun->setText(translated(TR_STR_ID_SWEEP_STOP));
    return true;
}

bool MultiPulseEditor::sendRun(InstrumentLink& link, const PulseTrain& train, QByteArray& command)
{
    const QVector<QByteArray> commands = RunSequence::runCommands(train);
    const int impedance = commands.indexOf(RunSequence::impedanceCommand(train.load));
    if (!link.sendAll(commands.mid(0, impedance), command))
        return false;

    qDebug() << commands.at(impedance);
    qDebug() << "freq" << train.frequency();
    return link.sendAll(commands.mid(impedance), command);
}

bool MultiPulseEditor::stop(InstrumentLink& link, QByteArray& command)
{
    qInfo() << "MultiPulseEditor::slt_runOrStopWaveformOutput"
            << "is not checked";
    if (!link.sendAll(RunSequence::stopCommandsBeforeDelete(), command))
        return false;
    // A file that is gone already is what was wanted.
    std::ignore = std::system(RunSequence::DeleteWaveform); // NOLINT(cert-env33-c): a fixed text
    if (!link.sendAll(RunSequence::stopCommandsAfterDelete(), command))
        return false;
    m_pActionRun->setText(translated(TR_STR_UTILITY_RUN));
    enableWidgets(true);
    return true;
}

// Keys and repaints that have piled up are handled while the flags are still set: keys are tossed
// then, and the host gets the instrument back only after that.
void MultiPulseEditor::finishSequence(InstrumentLink& link)
{
    link.confirm(RunSequence::ClosingQuery);
    link.close();
    QCoreApplication::processEvents();
    QTimer::singleShot(0, this, &MultiPulseEditor::slt_focusMe);
    QCoreApplication::processEvents();
    if (HostFlags::setBoth(false))
        qInfo() << "App run, shared memory unlocked";
}

// Help and Run are never disabled, so that an output can always be stopped.
void MultiPulseEditor::enableWidgets(bool enable)
{
    m_pPulseNums->setEnabled(enable);
    m_pHighLevel->setEnabled(enable);
    m_pLowLevel->setEnabled(enable);
    m_pManualOrSlopeOrTimerStacked->setEnabled(enable);
    m_pLoadImp->setEnabled(enable);
    m_pMultiPulseTable->setEnabled(enable);
    m_pTrigDelay->setDisable(!enable);
    m_pTrigSource->setDisable(!enable);
    for (QAction* action : {m_pActionOpen, m_pActionClose, m_pActionSaveAs, m_pActionDefault})
        action->setEnabled(enable);
}

void MultiPulseEditor::slt_focusMe()
{
    std::puts("Set focus to me");
    setFocus(Qt::OtherFocusReason);
}
