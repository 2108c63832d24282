// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#pragma once

#include "cplugincombcomponentbase.h"

namespace appPlugins {

class CComboBox;
class CHorizontalSlider;
class CRadioButton;

/// A choice among labelled values, 0 to a maximum. Each value has a save identifier, which is the
/// identifier of its text at the same time; setup files store choices by it, so that the order of
/// the values may change.
///
/// Members of the family emit paraChanged(Uint16) and then paraChanged(const char*) for a choice
/// that is made while their input has the focus, which a tap gives it. A choice without the focus
/// is taken over silently.
class APPPLUGINS_EXPORT SelectionCombComponent : public CPluginCombComponentBase
{
    Q_OBJECT

public:
    /// Starts at @p val, at most @p max. @p saveStrIds holds max + 1 identifiers; the array and
    /// they must outlive the component.
    SelectionCombComponent(QWidget* parent, const char* titleStrId, bool titleCheckable,
                           const char* unitStrId, Uint16 val, Uint16 max, const char** saveStrIds);

    /// Chooses a value without a signal. False, with nothing done, for a value above the maximum or
    /// while disabled.
    virtual bool set(Uint16 value);
    /// Chooses the value with this save identifier (compared byte by byte, not null) without a
    /// signal. False, with nothing done, when there is none or while disabled.
    virtual bool set(const char* saveStrId);
    /// The current value, 0 to the maximum.
    Uint16 get() const { return m_value; }
    /// Save identifier of the current value.
    const char* getSaveStrId() const;

protected:
    /// Shows the current value in the input.
    virtual void showValue() {}
    /// Tells the owner of a choice that the user made: emits both signals.
    void reportChoice();

    Uint16 m_value;                             ///< the current value
    Uint16 m_maxValue;                          ///< the largest value
    const char** m_saveRestoreValueLabelsStrId; ///< save identifiers, m_maxValue + 1 of them
};

/// A choice between two values by a pair of buttons.
class APPPLUGINS_EXPORT BooleanCombComponent : public SelectionCombComponent
{
    Q_OBJECT

public:
    /// Starts at @p val, 0 for the left or 1 for the right button. @p saveStrIds holds their two
    /// identifiers.
    BooleanCombComponent(QWidget* parent, const char* titleStrId, bool titleCheckable,
                         const char* unitStrId, Uint16 val, const char** saveStrIds);

    /// Disables or enables the row with its buttons.
    void setDisable(bool disable) override;

protected:
    /// Checks the current value's button.
    void showValue() override;

private:
    void slt_buttonClicked(int index);

    CRadioButton* m_pAlterNativeButtons;
};

/// A choice from a list. The focus of a combo box's list counts as that of the input, too.
class APPPLUGINS_EXPORT ComboBoxCombComponent : public SelectionCombComponent
{
    Q_OBJECT

public:
    /// Starts at @p val, at most @p max. @p saveStrIds holds max + 1 identifiers, in the list's
    /// order.
    ComboBoxCombComponent(QWidget* parent, const char* titleStrId, bool titleCheckable,
                          const char* unitStrId, Uint16 val, Uint16 max, const char** saveStrIds);

    /// Disables or enables the row with its list.
    void setDisable(bool disable) override;

protected:
    /// Shows the current value's text.
    void showValue() override;
    /// Shows list and unit in the new language.
    void changeEvent(QEvent* event) override;

private:
    void slt_currentIndexChanged(int index);
    bool userIsChoosing() const;

    CComboBox* m_pComboBox;
};

/// An on/off switch: a slider of two positions. Emits paraChanged(Uint16) for a change that is made
/// while the slider has the focus, which a tap gives it.
class APPPLUGINS_EXPORT BooleanSliderCombComponent : public CPluginCombComponentBase
{
    Q_OBJECT

public:
    /// Starts at @p val: 0 for off, 1 for on.
    BooleanSliderCombComponent(QWidget* parent, const char* titleStrId, bool titleCheckable,
                               const char* unitStrId, Uint16 val);

    /// Moves the switch to 0 or 1 without a signal; nothing for the current value, any other number
    /// or while disabled.
    void set(Uint16 value);
    /// 0 for off, 1 for on.
    Uint16 get() const { return m_value; }

    /// Disables or enables the row with its switch.
    void setDisable(bool disable) override;

private:
    void slt_currentIndexChanged(int index);

    CHorizontalSlider* m_pSlider;
    Uint16 m_value;

    static const QString sm_selfStyleSheet;
};

} // namespace appPlugins
