// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QVector>
#include <QWidget>

class QVBoxLayout;

namespace appPlugins {
class CPluginCombComponentBase;
class RealCombComponent;
} // namespace appPlugins

/// A form of parameter components as a plug-in builds one: whole, real and positive numbers,
/// choices, a switch, a text.
class ParameterForm : public QWidget
{
    Q_OBJECT

public:
    explicit ParameterForm(QWidget* parent);

    /// Every component, from the top.
    QVector<appPlugins::CPluginCombComponentBase*> components() const { return m_components; }
    /// Those that hold a number.
    QVector<appPlugins::RealCombComponent*> numbers() const { return m_numbers; }

Q_SIGNALS:
    /// A component has told something of its value.
    void message(const QString& text);
    /// A number outside its limits was entered.
    void rangeWarning(const QString& text);

private:
    void addNumbers();
    void addChoices();
    void addOthers();
    void addComponent(appPlugins::CPluginCombComponentBase* component);
    void addNumber(appPlugins::RealCombComponent* number);
    void warn(const appPlugins::RealCombComponent& number, double value);

    QVBoxLayout* m_pLayout;
    QVector<appPlugins::CPluginCombComponentBase*> m_components;
    QVector<appPlugins::RealCombComponent*> m_numbers;
};
