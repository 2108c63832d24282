// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "multipulseeditor.h"

#include "cplugincombcomponent.h"
#include "cstackedcombocomponents.h"
#include "editorlook.h"
#include "multipulseeditorprivate.h"
#include "parametertable.h"
#include "pluginsTranslation.h"
#include "pulsetable.h"
#include "translated.h"

#include <QDebug>
#include <QHBoxLayout>
#include <QLabel>
#include <QVBoxLayout>

using namespace appPlugins;

const char* MultiPulseEditor::m_strTriggerSourceLabels[3] = {
    TR_STR_ID_MANUAL, TR_DBID_TRIGGER_SOURCE_EXTERNAL, TR_SEQID_TIMER};
const char* MultiPulseEditor::m_strTriggerSlopeLabels[2] = {TR_DBID_TRIGGER_SLOPE_POSITIVE,
                                                            TR_DBID_TRIGGER_SLOPE_NEGATIVE};
const char* MultiPulseEditor::m_strLoadLabels[2] = {TR_STR_ID_50, TR_STR_ID_HI_Z};
const char* MultiPulseEditor::m_strTableHeaderLabels[2] = {TR_STR_ID_WIDTHS, TR_STR_ID_GAPS};

namespace {

// A unit without an identifier of its own reads the same in every language.
const char* const Volt = "V";

RealPrivate column(const ParameterRange& range, const char* defaultText)
{
    RealPrivate description;
    description.unitType = UNIT_TIME;
    description.dbValue = range.defaultValue;
    description.strValue = QLatin1String(defaultText);
    description.dbAbsoluteMax = range.maximum;
    description.dbAbsoluteMin = range.minimum;
    description.resolution = range.resolution;
    return description;
}

RealPrivate g_pulseColumns[2] = {column(PulseWidthRange, DefaultWidthText),
                                 column(PulseGapRange, DefaultGapText)};

RealCombComponent* createTime(QWidget* parent, const char* titleId, const ParameterRange& range)
{
    return new RealCombComponent(parent, titleId, false, TR_ARBID_UNIT_S, UNIT_TIME,
                                 range.defaultValue, range.maximum, range.minimum,
                                 range.resolution);
}

} // namespace

MultiPulseEditor::MultiPulseEditor(QWidget* parent)
    : WindowModalDialogWithMask(parent)
    , d_ptr(new MultiPulseEditorPrivate)
{
    d_ptr->q_ptr = this;
    d_ptr->initMembers();
    m_pSubClassFillArea->setGeometry(0, 0, EditorLook::ScreenWidth, EditorLook::ScreenHeight);
    initUI();
    d_ptr->initHighLowLimits();
}

// An input that goes with the focus tells of its loss: it has to lose it while the editor is whole.
MultiPulseEditor::~MultiPulseEditor()
{
    hide();
    delete m_HelpDlg;
}

void MultiPulseEditor::initUI()
{
    qDebug() << "initUI";
    createTitle();
    createParameters();
    connectCount();
    connectLevels();
    connectTriggerAndLoad();
    createPictureAndTable();
    createBottom();
    createToolBar();
    slt_UpdateThumbnailImage();
    setEnabled(true);
}

void MultiPulseEditor::createTitle()
{
    m_pTitleLbl = new QLabel(translated(TR_STR_ID_MULTIPLE_PULSES), m_pSubClassFillArea);
    m_pTitleLbl->setObjectName(QStringLiteral("title"));
    m_pTitleLbl->setFont(EditorLook::titleFont());
    m_pTitleLbl->setStyleSheet(EditorLook::mainStyleSheet());
    m_pTitleLbl->setGeometry(EditorLook::TitleArea);
}

void MultiPulseEditor::createParameters()
{
    m_parameterContainer = new QLabel(m_pSubClassFillArea);
    m_parameterContainer->setObjectName(QStringLiteral("parameterContainer"));
    m_parameterContainer->setStyleSheet(EditorLook::mainStyleSheet());
    m_parameterContainer->setGeometry(EditorLook::ParameterArea);

    m_pPulseNums = new IntegerCombComponent(
        m_parameterContainer, TR_STR_ID_PULSES_NUMS, false, nullptr, UNIT_EMPTY,
        static_cast<int>(PulseCountRange.defaultValue), static_cast<int>(PulseCountRange.maximum),
        static_cast<int>(PulseCountRange.minimum), static_cast<int>(PulseCountRange.resolution));
    createLevels();
    createTrigger();
    createLoad();
    layOutParameters();
}

void MultiPulseEditor::createLevels()
{
    m_pHighLevel = new RealCombComponent(
        m_parameterContainer, TR_STR_ID_HIGH_LEVEL, false, Volt, UNIT_VOLTAGE, d_ptr->m_dbHighLevel,
        d_ptr->m_dbMaxHighLevel, d_ptr->m_dbMinHighLevel, LevelResolution);
    m_pHighLevel->setObjectName(QStringLiteral("HighLevel"));
    m_pLowLevel = new RealCombComponent(m_parameterContainer, TR_STR_ID_LOW_LEVEL, false, Volt,
                                        UNIT_VOLTAGE, d_ptr->m_dbLowLevel, d_ptr->m_dbMaxLowLevel,
                                        d_ptr->m_dbMinLowLevel, LevelResolution);
    m_pLowLevel->setObjectName(QStringLiteral("LowLevel"));
}

void MultiPulseEditor::createTrigger()
{
    m_pTrigDelay = createTime(m_parameterContainer, TR_STR_ID_TRIG_DELAY, TriggerDelayRange);
    m_pTrigDelay->setObjectName(QStringLiteral("TriggerDelay"));
    m_pTrigSource = new ComboBoxCombComponent(m_parameterContainer, TR_DBID_TRIGGER_SOURCE, false,
                                              nullptr, 0, 2, m_strTriggerSourceLabels);
    m_pTrigManual = new EmptyCombComponent(m_parameterContainer, nullptr, false, nullptr);
    m_pTrigSlope = new ComboBoxCombComponent(m_parameterContainer, TR_DBID_TRIGGER_SLOPE, false,
                                             nullptr, 0, 1, m_strTriggerSlopeLabels);
    m_pTrigTimer = createTime(m_parameterContainer, TR_SEQID_TIMER, TriggerTimerRange);

    m_pManualOrSlopeOrTimerStacked = new CStackedComboComponents(m_parameterContainer);
    m_pManualOrSlopeOrTimerStacked->addWidget(m_pTrigManual);
    m_pManualOrSlopeOrTimerStacked->addWidget(m_pTrigSlope);
    m_pManualOrSlopeOrTimerStacked->addWidget(m_pTrigTimer);
}

void MultiPulseEditor::createLoad()
{
    m_pLoadImp = new ComboBoxCombComponent(m_parameterContainer, TR_STR_ID_STAT_LOAD, false,
                                           nullptr, 0, 1, m_strLoadLabels);
}

// One row each, all of one height and with the same columns of title, value and unit.
void MultiPulseEditor::layOutParameters()
{
    qDebug() << "Setup mHBoxParameter";
    const QList<CPluginCombComponentBase*> components = {m_pPulseNums, m_pHighLevel,  m_pLowLevel,
                                                         m_pTrigDelay, m_pTrigSource, m_pTrigManual,
                                                         m_pTrigSlope, m_pTrigTimer,  m_pLoadImp};
    for (CPluginCombComponentBase* component : components) {
        component->setCombComponentsHorLayout(EditorLook::TitleShare, EditorLook::ValueShare,
                                              EditorLook::UnitShare, EditorLook::Spacing);
    }

    auto* layout = new QVBoxLayout(m_parameterContainer);
    layout->setContentsMargins(EditorLook::ParameterMargins);
    layout->setSpacing(EditorLook::RowGap);
    const QList<QWidget*> rows = {m_pPulseNums, m_pHighLevel,  m_pLowLevel,
                                  m_pTrigDelay, m_pTrigSource, m_pManualOrSlopeOrTimerStacked,
                                  m_pLoadImp};
    for (QWidget* row : rows)
        layout->addWidget(row, 1);
}

void MultiPulseEditor::connectCount()
{
    connect(m_pPulseNums, &RealCombComponent::sgnRealParameterIllegal, this,
            &MultiPulseEditor::slt_pulseNumsIllegal);
    connect(m_pPulseNums, QOverload<double>::of(&RealCombComponent::paraChanged), this,
            &MultiPulseEditor::slt_pulseNumsParamChanged);
}

void MultiPulseEditor::connectLevels()
{
    connect(m_pHighLevel, QOverload<double>::of(&RealCombComponent::paraChanged), this,
            &MultiPulseEditor::slt_highLevelParamChanged);
    connect(m_pHighLevel, &RealCombComponent::sgnRealParameterIllegal, this,
            &MultiPulseEditor::slt_HighLevelIllegal);
    connect(m_pLowLevel, QOverload<double>::of(&RealCombComponent::paraChanged), this,
            &MultiPulseEditor::slt_lowLevelParamChanged);
    connect(m_pLowLevel, &RealCombComponent::sgnRealParameterIllegal, this,
            &MultiPulseEditor::slt_LowLevelIllegal);

    for (RealCombComponent* marked : {m_pHighLevel, m_pLowLevel, m_pTrigDelay}) {
        connect(marked, &RealCombComponent::sgn_editorFocusIn, this,
                QOverload<const QString&>::of(&MultiPulseEditor::slt_UpdateThumbnailImage));
        connect(marked, &RealCombComponent::sgn_editorFocusOut, this,
                QOverload<>::of(&MultiPulseEditor::slt_UpdateThumbnailImage));
    }
}

void MultiPulseEditor::connectTriggerAndLoad()
{
    connect(m_pTrigDelay, &RealCombComponent::sgnRealParameterIllegal, this,
            &MultiPulseEditor::slt_TriggerDelayIllegal);
    connect(m_pTrigSource, QOverload<Uint16>::of(&ComboBoxCombComponent::paraChanged),
            m_pManualOrSlopeOrTimerStacked, &CStackedComboComponents::setCurrentIndex);
    connect(m_pTrigTimer, &RealCombComponent::sgnRealParameterIllegal, this,
            &MultiPulseEditor::slt_TriggerTimerIllegal);
    connect(m_pLoadImp, QOverload<Uint16>::of(&ComboBoxCombComponent::paraChanged), this,
            &MultiPulseEditor::slt_LoadImpChanged);
}

void MultiPulseEditor::createPictureAndTable()
{
    m_pMultiPulseThumbnail = new QLabel(m_pSubClassFillArea);
    m_pMultiPulseThumbnail->setObjectName(QStringLiteral("multipulse thumbnail"));
    m_pMultiPulseThumbnail->setStyleSheet(EditorLook::labelStyleSheet());
    m_pMultiPulseThumbnail->setAlignment(Qt::AlignCenter);
    m_pMultiPulseThumbnail->setGeometry(EditorLook::ThumbnailArea);

    m_pMultiPulseTable = new QLabel(m_pSubClassFillArea);
    m_pMultiPulseTable->setObjectName(QStringLiteral("multipulse table"));
    m_pMultiPulseTable->setStyleSheet(EditorLook::labelStyleSheet());
    m_pMultiPulseTable->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    m_pMultiPulseTable->setFocusPolicy(Qt::NoFocus);
    m_pMultiPulseTable->setGeometry(EditorLook::TableArea);
    initPulsesTable();
}

void MultiPulseEditor::initPulsesTable()
{
    m_pTableView = new CPulseTable(m_pMultiPulseTable, 2, g_pulseColumns);
    auto* layout = new QHBoxLayout(m_pMultiPulseTable);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_pTableView);
    connect(m_pTableView, &CPulseTable::sgn_editorFocusIn, this,
            QOverload<QPoint>::of(&MultiPulseEditor::slt_UpdateThumbnailImage));
    m_pTableView->setHorizontalHeaderData("N", m_strTableHeaderLabels);
    for (int row = 0; row < pulseCount(); ++row)
        m_pTableView->slt_insert();
}

// The tool bar is narrower than the screen: a line across the whole of it makes one band of the bar
// and the strip beside it.
void MultiPulseEditor::createBottom()
{
    auto* bottom = new QLabel(m_pSubClassFillArea);
    bottom->setObjectName(QStringLiteral("bottom"));
    bottom->setStyleSheet(EditorLook::mainStyleSheet());
    bottom->setGeometry(EditorLook::BottomArea);
}

int MultiPulseEditor::pulseCount() const
{
    return static_cast<int>(m_pPulseNums->get());
}

LoadImpedance MultiPulseEditor::load() const
{
    return m_pLoadImp->get() == 1 ? LoadImpedance::HighZ : LoadImpedance::Ohm50;
}
