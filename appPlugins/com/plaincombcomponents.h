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
    EmptyCombComponent(QWidget* parent, const char* titleStrId, bool titleCheckable,
                       const char* unitStrId);

private:
    QLabel* m_pPlaceHolder;
};

/// A text that matches a pattern.
class APPPLUGINS_EXPORT StringCombComponent : public CPluginCombComponentBase
{
    Q_OBJECT

public:
    /// @p rx is matched against the whole of a text that is set.
    StringCombComponent(QWidget* parent, const char* titleStrId, bool titleCheckable,
                        const char* unitStrId, const QRegExp& rx);
    ~StringCombComponent() override;

    /// Shows a text without a signal. False, with nothing done, for one that does not match or
    /// while disabled.
    bool set(QString text);
    QString get() const { return m_strValue; }

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

/// A button that does something.
class APPPLUGINS_EXPORT ActionCombComponent : public CPluginCombComponentBase
{
    Q_OBJECT

public:
    /// @p buttonTextId must outlive the component.
    ActionCombComponent(QWidget* parent, const char* titleStrId, bool titleCheckable,
                        const char* unitStrId, const char* buttonTextId,
                        std::function<bool()> action);

    void setButtonTextId(const char* buttonTextId);
    void setActionFunction(std::function<bool()> action);

    /// Does the action and returns its result; emits triggered() when that is true. False, with
    /// nothing done, while disabled.
    bool execute();

    void setDisable(bool disable) override;

protected:
    void changeEvent(QEvent* event) override;

private:
    std::function<bool()> actionFunction;
    QPushButton* m_pActionButton;
    const char* m_buttonTextId;

    static const QString sm_selfStyleSheet;
};

} // namespace appPlugins
