// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#pragma once

#include "appplugins_export.h"
#include "apptypes.h"

#include <QLabel>

class QHBoxLayout;

namespace appPlugins {

class CSwitchLabel;

/// One row of a form: a title on the left, an input in the middle, a unit on the right. Members of
/// the family add the input. Follows a change of language.
///
/// The signals tell of changes that the user made; what a program sets is silent. A disabled
/// component takes no input and ignores its set(). Which of the overloads of paraChanged() a
/// component emits is its kind's:
///
/// | component | emits |
/// | --- | --- |
/// | RealCombComponent, IntegerCombComponent, TabelRealCombComponent | paraChanged(double) |
/// | BooleanCombComponent, ComboBoxCombComponent | paraChanged(Uint16), paraChanged(const char*) |
/// | BooleanSliderCombComponent | paraChanged(Uint16) |
/// | StringCombComponent | paraChanged(QString) |
/// | ActionCombComponent | triggered() |
///
/// A new member of the family creates its input, hands it to addInput() and makes it the focus
/// proxy.
class APPPLUGINS_EXPORT CPluginCombComponentBase : public QLabel
{
    Q_OBJECT

public:
    /// A row without its input. @p titleStrId and @p unitStrId name the texts; they may be null and
    /// must outlive the component. A tap on a checkable title is reported.
    CPluginCombComponentBase(QWidget* parent, const char* titleStrId, bool titleCheckable,
                             const char* unitStrId);

    /// Stretch of title, input and unit, and the pixels between them; nothing unless the row holds
    /// just these three.
    virtual void setCombComponentsHorLayout(int title, int input, int unit, int spacing);

    /// Disables or enables title, unit and component; members add their input. Only
    /// setDisable(false) undoes setDisable(true): QWidget::setEnabled() leaves the parts disabled.
    virtual void setDisable(bool disable);

    /// Whether the component and all widgets above it are enabled.
    virtual bool isAvailable();

    /// Index of the component in a stack of components, 0 at first.
    int getStackedIndex() const { return m_nStackedIndex; }
    /// Called by the stack that takes the component over.
    void setStackedIndex(int index) { m_nStackedIndex = index; }

Q_SIGNALS:
    /// The user entered this text.
    void paraChanged(QString value);
    /// The user entered this number, in the base unit.
    void paraChanged(double value);
    /// The user chose the value with this index.
    void paraChanged(Uint16 value);
    /// The same choice by its save identifier; follows paraChanged(Uint16).
    void paraChanged(const char* saveStrId);
    /// The component's action was done and returned true.
    void triggered();
    /// The title was tapped; carries the component's index in its stack.
    void sgnTitleSwitchLabelClicked(int stackedIndex);

public Q_SLOTS:
    /// Reports a tap on the title with sgnTitleSwitchLabelClicked(); nothing while disabled.
    void slt_TitleSwitchLabelClicked();

protected:
    /// Puts title, @p input and unit into the row, with these shares of its width.
    void addInput(QWidget* input, int title, int inputStretch, int unit);
    /// Shows the unit in the new language; the title follows by itself.
    void changeEvent(QEvent* event) override;

    int m_nStackedIndex = 0;     ///< index in a stack of components
    CSwitchLabel* m_pTitleLabel; ///< the title
    QLabel* m_pUnitLabel;        ///< the unit's name
    QHBoxLayout* m_pHLayout;     ///< the row: title, input, unit
    const char* m_sTitleStrId;   ///< names the title; may be null
    const char* m_sUnitStrId;    ///< names the unit; may be null

    static const QString sm_unitStyleSheet; ///< look of the unit

private:
    void createTitle(bool checkable);
    void createUnitLabel();
};

} // namespace appPlugins
