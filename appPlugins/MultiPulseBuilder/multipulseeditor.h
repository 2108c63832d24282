// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#pragma once

#include "windowmodaldialogwithmask.h"

#include "apptypes.h"
#include "loadimpedance.h"

#include <QScopedPointer>
#include <QVector>

class CPulseTable;
class InstrumentLink;
class MultiPulseEditorPrivate;
class QAction;
class QJsonObject;
class QKeyEvent;
class QToolBar;
class QToolButton;
struct PulseTrain;
struct SetupRow;

namespace appPlugins {
class ComboBoxCombComponent;
class CPluginCombComponentBase;
class CStackedComboComponents;
class EmptyCombComponent;
class IntegerCombComponent;
class RealCombComponent;
} // namespace appPlugins

/// The plug-in's one window: the parameters of a pulse train, its table of widths and gaps, a
/// picture that marks what is being edited, and a tool bar with Open, Close, Save as, Default, Help
/// and Run.
///
/// It is built once and keeps its values from one show to the next. All of it runs on the host's
/// GUI thread; Run and Stop block that thread while they talk to the instrument. The host's
/// callbacks must have been handed over before it is shown.
class MultiPulseEditor : public appPlugins::WindowModalDialogWithMask
{
    Q_OBJECT

public:
    /// Reads the instrument's limits: it must have been identified before.
    explicit MultiPulseEditor(QWidget* parent);
    ~MultiPulseEditor() override;

    /// Fills the member "multiple pulses" of a setup document with what the editor shows; other
    /// members are left alone.
    void downLoadDisplay(QJsonObject& jsonObj) const;

    /// Shows a setup document. Missing members read as 0; numbers are clamped by their components,
    /// and a choice that does not exist leaves the selection as it is.
    void updateAllComponentsDisplay(const QJsonObject& jsonObj);

    /// Synthesises the train of a document, played into the load that the editor shows, and writes
    /// its waveform file over @p filePath (UTF-8). False when the file could not be written; a
    /// partial file may remain.
    bool makeAndSaveMPWVWfm(const char* filePath, const QJsonObject& jsonObj);

    /// Resets the instrument; a failure is told by the host's warning box.
    void sendStarRST();

    /// Whether the host wants key events to be swallowed; false where there is no host segment.
    bool checkDiscardKeys();

    /// Enables or disables all that edits the train or its file; Help and Run stay.
    void enableWidgets(bool enable);

    /// Shows the range warning of a component for a value that it refused, in base units.
    void popWarningMessage(appPlugins::RealCombComponent* pComponent, double illegalValue);

    // Identifiers of the choices and of the table's header; a choice's index is what is stored.
    static const char* m_strTriggerSourceLabels[3]; ///< manual, external, timer
    static const char* m_strTriggerSlopeLabels[2];  ///< positive, negative
    static const char* m_strLoadLabels[2];          ///< 50 ohms, high impedance
    static const char* m_strTableHeaderLabels[2];   ///< widths, gaps

public Q_SLOTS:
    /// Resets the instrument and shows the output as stopped; texts and controls stay.
    void executeAtStartup() override;

    // Reactions to the parameters; values in base units.
    void slt_pulseNumsParamChanged(double newValue);
    void slt_pulseNumsIllegal(double illegalValue);
    void slt_highLevelParamChanged(double newValue);
    void slt_HighLevelIllegal(double illegalValue);
    void slt_lowLevelParamChanged(double newValue);
    void slt_LowLevelIllegal(double illegalValue);
    void slt_TriggerDelayIllegal(double illegalValue);
    void slt_TriggerTimerIllegal(double illegalValue);
    void slt_LoadImpChanged(Uint16 newValue);
    /// 0 lets every gap be edited; anything else puts the first row's gap into all rows. No
    /// component of this window sends it.
    void slt_GapModeParamChanged(Uint16 newValue);

    /// Shows the picture for a parameter's object name, for none, or for a cell (x is its row).
    void slt_UpdateThumbnailImage(const QString& focusName);
    void slt_UpdateThumbnailImage();
    void slt_UpdateThumbnailImage(QPoint cell);

    void slt_OpenBtnClicked();
    void slt_saveAsBtnClicked();
    void slt_DefaultBtnClicked();
    /// Closes the window. While the output runs it stops the output instead and sends the host a
    /// Home key.
    void slt_closeBtnClicked();
    /// Opens the help page in a window of its own.
    void slt_HelpBtnClicked();

    /// Plays the train (@p checked) or stops it. Blocks until the instrument has worked through the
    /// commands, up to 30 seconds for each. Where the host has no flag segment nothing is done.
    void slt_runOrStopWaveformOutput(bool checked);
    /// Takes the keyboard focus.
    void slt_focusMe();

protected:
    /// Swallows keys while the host's discard flag is set; gives the front panel's keys their
    /// meaning here. Home, Back, Default and Utility stop a running output and leave the window
    /// open.
    bool event(QEvent* qEvent) override;

private:
    friend class MultiPulseEditorPrivate;

    void initUI();
    void createTitle();
    void createParameters();
    void createLevels();
    void createTrigger();
    void createLoad();
    void layOutParameters();
    void connectCount();
    void connectLevels();
    void connectTriggerAndLoad();
    void createPictureAndTable();
    void initPulsesTable();
    void createBottom();
    void createToolBar();
    void createActions();
    void createToolButtons();
    QToolButton* addToolButton(QAction* action);

    int pulseCount() const;
    LoadImpedance load() const;
    void showThumbnail(const QString& fileName);
    void showTrigger(const PulseTrain& train);
    void showLoad(LoadImpedance load);
    void showRows(const QVector<SetupRow>& rows);
    void logLoadChange(Uint16 newValue) const;
    void warnUnlessReloading(appPlugins::RealCombComponent* component, double illegalValue);

    bool run(InstrumentLink& link, QByteArray& command);
    bool sendRun(InstrumentLink& link, const PulseTrain& train, QByteArray& command);
    bool stop(InstrumentLink& link, QByteArray& command);
    void finishSequence(InstrumentLink& link);
    void discardSegmentProblem() const;
    bool tossKey(QEvent* event);
    bool keyReleased(QKeyEvent* event);
    void toggleOutput();

    QToolBar* m_pToolBar = nullptr;
    QAction* m_pActionOpen = nullptr;
    QAction* m_pActionClose = nullptr;
    QAction* m_pActionSaveAs = nullptr;
    QAction* m_pActionDefault = nullptr;
    QAction* m_pActionHelp = nullptr;
    QAction* m_pActionRun = nullptr;
    QAction* m_pActionStop = nullptr; ///< never created: Run is its own Stop
    QToolButton* m_pButtonOpen = nullptr;
    QToolButton* m_pButtonClose = nullptr;
    QToolButton* m_pButtonSaveAs = nullptr;
    QToolButton* m_pButtonDefault = nullptr;
    QToolButton* m_pButtonHelp = nullptr;
    QToolButton* m_pButtonRun = nullptr;
    QScopedPointer<MultiPulseEditorPrivate> d_ptr;
    QWidget* m_HelpDlg = nullptr;
    bool m_isReloading = false;
    QLabel* m_parameterContainer = nullptr;
    appPlugins::IntegerCombComponent* m_pPulseNums = nullptr;
    appPlugins::RealCombComponent* m_pHighLevel = nullptr;
    appPlugins::RealCombComponent* m_pLowLevel = nullptr;
    appPlugins::RealCombComponent* m_pTrigDelay = nullptr;
    appPlugins::ComboBoxCombComponent* m_pTrigSource = nullptr;
    appPlugins::EmptyCombComponent* m_pTrigManual = nullptr;
    appPlugins::ComboBoxCombComponent* m_pTrigSlope = nullptr;
    appPlugins::RealCombComponent* m_pTrigTimer = nullptr;
    appPlugins::CStackedComboComponents* m_pManualOrSlopeOrTimerStacked = nullptr;
    appPlugins::ComboBoxCombComponent* m_pLoadImp = nullptr;
    Uint16 m_nLoadImp = 0;
    QLabel* m_pMultiPulseThumbnail = nullptr;
    QLabel* m_pMultiPulseTable = nullptr;
    CPulseTable* m_pTableView = nullptr;
    QLabel* m_pTitleLbl = nullptr;
    double m_dbSamplingRate = 0; ///< samples per second of the last synthesis
};
