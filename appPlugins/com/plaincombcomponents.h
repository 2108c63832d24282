// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#pragma once

#include "cplugincombcomponentbase.h"

#include <QRegExp>

#include <functional>

class QLineEdit;
class QPushButton;

namespace appPlugins {

/// A row without an input: a place holder.
class APPPLUGINS_EXPORT EmptyCombComponent : public CPluginCombComponentBase
{
    Q_OBJECT

public:
    /// Title and unit with room between them.
    EmptyCombComponent(QWidget* parent, const char* titleStrId, bool titleCheckable,
                       const char* unitStrId);

private:
    QLabel* m_pPlaceHolder;
};

/// A line of text. What a program sets must match a pattern; what the user enters is taken as it is
/// and reported by paraChanged(QString) when editing ends with Return or with the loss of the
/// focus, once for a text that differs from the one held.
class APPPLUGINS_EXPORT StringCombComponent : public CPluginCombComponentBase
{
    Q_OBJECT

public:
    /// Empty at first. @p rx is matched against the whole of a text that is set.
    StringCombComponent(QWidget* parent, const char* titleStrId, bool titleCheckable,
                        const char* unitStrId, const QRegExp& rx);
    /// Reports nothing any more.
    ~StringCombComponent() override;

    /// Shows a text without a signal. False, with nothing done, for one that does not match or
    /// while disabled.
    bool set(QString text);
    /// The text last set or reported; empty at first.
    QString get() const { return m_strValue; }

    /// Disables or enables the row with its line of text.
    void setDisable(bool disable) override;

private:
    void slt_editingFinished();

    QLineEdit* m_pParamLineEdit;
    QString m_strValue;
    QRegExp m_rx;

    static const QString sm_strQLineEditStyleSheet;
};

/// What an action does when there is nothing to do: returns true, so that triggered() follows.
APPPLUGINS_EXPORT bool DummyAction();

/// A button that does something: a tap is execute().
class APPPLUGINS_EXPORT ActionCombComponent : public CPluginCombComponentBase
{
    Q_OBJECT

public:
    /// @p buttonTextId names the button's text and must outlive the component. @p action must not
    /// be empty; DummyAction() is for a button whose triggered() alone counts.
    ActionCombComponent(QWidget* parent, const char* titleStrId, bool titleCheckable,
                        const char* unitStrId, const char* buttonTextId,
                        std::function<bool()> action);

    /// Shows the text of another identifier, which must outlive the component.
    void setButtonTextId(const char* buttonTextId);
    /// Does another action from now on; an empty one is a programming error.
    void setActionFunction(std::function<bool()> action);

    /// Does the action and returns its result; emits triggered() when that is true, whoever calls.
    /// False, with nothing done, while disabled.
    bool execute();

    /// Disables or enables the row with its button.
    void setDisable(bool disable) override;

protected:
    /// Shows button and unit in the new language.
    void changeEvent(QEvent* event) override;

private:
    std::function<bool()> actionFunction;
    QPushButton* m_pActionButton;
    const char* m_buttonTextId;

    static const QString sm_selfStyleSheet;
};

} // namespace appPlugins
