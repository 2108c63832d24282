// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#pragma once

#include "cplugincombcomponentbase.h"

namespace appPlugins {

class CComboBox;
class CHorizontalSlider;
class CRadioButton;

/// A choice among labelled values, 0 to a maximum. Each value has a save identifier, which is the
/// identifier of its text at the same time.
class APPPLUGINS_EXPORT SelectionCombComponent : public CPluginCombComponentBase
{
    Q_OBJECT

public:
    /// @p saveStrIds holds max + 1 identifiers and must outlive the component.
    SelectionCombComponent(QWidget* parent, const char* titleStrId, bool titleCheckable,
                           const char* unitStrId, Uint16 val, Uint16 max, const char** saveStrIds);

    /// Chooses a value without a signal. False, with nothing done, for a value above the maximum or
    /// while disabled.
    virtual bool set(Uint16 value);
    /// Chooses the value with this save identifier; false when there is none.
    virtual bool set(const char* saveStrId);
    Uint16 get() const { return m_value; }
    /// Save identifier of the current value.
    const char* getSaveStrId() const;

protected:
    /// Shows the current value in the input.
    virtual void showValue() {}
    /// Tells the owner of a choice that the user made.
    void reportChoice();

    Uint16 m_value;
    Uint16 m_maxValue;
    const char** m_saveRestoreValueLabelsStrId;
};

/// A choice between two values by a pair of buttons.
class APPPLUGINS_EXPORT BooleanCombComponent : public SelectionCombComponent
{
    Q_OBJECT

public:
    /// @p saveStrIds holds two identifiers.
    BooleanCombComponent(QWidget* parent, const char* titleStrId, bool titleCheckable,
                         const char* unitStrId, Uint16 val, const char** saveStrIds);

    void setDisable(bool disable) override;

protected:
    void showValue() override;

private:
    void slt_buttonClicked(int index);

    CRadioButton* m_pAlterNativeButtons;
};

/// A choice from a list.
class APPPLUGINS_EXPORT ComboBoxCombComponent : public SelectionCombComponent
{
    Q_OBJECT

public:
    ComboBoxCombComponent(QWidget* parent, const char* titleStrId, bool titleCheckable,
                          const char* unitStrId, Uint16 val, Uint16 max, const char** saveStrIds);

    void setDisable(bool disable) override;

protected:
    void showValue() override;
    void changeEvent(QEvent* event) override;

private:
    void slt_currentIndexChanged(int index);
    bool userIsChoosing() const;

    CComboBox* m_pComboBox;
};

/// An on/off switch: a slider of two positions.
class APPPLUGINS_EXPORT BooleanSliderCombComponent : public CPluginCombComponentBase
{
    Q_OBJECT

public:
    BooleanSliderCombComponent(QWidget* parent, const char* titleStrId, bool titleCheckable,
                               const char* unitStrId, Uint16 val);

    /// Moves the switch to 0 or 1 without a signal; nothing for the current value or while
    /// disabled.
    void set(Uint16 value);
    Uint16 get() const { return m_value; }

    void setDisable(bool disable) override;

private:
    void slt_currentIndexChanged(int index);

    CHorizontalSlider* m_pSlider;
    Uint16 m_value;

    static const QString sm_selfStyleSheet;
};

} // namespace appPlugins
